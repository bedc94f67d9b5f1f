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

jint jni_get_int(JNIEnv* env, jobject obj, const char* name) {
  jfieldID fid = lookup(env, obj, name, "I");
  if (fid == nullptr) return -1;
  return env->GetIntField(obj, fid);
}

jobject jni_get_object(JNIEnv* env, jobject obj, const char* name, const char* sig) {
  jfieldID fid = lookup(env, obj, name, sig);
  if (fid == nullptr) return nullptr;
  return env->GetObjectField(obj, fid);
}

int jni_get_string(JNIEnv* env, jobject obj, const char* name, char* dst, size_t n) {
  auto str = array_field<jstring>(env, obj, name, kStringSig);
  return kx::string_into(env, str.get(), dst, n);
}

int jni_get_str_array(JNIEnv* env, jobject obj, const char* name, char* dst, size_t n,
                      size_t capacity) {
  auto arr = array_field<jobjectArray>(env, obj, name, "[Ljava/lang/String;");
  if (!arr) return kx::kMarshal;
  size_t length = static_cast<size_t>(env->GetArrayLength(arr.get()));
  for (size_t k = 0; k < std::min(length, capacity); ++k) {
    LocalRef<jstring> str(env, static_cast<jstring>(env->GetObjectArrayElement(arr.get(), static_cast<jsize>(k))));
    if (!str || pending(env)) return kx::kMarshal;
    UtfChars chars(env, str.get());
    if (!chars) return kx::kMarshal;
    copy_cut(dst + k * n, chars.get(), n);
  }
  return kx::kOk;
}

