package orvane.str.diskarray;

public class InitHGList {
    public InitHGCtlList[] ctl;
}
