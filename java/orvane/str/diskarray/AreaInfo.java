package orvane.str.diskarray;

public class AreaInfo {
    public int areakind;
    public int lun;
    public int befor_lun;
    public int area_capa_h;
    public int area_capa_l;
}
