package orvane.str.diskarray;

/** Lacks rate, the last field whose failure drops the object. */
public class WZSyncPort {
    public int board_type;
    public int rate_absent;
}
