package orvane.str.diskarray;

public class UnitIdentifier {
    public String equipment_id;
    public ControllerInfo[] ctl;
}
