package orvane.str.diskarray;

public class AlertCheckUser {
    public String user_id;
    public String passwd;
    public int account_enable;
}
