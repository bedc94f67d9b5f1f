package orvane.str.diskarray;

/** Lacks gather_cnt, the last field whose failure drops the object. */
public class StatisticalWriteAfter_PDEVInfo {
    public int gather_prc_cnt;
    public int gather_max;
    public int gather_min;
    public int gather_cnt_absent;
}
