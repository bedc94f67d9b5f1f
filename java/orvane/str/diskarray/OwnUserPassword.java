package orvane.str.diskarray;

public class OwnUserPassword {
    public String user_id;
    public String old_passwd;
    public String new_passwd;
}
