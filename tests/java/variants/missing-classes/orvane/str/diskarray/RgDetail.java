package orvane.str.diskarray;

/** Cannot be initialised: the JVM cannot find it for the bridge. */
public class RgDetail {
    static {
        if (!Boolean.getBoolean("kx.never")) throw new IllegalStateException("unusable class");
    }

    public int valid_index;
    public int rgnum;
    public int level;
    public int start_unit_no;
    public int start_hdu_no;
    public int parity_hdu_count;
    public int parity_count;
    public int minimum_capa;
    public int total_capa_h;
    public int total_capa_l;
    public int rest_capa_h;
    public int rest_capa_l;
    public int rg_type;
}
