package orvane.str.diskarray;

/** Lacks id_rear, its last unchecked field. */
public class ControllerInfo {
    public int ctrl_name_mode;
    public String id_front;
    public String id_rear_absent;
}
