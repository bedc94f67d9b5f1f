package orvane.str.diskarray;

/** Lacks equipment_id, its last unchecked field. */
public class UnitIdentifier {
    public String equipment_id_absent;
    public ControllerInfo[] ctl;
}
