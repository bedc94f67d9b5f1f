package orvane.str.diskarray;

/** Lacks nnc_base, the last field whose failure drops the object. */
public class NNCPartsStatus {
    public int valid_index;
    public int[] dimm;
    public int[] ps;
    public int[] fan;
    public int[] connector;
    public int nnc_type;
    public NNCExtensionSlotStatus[] ext_slot;
    public int nnc_base_absent;
}
