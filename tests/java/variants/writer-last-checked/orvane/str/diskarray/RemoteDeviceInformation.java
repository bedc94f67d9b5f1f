package orvane.str.diskarray;

/** Lacks valid, the last field whose failure drops the object. */
public class RemoteDeviceInformation {
    public int valid_absent;
    public String equipment_id;
    public String serial;
}
