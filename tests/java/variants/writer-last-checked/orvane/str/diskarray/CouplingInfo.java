package orvane.str.diskarray;

/** Lacks coupling, the last field whose failure drops the object. */
public class CouplingInfo {
    public int volk_lite;
    public int coupling_num;
    public CouplingLU[] coupling_absent;
}
