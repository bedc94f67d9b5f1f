package orvane.str.diskarray;

/**
 * The application's native interface to the disk-array library, as the bridge
 * library implements it.  The build generates the bridge's JNI header from this
 * declaration, so every native here must exist in the library with exactly this
 * name and signature, and the library exports nothing else.
 *
 * The library is loaded from the path in the system property {@code kx.library},
 * or by its default name.
 */
public class DiskArrayUtilityJNI {
    static {
        String path = System.getProperty("kx.library");
        if (path != null) {
            System.load(path);
        } else {
            System.loadLibrary("diskarrayjni");
        }
    }

    // ---- sessions and unit login ----
    public native String[] KX_LoginKXUnit(String unitName, int mode, KXUserInfo user);
    public native void KX_LogoutKXUnit(String unitName, int mode);
    public native int KX_CheckLogin(String unitName, int mode);
    public native void KX_ResetLogin(String unitName, int mode);
    public native void KX_KeepSession(String unitName, KXSessionInfo session);

    // ---- unit registry, discovery, identity and condition ----

    // ---- end of units ----


    // ---- RAID groups and logical units ----

    // ---- end of RAID groups and logical units ----


    // ---- formatting, parity correction and drives ----

    // ---- end of formatting and drives ----


    // ---- accounts, array users and audit log ----

    // ---- end of accounts ----
}
