package orvane.str.diskarray;

/** Lacks ctl, the last field whose failure drops the object. */
public class UnitIdentifier {
    public String equipment_id;
    public ControllerInfo[] ctl_absent;
}
