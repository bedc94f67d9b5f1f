package orvane.str.diskarray;

public class KXiSCSILoginInitiatorInfo {
    public int initiator_valid;
    public String iscsi_name;
}
