package orvane.str.diskarray;

/** Cannot be initialised: the JVM cannot find it for the bridge. */
public class StatisticalUnit {
    static {
        if (!Boolean.getBoolean("kx.never")) throw new IllegalStateException("unusable class");
    }

    public int battery;
    public int ps;
    public int fan;
    public int upst;
    public int backup_power;
}
