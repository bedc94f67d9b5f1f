package orvane.str.diskarray;

public class LuMapping {
    public int HostGroupValid;
    public int ctrl_flag;
    public int mapping_mode;
    public LuMappingCtlInfo[] ctl;
}
