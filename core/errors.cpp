#include "core/errors.h"

#include <cstring>

#include "core/jni_refs.h"

namespace kx {
const char* const kDiskArrayExceptionClass = "orvane/str/diskarray/DiskArrayException";
}  // namespace kx

namespace {
constexpr const char* kClassNotFound = "java/lang/ClassNotFoundException";
// Spelled so on purpose: no such class exists, so callers receive a
// ClassNotFoundException naming it.  Java code relies on that.
constexpr const char* kOutOfMemory = "java/lang/OutofMemoryError";
}  // namespace

jclass find_class(JNIEnv* env, const char* path) {
  if (kx::pending(env)) return nullptr;
  jclass cls = env->FindClass(path);
  if (cls == nullptr) classNotFoundThrow(env, path);
  return cls;
}

int throw_new(JNIEnv* env, const char* path, const char* message) {
  // Whatever the JVM left pending (the NoClassDefFoundError of a failed lookup,
  // say) gives way to the exception thrown here.
  env->ExceptionClear();
  kx::LocalRef<jclass> cls(env, find_class(env, path));
  if (!cls) return 0;
  return env->ThrowNew(cls.get(), message);
}

int classNotFoundThrow(JNIEnv* env, const char* path) {
  if (std::strcmp(path, kClassNotFound) == 0) return 0;
  return throw_new(env, kClassNotFound, path);
}

int errorThrow(JNIEnv* env, int code) {
  if (code == kx::kNotReported) return code;
  env->ExceptionClear();
  if (code == kx::kNoMemory) return throw_new(env, kOutOfMemory, "");

  kx::LocalRef<jclass> cls(env, find_class(env, kx::kDiskArrayExceptionClass));
  if (!cls) return 0;
  jmethodID ctor = env->GetMethodID(cls.get(), "<init>", "(I)V");
  if (ctor == nullptr) return 0;
  kx::LocalRef<jthrowable> ex(env, static_cast<jthrowable>(env->NewObject(cls.get(), ctor, code)));
  if (!ex) return 0;
  return env->Throw(ex.get());
}
