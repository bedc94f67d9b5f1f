#include "fake.h"
#include "firmware.h"

// controller microcode
PERNIX_FAKE(KX_MicroFileConcat, Str<65>, In<KXSessionInfoRec>, Str<1024>, Int, IntOut)
PERNIX_FAKE(KX_MicroFileConcat2, Str<65>, In<KXSessionInfoRec>, Str<1024>)
PERNIX_FAKE(KX_MicroFileConcatEx, Str<65>, In<KXSessionInfoRec>, Str<1024>)
PERNIX_FAKE0(KX_CancelMicroFileConcat)
PERNIX_FAKE(KX_GetMicroFileInformation, Out<MicroFileInformationRec>)
PERNIX_FAKE(KX_GetNewMicroRevision, StrOut<12>)
PERNIX_FAKE(KX_GetMicroDownloadCount, Str<65>, IntOut)
PERNIX_FAKE(KX_GetMicroDownloadCountEx, Str<65>, Int, IntOut)
PERNIX_FAKE(KX_MicroDownload, Str<65>, In<KXSessionInfoRec>, Int, Int, Int)
PERNIX_FAKE(KX_MicroDownloadEx, Str<65>, In<KXSessionInfoRec>, Int, Int, Int, Int)
PERNIX_FAKE(KX_MicroReplace, Str<65>, In<KXSessionInfoRec>, Int)
PERNIX_FAKE(KX_MicroReplaceEx, Str<65>, In<KXSessionInfoRec>, Int, Out<MicroReplaceInformationRec>)
PERNIX_FAKE(KX_CompleteMicroReplace, Str<65>, In<KXSessionInfoRec>, Int)

// enclosure microcode
PERNIX_FAKE(KX_ENCMicroFileConcat, Str<65>, In<KXSessionInfoRec>, Str<1024>)
PERNIX_FAKE(KX_ENCMicroFileConcatEx, Str<65>, In<KXSessionInfoRec>, Str<1024>, Int)
PERNIX_FAKE0(KX_CancelENCMicroFileConcat)
PERNIX_FAKE(KX_GetENCMicroDownloadCount, Str<65>, In<KXSessionInfoRec>, IntOut)
PERNIX_FAKE(KX_ENCMicroDownload, Str<65>, In<KXSessionInfoRec>, Int, Int, IntOut)
PERNIX_FAKE(KX_ENCMicroReplace, Str<65>, In<KXSessionInfoRec>, Int)
PERNIX_FAKE(KX_GetENCMicroInformation, Out<ENCMicroInformationRec>)
PERNIX_FAKE(KX_GetENCMicroInformationEx, Str<65>, In<KXSessionInfoRec>, Out<ENCMicroInformationRec>)
PERNIX_FAKE(KX_GetENCStatusList, Str<65>, In<KXSessionInfoRec>, Out<ENCStatusListRec>)
PERNIX_FAKE(KX_GetENCDownloadOption, Str<65>, In<KXSessionInfoRec>, Out<ENCDownloadOptionRec>)
PERNIX_FAKE(KX_SetENCDownloadOption, Str<65>, In<KXSessionInfoRec>, In<ENCDownloadOptionRec>)

// boot options
PERNIX_FAKE(KX_GetBootOption, Str<65>, In<KXSessionInfoRec>, Out<BootOptionRec>)
PERNIX_FAKE(KX_SetBootOption, Str<65>, In<KXSessionInfoRec>, In<BootOptionRec>)
PERNIX_FAKE(KX_TestBootOption, Str<65>, In<KXSessionInfoRec>, In<BootOptionRec>)
PERNIX_FAKE(KX_BootOptionExport, Str<65>, In<KXSessionInfoRec>, Str<1024>)
PERNIX_FAKE(KX_BootOptionImport, Str<65>, In<KXSessionInfoRec>, Str<1024>)
