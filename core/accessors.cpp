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

// GetObjectClass + GetFieldID of a field of obj (never null); null when an
// exception is pending or the field cannot be found.
jfieldID lookup(JNIEnv* env, jobject obj, const char* name, const char* sig) {
  if (pending(env)) return nullptr;
  LocalRef<jclass> cls(env, env->GetObjectClass(obj));
  return env->GetFieldID(cls.get(), name, sig);
}

// A NUL-terminated copy into an n-byte buffer (n > 0): at most n-1 bytes, the
// rest of the buffer zero-filled.
void copy_cut(char* dst, const char* src, size_t n) {
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
// Rows 0..count-1 of an array of arrays, each handed to `copy`.  A missing
// row (the JVM's exception then pending), a null row or a short row (the
// copy's exception pending) is a failure.
template <typename Copy>
int each_row(JNIEnv* env, jobjectArray outer, jsize count, Copy copy) {
  for (jsize r = 0; r < count; ++r) {
    LocalRef<jarray> row(env, static_cast<jarray>(env->GetObjectArrayElement(outer, r)));
    if (!row) return kx::kMarshal;
    copy(r, row.get());
    if (pending(env)) return kx::kMarshal;
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
  });
}

int jni_jstring_to_char_array(JNIEnv* env, jstring str, char* dst, size_t n) {
  if (str == nullptr || pending(env) || env->GetStringUTFLength(str) == 0) {
    dst[0] = '\0';
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
  // A value of the field's type: cannot raise.
  env->SetObjectField(obj, fid, value);
  return kx::kOk;
}

namespace {
// Sets String field `name` of obj to str (not null).
int set_string_field(JNIEnv* env, jobject obj, const char* name, jstring str) {
  LocalRef<jclass> cls(env, env->GetObjectClass(obj));
  jfieldID fid = env->GetFieldID(cls.get(), name, kStringSig);
  if (fid == nullptr) return kx::kMarshal;
  env->SetObjectField(obj, fid, str);
  return kx::kOk;
}
}  // namespace

int jni_set_string(JNIEnv* env, jobject obj, const char* name, const char* value) {
  // The string is made before the field is looked up.
  LocalRef<jstring> str(env, env->NewStringUTF(value));
  if (!str) return kx::kMarshal;
  return set_string_field(env, obj, name, str.get());
}

int jni_set_string_unicode(JNIEnv* env, jobject obj, const char* name, const char* value,
                           size_t n) {
  LocalRef<jclass> string_class(env, env->FindClass("java/lang/String"));
  if (!string_class) return kx::kMarshal;
  jmethodID ctor = env->GetMethodID(string_class.get(), "<init>", "([BII)V");
  if (ctor == nullptr) return kx::kMarshal;
  LocalRef<jbyteArray> bytes(env, env->NewByteArray(static_cast<jsize>(n)));
  if (!bytes) return kx::kMarshal;
  // The whole buffer goes over, bytes behind the NUL included (the whole new
  // array: cannot raise); the String takes only the text before it.
  env->SetByteArrayRegion(bytes.get(), 0, static_cast<jsize>(n), reinterpret_cast<const jbyte*>(value));
  jint length = static_cast<jint>(strnlen(value, n));
  // Null exactly when the String could not be made (its exception pending).
  LocalRef<jstring> str(env, static_cast<jstring>(env->NewObject(string_class.get(), ctor, bytes.get(), 0, length)));
  if (!str) return kx::kMarshal;
  return set_string_field(env, obj, name, str.get());
}

jintArray jni_create_int_array_from_char(JNIEnv* env, const void* src, jsize n) {
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

// ---------------------------------------------------------------- arrays

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
  env->GetIntArrayRegion(arr, 0, n, reinterpret_cast<jint*>(dst));
  return pending(env) ? kx::kMarshal : kx::kOk;
}

int kx::int_rows_into(JNIEnv* env, jobjectArray arr, int32_t* dst, jsize rows, jsize cols) {
  return each_row(env, arr, rows, [&](jsize r, jarray row) {
    env->GetIntArrayRegion(static_cast<jintArray>(row), 0, cols,
                           reinterpret_cast<jint*>(dst) + static_cast<size_t>(r) * cols);
  });
}

int kx::byte_array_into(JNIEnv* env, jbyteArray arr, void* dst, jsize n) {
  env->GetByteArrayRegion(arr, 0, n, static_cast<jbyte*>(dst));
  return pending(env) ? kx::kMarshal : kx::kOk;
}

int kx::low_bytes_into(JNIEnv* env, jintArray arr, void* dst, size_t capacity) {
  auto* out = static_cast<uint8_t*>(dst);
  size_t length = static_cast<size_t>(env->GetArrayLength(arr));
  if (length == 0) {
    out[0] = 0;
    return kx::kOk;
  }
  jint* elems = env->GetIntArrayElements(arr, nullptr);
  if (elems == nullptr) return kx::kMarshal;
  for (size_t i = 0; i < std::min(length, capacity); ++i) out[i] = static_cast<uint8_t>(elems[i]);
  env->ReleaseIntArrayElements(arr, elems, JNI_ABORT);
  return kx::kOk;
}
