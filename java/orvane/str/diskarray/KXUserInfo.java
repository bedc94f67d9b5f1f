package orvane.str.diskarray;

public class KXUserInfo {
    public String user;
    public String passwd;
}
