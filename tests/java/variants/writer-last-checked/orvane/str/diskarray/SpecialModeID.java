package orvane.str.diskarray;

/** Lacks specialmode_name, the last field whose failure drops the object. */
public class SpecialModeID {
    public int specialmode_id;
    public byte[] specialmode_name_absent = new byte[121];
    public String specialmode_name_str;
}
