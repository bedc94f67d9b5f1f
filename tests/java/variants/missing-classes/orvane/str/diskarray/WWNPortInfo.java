package orvane.str.diskarray;

/** Cannot be initialised: the JVM cannot find it for the bridge. */
public class WWNPortInfo {
    static {
        if (!Boolean.getBoolean("kx.never")) throw new IllegalStateException("unusable class");
    }

    public int lun_security;
    public int permission_count;
    public int security_chk_lv;
    public WWNPermInfo[] permission;
}
