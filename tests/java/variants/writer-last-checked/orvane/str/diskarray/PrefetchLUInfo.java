package orvane.str.diskarray;

/** Lacks pre_size_fixation, the last field whose failure drops the object. */
public class PrefetchLUInfo {
    public int pre_size_basis;
    public int pre_size_fixation_absent;
}
