package orvane.str.diskarray;

/** Lacks percent. */
public class LuFormatStatus {
    public int status, err_code_sense_key, err_code_sense_code;
}
