package orvane.str.diskarray;

/** Cannot be initialised: the JVM cannot find it for the bridge. */
public class SpecialModeID {
    static {
        if (!Boolean.getBoolean("kx.never")) throw new IllegalStateException("unusable class");
    }

    public int specialmode_id;
    public byte[] specialmode_name = new byte[121];
    public String specialmode_name_str;
}
