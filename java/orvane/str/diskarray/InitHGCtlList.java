package orvane.str.diskarray;

public class InitHGCtlList {
    public InitHGPortList[] port;
}
