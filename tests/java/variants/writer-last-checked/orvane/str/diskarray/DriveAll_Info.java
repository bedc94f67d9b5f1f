package orvane.str.diskarray;

/** Lacks unload_time, the last field whose failure drops the object. */
public class DriveAll_Info {
    public CommandAll_Info drive_info;
    public int valid;
    public int support;
    public int not_opr_time_h;
    public int not_opr_time_l;
    public int[] tag_count;
    public int unload_time_absent;
}
