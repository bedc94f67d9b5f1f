package orvane.str.diskarray;

/** Lacks ctl, the last field whose failure drops the object. */
public class FarsyncAsyncCTGInfo {
    public FarsyncAsyncCTGCTLInfo[] ctl_absent;
}
