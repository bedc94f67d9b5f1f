package orvane.str.diskarray;

/** Lacks modify_session, the last field whose failure drops the object. */
public class KXAccountInfo {
    public KXAccountBaseInfo account_base_info;
    public int number_session;
    public int modify_session_absent;
}
