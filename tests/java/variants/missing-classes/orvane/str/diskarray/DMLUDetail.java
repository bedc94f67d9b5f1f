package orvane.str.diskarray;

/** Cannot be initialised: the JVM cannot find it for the bridge. */
public class DMLUDetail {
    static {
        if (!Boolean.getBoolean("kx.never")) throw new IllegalStateException("unusable class");
    }

    public int dmlu_valid;
    public int set_valid;
    public int dmlu_lu;
}
