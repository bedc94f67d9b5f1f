package orvane.str.diskarray;

/** Lacks account_info, the last field whose failure drops the object. */
public class KXAccountInfoList {
    public int regist_account_count;
    public KXAccountInfo[] account_info_absent;
}
