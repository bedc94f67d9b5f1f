package orvane.str.diskarray;

/** A unit record whose serial is not a String: the last field cannot be set. */
public class KXUnitParam {
    public static int made;

    public String unit_name;
    public String group_name;
    public int connect_type;
    public int kx_type;
    public int device_type;
    public int unit_conf;
    public int alert;
    public String ctl0;
    public String ctl1;
    public int serial;

    public KXUnitParam() {
        ++made;
    }
}
