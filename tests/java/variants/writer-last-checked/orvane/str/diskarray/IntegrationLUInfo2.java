package orvane.str.diskarray;

/** Lacks unite_info, the last field whose failure drops the object. */
public class IntegrationLUInfo2 {
    public int integration_lu;
    public int parent_count;
    public int[] parent_lu;
    public UniteLU2[] unite_info_absent;
}
