package orvane.str.diskarray;

public class WZControllerOption {
    public int id_mode;
    public String id_front;
    public String id_rear;
    public int error_out_mode;
    public int write_verify_mode;
}
