#include "core/accessors.h"

#include <algorithm>
#include <cmath>
#include <cstring>

#include "core/errors.h"
#include "core/jni_refs.h"

using kx::LocalRef;
using kx::pending;
using kx::UtfChars;

namespace {

constexpr const char* kStringSig = "Ljava/lang/String;";

// GetObjectClass + GetFieldID; null when either fails.
jfieldID lookup(JNIEnv* env, jobject obj, const char* name, const char* sig) {
  if (obj == nullptr || pending(env)) return nullptr;
  LocalRef<jclass> cls(env, env->GetObjectClass(obj));
  if (!cls) return nullptr;
  return env->GetFieldID(cls.get(), name, sig);
}

// A NUL-terminated copy into an n-byte buffer: at most n-1 bytes, the rest of
// the buffer up to n-1 zero-filled.
void copy_cut(char* dst, const char* src, size_t n) {
  if (n == 0) return;
  size_t len = strnlen(src, n - 1);
  std::memcpy(dst, src, len);
  std::memset(dst + len, 0, n - len);
}

template <typename Array>
LocalRef<Array> array_field(JNIEnv* env, jobject obj, const char* name, const char* sig) {
  return LocalRef<Array>(env, static_cast<Array>(jni_get_object(env, obj, name, sig)));
}

}  // namespace

// ---------------------------------------------------------------- readers

jobject jni_get_object(JNIEnv* env, jobject obj, const char* name, const char* sig) {
  jfieldID fid = lookup(env, obj, name, sig);
  if (fid == nullptr) return nullptr;
  return env->GetObjectField(obj, fid);
}

int jni_get_string(JNIEnv* env, jobject obj, const char* name, char* dst, size_t n) {
  auto str = array_field<jstring>(env, obj, name, kStringSig);
  return kx::string_into(env, str.get(), dst, n);
}

namespace {
// Rows 0..count-1 of an array of arrays, each handed to `copy`, which
// returns a status.  A missing row, a null row or a short row is a failure.
template <typename Copy>
int each_row(JNIEnv* env, jobjectArray outer, jsize count, Copy copy) {
  for (jsize r = 0; r < count; ++r) {
    LocalRef<jarray> row(env, static_cast<jarray>(env->GetObjectArrayElement(outer, r)));
    if (pending(env) || !row) return kx::kMarshal;
    if (copy(r, row.get()) != kx::kOk || pending(env)) return kx::kMarshal;
  }
  return kx::kOk;
}
}  // namespace

int jni_get_byte_2array(JNIEnv* env, jobject obj, const char* name, void* dst, jsize rows,
                        jsize cols) {
  auto arr = array_field<jobjectArray>(env, obj, name, "[[B");
  if (!arr) return kx::kMarshal;
  return each_row(env, arr.get(), rows, [&](jsize r, jarray row) {
    env->GetByteArrayRegion(static_cast<jbyteArray>(row), 0, cols,
                            static_cast<jbyte*>(dst) + static_cast<size_t>(r) * cols);
    return kx::kOk;
  });
}

int jni_jstring_to_char_array(JNIEnv* env, jstring str, char* dst, size_t n) {
  if (str == nullptr || pending(env) || env->GetStringUTFLength(str) == 0) {
    if (n > 0) dst[0] = '\0';
    return kx::kMarshal;
  }
  UtfChars chars(env, str);
  if (!chars) return kx::kMarshal;
  copy_cut(dst, chars.get(), n);
  return kx::kOk;
}

// ---------------------------------------------------------------- writers

int jni_set_object(JNIEnv* env, jobject obj, const char* name, const char* sig, jobject value) {
  jfieldID fid = lookup(env, obj, name, sig);
  if (fid == nullptr) return kx::kMarshal;
  env->SetObjectField(obj, fid, value);
  return pending(env) ? kx::kMarshal : kx::kOk;
}

int jni_set_string(JNIEnv* env, jobject obj, const char* name, const char* value) {
  if (obj == nullptr || pending(env)) return kx::kMarshal;
  LocalRef<jclass> cls(env, env->GetObjectClass(obj));
  // The string is made before the field is looked up.
  LocalRef<jstring> str(env, env->NewStringUTF(value));
  if (!cls || !str) return kx::kMarshal;
  jfieldID fid = env->GetFieldID(cls.get(), name, kStringSig);
  if (fid == nullptr) return kx::kMarshal;
  env->SetObjectField(obj, fid, str.get());
  return pending(env) ? kx::kMarshal : kx::kOk;
}

