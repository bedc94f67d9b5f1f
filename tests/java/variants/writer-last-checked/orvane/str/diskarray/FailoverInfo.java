package orvane.str.diskarray;

/** Lacks hgoptinfo, the last field whose failure drops the object. */
public class FailoverInfo {
    public int failover_id;
    public HGOptionInfo hgoptinfo_absent;
}
