package orvane.str.diskarray;

public class SpecialModeID {
    public int specialmode_id;
    public byte[] specialmode_name = new byte[121];
    public String specialmode_name_str;
}
