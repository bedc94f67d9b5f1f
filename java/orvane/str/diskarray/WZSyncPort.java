package orvane.str.diskarray;

public class WZSyncPort {
    public int board_type;
    public int rate;
}
