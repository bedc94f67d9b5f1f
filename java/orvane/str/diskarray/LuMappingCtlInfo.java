package orvane.str.diskarray;

public class LuMappingCtlInfo {
    public LuMappingPortInfo[] port;
}
