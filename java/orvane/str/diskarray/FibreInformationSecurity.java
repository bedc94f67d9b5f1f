package orvane.str.diskarray;

public class FibreInformationSecurity {
    public int access_guard;
    public int all_lun_security;
    public int permission_count;
    public int security_chk_lv;
    public FibreInformationPermission[] permission;
}
