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
    public native RaidGroup[] KX_GetRaidGroups(String unitName);
    public native void KX_RaidGroupAdd(String unitName, RaidGroup rg);
    public native void KX_RaidGroupExpand(String unitName, RaidGroup rg);
    public native void KX_RaidGroupDelete(String unitName, KXSessionInfo session, int rgnum);
    public native void KX_RaidGroupAllDelete(String unitName, KXSessionInfo session);
    public native void KX_CreateRaidGroup(String unitName, KXSessionInfo session, CreateRaidGroup create);
    public native RaidGroupInformation KX_GetRaidGroupInformation(String unitName, KXSessionInfo session);
    public native RGAreaInformation KX_GetRGAreaInformation(String unitName, KXSessionInfo session, int rgnum);
    public native RgDetail KX_GetRaidGroupCreationCapacity(String unitName, KXSessionInfo session,
                                                           CreateRaidGroup create);
    public native LogicalUnit[] KX_GetLogicalUnit(String unitName, KXSessionInfo session);
    public native LogicalUnit KX_GetLogicalUnit1(String unitName, KXSessionInfo session, int lun);
    public native int KX_GetLastLogicalUnit(String unitName);
    public native void KX_LogicalUnitAdd(String unitName, KXSessionInfo session, LogicalUnit lu);
    public native void KX_LogicalUnitDelete(String unitName);
    public native void KX_LogicalUnitDeleteAll(String unitName);
    public native void KX_LogicalUnitDeleteByLUN(String unitName, KXSessionInfo session, int lun);
    public native void KX_LogicalUnitExpand(String unitName, int a, int b);
    public native void KX_LogicalUnitChangeStaging(String unitName, KXSessionInfo session, int a, int b);
    public native void KX_LogicalUnitChangeCtl(String unitName, KXSessionInfo session, int a);
    public native void KX_LogicalUnitInvalid(String unitName, int lun);
    public native void KX_LogicalUnitRestore(String unitName, int lun);
    public native void KX_LogicalUnitRealloc(String unitName, LUReallocInfo realloc);
    public native int[] KX_BlockToByte(int a, int b, int c);
    // ---- end of RAID groups and logical units ----


    // ---- formatting, parity correction and drives ----

    // ---- end of formatting and drives ----


    // ---- accounts, array users and audit log ----

    // ---- end of accounts ----
}
