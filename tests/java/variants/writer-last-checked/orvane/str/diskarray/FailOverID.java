package orvane.str.diskarray;

/** Lacks failover_name, the last field whose failure drops the object. */
public class FailOverID {
    public int failover_id;
    public byte[] failover_name_absent = new byte[31];
    public String failover_name_str;
}
