package orvane.str.diskarray;

public class WZSyncControl {
    public WZSyncPort[] port_val;
}
