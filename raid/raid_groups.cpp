// RAID groups: the older list, add and expand calls, and the session-taking
// calls that create, inspect and delete groups.
#include "raid/records.h"

using namespace kx;

// The older list: 90 groups; an element that cannot be built ends the list
// quietly, the rest of the array staying null.
KX_NATIVE(jobjectArray, GetRaidGroups, jstring unit) {
  return call(env, KX_GetRaidGroups, Unit(unit), OutList(rec::RaidGroup, PERNIX_RAID_GROUPS));
}

KX_NATIVE(void, RaidGroupAdd, jstring unit, jobject rg) {
  call(env, KX_RaidGroupAdd, Unit(unit), In(rg, rec::RaidGroup));
}

KX_NATIVE(void, RaidGroupExpand, jstring unit, jobject rg) {
  call(env, KX_RaidGroupExpand, Unit(unit), In(rg, rec::RaidGroup));
}

KX_NATIVE(void, RaidGroupDelete, jstring unit, jobject session, jint rgnum) {
  call(env, KX_RaidGroupDelete, Unit(unit), Session(session), rgnum);
}

KX_NATIVE(void, RaidGroupAllDelete, jstring unit, jobject session) {
  call(env, KX_RaidGroupAllDelete, Unit(unit), Session(session));
}

KX_SESSION_SETTER(CreateRaidGroup, CreateRaidGroup)

KX_SESSION_GETTER(GetRaidGroupInformation, RaidGroupInformation)

KX_NATIVE(jobject, GetRGAreaInformation, jstring unit, jobject session, jint rgnum) {
  return call(env, KX_GetRGAreaInformation, Unit(unit), Session(session), rgnum,
              Out(rec::RGAreaInformation));
}

KX_NATIVE(jobject, GetRaidGroupCreationCapacity, jstring unit, jobject session, jobject create) {
  return call(env, KX_GetRaidGroupCreationCapacity, Unit(unit), Session(session),
              In(create, rec::CreateRaidGroup), Out(rec::RgDetail));
}
