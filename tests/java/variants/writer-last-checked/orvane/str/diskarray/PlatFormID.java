package orvane.str.diskarray;

/** Lacks platform_name, the last field whose failure drops the object. */
public class PlatFormID {
    public int platform_id;
    public byte[] platform_name_absent = new byte[31];
    public String platform_name_str;
}
