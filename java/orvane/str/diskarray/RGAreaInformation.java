package orvane.str.diskarray;

public class RGAreaInformation {
    public int rgnum;
    public int lumaxcapa;
    public int area_count;
    public AreaInfo[] area;
}
