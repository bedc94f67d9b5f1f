package orvane.str.diskarray;

/** Cannot be initialised: the JVM cannot find it for the bridge. */
public class WZSyncPort {
    static {
        if (!Boolean.getBoolean("kx.never")) throw new IllegalStateException("unusable class");
    }

    public int board_type;
    public int rate;
}
