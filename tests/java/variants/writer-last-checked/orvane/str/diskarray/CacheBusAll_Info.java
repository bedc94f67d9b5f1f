package orvane.str.diskarray;

/** Lacks dual_cachebus_used_time, the last field whose failure drops the object. */
public class CacheBusAll_Info {
    public int valid;
    public int support;
    public int cachebus_monitoring_time;
    public int cachebus_used_time;
    public int host_cachebus_used_time;
    public int drive_cachebus_used_time;
    public int drr_cachebus_used_time;
    public int cpu_cachebus_used_time;
    public int dual_cachebus_used_time_absent;
}
