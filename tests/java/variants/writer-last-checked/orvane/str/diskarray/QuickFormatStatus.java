package orvane.str.diskarray;

/** Lacks waiting_number, the last field whose failure drops the object. */
public class QuickFormatStatus {
    public int entry;
    public int status;
    public int percent;
    public int waiting_number_absent;
}
