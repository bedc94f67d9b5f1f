package kxtest;

import java.util.ArrayList;
import java.util.List;
import java.util.Locale;
import org.junit.internal.TextListener;
import org.junit.runner.Description;
import org.junit.runner.JUnitCore;
import org.junit.runner.Result;
import org.junit.runner.notification.RunListener;

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
        Timings timings = new Timings();
        core.addListener(timings);
        Result r = core.run(classes);
        timings.printSlowest(8);
        int skipped = r.getAssumptionFailureCount() + r.getIgnoreCount();
        System.out.printf("jvm: %d passed, %d failed, %d skipped%n",
                r.getRunCount() - r.getFailureCount() - r.getAssumptionFailureCount(),
                r.getFailureCount(), skipped);
        System.exit(r.wasSuccessful() ? 0 : 1);
    }

    /** Wall time of each test, so a slow leg shows where its time goes. */
    private static final class Timings extends RunListener {
        private final List<Object[]> done = new ArrayList<>();
        private long start;

        @Override
        public void testStarted(Description d) {
            start = System.nanoTime();
        }

        @Override
        public void testFinished(Description d) {
            done.add(new Object[] {(System.nanoTime() - start) / 1e9, d.getDisplayName()});
        }

        void printSlowest(int n) {
            done.sort((a, b) -> Double.compare((Double) b[0], (Double) a[0]));
            System.out.println("slowest tests:");
            for (int i = 0; i < Math.min(n, done.size()); i++) {
                System.out.printf(Locale.ROOT, "  %7.2f s  %s%n", done.get(i)[0], done.get(i)[1]);
            }
        }
    }
}
