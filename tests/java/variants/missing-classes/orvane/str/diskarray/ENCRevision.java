package orvane.str.diskarray;

/** Cannot be initialised: the JVM cannot find it for the bridge. */
public class ENCRevision {
    static {
        if (!Boolean.getBoolean("kx.never")) throw new IllegalStateException("unusable class");
    }

    public int valid_index;
    public String rev_main;
    public String rev_boot;
    public String rev_ectl;
    public String rev_rtr;
    public String rev_ses;
}
