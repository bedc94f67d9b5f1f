package orvane.str.diskarray;

/** Lacks ReplaceCTL, the last field whose failure drops the object. */
public class MicroReplaceInformation {
    public int valid;
    public int WaitCancelreq;
    public int ReplaceCTL_absent;
}
