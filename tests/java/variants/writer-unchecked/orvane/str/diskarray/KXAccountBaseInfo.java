package orvane.str.diskarray;

/** Lacks passwd, its last unchecked field. */
public class KXAccountBaseInfo {
    public String user_id;
    public int set_passwd;
    public String passwd_absent;
    public int account_type;
    public int role;
    public int account_enable;
}
