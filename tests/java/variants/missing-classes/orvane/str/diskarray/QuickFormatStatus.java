package orvane.str.diskarray;

/** Cannot be initialised: the JVM cannot find it for the bridge. */
public class QuickFormatStatus {
    static {
        if (!Boolean.getBoolean("kx.never")) throw new IllegalStateException("unusable class");
    }

    public int entry;
    public int status;
    public int percent;
    public int waiting_number;
}
