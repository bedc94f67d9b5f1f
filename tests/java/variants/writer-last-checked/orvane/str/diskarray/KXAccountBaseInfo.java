package orvane.str.diskarray;

/** Lacks account_enable, the last field whose failure drops the object. */
public class KXAccountBaseInfo {
    public String user_id;
    public int set_passwd;
    public String passwd;
    public int account_type;
    public int role;
    public int account_enable_absent;
}
