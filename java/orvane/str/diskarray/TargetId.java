package orvane.str.diskarray;

public class TargetId {
    public int ctrl_flag;
    public int target_id_mode;
    public TargetConfig[] target_config;
}
