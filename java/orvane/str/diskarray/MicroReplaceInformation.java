package orvane.str.diskarray;

public class MicroReplaceInformation {
    public int valid;
    public int WaitCancelreq;
    public int ReplaceCTL;
}
