// Host groups on the array's ports, their host-connection options and the
// parameter tables those options come from, and the mapping of host LU
// numbers to internal LUs.
#include "host/records.h"

using namespace kx;

namespace {

// The two outputs of KX_GetLuMappingList, kept in the native's own frame: the
// number of mapped LUs and the host group's table.  Returned as Object[2]:
// element 0 the count as an Integer (null for a count of 0), element 1 the
// table.  An array or table that cannot be built returns null without a
// report; a count that cannot be stored is 2817.
struct MappedCount {
  int value = 0;
  bool prepare(JNIEnv*) { return true; }
  int* arg() { return &value; }
};

struct MappedTable {
  const MappedCount& count;
  LuMappingHGInfoRec lu{};
  using result_type = jobjectArray;

  bool prepare(JNIEnv*) { return true; }
  LuMappingHGInfoRec* arg() { return &lu; }

  static jobject boxed(JNIEnv* env, jint value) {
    LocalRef<jclass> integer(env, find_class(env, "java/lang/Integer"));
    if (!integer) return nullptr;
    jmethodID value_of = env->GetStaticMethodID(integer.get(), "valueOf", "(I)Ljava/lang/Integer;");
    if (value_of == nullptr) return nullptr;
    return env->CallStaticObjectMethod(integer.get(), value_of, value);
  }

  jobjectArray convert(JNIEnv* env, int& code) {
    LocalRef<jobjectArray> pair(env, new_object_array(env, "java/lang/Object", 2));
    if (!pair) return nullptr;
    if (count.value != 0) {
      LocalRef<jobject> n(env, boxed(env, count.value));
      if (n && !pending(env)) env->SetObjectArrayElement(pair.get(), 0, n.get());
    }
    if (pending(env)) {
      code = kMarshal;
      return nullptr;
    }
    LocalRef<jobject> table(env, write_record(env, rec::LuMappingHGInfo, &lu));
    if (!table) return nullptr;
    if (!pending(env)) env->SetObjectArrayElement(pair.get(), 1, table.get());
    if (pending(env)) {
      code = kMarshal;
      return nullptr;
    }
    return pair.release();
  }
};

}  // namespace

// ---- host groups

KX_SESSION_GETTER(GetHGList, HGList)

KX_NATIVE(void, CreateHG, jstring unit, jobject session, jint a, jint b, jint c, jobject config) {
  call(env, KX_CreateHG, Unit(unit), Session(session), a, b, c, In(config, rec::HGConfig));
}

KX_NATIVE(void, ChangeHG, jstring unit, jobject session, jint a, jint b, jint c, jobject config) {
  call(env, KX_ChangeHG, Unit(unit), Session(session), a, b, c, In(config, rec::HGConfig));
}

KX_SESSION_SETTER(DeleteHGList, DeleteHGList)

KX_SESSION_SETTER(InitHGList, InitHGList)

// ---- host-connection options

KX_NATIVE(jobject, GetHGOption, jstring unit, jobject session, jint a, jint b, jint c) {
  return call(env, KX_GetHGOption, Unit(unit), Session(session), a, b, c, Out(rec::HGOptionInfo));
}

KX_NATIVE(void, SetHGOption, jstring unit, jobject session, jint a, jint b, jint c, jobject info) {
  call(env, KX_SetHGOption, Unit(unit), Session(session), a, b, c, In(info, rec::HGOptionInfo));
}

KX_SESSION_GETTER(GetHGOptionAll, HGOption)

KX_SESSION_SETTER(SetHGOptionAll, HGOption)

KX_NATIVE(jobject, GetHGParameterID, jstring unit, jobject session, jint a) {
  return call(env, KX_GetHGParameterID, Unit(unit), Session(session), a, Out(rec::HGParameterID));
}

KX_SESSION_GETTER(GetHGParameterList, HGParameterList)

// ---- LU mapping

KX_SESSION_GETTER(GetLuMappingListAll, LuMapping)

KX_SESSION_SETTER(SetLuMappingListAll, LuMapping)

KX_NATIVE(jobjectArray, GetLuMappingList, jstring unit, jobject session, jint a, jint b, jint c) {
  MappedCount count;
  return call(env, KX_GetLuMappingList, Unit(unit), Session(session), a, b, c, count,
              MappedTable{count});
}

KX_NATIVE(void, SetLuMappingList, jstring unit, jobject session, jint a, jint b, jint c, jint d,
          jobject lu) {
  call(env, KX_SetLuMappingList, Unit(unit), Session(session), a, b, c, d,
       In(lu, rec::LuMappingHGInfo));
}

KX_NATIVE(void, ChangeMappingMode, jstring unit, jobject session, jint mode) {
  call(env, KX_ChangeMappingMode, Unit(unit), Session(session), mode);
}

KX_SESSION_GETTER(GetMappingGuardList, MappingGuardList)

KX_SESSION_SETTER(SetMappingGuardList, MappingGuardList)
