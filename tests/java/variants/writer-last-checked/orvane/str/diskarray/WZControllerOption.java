package orvane.str.diskarray;

/** Lacks write_verify_mode, the last field whose failure drops the object. */
public class WZControllerOption {
    public int id_mode;
    public String id_front;
    public String id_rear;
    public int error_out_mode;
    public int write_verify_mode_absent;
}
