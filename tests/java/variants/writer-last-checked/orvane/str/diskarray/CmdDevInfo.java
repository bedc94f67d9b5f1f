package orvane.str.diskarray;

/** Lacks rm_security, the last field whose failure drops the object. */
public class CmdDevInfo {
    public int cmd_valid;
    public int set_valid;
    public int cmd_lu;
    public int rm_security_absent;
}
