package orvane.str.diskarray;

/** Lacks ctl, the last field whose failure drops the object. */
public class LuMapping {
    public int HostGroupValid;
    public int ctrl_flag;
    public int mapping_mode;
    public LuMappingCtlInfo[] ctl_absent;
}
