package orvane.str.diskarray;

/** Cannot be initialised: the JVM cannot find it for the bridge. */
public class PrefetchLUInfo {
    static {
        if (!Boolean.getBoolean("kx.never")) throw new IllegalStateException("unusable class");
    }

    public int pre_size_basis;
    public int pre_size_fixation;
}
