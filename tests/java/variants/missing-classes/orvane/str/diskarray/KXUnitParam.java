package orvane.str.diskarray;

/** Cannot be initialised: the JVM cannot find it for the bridge. */
public class KXUnitParam {
    static {
        if (!Boolean.getBoolean("kx.never")) throw new IllegalStateException("unusable class");
    }

    public String unit_name;
    public String group_name;
    public int connect_type;
    public int kx_type;
    public int device_type;
    public int unit_conf;
    public int alert;
    public String ctl0;
    public String ctl1;
    public String serial;
}
