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
    public native void KX_LogicalUnitFormat(String unitName, int a, int b);
    public native int KX_LogicalUnitFormatStatus(String unitName, int lun);
    public native int KX_LogicalUnitFormatImmediateCTL(String unitName, int a, int b);
    public native LuFormatStatusList KX_LogicalUnitFormatStatusList(String unitName);
    public native void KX_EntryFormatList(String unitName, FormatList list);
    public native FormatStatusList KX_GetFormatStatusList(String unitName);
    public native QuickFormatOption KX_GetQuickFormatOption(String unitName, KXSessionInfo session);
    public native void KX_SetQuickFormatOption(String unitName, KXSessionInfo session, QuickFormatOption option);
    public native void KX_EntryQuickFormatList(String unitName, KXSessionInfo session, QuickFormatList list);
    public native QuickFormatStatusList KX_GetQuickFormatStatusList(String unitName, KXSessionInfo session);
    public native void KX_EntryParityCorrectionList(String unitName, KXSessionInfo session, ParityCorrectionList list);
    public native ParityCorrectionStatusList KX_GetParityCorrectionStatusList(String unitName, KXSessionInfo session);

    public native DiskDriveInformation KX_GetDriveInformation(String unitName, KXSessionInfo session, int a, int b);
    public native DiskDriveInformation[] KX_GetDriveInformationAll(String unitName, KXSessionInfo session);
    public native DiskDrive[] KX_GetDriveStatus(String unitName, KXSessionInfo session);
    public native DriveReconstructInformation KX_DriveReconstructInformation(String unitName, KXSessionInfo session, int a, int b);
    public native DiskDriveRestoration KX_GetDiskDriveRestoration(String unitName, KXSessionInfo session);
    public native void KX_SetDiskDriveRestoration(String unitName, KXSessionInfo session, DiskDriveRestoration restoration);
    public native SATADriveInformation KX_GetSATADriveInformation(String unitName, KXSessionInfo session);
    public native void KX_SetSATADriveInformation(String unitName, KXSessionInfo session, SATADriveInformation info);
    public native SATADriveRestoration KX_GetSATADriveRestoration(String unitName, KXSessionInfo session);
    public native void KX_SetSATADriveRestoration(String unitName, KXSessionInfo session, SATADriveRestoration restoration);
    public native DriveResponseDiag KX_GetDriveResponseDiag(String unitName, KXSessionInfo session);
    public native void KX_SetDriveResponseDiag(String unitName, KXSessionInfo session, DriveResponseDiag diag);
    public native void KX_SetDriveMode(String unitName, KXSessionInfo session, int a, int b, int c);
    public native SpinDownUpInformation KX_GetSpinDownUpInformation(String unitName, KXSessionInfo session);
    public native void KX_SpinDownDriveByRG(String unitName, KXSessionInfo session, int rgnum);
    public native void KX_SpinUpDriveByRG(String unitName, KXSessionInfo session, int rgnum);

    // ---- end of formatting and drives ----


    // ---- accounts, array users and audit log ----

    // ---- end of accounts ----
}
