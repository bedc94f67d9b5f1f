package orvane.str.diskarray;

/** Cannot be initialised: the JVM cannot find it for the bridge. */
public class SpareDisk {
    static {
        if (!Boolean.getBoolean("kx.never")) throw new IllegalStateException("unusable class");
    }

    public int unit_no;
    public int hdu_no;
}
