package orvane.str.diskarray;

/** Lacks target_config, the last field whose failure drops the object. */
public class TargetId {
    public int ctrl_flag;
    public int target_id_mode;
    public TargetConfig[] target_config_absent;
}
