package orvane.str.diskarray;

/** Lacks serial, its last unchecked field. */
public class RemoteDeviceInformation {
    public int valid;
    public String equipment_id;
    public String serial_absent;
}
