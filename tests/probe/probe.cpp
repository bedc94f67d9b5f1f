// Test-only natives of kxtest.CoreProbe: the field and array helpers and the
// exception functions, called directly so their own rules can be checked from
// the JVM.  Built into its own library, never into the product.
#include <jni.h>

#include <vector>

#include "core/accessors.h"
#include "core/errors.h"
#include "core/jni_refs.h"

namespace {

std::vector<char> buffer_from(JNIEnv* env, jbyteArray dst) {
  std::vector<char> buf(static_cast<size_t>(env->GetArrayLength(dst)));
  env->GetByteArrayRegion(dst, 0, static_cast<jsize>(buf.size()), reinterpret_cast<jbyte*>(buf.data()));
  return buf;
}

void copy_back(JNIEnv* env, const std::vector<char>& buf, jbyteArray dst) {
  // Keep whatever exception the helper left pending: region calls are not
  // allowed then, and the test wants to see that exception.
  if (env->ExceptionCheck()) return;
  env->SetByteArrayRegion(dst, 0, static_cast<jsize>(buf.size()), reinterpret_cast<const jbyte*>(buf.data()));
}

struct Utf {
  Utf(JNIEnv* e, jstring s) : env(e), str(s), chars(e->GetStringUTFChars(s, nullptr)) {}
  ~Utf() { env->ReleaseStringUTFChars(str, chars); }
  JNIEnv* env;
  jstring str;
  const char* chars;
};

}  // namespace

#define PROBE(ret, name) \
  extern "C" JNIEXPORT ret JNICALL Java_kxtest_CoreProbe_##name

// dst's current bytes are the buffer the helper sees; its result is copied back.
PROBE(jint, getString)(JNIEnv* env, jclass, jobject obj, jstring field, jbyteArray dst) {
  auto buf = buffer_from(env, dst);
  Utf name(env, field);
  jint rc = jni_get_string(env, obj, name.chars, buf.data(), buf.size());
  copy_back(env, buf, dst);
  return rc;
}

PROBE(jint, jstringToChars)(JNIEnv* env, jclass, jstring str, jbyteArray dst) {
  auto buf = buffer_from(env, dst);
  jint rc = jni_jstring_to_char_array(env, str, buf.data(), buf.size());
  copy_back(env, buf, dst);
  return rc;
}

// The low bytes of ints, at most as many as dst holds, into dst's current bytes.
PROBE(jint, bytesFromInts)(JNIEnv* env, jclass, jintArray ints, jbyteArray dst) {
  auto buf = buffer_from(env, dst);
  jint rc = kx::low_bytes_into(env, ints, buf.data(), buf.size());
  copy_back(env, buf, dst);
  return rc;
}

PROBE(jintArray, intsFromBytes)(JNIEnv* env, jclass, jbyteArray src) {
  auto buf = buffer_from(env, src);
  return jni_create_int_array_from_char(env, buf.data(), static_cast<jsize>(buf.size()));
}

PROBE(jint, setStringUnicode)(JNIEnv* env, jclass, jobject obj, jstring field, jbyteArray src) {
  auto buf = buffer_from(env, src);
  Utf name(env, field);
  return jni_set_string_unicode(env, obj, name.chars, buf.data(), buf.size());
}

PROBE(jshort, fixedPointShort)(JNIEnv*, jclass, jdouble v) { return kx::fixed_point_short(v); }

PROBE(jint, errorThrow)(JNIEnv* env, jclass, jint code) { return errorThrow(env, code); }

PROBE(jint, classNotFoundThrow)(JNIEnv* env, jclass, jstring path) {
  Utf p(env, path);
  return classNotFoundThrow(env, p.chars);
}

// A new object of the class at `cls` by its no-argument constructor, the
// class found as the bridge finds classes.
PROBE(jobject, newObject)(JNIEnv* env, jclass, jstring cls) {
  Utf p(env, cls);
  kx::LocalRef<jclass> c(env, find_class(env, p.chars));
  if (!c) return nullptr;
  jmethodID ctor = env->GetMethodID(c.get(), "<init>", "()V");
  return ctor != nullptr ? env->NewObject(c.get(), ctor) : nullptr;
}
