package orvane.str.diskarray;

/** Cannot be initialised: the JVM cannot find it for the bridge. */
public class RaidGroup {
    static {
        if (!Boolean.getBoolean("kx.never")) throw new IllegalStateException("unusable class");
    }

    public int rgnum;
    public int level;
    public int port;
    public int row;
    public int width;
    public int depth;
    public int minimum_capa;
    public int lastLBASet;
    public int lastLBA;
    public int rest_h;
    public int rest;
    public int lumaxcapa;
    public int unit_type;
    public int unit_type_sub_code;
}
