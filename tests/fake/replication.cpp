#include "fake.h"
#include "replication.h"

// copy pairs, command devices, DMLUs and the remote array
PERNIX_FAKE(KX_GetPairInformation, Str<65>, In<KXSessionInfoRec>, Out<PairInfoRec>)
PERNIX_FAKE(KX_GetMirrexInformation, Str<65>, Out<MirrexInformationRec>)
PERNIX_FAKE(KX_SplitMirrexPair, Str<65>, Int)
PERNIX_FAKE(KX_GetFarsyncPairInformation, Str<65>, In<KXSessionInfoRec>, Out<FarsyncPairInformationRec>)
PERNIX_FAKE(KX_GetFarsyncAsyncPairInformation, Str<65>, In<KXSessionInfoRec>,
            Out<FarsyncAsyncPairInformationRec>)
PERNIX_FAKE(KX_GetFarsyncAsyncOption, Str<65>, In<KXSessionInfoRec>, Out<FarsyncAsyncOptionRec>)
PERNIX_FAKE(KX_SetFarsyncAsyncOption, Str<65>, In<KXSessionInfoRec>, In<FarsyncAsyncOptionRec>)
PERNIX_FAKE(KX_GetCommandDevice, Str<65>, In<KXSessionInfoRec>, Out<CommandDeviceRec>)
PERNIX_FAKE(KX_SetCommandDevice, Str<65>, In<KXSessionInfoRec>, In<CommandDeviceRec>)
PERNIX_FAKE(KX_GetDMLU, Str<65>, In<KXSessionInfoRec>, Out<DMLUInformationRec>)
PERNIX_FAKE(KX_SetDMLU, Str<65>, In<KXSessionInfoRec>, In<DMLUInformationRec>)
PERNIX_FAKE(KX_GetCouplingInfo, Str<65>, In<KXSessionInfoRec>, Out<CouplingInfoRec>)
PERNIX_FAKE(KX_GetRemoteDeviceInformation, Str<65>, In<KXSessionInfoRec>, Out<RemoteDeviceInformationRec>)
PERNIX_FAKE(KX_SetRemoteDeviceInformation, Str<65>, In<KXSessionInfoRec>, In<RemoteDeviceInformationRec>)
PERNIX_FAKE(KX_SetSvolDisableMode, Str<65>, In<KXSessionInfoRec>, Int, Int)

// volume migration
PERNIX_FAKE(KX_AddLuMigrationReserveLU, Str<65>, In<KXSessionInfoRec>, In<LuMigrationReserveLURec>)
PERNIX_FAKE(KX_DeleteLuMigrationReserveLU, Str<65>, In<KXSessionInfoRec>, In<LuMigrationReserveLURec>)
PERNIX_FAKE(KX_StartLuMigration, Str<65>, In<KXSessionInfoRec>, In<RequestLuMigrationRec>)
PERNIX_FAKE(KX_CancelLuMigration, Str<65>, In<KXSessionInfoRec>, In<RequestLuMigrationRec>)
PERNIX_FAKE(KX_SplitLuMigration, Str<65>, In<KXSessionInfoRec>, In<RequestLuMigrationRec>)
PERNIX_FAKE(KX_SplitLuMigrationFreeOwner, Str<65>, In<KXSessionInfoRec>, In<RequestLuMigrationRec>)
PERNIX_FAKE(KX_ChangeCopyPace, Str<65>, In<KXSessionInfoRec>, In<RequestLuMigrationRec>)
PERNIX_FAKE(KX_GetLuMigrationState, Str<65>, In<KXSessionInfoRec>, Out<LuMigrationStateRec>)
PERNIX_FAKE(KX_GetLuMigrationInformation, Str<65>, In<KXSessionInfoRec>, Out<LuMigrationInformationRec>)
