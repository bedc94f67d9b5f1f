package orvane.str.diskarray;

/** Lacks target_bitmap, the last field whose failure drops the object. */
public class KXiSCSIInitiatorInfo {
    public int initiator_valid;
    public int ctrl_flag;
    public String initiator_name;
    public String iscsi_name;
    public byte[] target_bitmap_absent = new byte[32];
}
