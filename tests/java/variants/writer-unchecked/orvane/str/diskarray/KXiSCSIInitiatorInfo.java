package orvane.str.diskarray;

/** Lacks iscsi_name, its last unchecked field. */
public class KXiSCSIInitiatorInfo {
    public int initiator_valid;
    public int ctrl_flag;
    public String initiator_name;
    public String iscsi_name_absent;
    public byte[] target_bitmap = new byte[32];
}
