// The field kinds of the statistics and performance records: fixed-point
// rates, byte tables and the records the natives link in by pointer.
#include <cstring>

#include "perf/records.h"

namespace kx::perf {
namespace {

uint8_t* at(void* rec, uint32_t offset) { return static_cast<uint8_t*>(rec) + offset; }
const uint8_t* at(const void* rec, uint32_t offset) { return static_cast<const uint8_t*>(rec) + offset; }

// Pointer slot k of a linked field; slots are read and written with memcpy,
// the records being packed where the library wants them so.
void* slot(const void* rec, const Field& f, uint32_t k) {
  void* p;
  std::memcpy(&p, at(rec, f.offset) + static_cast<size_t>(k) * sizeof(void*), sizeof p);
  return p;
}

}  // namespace

// Rates take their field IDs from the call's lookups: a snapshot holds
// thousands of them.
int read_rate(JNIEnv* env, jobject obj, const Field& f, void* rec) {
  jfieldID id = Lookups::field_id(env, obj, f, "S");
  double v = id != nullptr ? static_cast<double>(env->GetShortField(obj, id)) / 100.0 : -1.0;
  if (pending(env)) return kMarshal;
  std::memcpy(at(rec, f.offset), &v, sizeof v);
  return kOk;
}

int write_rate(JNIEnv* env, jobject obj, const Field& f, const void* rec) {
  double v;
  std::memcpy(&v, at(rec, f.offset), sizeof v);
  jfieldID id = Lookups::field_id(env, obj, f, "S");
  if (id == nullptr) return kMarshal;
  env->SetShortField(obj, id, fixed_point_short(v));
  return pending(env) ? kMarshal : kOk;
}

int read_byte_rows(JNIEnv* env, jobject obj, const Field& f, void* rec) {
  return jni_get_byte_2array(env, obj, f.name, at(rec, f.offset), static_cast<jsize>(f.count),
                             static_cast<jsize>(f.columns));
}

// A null object leaves its linked record as allocated (zero-filled) and the
// request goes on, like a snapshot argument that is null.
int read_linked(JNIEnv* env, jobject obj, const Field& f, void* rec) {
  void* target = slot(rec, f, 0);
  if (target == nullptr) return kOk;
  LocalRef<jobject> item(env, jni_get_object(env, obj, f.name, f.elem->sig));
  if (pending(env)) return kMarshal;
  if (item) read_record(env, item.get(), *f.elem, target);
  return pending(env) ? kMarshal : kOk;
}

int write_linked(JNIEnv* env, jobject obj, const Field& f, const void* rec) {
  LocalRef<jobject> item(env, write_record(env, *f.elem, slot(rec, f, 0)));
  if (!item) return kMarshal;
  return jni_set_object(env, obj, f.name, f.elem->sig, item.get());
}

// Elements over the Java array's length, at most as many as there are slots.
int read_linked_array(JNIEnv* env, jobject obj, const Field& f, void* rec) {
  LocalRef<jobjectArray> arr(
      env, static_cast<jobjectArray>(jni_get_object(env, obj, f.name, f.elem->array_sig)));
  if (!arr) return pending(env) ? kMarshal : kNullRecord;
  auto length = static_cast<uint32_t>(env->GetArrayLength(arr.get()));
  for (uint32_t k = 0; k < length && k < f.count; ++k) {
    if (pending(env)) return kMarshal;
    LocalRef<jobject> item(env, env->GetObjectArrayElement(arr.get(), static_cast<jsize>(k)));
    if (pending(env)) return kMarshal;
    void* target = slot(rec, f, k);
    if (target != nullptr) read_record(env, item.get(), *f.elem, target);
  }
  return pending(env) ? kMarshal : kOk;
}

int write_linked_array(JNIEnv* env, jobject obj, const Field& f, const void* rec) {
  LocalRef<jobjectArray> arr(env, new_object_array(env, f.elem->cls, static_cast<jsize>(f.count)));
  if (!arr) return kMarshal;
  for (uint32_t k = 0; k < f.count; ++k) {
    LocalRef<jobject> item(env, write_record(env, *f.elem, slot(rec, f, k)));
    if (!item || pending(env)) return kMarshal;
    env->SetObjectArrayElement(arr.get(), static_cast<jsize>(k), item.get());
    if (pending(env)) return kMarshal;
  }
  return jni_set_object(env, obj, f.name, f.elem->array_sig, arr.get());
}

// A null String leaves the buffer empty; a request without a buffer (the
// pointer left unset) is not read at all.
int read_linked_text(JNIEnv* env, jobject obj, const Field& f, void* rec) {
  auto* target = static_cast<char*>(slot(rec, f, 0));
  if (target == nullptr) return kOk;
  jni_get_string(env, obj, f.name, target, f.count);
  return pending(env) ? kMarshal : kOk;
}

}  // namespace kx::perf
