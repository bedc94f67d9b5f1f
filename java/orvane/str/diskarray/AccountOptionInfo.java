package orvane.str.diskarray;

public class AccountOptionInfo {
    public int password_min_length;
    public int session_timeout;
}
