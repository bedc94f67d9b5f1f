package orvane.str.diskarray;

/** Lacks mapping, the last field whose failure drops the object. */
public class TargetConfig {
    public int single;
    public byte[] multi = new byte[16];
    public TargetLunList[] mapping_absent;
}
