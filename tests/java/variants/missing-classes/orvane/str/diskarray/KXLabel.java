package orvane.str.diskarray;

/** Cannot be initialised: the JVM cannot find it for the bridge. */
public class KXLabel {
    static {
        if (!Boolean.getBoolean("kx.never")) throw new IllegalStateException("unusable class");
    }

    public String oldlabel;
    public String newlabel;
}
