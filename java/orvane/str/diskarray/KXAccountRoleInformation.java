package orvane.str.diskarray;

public class KXAccountRoleInformation {
    public int role_valid_index;
    public KXAccountRole[] role_info;
}
