package orvane.str.diskarray;

/** Cannot be initialised: the JVM cannot find it for the bridge. */
public class PlatFormID {
    static {
        if (!Boolean.getBoolean("kx.never")) throw new IllegalStateException("unusable class");
    }

    public int platform_id;
    public byte[] platform_name = new byte[31];
    public String platform_name_str;
}
