package orvane.str.diskarray;

public class FailoverInfo {
    public int failover_id;
    public HGOptionInfo hgoptinfo;
}
