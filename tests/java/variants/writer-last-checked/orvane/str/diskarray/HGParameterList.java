package orvane.str.diskarray;

/** Lacks specialinfo, the last field whose failure drops the object. */
public class HGParameterList {
    public int platform_count;
    public PlatformInfo[] platinfo;
    public int special_mode_count;
    public SpecialmodeInfo[] specialinfo_absent;
}
