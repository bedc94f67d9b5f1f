package orvane.str.diskarray;

/** Lacks permission, the last field whose failure drops the object. */
public class FibreInformationSecurity {
    public int access_guard;
    public int all_lun_security;
    public int permission_count;
    public int security_chk_lv;
    public FibreInformationPermission[] permission_absent;
}
