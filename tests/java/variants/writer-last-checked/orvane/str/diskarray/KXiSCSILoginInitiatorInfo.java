package orvane.str.diskarray;

/** Lacks initiator_valid, the last field whose failure drops the object. */
public class KXiSCSILoginInitiatorInfo {
    public int initiator_valid_absent;
    public String iscsi_name;
}
