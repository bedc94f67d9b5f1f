package kxtest;

import org.junit.internal.TextListener;
import org.junit.runner.JUnitCore;
import org.junit.runner.Result;

/**
 * JUnitCore's console run, which also says how many tests were skipped (the
 * shipped library has no allocation seam, so its leg skips the tests that fail
 * allocations).
 */
public final class Runner {
    private Runner() {}

    public static void main(String[] args) throws ClassNotFoundException {
        Class<?>[] classes = new Class<?>[args.length];
        for (int i = 0; i < args.length; i++) {
            classes[i] = Class.forName(args[i]);
        }
        JUnitCore core = new JUnitCore();
        core.addListener(new TextListener(System.out));
        Result r = core.run(classes);
        int skipped = r.getAssumptionFailureCount() + r.getIgnoreCount();
        System.out.printf("jvm: %d passed, %d failed, %d skipped%n",
                r.getRunCount() - r.getFailureCount() - r.getAssumptionFailureCount(),
                r.getFailureCount(), skipped);
        System.exit(r.wasSuccessful() ? 0 : 1);
    }
}
