package orvane.str.diskarray;

public class CmdDevInfo {
    public int cmd_valid;
    public int set_valid;
    public int cmd_lu;
    public int rm_security;
}
