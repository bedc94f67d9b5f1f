package orvane.str.diskarray;

/** Lacks percent. */
public class LuFormatStatus {
    public int status;
    public int err_code_sense_key;
    public int err_code_sense_code;
}
