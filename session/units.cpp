// Unit registry: adding, changing, deleting and reading registered units, and
// discovering the unit that answers at an address.  None takes a session.
#include "session/records.h"

using namespace kx;

KX_NATIVE(void, UnitAdd, jobject unit) {
  call(env, KX_UnitAdd, In(unit, rec::KXUnitParam));
}

KX_NATIVE(void, UnitAddByIP, jobject unit) {
  call(env, KX_UnitAddByIP, In(unit, rec::KXUnitParam));
}

KX_NATIVE(void, UnitChange, jstring name, jobject unit) {
  call(env, KX_UnitChange, Chars<PERNIX_PATH_SIZE>(name), In(unit, rec::KXUnitParam));
}

KX_NATIVE(void, UnitChangeByIP, jstring name, jobject unit) {
  call(env, KX_UnitChangeByIP, Chars<PERNIX_PATH_SIZE>(name), In(unit, rec::KXUnitParam));
}

KX_NATIVE(void, UnitDelete, jstring name) {
  call(env, KX_UnitDelete, Unit(name));
}

KX_NATIVE(jobject, GetUnitParam, jstring name) {
  return call(env, KX_GetUnitParam, Unit(name), Out(rec::KXUnitParam));
}

// Reports a failure both by the exception and by -1.
KX_NATIVE(jint, GetUnitCount) {
  return call(env, Options{.flush = false, .failed = -1}, KX_GetUnitCount, IntOut{});
}

// The first `count` registered units.  Running out of memory (a negative
// count included) answers null without a report; a record that cannot be
// turned into an object ends the array there, the rest left null.
KX_NATIVE(jobjectArray, GetUnitParamTable, jint count) {
  Records<KXUnitParamRec> params(count);
  if (!params) return nullptr;

  int rc = KX_GetUnitParamTable(count, params.get());
  LocalRef<jobjectArray> units(env, nullptr);
  if (rc == kOk) {
    units.reset(new_object_array(env, rec::KXUnitParam.cls, count));
    if (!units) rc = kNullRecord;
  }
  if (rc == kOk) {
    for (jsize i = 0; i < count; ++i) {
      LocalRef<jobject> unit(env, make_java_KXUnitParam(env, &params[static_cast<size_t>(i)]));
      // A record whose unchecked field failed comes back with the JVM's error
      // pending: it cannot be stored, so it ends the array like a null one.
      if (!unit || pending(env)) break;
      env->SetObjectArrayElement(units.get(), i, unit.get());
    }
  }
  std::fflush(stdout);
  params.reset();

  if (rc != kOk) {
    errorThrow(env, rc);
    return nullptr;
  }
  return units.release();
}

KX_NATIVE(jobject, DiscoverUnitInformation, jobject entry) {
  return call(env, KX_DiscoverUnitInformation, In(entry, rec::DiscoverEntry), Out(rec::DiscoverUnit));
}

KX_NATIVE(jobject, DiscoverUnitInformationEx, jobject entry) {
  return call(env, KX_DiscoverUnitInformationEx, In(entry, rec::DiscoverEntry),
              Out(rec::DiscoverUnit));
}
