package orvane.str.diskarray;

public class KXAccountLogin {
    public String user_id;
    public String passwd;
    public int log_option;
    public String log_string;
}
