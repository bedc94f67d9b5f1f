package orvane.str.diskarray;

/** Lacks serial, its last unchecked field. */
public class WZDualConfig {
    public int startup_attr;
    public int data_share;
    public int spare_disk;
    public int connection_mode;
    public String serial_absent;
    public int[] port_d_ctl;
    public int id_taking_over;
    public int[][] port_cnnct_mode1;
    public int[][] port_cnnct_mode2;
    public int delay_time;
    public int hp2_support;
    public int add_bat_unit;
}
