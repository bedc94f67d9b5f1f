package orvane.str.diskarray;

/** Cannot be initialised: the JVM cannot find it for the bridge. */
public class FibreInformationSecurity {
    static {
        if (!Boolean.getBoolean("kx.never")) throw new IllegalStateException("unusable class");
    }

    public int access_guard;
    public int all_lun_security;
    public int permission_count;
    public int security_chk_lv;
    public FibreInformationPermission[] permission;
}
