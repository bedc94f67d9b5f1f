package orvane.str.diskarray;

/** Lacks ctl, the last field whose failure drops the object. */
public class TurboLu {
    public int option;
    public TurboLu_info[] ctl_absent;
}
