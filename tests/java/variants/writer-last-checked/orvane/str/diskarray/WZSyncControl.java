package orvane.str.diskarray;

/** Lacks port_val, the last field whose failure drops the object. */
public class WZSyncControl {
    public WZSyncPort[] port_val_absent;
}
