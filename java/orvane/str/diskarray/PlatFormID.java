package orvane.str.diskarray;

public class PlatFormID {
    public int platform_id;
    public byte[] platform_name = new byte[31];
    public String platform_name_str;
}
