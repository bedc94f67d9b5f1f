package simtest;

import java.util.ArrayList;
import java.util.List;
import java.util.Locale;
import org.junit.experimental.categories.Categories;
import org.junit.internal.TextListener;
import org.junit.runner.Description;
import org.junit.runner.JUnitCore;
import org.junit.runner.Request;
import org.junit.runner.Result;
import org.junit.runner.notification.RunListener;

/**
 * Runs test classes and says how many passed, failed and were skipped, in the
 * line tests/run_sim.sh adds up.  With -Dsim.only=smoke only the tests marked
 * {@link Smoke} run.
 */
public final class Runner {
    private Runner() {}

    public static void main(String[] args) throws ClassNotFoundException {
        boolean smoke = "smoke".equals(System.getProperty("sim.only", ""));
        JUnitCore core = new JUnitCore();
        core.addListener(new TextListener(System.out));
        Timings timings = new Timings();
        core.addListener(timings);
        int passed = 0, failed = 0, skipped = 0;
        for (String name : args) {
            Request request = Request.aClass(Class.forName(name));
            if (smoke) {
                request = request.filterWith(Categories.CategoryFilter.include(Smoke.class));
            }
            Result r = core.run(request);
            passed += r.getRunCount() - r.getFailureCount() - r.getAssumptionFailureCount();
            failed += r.getFailureCount();
            skipped += r.getIgnoreCount() + r.getAssumptionFailureCount();
        }
        timings.printSlowest(5);
        System.out.printf("simtest: %d passed, %d failed, %d skipped%n", passed, failed, skipped);
        System.exit(failed == 0 ? 0 : 1);
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
