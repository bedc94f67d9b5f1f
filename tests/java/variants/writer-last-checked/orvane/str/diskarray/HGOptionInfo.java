package orvane.str.diskarray;

/** Lacks special_mode_id, the last field whose failure drops the object. */
public class HGOptionInfo {
    public int option;
    public int[] option2 = new int[2];
    public int option3;
    public int platform_id;
    public int alternate_path_id;
    public int failover_id;
    public int special_mode_id_absent;
}
