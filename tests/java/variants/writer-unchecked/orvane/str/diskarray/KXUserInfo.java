package orvane.str.diskarray;

/** Credentials without a password field. */
public class KXUserInfo {
    public String user;
}
