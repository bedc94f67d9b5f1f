package orvane.str.diskarray;

/** Lacks passwd, its last unchecked field. */
public class AlertCheckUser {
    public String user_id;
    public String passwd_absent;
    public int account_enable;
}
