package orvane.str.diskarray;

/** Lacks lun, the last field whose failure drops the object. */
public class TargetLunList {
    public byte[] lun_absent = new byte[128];
}
