package orvane.str.diskarray;

/** Lacks error, the last field whose failure drops the object. */
public class VUDataAll_Info {
    public VUCommandAll_Info control;
    public VUCommandAll_Info data_transfer;
    public VUError_Info error_absent;
}
