package orvane.str.diskarray;

public class RemoteDeviceInformation {
    public int valid;
    public String equipment_id;
    public String serial;
}
