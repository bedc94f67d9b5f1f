package orvane.str.diskarray;

/** Lacks failover_name_str, its last unchecked field. */
public class FailOverID {
    public int failover_id;
    public byte[] failover_name = new byte[31];
    public String failover_name_str_absent;
}
