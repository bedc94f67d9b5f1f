package orvane.str.diskarray;

public class QuickFormatOption {
    public int valid_index;
    public int change_index;
    public int priority_mode;
    public int format_mode;
}
