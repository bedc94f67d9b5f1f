package orvane.str.diskarray;

/** Lacks rg_type, the last field whose failure drops the object. */
public class RgDetail {
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
    public int rg_type_absent;
}
