package orvane.str.diskarray;

/** Cannot be initialised: the JVM cannot find it for the bridge. */
public class StatisticalHontai {
    static {
        if (!Boolean.getBoolean("kx.never")) throw new IllegalStateException("unusable class");
    }

    public int pctl_err;
    public int pci_err;
    public int mpu_err;
    public int dctl_err;
    public int bridge_err;
    public int ps;
    public int fan;
    public int upst;
    public int ac_inbox;
    public int backup_power;
    public int auto_reset;
    public int auto_reboot;
    public int ectl_err;
}
