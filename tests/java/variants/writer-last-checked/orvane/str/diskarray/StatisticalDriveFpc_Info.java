package orvane.str.diskarray;

/** Lacks alternate_link_fail, the last field whose failure drops the object. */
public class StatisticalDriveFpc_Info {
    public int normal_fpc_err;
    public int alternate_fpc_err;
    public int normal_link_err;
    public int alternate_link_err;
    public int normal_link_fail;
    public int alternate_link_fail_absent;
}
