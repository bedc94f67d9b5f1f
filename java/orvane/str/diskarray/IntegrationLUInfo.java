package orvane.str.diskarray;

public class IntegrationLUInfo {
    public int integration_lu;
    public UniteLU[] unite_info;
}
