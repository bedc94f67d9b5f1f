package orvane.str.diskarray;

public class HGCtlInfo {
    public HGPortInfo[] port;
}
