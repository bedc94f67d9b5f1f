package orvane.str.diskarray;

public class VUDataAll_Info {
    public VUCommandAll_Info control;
    public VUCommandAll_Info data_transfer;
    public VUError_Info error;
}
