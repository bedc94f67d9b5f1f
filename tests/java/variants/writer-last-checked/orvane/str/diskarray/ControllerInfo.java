package orvane.str.diskarray;

/** Lacks ctrl_name_mode, the last field whose failure drops the object. */
public class ControllerInfo {
    public int ctrl_name_mode_absent;
    public String id_front;
    public String id_rear;
}
