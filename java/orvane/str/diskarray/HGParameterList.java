package orvane.str.diskarray;

public class HGParameterList {
    public int platform_count;
    public PlatformInfo[] platinfo;
    public int special_mode_count;
    public SpecialmodeInfo[] specialinfo;
}
