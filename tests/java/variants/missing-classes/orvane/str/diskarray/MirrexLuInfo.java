package orvane.str.diskarray;

/** Cannot be initialised: the JVM cannot find it for the bridge. */
public class MirrexLuInfo {
    static {
        if (!Boolean.getBoolean("kx.never")) throw new IllegalStateException("unusable class");
    }

    public int lun;
    public int pair_status;
    public int pair_attr;
    public int changed_rate;
    public String remote_type;
    public String remote_serial;
    public String remote_ldev;
}
