package orvane.str.diskarray;

public class PrefetchLUInfo {
    public int pre_size_basis;
    public int pre_size_fixation;
}
