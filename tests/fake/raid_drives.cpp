#include "fake.h"
#include "raid.h"

// formatting and parity correction
PERNIX_FAKE(KX_LogicalUnitFormat, Str<65>, Int, Int)
PERNIX_FAKE(KX_LogicalUnitFormatStatus, Str<65>, Int, IntOut)
PERNIX_FAKE(KX_LogicalUnitFormatImmediateCTL, Str<65>, Int, Int, IntOut)
PERNIX_FAKE(KX_LogicalUnitFormatStatusList, Str<65>, Out<LuFormatStatusListRec>)
PERNIX_FAKE(KX_EntryFormatList, Str<65>, In<FormatListRec>)
PERNIX_FAKE(KX_GetFormatStatusList, Str<65>, Out<FormatStatusListRec>)
PERNIX_FAKE(KX_GetQuickFormatOption, Str<65>, In<KXSessionInfoRec>, Out<QuickFormatOptionRec>)
PERNIX_FAKE(KX_SetQuickFormatOption, Str<65>, In<KXSessionInfoRec>, In<QuickFormatOptionRec>)
PERNIX_FAKE(KX_EntryQuickFormatList, Str<65>, In<KXSessionInfoRec>, In<QuickFormatListRec>)
PERNIX_FAKE(KX_GetQuickFormatStatusList, Str<65>, In<KXSessionInfoRec>, Out<QuickFormatStatusListRec>)
PERNIX_FAKE(KX_EntryParityCorrectionList, Str<65>, In<KXSessionInfoRec>, In<ParityCorrectionListRec>)
PERNIX_FAKE(KX_GetParityCorrectionStatusList, Str<65>, In<KXSessionInfoRec>,
            Out<ParityCorrectionStatusListRec>)

// drives
PERNIX_FAKE(KX_GetDriveInformation, Str<65>, In<KXSessionInfoRec>, Int, Int, Out<DiskDriveInformationRec>)
PERNIX_FAKE(KX_GetDriveInformationAll, Str<65>, In<KXSessionInfoRec>, Out<DiskDriveInformationRec[450]>)
PERNIX_FAKE(KX_GetDriveStatus, Str<65>, In<KXSessionInfoRec>, Out<DiskDriveRec[450]>)
PERNIX_FAKE(KX_DriveReconstructInformation, Str<65>, In<KXSessionInfoRec>, Int, Int,
            Out<DriveReconstructInformationRec>)
PERNIX_FAKE(KX_GetDiskDriveRestoration, Str<65>, In<KXSessionInfoRec>, Out<DiskDriveRestorationRec>)
PERNIX_FAKE(KX_SetDiskDriveRestoration, Str<65>, In<KXSessionInfoRec>, In<DiskDriveRestorationRec>)
PERNIX_FAKE(KX_GetSATADriveInformation, Str<65>, In<KXSessionInfoRec>, Out<SATADriveInformationRec>)
PERNIX_FAKE(KX_SetSATADriveInformation, Str<65>, In<KXSessionInfoRec>, In<SATADriveInformationRec>)
PERNIX_FAKE(KX_GetSATADriveRestoration, Str<65>, In<KXSessionInfoRec>, Out<SATADriveRestorationRec>)
PERNIX_FAKE(KX_SetSATADriveRestoration, Str<65>, In<KXSessionInfoRec>, In<SATADriveRestorationRec>)
PERNIX_FAKE(KX_GetDriveResponseDiag, Str<65>, In<KXSessionInfoRec>, Out<DriveResponseDiagRec>)
PERNIX_FAKE(KX_SetDriveResponseDiag, Str<65>, In<KXSessionInfoRec>, In<DriveResponseDiagRec>)
PERNIX_FAKE(KX_SetDriveMode, Str<65>, In<KXSessionInfoRec>, Int, Int, Int)
PERNIX_FAKE(KX_GetSpinDownUpInformation, Str<65>, In<KXSessionInfoRec>, Out<SpinDownUpInformationRec>)
PERNIX_FAKE(KX_SpinDownDriveByRG, Str<65>, In<KXSessionInfoRec>, Int)
PERNIX_FAKE(KX_SpinUpDriveByRG, Str<65>, In<KXSessionInfoRec>, Int)
