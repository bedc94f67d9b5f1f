package orvane.str.diskarray;

/** Cannot be initialised: the JVM cannot find it for the bridge. */
public class AlternatePathID {
    static {
        if (!Boolean.getBoolean("kx.never")) throw new IllegalStateException("unusable class");
    }

    public int alternate_path_id;
    public byte[] alternate_path_name = new byte[31];
    public String alternate_path_name_str;
}
