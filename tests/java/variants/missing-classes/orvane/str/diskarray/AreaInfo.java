package orvane.str.diskarray;

/** Cannot be initialised: the JVM cannot find it for the bridge. */
public class AreaInfo {
    static {
        if (!Boolean.getBoolean("kx.never")) throw new IllegalStateException("unusable class");
    }

    public int areakind;
    public int lun;
    public int befor_lun;
    public int area_capa_h;
    public int area_capa_l;
}
