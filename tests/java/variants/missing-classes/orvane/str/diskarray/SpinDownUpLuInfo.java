package orvane.str.diskarray;

/** Cannot be initialised: the JVM cannot find it for the bridge. */
public class SpinDownUpLuInfo {
    static {
        if (!Boolean.getBoolean("kx.never")) throw new IllegalStateException("unusable class");
    }

    public int lun;
    public int lu_power_saving;
    public int lu_power_saving_detail;
}
