package orvane.str.diskarray;

/** Lacks logout_instruction, the last field whose failure drops the object. */
public class KXUserLANInformation {
    public KXUserLANDetail[] ctl;
    public int mainte_ip_change_mode;
    public int last_set_mode;
    public int logout_instruction_absent;
}
