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
    public native void KX_UnitAdd(KXUnitParam unit);
    public native void KX_UnitAddByIP(KXUnitParam unit);
    public native void KX_UnitChange(String unitName, KXUnitParam unit);
    public native void KX_UnitChangeByIP(String unitName, KXUnitParam unit);
    public native void KX_UnitDelete(String unitName);
    public native KXUnitParam KX_GetUnitParam(String unitName);
    public native int KX_GetUnitCount();
    public native KXUnitParam[] KX_GetUnitParamTable(int count);
    public native DiscoverUnit KX_DiscoverUnitInformation(DiscoverEntry entry);
    public native DiscoverUnit KX_DiscoverUnitInformationEx(DiscoverEntry entry);
    public native UnitIdentifier KX_GetUnitIdentifier(String unitName);
    public native void KX_SetUnitIdentifier(String unitName, UnitIdentifier id);
    public native void KX_UnitReboot(String unitName, KXSessionInfo session);
    public native void KX_TestUnitReady(String unitName, int value);
    public native void KX_GUIInitialize(GUIInitialize init);
    public native void KX_EnvironmentCheck();
    public native void KX_JavaVersionCheck(String version);
    public native void KX_RgLuFileOutput(String unitName, String path);
    public native String KX_ModifyInfo(String name, int value);
    public native String[] KX_APIRevision();
    public native UnitCondition KX_GetUnitCondition(String unitName, KXSessionInfo session, int a);

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
    public native KXSessionInfo KX_LoginKXAccount(String unitName, KXAccountLogin login);
    public native void KX_LogoutKXAccount(String unitName, KXSessionInfo session, KXAccountLogout logout);
    public native KXSessionInfo KX_LoginKXAccountAlertCheck(String unitName, int a);
    public native void KX_LogoutKXAccountAlertCheck(String unitName, KXSessionInfo session, KXAccountLogout logout);
    public native void KX_ForcedLogoutKXAccount(String unitName, KXSessionInfo session, ForcedLogoutInfo info);
    public native KXAccountInfoList KX_GetAccountInformation(String unitName, KXSessionInfo session);
    public native void KX_CreateAccount(String unitName, KXSessionInfo session, KXAccountBaseInfo base);
    public native void KX_ChangeAccount(String unitName, KXSessionInfo session, KXAccountBaseInfo base);
    public native void KX_DeleteAccount(String unitName, KXSessionInfo session, KXAccountDelete del);
    public native void KX_ChangeOwnUserPassword(String unitName, KXSessionInfo session, OwnUserPassword password);
    public native OwnUserPermission KX_GetOwnUserPermission(String unitName, KXSessionInfo session);
    public native KXAccountRoleInformation KX_GetKXAccountRoleInformation(String unitName, KXSessionInfo session);
    public native AccountOption KX_GetAccountOption(String unitName, KXSessionInfo session);
    public native int KX_AlertCheck(String unitName, KXSessionInfo session, int a);
    public native void KX_SetAlertCheckUser(AlertCheckUser user);
    public native AlertCheckUser KX_GetAlertCheckUser();
    public native String[] KX_GetLoginUser(String path, int a);
    public native KXUserRegist KX_GetUserInformation(String path, int a);
    public native void KX_RegistUser(String path, int a, KXUserInfo user);
    public native void KX_ChangeUser(String path, int a, KXUserInfo oldUser, KXUserInfo newUser);
    public native void KX_DeleteUser(String path, int a, KXUserInfo user);
    public native void KX_DeleteAllUser(String path, int a);
    public native void KX_PasswdChange(String path);
    public native int KX_PasswdCheck(String text);
    public native KXUserLANInformation KX_GetKXUserLANInformation(String unitName, KXSessionInfo session);
    public native void KX_SetKXUserLANInformation(String unitName, KXSessionInfo session, KXUserLANInformation lan);
    public native KXUserLANInformation KX_LoadKXUserLANInformation(String unitName, KXSessionInfo session, String path);
    public native KXAuditLogInformation KX_GetKXAuditLogInformation(String unitName, KXSessionInfo session);
    public native void KX_SetKXAuditLogInformation(String unitName, KXSessionInfo session, KXAuditLogInformation info);
    public native void KX_KXAuditLogExport(String unitName, KXSessionInfo session, String path);
    public native void KX_InitKXAuditLog(String unitName, KXSessionInfo session, KXAuditLogInit init);
    public native FibreInformationPermission[] KX_FibreInfoPermissionImport(String unitName, String path, int a, int b);

    // ---- end of accounts ----


    // ---- pools, virtual volumes, unified LUs, set-up wizard and LU cache ----

    // ---- end of pools, virtual volumes, unified LUs, set-up wizard and LU cache ----


    // ---- host groups and LU mapping ----

    // ---- end of host groups and LU mapping ----


    // ---- Fibre Channel ports, WWN security and target IDs ----

    // ---- end of Fibre Channel ports, WWN security and target IDs ----


    // ---- iSCSI, CHAP and LU guard ----

    // ---- end of iSCSI, CHAP and LU guard ----


    // ---- statistics and performance output ----
    public native StatisticalInformation KX_GetStatisticalInformation(String unitName, KXSessionInfo session, int selector);
    public native StatisticalCommand[] KX_GetPerformance(String unitName, KXSessionInfo session);
    public native PerformanceAll[] KX_GetPerformanceAll(String unitName, KXSessionInfo session, int a);
    public native int KX_GetPfmStatisCfg(String unitName, KXSessionInfo session);
    public native void KX_SetPfmStatisCfg(String unitName, KXSessionInfo session, int cfg);
    public native void KX_PerformanceOutput(String unitName, KXSessionInfo session, String path,
            StatisticalCommand cmd1, StatisticalCommand cmd2, StatisticalCommand cmd3, StatisticalCommand cmd4);
    public native void KX_PerformanceOutputLU(String unitName, KXSessionInfo session, String path,
            StatisticalCommand cmd1, StatisticalCommand cmd2, StatisticalCommand cmd3, StatisticalCommand cmd4,
            int a, byte[] lu, int b);
    public native void KX_PerformanceOutputAll(String unitName, PerformanceOutputInfo info);
    public native void KX_PerformanceOutputAllEx(String unitName, KXSessionInfo session, PerformanceOutputInfoEx info);
    public native void KX_PerformanceOutputSkip(String path, int a, int b, KXTime time);
    public native void KX_PerformanceOutputCSV(String path, PerformanceCSVInfo info);
    public native int KX_GetPerformanceCSVNum(String path, PerformanceCSVInfo info);
    public native PerformanceCollectGraphInfo KX_PerformanceOutputGraphInfo(String unitName, KXSessionInfo session,
            PerformanceOutputGraphInfo info);
    public native void KX_PerformanceDataOutput(String path, PerformanceCollectGraphInfo graphs);
    public native void KX_PerformanceDataInitialize(KXSessionInfo session, String path, PerformanceMngInfo info);
    public native PerformanceMngInfo KX_PerformanceInputMngFile(String path);
    public native int KX_GetPfmFileMaxCount();
    // ---- end of statistics and performance output ----


    // ---- controller and enclosure microcode, boot options ----

    // ---- end of controller and enclosure microcode, boot options ----


    // ---- copy pairs, command devices and volume migration ----

    // ---- end of copy pairs, command devices and volume migration ----
}
