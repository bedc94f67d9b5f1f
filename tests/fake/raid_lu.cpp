#include "fake.h"
#include "raid.h"

// RAID groups
PERNIX_FAKE(KX_GetRaidGroups, Str<65>, Out<RaidGroupRec[PERNIX_RAID_GROUPS]>)
PERNIX_FAKE(KX_RaidGroupAdd, Str<65>, In<RaidGroupRec>)
PERNIX_FAKE(KX_RaidGroupExpand, Str<65>, In<RaidGroupRec>)
PERNIX_FAKE(KX_RaidGroupDelete, Str<65>, In<KXSessionInfoRec>, Int)
PERNIX_FAKE(KX_RaidGroupAllDelete, Str<65>, In<KXSessionInfoRec>)
PERNIX_FAKE(KX_CreateRaidGroup, Str<65>, In<KXSessionInfoRec>, In<CreateRaidGroupRec>)
PERNIX_FAKE(KX_GetRaidGroupInformation, Str<65>, In<KXSessionInfoRec>, Out<RaidGroupInformationRec>)
PERNIX_FAKE(KX_GetRGAreaInformation, Str<65>, In<KXSessionInfoRec>, Int, Out<RGAreaInformationRec>)
PERNIX_FAKE(KX_GetRaidGroupCreationCapacity, Str<65>, In<KXSessionInfoRec>, In<CreateRaidGroupRec>,
            Out<RgDetailRec>)

// Logical units
PERNIX_FAKE(KX_GetLogicalUnit, Str<65>, In<KXSessionInfoRec>, Out<LogicalUnitRec[PERNIX_LOGICAL_UNITS]>)
PERNIX_FAKE(KX_GetLogicalUnit1, Str<65>, In<KXSessionInfoRec>, Int, Out<LogicalUnitRec>)
PERNIX_FAKE(KX_GetLastLogicalUnit, Str<65>, IntOut)
PERNIX_FAKE(KX_LogicalUnitAdd, Str<65>, In<KXSessionInfoRec>, In<LogicalUnitRec>)
PERNIX_FAKE(KX_LogicalUnitDelete, Str<65>)
PERNIX_FAKE(KX_LogicalUnitDeleteAll, Str<65>)
PERNIX_FAKE(KX_LogicalUnitDeleteByLUN, Str<65>, In<KXSessionInfoRec>, Int)
PERNIX_FAKE(KX_LogicalUnitExpand, Str<65>, Int, Int)
PERNIX_FAKE(KX_LogicalUnitChangeStaging, Str<65>, In<KXSessionInfoRec>, Int, Int)
PERNIX_FAKE(KX_LogicalUnitChangeCtl, Str<65>, In<KXSessionInfoRec>, Int)
PERNIX_FAKE(KX_LogicalUnitInvalid, Str<65>, Int)
PERNIX_FAKE(KX_LogicalUnitRestore, Str<65>, Int)
PERNIX_FAKE(KX_LogicalUnitRealloc, Str<65>, In<LUReallocInfoRec>)
PERNIX_FAKE(KX_BlockToByte, Int, Int, Int, IntOut, IntOut, IntOut)
