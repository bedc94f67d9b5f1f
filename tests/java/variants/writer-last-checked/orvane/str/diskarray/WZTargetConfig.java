package orvane.str.diskarray;

/** Lacks mapping, the last field whose failure drops the object. */
public class WZTargetConfig {
    public int single;
    public byte[] multi = new byte[16];
    public WZTargetLunList[] mapping_absent;
}
