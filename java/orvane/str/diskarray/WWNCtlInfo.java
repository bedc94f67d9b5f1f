package orvane.str.diskarray;

public class WWNCtlInfo {
    public WWNPortInfo[] port;
}
