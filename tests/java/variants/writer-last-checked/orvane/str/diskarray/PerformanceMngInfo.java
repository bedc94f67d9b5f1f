package orvane.str.diskarray;

/** Lacks totime, the last field whose failure drops the object. */
public class PerformanceMngInfo {
    public String dampver;
    public String unitname;
    public String microver;
    public String serialno;
    public int kx_type;
    public int device_type;
    public int portMaxCount;
    public int rgMaxCount;
    public int luMaxCount;
    public int cacheMaxCount;
    public int processorMaxCount;
    public int hdd_hdu_count;
    public int hdd_unit_count;
    public int backendMaxCount;
    public int cachepartitionMaxCount;
    public int ctlcond;
    public int ctl0;
    public int ctl1;
    public int intervaltime;
    public int cfg;
    public String structver;
    public PerformanceTime fromtime;
    public PerformanceTime totime_absent;
}
