#include "fake.h"
#include "raid.h"

// pools, virtual volumes and unified LUs
PERNIX_FAKE(KX_GetPoolInformation, Str<65>, In<KXSessionInfoRec>, Out<PoolInfoRec>)
PERNIX_FAKE(KX_ChangePoolInformation, Str<65>, In<KXSessionInfoRec>, In<ChgPoolInfoRec>)
PERNIX_FAKE(KX_PoolLUAdd, Str<65>, In<KXSessionInfoRec>, Int, Int, Int)
PERNIX_FAKE(KX_PoolLUAddList, Str<65>, In<KXSessionInfoRec>, Int, Int, In<PoolLuAddListRec>)
PERNIX_FAKE(KX_PoolLUAllDelete, Str<65>, In<KXSessionInfoRec>, Int, Int)
PERNIX_FAKE(KX_CreateVVOL, Str<65>, In<KXSessionInfoRec>, Int, Int, Int)
PERNIX_FAKE(KX_DeleteVVOL, Str<65>, In<KXSessionInfoRec>, Int, Int)
PERNIX_FAKE(KX_SetIntegrationLU, Str<65>, In<KXSessionInfoRec>, In<IntegrationLUSetRec>)
PERNIX_FAKE(KX_IntegrationLUInfo, Str<65>, Out<IntegrationLUInfoRec>)
PERNIX_FAKE(KX_IntegrationLUInfo2, Str<65>, In<KXSessionInfoRec>, Out<IntegrationLUInfo2Rec>)
PERNIX_FAKE(KX_GetIntegrationPinInfo, Str<65>, In<KXSessionInfoRec>, Out<PINInformationRec>)
PERNIX_FAKE(KX_GetLabelList, Out<KXLabelRec[PERNIX_LABELS]>, IntOut)
PERNIX_FAKE(KX_GetLabelList2, Out<KXLabelRec[PERNIX_LABELS2]>, IntOut)
PERNIX_FAKE(KX_RaidLuExport, Str<65>, In<KXSessionInfoRec>, Str<1024>)
PERNIX_FAKE(KX_RaidLuImportEx, Str<65>, In<KXSessionInfoRec>, Str<1024>, Out<RaidLUInformationRec>)
PERNIX_FAKE(KX_RaidLuImport, Str<65>, Str<1024>, Out<RaidGroupRec[PERNIX_RAID_GROUPS]>,
            Out<LogicalUnitRec[PERNIX_LOGICAL_UNITS]>)

// set-up wizard
PERNIX_FAKE(KX_GetWizardParam, Str<65>, Str<1024>, Int, Out<WizardParamRec>)
PERNIX_FAKE(KX_SetWizardParam, Str<65>, In<WizardParamRec>, Str<1024>, Int)
PERNIX_FAKE(KX_TestWizardParam, Str<65>, In<WizardParamRec>, Str<1024>, Int)
PERNIX_FAKE(KX_GetNowWZParam, Str<65>, Int, Out<NowWZParameterRec>)
PERNIX_FAKE(KX_SetNowWZParam, Str<65>, Int, In<NowWZParameterRec>)
PERNIX_FAKE(KX_LuWizardOutput, Str<65>, In<KXSessionInfoRec>, Str<1024>, In<LuWZSetContentsRec>)

// LU cache settings
PERNIX_FAKE(KX_GetPrefetchInformation, Str<65>, In<KXSessionInfoRec>, Out<PrefetchInformationRec>)
PERNIX_FAKE(KX_SetPrefetchInformation, Str<65>, In<KXSessionInfoRec>, In<PrefetchInformationRec>)
PERNIX_FAKE(KX_GetLuCachePartition, Str<65>, In<KXSessionInfoRec>, Out<LuCachePartitionRec>)
PERNIX_FAKE(KX_SetLuCachePartition, Str<65>, In<KXSessionInfoRec>, In<LuCachePartitionRec>)
PERNIX_FAKE(KX_GetPrefetchTuning, Str<65>, In<KXSessionInfoRec>, Out<PrefetchTuningRec>)
PERNIX_FAKE(KX_SetPrefetchTuning, Str<65>, In<KXSessionInfoRec>, In<PrefetchTuningRec>)
PERNIX_FAKE(KX_GetTurboLU, Str<65>, In<KXSessionInfoRec>, Out<TurboLuRec>)
PERNIX_FAKE(KX_SetTurboLU, Str<65>, In<KXSessionInfoRec>, In<TurboLuRec>)
