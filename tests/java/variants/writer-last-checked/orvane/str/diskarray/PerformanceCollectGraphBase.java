package orvane.str.diskarray;

/** Lacks onverirate, the last field whose failure drops the object. */
public class PerformanceCollectGraphBase {
    public int valid;
    public int iorate;
    public int readrate;
    public int writerate;
    public short readhit;
    public short writehit;
    public int transrate;
    public int readtransrate;
    public int writetransrate;
    public int onverirate_absent;
}
