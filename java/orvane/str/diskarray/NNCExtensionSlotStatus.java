package orvane.str.diskarray;

public class NNCExtensionSlotStatus {
    public int valid_index;
    public int card_state;
    public int card_type;
    public int[] connector_state;
}
