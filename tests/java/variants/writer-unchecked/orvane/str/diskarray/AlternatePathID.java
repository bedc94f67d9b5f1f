package orvane.str.diskarray;

/** Lacks alternate_path_name_str, its last unchecked field. */
public class AlternatePathID {
    public int alternate_path_id;
    public byte[] alternate_path_name = new byte[31];
    public String alternate_path_name_str_absent;
}
