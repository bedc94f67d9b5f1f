package orvane.str.diskarray;

/** Lacks collect_copy_times, the last field whose failure drops the object. */
public class SATADriveRestoration {
    public int collect_copy_times_absent;
}
