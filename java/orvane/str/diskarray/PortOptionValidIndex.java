package orvane.str.diskarray;

public class PortOptionValidIndex {
    public int lip_mode_valid_index;
    public int port_common_opt_valid_index;
}
