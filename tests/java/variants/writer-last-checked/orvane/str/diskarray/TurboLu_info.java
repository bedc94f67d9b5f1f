package orvane.str.diskarray;

/** Lacks reserve_lun, the last field whose failure drops the object. */
public class TurboLu_info {
    public int current_status;
    public int current_assign;
    public int current_lun;
    public int reserve_assign;
    public int reserve_lun_absent;
}
