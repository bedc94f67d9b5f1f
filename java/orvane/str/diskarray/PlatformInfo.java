package orvane.str.diskarray;

public class PlatformInfo {
    public int platform_id;
    public int alternate_path_count;
    public AlternatePathInfo[] altpathinfo;
}
