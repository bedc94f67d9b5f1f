package orvane.str.diskarray;

public class DiscoverEntry {
    public int connect_type;
    public String ip_dev;
}
