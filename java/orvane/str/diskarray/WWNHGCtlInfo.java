package orvane.str.diskarray;

public class WWNHGCtlInfo {
    public WWNHGPortInfo[] port;
}
