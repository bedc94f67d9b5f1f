package orvane.str.diskarray;

/** Lacks role_info, the last field whose failure drops the object. */
public class KXAccountRoleInformation {
    public int role_valid_index;
    public KXAccountRole[] role_info_absent;
}
