package orvane.str.diskarray;

/** Lacks id_rear, its last unchecked field. */
public class NowWZCtrlId {
    public String id_front;
    public String id_rear_absent;
    public int ctrl_name_mode;
}
