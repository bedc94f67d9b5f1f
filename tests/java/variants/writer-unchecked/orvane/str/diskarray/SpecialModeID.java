package orvane.str.diskarray;

/** Lacks specialmode_name_str, its last unchecked field. */
public class SpecialModeID {
    public int specialmode_id;
    public byte[] specialmode_name = new byte[121];
    public String specialmode_name_str_absent;
}
