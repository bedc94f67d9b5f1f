package orvane.str.diskarray;

public class WZTargetId {
    public int ctrl_flag;
    public int target_id_mode;
    public WZTargetConfig[] target_config;
}
