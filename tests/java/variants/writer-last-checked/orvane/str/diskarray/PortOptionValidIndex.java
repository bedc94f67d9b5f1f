package orvane.str.diskarray;

/** Lacks port_common_opt_valid_index, the last field whose failure drops the object. */
public class PortOptionValidIndex {
    public int lip_mode_valid_index;
    public int port_common_opt_valid_index_absent;
}
