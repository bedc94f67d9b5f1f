package orvane.str.diskarray;

public class NowWZParameter {
    public int fd_backup;
    public NowWZPortOptions port_option;
    public NowWZCtrlId ctrl_id;
}
