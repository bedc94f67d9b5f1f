package orvane.str.diskarray;

public class QuickFormatStatusList {
    public int priority_mode;
    public int format_mode;
    public QuickFormatStatus[] lu;
}
