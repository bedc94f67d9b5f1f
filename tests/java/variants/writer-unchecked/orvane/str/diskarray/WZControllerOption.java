package orvane.str.diskarray;

/** Lacks id_rear, its last unchecked field. */
public class WZControllerOption {
    public int id_mode;
    public String id_front;
    public String id_rear_absent;
    public int error_out_mode;
    public int write_verify_mode;
}
