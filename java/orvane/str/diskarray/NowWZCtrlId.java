package orvane.str.diskarray;

public class NowWZCtrlId {
    public String id_front;
    public String id_rear;
    public int ctrl_name_mode;
}
