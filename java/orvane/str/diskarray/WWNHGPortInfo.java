package orvane.str.diskarray;

public class WWNHGPortInfo {
    public int security;
    public int wwn_count;
    public WWNHostInfo[] wwn;
}
