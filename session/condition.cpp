// The hardware condition of one unit at a glance.
#include <type_traits>

#include "session/records.h"

using namespace kx;

namespace kx {

int write_connector_table(JNIEnv* env, jobject obj, const Field& f, const void* rec) {
  using Table = decltype(UnitConditionRec::connector);
  constexpr jsize kControllers = std::extent_v<Table, 0>;
  constexpr jsize kPorts = std::extent_v<Table, 1>;
  constexpr jsize kBytes = std::extent_v<Table, 2>;
  const auto* table = reinterpret_cast<const jbyte*>(static_cast<const uint8_t*>(rec) + f.offset);

  LocalRef<jobjectArray> controllers(env, new_object_array(env, "[[B", kControllers));
  if (!controllers) return kMarshal;
  for (jsize c = 0; c < kControllers; ++c) {
    LocalRef<jobjectArray> ports(env, new_object_array(env, "[B", kPorts));
    if (!ports) return kMarshal;
    for (jsize p = 0; p < kPorts; ++p) {
      LocalRef<jbyteArray> bytes(env, env->NewByteArray(kBytes));
      if (!bytes) return kMarshal;
      env->SetByteArrayRegion(bytes.get(), 0, kBytes, table + (c * kPorts + p) * kBytes);
      if (pending(env)) return kMarshal;
      env->SetObjectArrayElement(ports.get(), p, bytes.get());
      if (pending(env)) return kMarshal;
    }
    env->SetObjectArrayElement(controllers.get(), c, ports.get());
    if (pending(env)) return kMarshal;
  }
  return jni_set_object(env, obj, f.name, "[[[B", controllers.get());
}

}  // namespace kx

KX_NATIVE(jobject, GetUnitCondition, jstring unit, jobject session, jint a) {
  return call(env, KX_GetUnitCondition, Unit(unit), Session(session), a, Out(rec::UnitCondition));
}
