package orvane.str.diskarray;

/** A unit condition whose connector field has the wrong type (the fields after it are never reached). */
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
    public int[][][] connector;  // not the byte table the bridge builds
}
