package orvane.str.diskarray;

/** Lacks format_mode, the last field whose failure drops the object. */
public class QuickFormatOption {
    public int valid_index;
    public int change_index;
    public int priority_mode;
    public int format_mode_absent;
}
