package orvane.str.diskarray;

/** Lacks reserve_lun. */
public class TurboLu_info {
    public int current_status, current_assign, current_lun, reserve_assign;
}
