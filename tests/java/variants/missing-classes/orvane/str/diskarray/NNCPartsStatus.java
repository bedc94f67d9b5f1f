package orvane.str.diskarray;

/** Cannot be initialised: the JVM cannot find it for the bridge. */
public class NNCPartsStatus {
    static {
        if (!Boolean.getBoolean("kx.never")) throw new IllegalStateException("unusable class");
    }

    public int valid_index;
    public int[] dimm;
    public int[] ps;
    public int[] fan;
    public int[] connector;
    public int nnc_type;
    public NNCExtensionSlotStatus[] ext_slot;
    public int nnc_base;
}
