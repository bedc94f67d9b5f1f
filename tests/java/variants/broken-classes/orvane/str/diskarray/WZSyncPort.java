package orvane.str.diskarray;

/** `rate` has another type. */
public class WZSyncPort {
    public int board_type;
    public long rate;
}
