package orvane.str.diskarray;

/** Cannot be initialised: the JVM cannot find it for the bridge. */
public class VUDataAll_Info {
    static {
        if (!Boolean.getBoolean("kx.never")) throw new IllegalStateException("unusable class");
    }

    public VUCommandAll_Info control;
    public VUCommandAll_Info data_transfer;
    public VUError_Info error;
}