int jni_get_int_array(JNIEnv* env, jobject obj, const char* name, int32_t* dst, jsize n) {
  auto arr = array_field<jintArray>(env, obj, name, "[I");
  return kx::int_array_into(env, arr.get(), dst, n);
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

int jni_get_int_2array(JNIEnv* env, jobject obj, const char* name, int32_t* dst, jsize rows,
                       jsize cols) {
  auto arr = array_field<jobjectArray>(env, obj, name, "[[I");
  return kx::int_rows_into(env, arr.get(), dst, rows, cols);
}

int jni_get_int_3array(JNIEnv* env, jobject obj, const char* name, int32_t* dst, jsize d1,
                       jsize d2, jsize d3) {
  auto arr = array_field<jobjectArray>(env, obj, name, "[[[I");
  if (!arr) return kx::kMarshal;
  return each_row(env, arr.get(), d1, [&](jsize i, jarray plane) {
    return each_row(env, static_cast<jobjectArray>(plane), d2, [&](jsize j, jarray row) {
      env->GetIntArrayRegion(static_cast<jintArray>(row), 0, d3,
                             reinterpret_cast<jint*>(dst) + (static_cast<size_t>(i) * d2 + j) * d3);
      return kx::kOk;
    });
  });
}

int jni_get_byte_array(JNIEnv* env, jobject obj, const char* name, void* dst, jsize n) {
  auto arr = array_field<jbyteArray>(env, obj, name, "[B");
  return kx::byte_array_into(env, arr.get(), dst, n);
}

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

int jni_char_array_from_int_array(JNIEnv* env, jobject obj, const char* name, void* dst,
                                  size_t capacity) {
  auto arr = array_field<jintArray>(env, obj, name, "[I");
  return kx::low_bytes_into(env, arr.get(), dst, capacity);
}

double jni_get_double(JNIEnv* env, jobject obj, const char* name) {
  jfieldID fid = lookup(env, obj, name, "D");
  if (fid == nullptr) return -1.0;
  return env->GetDoubleField(obj, fid);
}

double jni_get_double_from_short(JNIEnv* env, jobject obj, const char* name) {
  jfieldID fid = lookup(env, obj, name, "S");
  if (fid == nullptr) return -1.0;
  return static_cast<double>(env->GetShortField(obj, fid)) / 100.0;
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

int jni_get_string_multi_byte(JNIEnv* env, jstring str, char* dst, size_t n) {
  if (str == nullptr || pending(env) || n == 0) return kx::kMarshal;
  LocalRef<jclass> cls(env, env->GetObjectClass(str));
  if (!cls) return kx::kMarshal;
  jmethodID get_bytes = env->GetMethodID(cls.get(), "getBytes", "(Ljava/lang/String;)[B");
  if (get_bytes == nullptr) return kx::kMarshal;
  LocalRef<jstring> charset(env, env->NewStringUTF("EUC_JP"));
  if (!charset) return kx::kMarshal;
  LocalRef<jbyteArray> bytes(
      env, static_cast<jbyteArray>(env->CallObjectMethod(str, get_bytes, charset.get())));
  if (pending(env) || !bytes) return kx::kMarshal;
  jbyte* elems = env->GetByteArrayElements(bytes.get(), nullptr);
  if (elems == nullptr) return kx::kMarshal;
  size_t length = static_cast<size_t>(env->GetArrayLength(bytes.get()));
  size_t copied = length < n ? length : n - 1;
  if (copied > 0) {
    size_t text = strnlen(reinterpret_cast<const char*>(elems), copied);
    std::memcpy(dst, elems, text);
    std::memset(dst + text, 0, copied - text);
  }
  dst[copied] = '\0';
  env->ReleaseByteArrayElements(bytes.get(), elems, JNI_ABORT);
  return kx::kOk;
}

// ---------------------------------------------------------------- writers

int jni_set_int(JNIEnv* env, jobject obj, const char* name, jint value) {
  jfieldID fid = lookup(env, obj, name, "I");
  if (fid == nullptr) return kx::kMarshal;
  env->SetIntField(obj, fid, value);
  return pending(env) ? kx::kMarshal : kx::kOk;
}

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

int jni_set_str_array(JNIEnv* env, jobject obj, const char* name, const char* src, jsize count,
                      jsize n) {
  // The array is as long as the element size, whatever the count says.
  LocalRef<jobjectArray> arr(env, new_object_array(env, "java/lang/String", n));
  if (!arr) return kx::kMarshal;
  for (jsize k = 0; k < std::min(count, n); ++k) {
    LocalRef<jstring> str(env, env->NewStringUTF(src + static_cast<size_t>(k) * n));
    if (!str) return kx::kMarshal;
    env->SetObjectArrayElement(arr.get(), k, str.get());
    if (pending(env)) return kx::kMarshal;
  }
  jni_set_object(env, obj, name, "[Ljava/lang/String;", arr.get());
  return kx::kOk;
}

int jni_set_int_array(JNIEnv* env, jobject obj, const char* name, const int32_t* src, jsize n) {
  if (pending(env)) return kx::kMarshal;
  LocalRef<jintArray> arr(env, env->NewIntArray(n));
  if (!arr) return kx::kMarshal;
  env->SetIntArrayRegion(arr.get(), 0, n, reinterpret_cast<const jint*>(src));
  if (pending(env)) return kx::kMarshal;
  return jni_set_object(env, obj, name, "[I", arr.get());
}

int jni_set_byte_array(JNIEnv* env, jobject obj, const char* name, const void* src, jsize n) {
  // Writes into the array the field already holds; never makes one.
  auto arr = array_field<jbyteArray>(env, obj, name, "[B");
  if (!arr) return kx::kMarshal;
  env->SetByteArrayRegion(arr.get(), 0, n, static_cast<const jbyte*>(src));
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

int jni_set_double(JNIEnv* env, jobject obj, const char* name, double value) {
  jfieldID fid = lookup(env, obj, name, "D");
  if (fid == nullptr) return kx::kMarshal;
  env->SetDoubleField(obj, fid, value);
  return pending(env) ? kx::kMarshal : kx::kOk;
}

int16_t kx::fixed_point_short(double value) {
  double scaled = std::trunc(value * 100.0);
  // Out of range or NaN gives the integer-indefinite value, as the x86
  // conversion instruction does.
  int32_t whole = (scaled >= -2147483648.0 && scaled < 2147483648.0) ? static_cast<int32_t>(scaled)
                                                                      : INT32_MIN;
  return static_cast<int16_t>(static_cast<uint16_t>(static_cast<uint32_t>(whole) & 0xFFFFu));
}

int jni_set_short_from_double(JNIEnv* env, jobject obj, const char* name, double value) {
  jfieldID fid = lookup(env, obj, name, "S");
  if (fid == nullptr) return kx::kMarshal;
  env->SetShortField(obj, fid, kx::fixed_point_short(value));
  return pending(env) ? kx::kMarshal : kx::kOk;
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

int print_jobject(JNIEnv* env, jobject obj) {
  LocalRef<jclass> system(env, find_class(env, "java/lang/System"));
  if (!system) return -1;
  jfieldID out_id = env->GetStaticFieldID(system.get(), "out", "Ljava/io/PrintStream;");
  if (out_id == nullptr) return -1;
  LocalRef<jobject> out(env, env->GetStaticObjectField(system.get(), out_id));
  LocalRef<jclass> stream(env, find_class(env, "java/io/PrintStream"));
  if (!out || !stream) return -1;
  jmethodID println = env->GetMethodID(stream.get(), "println", "(Ljava/lang/Object;)V");
  if (println == nullptr) return -1;
  env->CallVoidMethod(out.get(), println, obj);
  return 0;
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
