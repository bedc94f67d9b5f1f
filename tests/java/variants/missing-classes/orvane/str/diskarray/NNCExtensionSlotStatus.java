package orvane.str.diskarray;

/** Cannot be initialised: the JVM cannot find it for the bridge. */
public class NNCExtensionSlotStatus {
    static {
        if (!Boolean.getBoolean("kx.never")) throw new IllegalStateException("unusable class");
    }

    public int valid_index;
    public int card_state;
    public int card_type;
    public int[] connector_state;
}
