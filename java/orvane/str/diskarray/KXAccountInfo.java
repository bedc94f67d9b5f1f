package orvane.str.diskarray;

public class KXAccountInfo {
    public KXAccountBaseInfo account_base_info;
    public int number_session;
    public int modify_session;
}
