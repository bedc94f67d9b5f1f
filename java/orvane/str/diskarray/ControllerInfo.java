package orvane.str.diskarray;

public class ControllerInfo {
    public int ctrl_name_mode;
    public String id_front;
    public String id_rear;
}
