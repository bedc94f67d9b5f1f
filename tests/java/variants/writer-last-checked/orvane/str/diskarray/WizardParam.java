package orvane.str.diskarray;

/** Lacks sync_control, the last field whose failure drops the object. */
public class WizardParam {
    public int fd_backup;
    public WZDualConfig dual_conf;
    public WZDriveCapacity drive_capacity;
    public WZOption option;
    public WZEnhancedOption e_option;
    public WZEnhancedOption e_option2;
    public WZTargetId[] target_id;
    public WZModeParam mode_param;
    public WZInquiry inquiry;
    public WZPortType[] port_type;
    public WZRomResponse[] rom_response;
    public WZControllerOption[] ctl_opt;
    public WZLanConfig[] lan_conf;
    public WZSyncControl[] sync_control_absent;
}
