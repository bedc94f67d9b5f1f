package orvane.str.diskarray;

/** Cannot be initialised: the JVM cannot find it for the bridge. */
public class FailOverID {
    static {
        if (!Boolean.getBoolean("kx.never")) throw new IllegalStateException("unusable class");
    }

    public int failover_id;
    public byte[] failover_name = new byte[31];
    public String failover_name_str;
}
