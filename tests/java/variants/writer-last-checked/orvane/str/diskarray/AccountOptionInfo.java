package orvane.str.diskarray;

/** Lacks session_timeout, the last field whose failure drops the object. */
public class AccountOptionInfo {
    public int password_min_length;
    public int session_timeout_absent;
}
