package orvane.str.diskarray;

public class LuFormatStatusList {
    public LuFormatStatus[] lu;
}
