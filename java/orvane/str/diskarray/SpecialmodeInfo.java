package orvane.str.diskarray;

public class SpecialmodeInfo {
    public int specialmode_id;
    public HGOptionInfo hgoptinfo;
}
