package orvane.str.diskarray;

/** Lacks alternate_path_name, the last field whose failure drops the object. */
public class AlternatePathID {
    public int alternate_path_id;
    public byte[] alternate_path_name_absent = new byte[31];
    public String alternate_path_name_str;
}
