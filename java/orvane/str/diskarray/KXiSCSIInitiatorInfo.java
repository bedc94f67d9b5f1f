package orvane.str.diskarray;

public class KXiSCSIInitiatorInfo {
    public int initiator_valid;
    public int ctrl_flag;
    public String initiator_name;
    public String iscsi_name;
    public byte[] target_bitmap = new byte[32];
}
