package orvane.str.diskarray;

/** Lacks area_capa_l, the last field whose failure drops the object. */
public class AreaInfo {
    public int areakind;
    public int lun;
    public int befor_lun;
    public int area_capa_h;
    public int area_capa_l_absent;
}
