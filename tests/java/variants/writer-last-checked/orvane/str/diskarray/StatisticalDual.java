package orvane.str.diskarray;

/** Lacks self_dual, the last field whose failure drops the object. */
public class StatisticalDual {
    public int other_correct;
    public int other_dual;
    public int self_dual_absent;
}
