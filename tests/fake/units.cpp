#include "fake.h"
#include "session.h"

// unit registry and discovery
PERNIX_FAKE(KX_UnitAdd, In<KXUnitParamRec>)
PERNIX_FAKE(KX_UnitAddByIP, In<KXUnitParamRec>)
PERNIX_FAKE(KX_UnitChange, Str<1024>, In<KXUnitParamRec>)
PERNIX_FAKE(KX_UnitChangeByIP, Str<1024>, In<KXUnitParamRec>)
PERNIX_FAKE(KX_UnitDelete, Str<65>)
PERNIX_FAKE(KX_GetUnitParam, Str<65>, Out<KXUnitParamRec>)
PERNIX_FAKE(KX_GetUnitCount, IntOut)
PERNIX_FAKE(KX_DiscoverUnitInformation, In<DiscoverEntryRec>, Out<DiscoverUnitRec>)
PERNIX_FAKE(KX_DiscoverUnitInformationEx, In<DiscoverEntryRec>, Out<DiscoverUnitRec>)

// The table holds `count` records.
extern "C" __attribute__((visibility("default"))) int KX_GetUnitParamTable(int count,
                                                                           KXUnitParamRec* params) {
  const char* fn = "KX_GetUnitParamTable";
  size_t size = count > 0 ? static_cast<size_t>(count) * sizeof(KXUnitParamRec) : 0;
  fake::Call& c = fake::begin(fn);
  fake::record_int(c, count);
  fake::record(c, params, size);
  fake::serve(fn, 1, params, size);
  return fake::finish(fn);
}

// unit identity and maintenance
PERNIX_FAKE(KX_GetUnitIdentifier, Str<65>, Out<UnitIdentifierRec>)
PERNIX_FAKE(KX_SetUnitIdentifier, Str<65>, In<UnitIdentifierRec>)
PERNIX_FAKE(KX_UnitReboot, Str<1024>, In<KXSessionInfoRec>)
PERNIX_FAKE(KX_TestUnitReady, Str<65>, Int)
PERNIX_FAKE(KX_GUIInitialize, In<GUIInitializeRec>)
PERNIX_FAKE0(KX_EnvironmentCheck)
PERNIX_FAKE(KX_JavaVersionCheck, Str<1024>)
PERNIX_FAKE(KX_RgLuFileOutput, Str<65>, Str<1024>)
PERNIX_FAKE(KX_ModifyInfo, Str<1024>, Int, StrOut<1024>)
PERNIX_FAKE(KX_APIRevision, StrOut<20>, StrOut<20>, StrOut<52>)

// unit condition report
PERNIX_FAKE(KX_GetUnitCondition, Str<65>, In<KXSessionInfoRec>, Int, Out<UnitConditionRec>)
