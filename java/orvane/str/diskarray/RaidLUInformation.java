package orvane.str.diskarray;

public class RaidLUInformation {
    public RaidGroupInformation rgparam;
    public LogicalUnit[] luparam;
    public int spare_count;
    public SpareDisk[] spareinfo;
}
