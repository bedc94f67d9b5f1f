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
    public native PoolInfo KX_GetPoolInformation(String unitName, KXSessionInfo session);
    public native void KX_ChangePoolInformation(String unitName, KXSessionInfo session, ChgPoolInfo change);
    public native void KX_PoolLUAdd(String unitName, KXSessionInfo session, int a, int b, int c);
    public native void KX_PoolLUAddList(String unitName, KXSessionInfo session, int a, int b, PoolLuAddList list);
    public native void KX_PoolLUAllDelete(String unitName, KXSessionInfo session, int a, int b);
    public native void KX_CreateVVOL(String unitName, KXSessionInfo session, int a, int b, int c);
    public native void KX_DeleteVVOL(String unitName, KXSessionInfo session, int a, int b);
    public native void KX_SetIntegrationLU(String unitName, KXSessionInfo session, IntegrationLUSet set);
    public native IntegrationLUInfo KX_IntegrationLUInfo(String unitName);
    public native IntegrationLUInfo2 KX_IntegrationLUInfo2(String unitName, KXSessionInfo session);
    public native PINInformation KX_GetIntegrationPinInfo(String unitName, KXSessionInfo session);
    public native KXLabel[] KX_GetLabelList();
    public native KXLabel[] KX_GetLabelList2();
    public native void KX_RaidLuExport(String unitName, KXSessionInfo session, String path);
    public native RaidLUInformation KX_RaidLuImportEx(String unitName, KXSessionInfo session, String path);
    public native Object[] KX_RaidLuImport(String unitName, String path);
    public native WizardParam KX_GetWizardParam(String unitName, String path, int x);
    public native void KX_SetWizardParam(String unitName, WizardParam param, String path, int x);
    public native void KX_TestWizardParam(String unitName, WizardParam param, String path, int x);
    public native NowWZParameter KX_GetNowWZParam(String unitName, int x);
    public native void KX_SetNowWZParam(String unitName, int x, NowWZParameter param);
    public native void KX_LuWizardOutput(String unitName, KXSessionInfo session, String path, LuWZSetContents contents);
    public native PrefetchInformation KX_GetPrefetchInformation(String unitName, KXSessionInfo session);
    public native void KX_SetPrefetchInformation(String unitName, KXSessionInfo session, PrefetchInformation info);
    public native LuCachePartition KX_GetLuCachePartition(String unitName, KXSessionInfo session);
    public native void KX_SetLuCachePartition(String unitName, KXSessionInfo session, LuCachePartition partition);
    public native PrefetchTuning KX_GetPrefetchTuning(String unitName, KXSessionInfo session);
    public native void KX_SetPrefetchTuning(String unitName, KXSessionInfo session, PrefetchTuning tuning);
    public native TurboLu KX_GetTurboLU(String unitName, KXSessionInfo session);
    public native void KX_SetTurboLU(String unitName, KXSessionInfo session, TurboLu turbo);
    // ---- end of pools, virtual volumes, unified LUs, set-up wizard and LU cache ----


    // ---- host groups and LU mapping ----
    public native HGList KX_GetHGList(String unitName, KXSessionInfo session);
    public native void KX_CreateHG(String unitName, KXSessionInfo session, int a, int b, int c, HGConfig config);
    public native void KX_ChangeHG(String unitName, KXSessionInfo session, int a, int b, int c, HGConfig config);
    public native void KX_DeleteHGList(String unitName, KXSessionInfo session, DeleteHGList list);
    public native void KX_InitHGList(String unitName, KXSessionInfo session, InitHGList list);
    public native HGOptionInfo KX_GetHGOption(String unitName, KXSessionInfo session, int a, int b, int c);
    public native void KX_SetHGOption(String unitName, KXSessionInfo session, int a, int b, int c, HGOptionInfo info);
    public native HGOption KX_GetHGOptionAll(String unitName, KXSessionInfo session);
    public native void KX_SetHGOptionAll(String unitName, KXSessionInfo session, HGOption option);
    public native HGParameterID KX_GetHGParameterID(String unitName, KXSessionInfo session, int a);
    public native HGParameterList KX_GetHGParameterList(String unitName, KXSessionInfo session);
    public native LuMapping KX_GetLuMappingListAll(String unitName, KXSessionInfo session);
    public native void KX_SetLuMappingListAll(String unitName, KXSessionInfo session, LuMapping map);
    /** Element 0: the number of mapped LUs as an Integer (null for none); element 1: the LuMappingHGInfo. */
    public native Object[] KX_GetLuMappingList(String unitName, KXSessionInfo session, int a, int b, int c);
    public native void KX_SetLuMappingList(String unitName, KXSessionInfo session, int a, int b, int c, int d,
                                           LuMappingHGInfo lu);
    public native void KX_ChangeMappingMode(String unitName, KXSessionInfo session, int mode);
    public native MappingGuardList KX_GetMappingGuardList(String unitName, KXSessionInfo session);
    public native void KX_SetMappingGuardList(String unitName, KXSessionInfo session, MappingGuardList guard);

    // ---- end of host groups and LU mapping ----


    // ---- Fibre Channel ports, WWN security and target IDs ----
    public native FibreInformation[] KX_GetFibreInformation(String unitName, KXSessionInfo session);
    public native void KX_SetFibreInformation(String unitName, KXSessionInfo session, FibreInformation ctl0,
            FibreInformation ctl1);
    public native WWNInformation KX_GetWWNInformation(String unitName);
    public native void KX_SetWWNInformation(String unitName, WWNInformation info);
    public native WWNHGInformation KX_GetWWNHGInformation(String unitName, KXSessionInfo session);
    public native void KX_SetWWNHGInformation(String unitName, KXSessionInfo session, WWNHGInformation info);
    public native PortOption KX_GetPortOption(String unitName, KXSessionInfo session);
    public native void KX_SetPortOption(String unitName, KXSessionInfo session, PortOption option);
    public native TargetId[] KX_GetTargetId(String unitName, int a);
    public native void KX_SetTargetId(String unitName, int a, TargetId target, int b);
    public native TargetId[] KX_TargetIdImport(String unitName, String file);
    public native WZTargetId[] KX_WZTargetIdImport(String unitName, String file1, String file2, int a);

    // ---- end of Fibre Channel ports, WWN security and target IDs ----


    // ---- iSCSI, CHAP and LU guard ----
    public native KXiSCSIPortInformation KX_GetiSCSIPortInformation(String unitName, KXSessionInfo session);
    public native void KX_SetiSCSIPortInformation(String unitName, KXSessionInfo session, KXiSCSIPortInformation info);
    public native KXiSCSITargetInformationAll KX_GetiSCSITargetInformationAll(String unitName,
            KXSessionInfo session);
    public native void KX_CreateiSCSITarget(String unitName, KXSessionInfo session, int a, int b, int c,
            KXiSCSITargetInfo target);
    public native void KX_ChangeiSCSITarget(String unitName, KXSessionInfo session, int a, int b, int c,
            KXiSCSITargetInfo target);
    public native void KX_DeleteiSCSITarget(String unitName, KXSessionInfo session, int a, int b,
            DeleteiSCSITarget list);
    public native void KX_InitiSCSITarget(String unitName, KXSessionInfo session, int a, int b);
    public native void KX_ChangeiSCSITargetSecurity(String unitName, KXSessionInfo session, int a, int b, int c);
    public native KXiSCSIInitiatorInformationAll KX_GetiSCSIInitiatorInformationAll(String unitName,
            KXSessionInfo session);
    public native void KX_SetiSCSIInitiatortInformation(String unitName, KXSessionInfo session, int a, int b,
            KXiSCSIInitiatorPortInfo port);
    public native KXiSCSILoginInitiatorInformationAll KX_GetiSCSILoginInitiatorInformationAll(String unitName,
            KXSessionInfo session);
    public native KXiSCSICHAPUserInformationAll KX_GetiSCSICHAPUserInformationAll(String unitName,
            KXSessionInfo session);
    public native void KX_SetiSCSICHAPUserInformation(String unitName, KXSessionInfo session, int a, int b,
            KXiSCSICHAPUserPortInfo port);
    public native void KX_iSCSICHAPUserImport(String unitName, KXSessionInfo session, String file);
    public native KXiSNSInformation KX_GetiSNSInformation(String unitName, KXSessionInfo session);
    public native void KX_SetiSNSInformation(String unitName, KXSessionInfo session, KXiSNSInformation info);
    public native void KX_RequestiSCSIPing(String unitName, KXSessionInfo session, KXiSCSIPing ping);
    public native KXiSCSIPing KX_GetiSCSIPingStatus(String unitName, KXSessionInfo session);
    public native LuGuardInformation KX_GetLuGuardInformation(String unitName, KXSessionInfo session);
    public native void KX_SetLuAccessLevel(String unitName, KXSessionInfo session, LuAccessLevel level);
    public native void KX_ExtendRetentionTerm(String unitName, KXSessionInfo session, int a, int b);
    public native void KX_SetExpirationLock(String unitName, KXSessionInfo session, int a);

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
    public native int KX_MicroFileConcat(String unitName, KXSessionInfo session, String path, int value);
    public native void KX_MicroFileConcat2(String unitName, KXSessionInfo session, String path);
    public native void KX_MicroFileConcatEx(String unitName, KXSessionInfo session, String path);
    public native void KX_CancelMicroFileConcat();
    public native MicroFileInformation KX_GetMicroFileInformation();
    public native String KX_GetNewMicroRevision();
    public native int KX_GetMicroDownloadCount(String unitName);
    public native int KX_GetMicroDownloadCountEx(String unitName, int value);
    public native void KX_MicroDownload(String unitName, KXSessionInfo session, int a, int b, int c);
    public native void KX_MicroDownloadEx(String unitName, KXSessionInfo session, int a, int b, int c, int d);
    public native void KX_MicroReplace(String unitName, KXSessionInfo session, int value);
    public native MicroReplaceInformation KX_MicroReplaceEx(String unitName, KXSessionInfo session, int value);
    public native void KX_CompleteMicroReplace(String unitName, KXSessionInfo session, int value);
    public native void KX_ENCMicroFileConcat(String unitName, KXSessionInfo session, String path);
    public native void KX_ENCMicroFileConcatEx(String unitName, KXSessionInfo session, String path, int value);
    public native void KX_CancelENCMicroFileConcat();
    public native int KX_GetENCMicroDownloadCount(String unitName, KXSessionInfo session);
    public native int KX_ENCMicroDownload(String unitName, KXSessionInfo session, int a, int b);
    public native void KX_ENCMicroReplace(String unitName, KXSessionInfo session, int value);
    public native ENCMicroInformation KX_GetENCMicroInformation();
    public native ENCMicroInformation KX_GetENCMicroInformationEx(String unitName, KXSessionInfo session);
    public native ENCStatusList KX_GetENCStatusList(String unitName, KXSessionInfo session);
    public native ENCDownloadOption KX_GetENCDownloadOption(String unitName, KXSessionInfo session);
    public native void KX_SetENCDownloadOption(String unitName, KXSessionInfo session, ENCDownloadOption option);
    public native BootOption KX_GetBootOption(String unitName, KXSessionInfo session);
    public native void KX_SetBootOption(String unitName, KXSessionInfo session, BootOption option);
    public native void KX_TestBootOption(String unitName, KXSessionInfo session, BootOption option);
    public native void KX_BootOptionExport(String unitName, KXSessionInfo session, String path);
    public native void KX_BootOptionImport(String unitName, KXSessionInfo session, String path);

    // ---- end of controller and enclosure microcode, boot options ----


    // ---- copy pairs, command devices and volume migration ----
    public native PairInfo KX_GetPairInformation(String unitName, KXSessionInfo session);
    public native MirrexInformation KX_GetMirrexInformation(String unitName);
    public native void KX_SplitMirrexPair(String unitName, int value);
    public native FarsyncPairInformation KX_GetFarsyncPairInformation(String unitName, KXSessionInfo session);
    public native FarsyncAsyncPairInformation KX_GetFarsyncAsyncPairInformation(String unitName, KXSessionInfo session);
    public native FarsyncAsyncOption KX_GetFarsyncAsyncOption(String unitName, KXSessionInfo session);
    public native void KX_SetFarsyncAsyncOption(String unitName, KXSessionInfo session, FarsyncAsyncOption option);
    public native CommandDevice KX_GetCommandDevice(String unitName, KXSessionInfo session);
    public native void KX_SetCommandDevice(String unitName, KXSessionInfo session, CommandDevice device);
    public native DMLUInformation KX_GetDMLU(String unitName, KXSessionInfo session);
    public native void KX_SetDMLU(String unitName, KXSessionInfo session, DMLUInformation dmlu);
    public native CouplingInfo KX_GetCouplingInfo(String unitName, KXSessionInfo session);
    public native RemoteDeviceInformation KX_GetRemoteDeviceInformation(String unitName, KXSessionInfo session);
    public native void KX_SetRemoteDeviceInformation(String unitName, KXSessionInfo session, RemoteDeviceInformation info);
    public native void KX_SetSvolDisableMode(String unitName, KXSessionInfo session, int a, int b);
    public native void KX_AddLuMigrationReserveLU(String unitName, KXSessionInfo session, LuMigrationReserveLU lus);
    public native void KX_DeleteLuMigrationReserveLU(String unitName, KXSessionInfo session, LuMigrationReserveLU lus);
    public native void KX_StartLuMigration(String unitName, KXSessionInfo session, RequestLuMigration request);
    public native void KX_CancelLuMigration(String unitName, KXSessionInfo session, RequestLuMigration request);
    public native void KX_SplitLuMigration(String unitName, KXSessionInfo session, RequestLuMigration request);
    public native void KX_SplitLuMigrationFreeOwner(String unitName, KXSessionInfo session, RequestLuMigration request);
    public native void KX_ChangeCopyPace(String unitName, KXSessionInfo session, RequestLuMigration request);
    public native LuMigrationState KX_GetLuMigrationState(String unitName, KXSessionInfo session);
    public native LuMigrationInformation KX_GetLuMigrationInformation(String unitName, KXSessionInfo session);

    // ---- end of copy pairs, command devices and volume migration ----
}
