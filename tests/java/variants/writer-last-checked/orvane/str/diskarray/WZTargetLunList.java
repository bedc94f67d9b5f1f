package orvane.str.diskarray;

/** Lacks lun, the last field whose failure drops the object. */
public class WZTargetLunList {
    public byte[] lun_absent = new byte[128];
}
