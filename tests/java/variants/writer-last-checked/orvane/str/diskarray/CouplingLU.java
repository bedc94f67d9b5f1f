package orvane.str.diskarray;

/** Lacks mirror_no, the last field whose failure drops the object. */
public class CouplingLU {
    public int primary_stat;
    public int second_stat;
    public int primary_lu;
    public int second_lu;
    public int primary_switch_stat;
    public int second_switch_stat;
    public int mirror_no_absent;
}
