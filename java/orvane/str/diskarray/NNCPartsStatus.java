package orvane.str.diskarray;

public class NNCPartsStatus {
    public int valid_index;
    public int[] dimm;
    public int[] ps;
    public int[] fan;
    public int[] connector;
    public int nnc_type;
    public NNCExtensionSlotStatus[] ext_slot;
    public int nnc_base;
}
