package orvane.str.diskarray;

/** Lacks specialmode, the last field whose failure drops the object. */
public class HGParameterID {
    public int plat_id_count;
    public PlatFormID[] platform;
    public int altpath_id_count;
    public AlternatePathID[] alternatepath;
    public int fail_id_count;
    public FailOverID[] failover;
    public int special_id_count;
    public SpecialModeID[] specialmode_absent;
}
