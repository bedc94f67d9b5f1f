package orvane.str.diskarray;

public class VUError_Info {
    public int valid;
    public int support;
}
