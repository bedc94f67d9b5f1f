package orvane.str.diskarray;

public class KXAccountInfoList {
    public int regist_account_count;
    public KXAccountInfo[] account_info;
}
