#include "fake.h"
#include "host.h"
#include "raid.h"

// ---- Fibre Channel ports, WWN security and target IDs
PERNIX_FAKE(KX_GetFibreInformation, Str<65>, In<KXSessionInfoRec>, Out<FibreInformationRec>,
            Out<FibreInformationRec>)
PERNIX_FAKE(KX_SetFibreInformation, Str<65>, In<KXSessionInfoRec>, In<FibreInformationRec>,
            In<FibreInformationRec>)
PERNIX_FAKE(KX_GetWWNInformation, Str<65>, Out<WWNInformationRec>)
PERNIX_FAKE(KX_SetWWNInformation, Str<65>, In<WWNInformationRec>)
PERNIX_FAKE(KX_GetWWNHGInformation, Str<65>, In<KXSessionInfoRec>, Out<WWNHGInformationRec>)
PERNIX_FAKE(KX_SetWWNHGInformation, Str<65>, In<KXSessionInfoRec>, In<WWNHGInformationRec>)
PERNIX_FAKE(KX_GetPortOption, Str<65>, In<KXSessionInfoRec>, Out<PortOptionRec>)
PERNIX_FAKE(KX_SetPortOption, Str<65>, In<KXSessionInfoRec>, In<PortOptionRec>)
PERNIX_FAKE(KX_GetTargetId, Str<65>, Int, Out<TargetIdRec>, Out<TargetIdRec>)
PERNIX_FAKE(KX_SetTargetId, Str<65>, Int, In<TargetIdRec>, Int)
PERNIX_FAKE(KX_TargetIdImport, Str<65>, Str<1024>, Out<TargetIdRec>, Out<TargetIdRec>)
PERNIX_FAKE(KX_WZTargetIdImport, Str<65>, Str<1024>, Str<1024>, Int, Out<WZTargetIdRec>,
            Out<WZTargetIdRec>)

// ---- iSCSI ports, targets, initiators and CHAP
PERNIX_FAKE(KX_GetiSCSIPortInformation, Str<65>, In<KXSessionInfoRec>, Out<KXiSCSIPortInformationRec>)
PERNIX_FAKE(KX_SetiSCSIPortInformation, Str<65>, In<KXSessionInfoRec>, In<KXiSCSIPortInformationRec>)
PERNIX_FAKE(KX_GetiSCSITargetInformationAll, Str<65>, In<KXSessionInfoRec>,
            Out<KXiSCSITargetInformationAllRec>)
PERNIX_FAKE(KX_CreateiSCSITarget, Str<65>, In<KXSessionInfoRec>, Int, Int, Int, In<KXiSCSITargetInfoRec>)
PERNIX_FAKE(KX_ChangeiSCSITarget, Str<65>, In<KXSessionInfoRec>, Int, Int, Int, In<KXiSCSITargetInfoRec>)
PERNIX_FAKE(KX_DeleteiSCSITarget, Str<65>, In<KXSessionInfoRec>, Int, Int, In<DeleteiSCSITargetRec>)
PERNIX_FAKE(KX_InitiSCSITarget, Str<65>, In<KXSessionInfoRec>, Int, Int)
PERNIX_FAKE(KX_ChangeiSCSITargetSecurity, Str<65>, In<KXSessionInfoRec>, Int, Int, Int)
PERNIX_FAKE(KX_GetiSCSIInitiatorInformationAll, Str<65>, In<KXSessionInfoRec>,
            Out<KXiSCSIInitiatorInformationAllRec>)
PERNIX_FAKE(KX_SetiSCSIInitiatortInformation, Str<65>, In<KXSessionInfoRec>, Int, Int,
            In<KXiSCSIInitiatorPortInfoRec>)
PERNIX_FAKE(KX_GetiSCSILoginInitiatorInformationAll, Str<65>, In<KXSessionInfoRec>,
            Out<KXiSCSILoginInitiatorInformationAllRec>)
PERNIX_FAKE(KX_GetiSCSICHAPUserInformationAll, Str<65>, In<KXSessionInfoRec>,
            Out<KXiSCSICHAPUserInformationAllRec>)
PERNIX_FAKE(KX_SetiSCSICHAPUserInformation, Str<65>, In<KXSessionInfoRec>, Int, Int,
            In<KXiSCSICHAPUserPortInfoRec>)
PERNIX_FAKE(KX_iSCSICHAPUserImport, Str<65>, In<KXSessionInfoRec>, Str<1024>)
PERNIX_FAKE(KX_GetiSNSInformation, Str<65>, In<KXSessionInfoRec>, Out<KXiSNSInformationRec>)
PERNIX_FAKE(KX_SetiSNSInformation, Str<65>, In<KXSessionInfoRec>, In<KXiSNSInformationRec>)
PERNIX_FAKE(KX_RequestiSCSIPing, Str<65>, In<KXSessionInfoRec>, In<KXiSCSIPingRec>)
PERNIX_FAKE(KX_GetiSCSIPingStatus, Str<65>, In<KXSessionInfoRec>, Out<KXiSCSIPingRec>)

// ---- LU guard and retention
PERNIX_FAKE(KX_GetLuGuardInformation, Str<65>, In<KXSessionInfoRec>, Out<LuGuardInformationRec>)
PERNIX_FAKE(KX_SetLuAccessLevel, Str<65>, In<KXSessionInfoRec>, In<LuAccessLevelRec>)
PERNIX_FAKE(KX_ExtendRetentionTerm, Str<65>, In<KXSessionInfoRec>, Int, Int)
PERNIX_FAKE(KX_SetExpirationLock, Str<65>, In<KXSessionInfoRec>, Int)
