package orvane.str.diskarray;

/** Lacks cycle_time, the last field whose failure drops the object. */
public class FarsyncAsyncOption {
    public int option;
    public int support_index;
    public int valid_index;
    public int ctrl_flag;
    public int set_index;
    public int cycle_time_absent;
}
