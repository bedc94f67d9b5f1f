package orvane.str.diskarray;

/** Cannot be initialised: the JVM cannot find it for the bridge. */
public class AlternatePathInfo {
    static {
        if (!Boolean.getBoolean("kx.never")) throw new IllegalStateException("unusable class");
    }

    public int alternate_path_id;
    public int failover_count;
    public FailoverInfo[] failinfo;
}
