package orvane.str.diskarray;

/** Lacks spareinfo, the last field whose failure drops the object. */
public class RaidLUInformation {
    public RaidGroupInformation rgparam;
    public LogicalUnit[] luparam;
    public int spare_count;
    public SpareDisk[] spareinfo_absent;
}
