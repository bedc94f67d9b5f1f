package orvane.str.diskarray;

/** Lacks connector_state, the last field whose failure drops the object. */
public class NNCExtensionSlotStatus {
    public int valid_index;
    public int card_state;
    public int card_type;
    public int[] connector_state_absent;
}
