package orvane.str.diskarray;

/** Lacks iscsi_name, its last unchecked field. */
public class KXiSCSILoginInitiatorInfo {
    public int initiator_valid;
    public String iscsi_name_absent;
}
