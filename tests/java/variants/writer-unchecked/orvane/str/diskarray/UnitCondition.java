package orvane.str.diskarray;

/** Lacks serial, its last unchecked field. */
public class UnitCondition {
    public String micro;
    public String micro_pair;
    public int max_slot;
    public CacheStatus[] cache;
    public CacheStatus[] cache2;
    public int[] ps;
    public int[] fan;
    public int[] ac;
    public int[] batt;
    public int[] batt_bk;
    public int[] optionBoard_2port;
    public int[] ctl0_port;
    public int[] ctl1_port;
    public int[] ctl0_port_type;
    public int[] ctl1_port_type;
    public byte[][][] connector;
    public int device_type;
    public int device_type_KXM_sub_code;
    public String ctl0_flush;
    public String ctl1_flush;
    public String ctl0_ip;
    public String ctl1_ip;
    public String ctl0_subnet;
    public String ctl1_subnet;
    public String ctl0_gateway;
    public String ctl1_gateway;
    public int controller_condition;
    public int[] enclosure;
    public int[] loop;
    public String serial_absent;
    public int add_info_index;
    public int unit_count;
    public int[] unit_type;
    public int[] unit_type_sub_code;
    public int[] unit_kind;
    public int[] nnc;
    public NNCPartsStatus[] nnc_parts;
    public int[] function_revision;
    public int ctl_num;
}
