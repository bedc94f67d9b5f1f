package orvane.str.diskarray;

/** Lacks unite_info, the last field whose failure drops the object. */
public class IntegrationLUInfo {
    public int integration_lu;
    public UniteLU[] unite_info_absent;
}
