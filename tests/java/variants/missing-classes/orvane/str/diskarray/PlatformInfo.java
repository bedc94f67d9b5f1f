package orvane.str.diskarray;

/** Cannot be initialised: the JVM cannot find it for the bridge. */
public class PlatformInfo {
    static {
        if (!Boolean.getBoolean("kx.never")) throw new IllegalStateException("unusable class");
    }

    public int platform_id;
    public int alternate_path_count;
    public AlternatePathInfo[] altpathinfo;
}
