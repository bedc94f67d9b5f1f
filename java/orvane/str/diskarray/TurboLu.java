package orvane.str.diskarray;

public class TurboLu {
    public int option;
    public TurboLu_info[] ctl;
}
