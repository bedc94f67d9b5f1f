package orvane.str.diskarray;

public class QuickFormatStatus {
    public int entry;
    public int status;
    public int percent;
    public int waiting_number;
}
