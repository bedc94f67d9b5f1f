package orvane.str.diskarray;

/** Lacks unit, the last field whose failure drops the object. */
public class ENCStatusList {
    public ENCMicroRevision download_rev;
    public int exec_status;
    public ENCReplaceTime start_time;
    public ENCReplaceTime now_time;
    public int replacetime_min;
    public int replacetime_max;
    public int validCTU;
    public ENCCTUStatus ctu;
    public ENCUnitStatus[] unit_absent;
}
