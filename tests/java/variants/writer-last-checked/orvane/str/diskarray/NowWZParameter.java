package orvane.str.diskarray;

/** Lacks ctrl_id, the last field whose failure drops the object. */
public class NowWZParameter {
    public int fd_backup;
    public NowWZPortOptions port_option;
    public NowWZCtrlId ctrl_id_absent;
}