int jni_set_string_unicode(JNIEnv* env, jobject obj, const char* name, const char* value,
                           size_t n) {
  if (obj == nullptr || pending(env)) return kx::kMarshal;
  LocalRef<jclass> string_class(env, env->FindClass("java/lang/String"));
  if (!string_class) return kx::kMarshal;
  jmethodID ctor = env->GetMethodID(string_class.get(), "<init>", "([BII)V");
  if (ctor == nullptr) return kx::kMarshal;
  LocalRef<jbyteArray> bytes(env, env->NewByteArray(static_cast<jsize>(n)));
  if (!bytes) return kx::kMarshal;
  // The whole buffer goes over, bytes behind the NUL included; the String
  // takes only the text before it.
  env->SetByteArrayRegion(bytes.get(), 0, static_cast<jsize>(n), reinterpret_cast<const jbyte*>(value));
  if (pending(env)) return kx::kMarshal;
  jint length = static_cast<jint>(strnlen(value, n));
  LocalRef<jstring> str(env, static_cast<jstring>(env->NewObject(string_class.get(), ctor, bytes.get(), 0, length)));
  if (pending(env) || !str) return kx::kMarshal;
  LocalRef<jclass> cls(env, env->GetObjectClass(obj));
  if (!cls) return kx::kMarshal;
  jfieldID fid = env->GetFieldID(cls.get(), name, kStringSig);
  if (fid == nullptr) return kx::kMarshal;
  env->SetObjectField(obj, fid, str.get());
  return pending(env) ? kx::kMarshal : kx::kOk;
}

jintArray jni_create_int_array_from_char(JNIEnv* env, const void* src, jsize n) {
  if (pending(env)) return nullptr;
  LocalRef<jintArray> arr(env, env->NewIntArray(n));
  if (!arr) return nullptr;
  jint* elems = env->GetIntArrayElements(arr.get(), nullptr);
  if (elems == nullptr) return nullptr;
  const auto* bytes = static_cast<const int8_t*>(src);
  for (jsize i = 0; i < n; ++i) elems[i] = bytes[i];
  env->ReleaseIntArrayElements(arr.get(), elems, 0);
  return arr.release();
}

int16_t kx::fixed_point_short(double value) {
  double scaled = std::trunc(value * 100.0);
  // Out of range or NaN gives the integer-indefinite value, as the x86
  // conversion instruction does.
  int32_t whole = (scaled >= -2147483648.0 && scaled < 2147483648.0) ? static_cast<int32_t>(scaled)
                                                                      : INT32_MIN;
  return static_cast<int16_t>(static_cast<uint16_t>(static_cast<uint32_t>(whole) & 0xFFFFu));
}

// ---------------------------------------------------------------- objects

jobject jni_new_object(JNIEnv* env, const char* cls_path) {
  LocalRef<jclass> cls(env, find_class(env, cls_path));
  if (!cls) return nullptr;
  jmethodID ctor = env->GetMethodID(cls.get(), "<init>", "()V");
  if (ctor == nullptr) return nullptr;
  jobject obj = env->NewObject(cls.get(), ctor);
  if (pending(env)) {
    if (obj != nullptr) env->DeleteLocalRef(obj);
    return nullptr;
  }
  return obj;
}

jobjectArray new_object_array(JNIEnv* env, const char* cls_path, jsize length) {
  LocalRef<jclass> cls(env, find_class(env, cls_path));
  if (!cls) return nullptr;
  return env->NewObjectArray(length, cls.get(), nullptr);
}

// ------------------------------------------------ copies from a fetched value

int kx::string_into(JNIEnv* env, jstring str, char* dst, size_t n) {
  if (str == nullptr) return kx::kMarshal;
  UtfChars chars(env, str);
  if (!chars) return kx::kMarshal;
  copy_cut(dst, chars.get(), n);
  return kx::kOk;
}

int kx::int_array_into(JNIEnv* env, jintArray arr, int32_t* dst, jsize n) {
  if (arr == nullptr) return kx::kMarshal;
  env->GetIntArrayRegion(arr, 0, n, reinterpret_cast<jint*>(dst));
  return pending(env) ? kx::kMarshal : kx::kOk;
}

int kx::int_rows_into(JNIEnv* env, jobjectArray arr, int32_t* dst, jsize rows, jsize cols) {
  if (arr == nullptr) return kx::kMarshal;
  return each_row(env, arr, rows, [&](jsize r, jarray row) {
    env->GetIntArrayRegion(static_cast<jintArray>(row), 0, cols,
                           reinterpret_cast<jint*>(dst) + static_cast<size_t>(r) * cols);
    return kx::kOk;
  });
}

int kx::byte_array_into(JNIEnv* env, jbyteArray arr, void* dst, jsize n) {
  if (arr == nullptr) return kx::kMarshal;
  env->GetByteArrayRegion(arr, 0, n, static_cast<jbyte*>(dst));
  return pending(env) ? kx::kMarshal : kx::kOk;
}

int kx::low_bytes_into(JNIEnv* env, jintArray arr, void* dst, size_t capacity) {
  if (arr == nullptr) return kx::kMarshal;
  auto* out = static_cast<uint8_t*>(dst);
  size_t length = static_cast<size_t>(env->GetArrayLength(arr));
  if (length == 0) {
    if (capacity > 0) out[0] = 0;
    return kx::kOk;
  }
  jint* elems = env->GetIntArrayElements(arr, nullptr);
  if (elems == nullptr) return kx::kMarshal;
  for (size_t i = 0; i < std::min(length, capacity); ++i) out[i] = static_cast<uint8_t>(elems[i]);
  env->ReleaseIntArrayElements(arr, elems, JNI_ABORT);
  return kx::kOk;
}
