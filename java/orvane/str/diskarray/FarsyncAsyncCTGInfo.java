package orvane.str.diskarray;

public class FarsyncAsyncCTGInfo {
    public FarsyncAsyncCTGCTLInfo[] ctl;
}
