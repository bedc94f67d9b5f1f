package orvane.str.diskarray;

/** The text form of the name is missing. */
public class FailOverID {
    public int failover_id;
    public byte[] failover_name = new byte[31];
}
