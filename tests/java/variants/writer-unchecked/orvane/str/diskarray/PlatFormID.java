package orvane.str.diskarray;

/** Lacks platform_name_str, its last unchecked field. */
public class PlatFormID {
    public int platform_id;
    public byte[] platform_name = new byte[31];
    public String platform_name_str_absent;
}
