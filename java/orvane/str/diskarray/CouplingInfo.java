package orvane.str.diskarray;

public class CouplingInfo {
    public int volk_lite;
    public int coupling_num;
    public CouplingLU[] coupling;
}
