package orvane.str.diskarray;

public class HGOptionCtlInfo {
    public HGOptionPortInfo[] port;
}
