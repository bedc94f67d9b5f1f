package orvane.str.diskarray;

public class FailOverID {
    public int failover_id;
    public byte[] failover_name = new byte[31];
    public String failover_name_str;
}
