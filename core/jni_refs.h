// Scoped JNI resources: local references and UTF-8 characters of a String.
#pragma once

#include <jni.h>

#include <utility>

namespace kx {

// Owns one JNI local reference and deletes it when it goes out of scope.
template <typename T = jobject>
class LocalRef {
 public:
  LocalRef(JNIEnv* env, T ref) noexcept : env_(env), ref_(ref) {}
  LocalRef(const LocalRef&) = delete;
  LocalRef& operator=(const LocalRef&) = delete;
  LocalRef(LocalRef&& other) noexcept : env_(other.env_), ref_(other.release()) {}
  ~LocalRef() { reset(); }

  T get() const noexcept { return ref_; }
  explicit operator bool() const noexcept { return ref_ != nullptr; }

  // Hands the reference to the caller, who then owns it.
  T release() noexcept { return std::exchange(ref_, nullptr); }

  void reset(T ref = nullptr) noexcept {
    if (ref_ != nullptr) env_->DeleteLocalRef(ref_);
    ref_ = ref;
  }

 private:
  JNIEnv* env_;
  T ref_;
};

// The modified UTF-8 characters of a Java String (not null), released on
// scope exit; null when the JVM cannot hand them over (its OutOfMemoryError
// then pending).
class UtfChars {
 public:
  UtfChars(JNIEnv* env, jstring str) noexcept
      : env_(env), str_(str), chars_(env->GetStringUTFChars(str, nullptr)) {}
  UtfChars(const UtfChars&) = delete;
  UtfChars& operator=(const UtfChars&) = delete;
  ~UtfChars() {
    if (chars_ != nullptr) env_->ReleaseStringUTFChars(str_, chars_);
  }

  const char* get() const noexcept { return chars_; }
  explicit operator bool() const noexcept { return chars_ != nullptr; }

 private:
  JNIEnv* env_;
  jstring str_;
  const char* chars_;
};

// True while a Java exception is pending.  Only exception-safe JNI functions
// may be called then, so every helper tests this before it touches the JVM
// and treats a pending exception as a failure of the call it was about to make.
inline bool pending(JNIEnv* env) noexcept { return env->ExceptionCheck() == JNI_TRUE; }

}  // namespace kx
