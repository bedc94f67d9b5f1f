package orvane.str.diskarray;

/** Cannot be initialised: the JVM cannot find it for the bridge. */
public class HGOptionPortInfo {
    static {
        if (!Boolean.getBoolean("kx.never")) throw new IllegalStateException("unusable class");
    }

    public int security;
    public int hg_tg_max_count;
    public HGOptionInfo[] hg;
}
