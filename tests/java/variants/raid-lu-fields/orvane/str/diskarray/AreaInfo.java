package orvane.str.diskarray;

/** Lacks area_capa_l. */
public class AreaInfo {
    public int areakind, lun, befor_lun, area_capa_h;
}
