package orvane.str.diskarray;

public class SATADriveRestoration {
    public int collect_copy_times;
}
