#include "fake.h"
#include "host.h"

// Host groups
PERNIX_FAKE(KX_GetHGList, Str<65>, In<KXSessionInfoRec>, Out<HGListRec>)
PERNIX_FAKE(KX_CreateHG, Str<65>, In<KXSessionInfoRec>, Int, Int, Int, In<HGConfigRec>)
PERNIX_FAKE(KX_ChangeHG, Str<65>, In<KXSessionInfoRec>, Int, Int, Int, In<HGConfigRec>)
PERNIX_FAKE(KX_DeleteHGList, Str<65>, In<KXSessionInfoRec>, In<DeleteHGListRec>)
PERNIX_FAKE(KX_InitHGList, Str<65>, In<KXSessionInfoRec>, In<InitHGListRec>)

// Host-connection options and their parameter tables
PERNIX_FAKE(KX_GetHGOption, Str<65>, In<KXSessionInfoRec>, Int, Int, Int, Out<HGOptionInfoRec>)
PERNIX_FAKE(KX_SetHGOption, Str<65>, In<KXSessionInfoRec>, Int, Int, Int, In<HGOptionInfoRec>)
PERNIX_FAKE(KX_GetHGOptionAll, Str<65>, In<KXSessionInfoRec>, Out<HGOptionRec>)
PERNIX_FAKE(KX_SetHGOptionAll, Str<65>, In<KXSessionInfoRec>, In<HGOptionRec>)
PERNIX_FAKE(KX_GetHGParameterID, Str<65>, In<KXSessionInfoRec>, Int, Out<HGParameterIDRec>)
PERNIX_FAKE(KX_GetHGParameterList, Str<65>, In<KXSessionInfoRec>, Out<HGParameterListRec>)

// LU mapping and mapping guard
PERNIX_FAKE(KX_GetLuMappingListAll, Str<65>, In<KXSessionInfoRec>, Out<LuMappingRec>)
PERNIX_FAKE(KX_SetLuMappingListAll, Str<65>, In<KXSessionInfoRec>, In<LuMappingRec>)
PERNIX_FAKE(KX_GetLuMappingList, Str<65>, In<KXSessionInfoRec>, Int, Int, Int, IntOut,
            Out<LuMappingHGInfoRec>)
PERNIX_FAKE(KX_SetLuMappingList, Str<65>, In<KXSessionInfoRec>, Int, Int, Int, Int,
            In<LuMappingHGInfoRec>)
PERNIX_FAKE(KX_ChangeMappingMode, Str<65>, In<KXSessionInfoRec>, Int)
PERNIX_FAKE(KX_GetMappingGuardList, Str<65>, In<KXSessionInfoRec>, Out<MappingGuardListRec>)
PERNIX_FAKE(KX_SetMappingGuardList, Str<65>, In<KXSessionInfoRec>, In<MappingGuardListRec>)
