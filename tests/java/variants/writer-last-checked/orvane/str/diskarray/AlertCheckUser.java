package orvane.str.diskarray;

/** Lacks account_enable, the last field whose failure drops the object. */
public class AlertCheckUser {
    public String user_id;
    public String passwd;
    public int account_enable_absent;
}
