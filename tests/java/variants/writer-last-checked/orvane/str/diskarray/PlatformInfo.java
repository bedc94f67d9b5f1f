package orvane.str.diskarray;

/** Lacks altpathinfo, the last field whose failure drops the object. */
public class PlatformInfo {
    public int platform_id;
    public int alternate_path_count;
    public AlternatePathInfo[] altpathinfo_absent;
}
