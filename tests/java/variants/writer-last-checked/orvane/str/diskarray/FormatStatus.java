package orvane.str.diskarray;

/** Lacks err_code_sense_code, the last field whose failure drops the object. */
public class FormatStatus {
    public int entry;
    public int status;
    public int percent;
    public int err_code_sense_key;
    public int err_code_sense_code_absent;
}
