package orvane.str.diskarray;

/** Lacks area, the last field whose failure drops the object. */
public class RGAreaInformation {
    public int rgnum;
    public int lumaxcapa;
    public int area_count;
    public AreaInfo[] area_absent;
}
