package orvane.str.diskarray;

/** Lacks failinfo, the last field whose failure drops the object. */
public class AlternatePathInfo {
    public int alternate_path_id;
    public int failover_count;
    public FailoverInfo[] failinfo_absent;
}
