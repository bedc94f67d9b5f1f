package orvane.str.diskarray;

public class AlternatePathInfo {
    public int alternate_path_id;
    public int failover_count;
    public FailoverInfo[] failinfo;
}
