package orvane.str.diskarray;

public class FormatStatusList {
    public int mode;
    public int totalpercent;
    public int resttime;
    public FormatStatus[] lu;
}
