package orvane.str.diskarray;

/** Cannot be initialised: the JVM cannot find it for the bridge. */
public class KXAccountInfo {
    static {
        if (!Boolean.getBoolean("kx.never")) throw new IllegalStateException("unusable class");
    }

    public KXAccountBaseInfo account_base_info;
    public int number_session;
    public int modify_session;
}
