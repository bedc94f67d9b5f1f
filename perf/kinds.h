// Argument kinds of the statistics and performance natives, beside the
// shared ones of core/native.h.
#pragma once

#include <algorithm>
#include <cstring>

#include "perf/records.h"

namespace kx::perf {

// A request whose record points at buffers of the native's own: the record
// is allocated first, then every linked record in field order, and their
// addresses are stored before the Java object is converted.  A file-name
// buffer lives in the frame.  Everything is released when the call ends.
template <typename R>
struct Linked {
  static constexpr size_t kMaxLinks = 4;

  Linked(jobject o, const Desc<R>& d) : obj(o), desc(d) {}

  jobject obj;
  const Desc<R>& desc;
  Records<R> rec;
  Block links[kMaxLinks];
  char text[kLinkedTextSize] = {};

  bool prepare(JNIEnv*) {
    rec = Records<R>(1);
    if (!rec) return false;
    size_t n = 0;
    for (uint32_t i = 0; i < desc.field_count; ++i) {
      const Field& f = desc.fields[i];
      auto* slots = reinterpret_cast<uint8_t*>(rec.get()) + f.offset;
      if (f.read == read_linked_text) {
        char* p = text;
        std::memcpy(slots, &p, sizeof p);
      } else if (f.read == read_linked || f.read == read_linked_array) {
        for (uint32_t k = 0; k < f.count; ++k) {
          if (n == kMaxLinks) return false;
          links[n] = Block(1, f.elem->size);
          if (!links[n]) return false;
          void* p = links[n].get();
          std::memcpy(slots + k * sizeof(void*), &p, sizeof p);
          ++n;
        }
      }
    }
    return true;
  }
};

// A linked request converted from a Java object (a null object sends the
// zero-filled records).
template <typename R>
struct LinkedIn : Linked<R> {
  LinkedIn(jobject o, const Desc<R>& d) : Linked<R>(o, d) {}
  bool missing() const { return false; }
  void fill(JNIEnv* env) { read_record(env, this->obj, this->desc, this->rec.get()); }
  const R* arg() { return this->rec.get(); }
};

// Linked records the library fills, returned as a new Java object; 2817 when
// it cannot be built.
template <typename R>
struct LinkedOut : Linked<R> {
  explicit LinkedOut(const Desc<R>& d) : Linked<R>(nullptr, d) {}
  using result_type = jobject;
  R* arg() { return this->rec.get(); }
  jobject convert(JNIEnv* env, int& code) {
    jobject out = write_record(env, this->desc, this->rec.get());
    if (out == nullptr) code = kMarshal;
    return out;
  }
};

// A path copied into a 1024-byte heap buffer with a copy limit of 4 (at
// most 3 bytes and a NUL; the rest of the buffer zero); a null String sends
// a null pointer.
struct ShortPath {
  static constexpr size_t kLimit = 4;
  explicit ShortPath(jstring s) : str(s) {}
  jstring str;
  Block buf;

  bool prepare(JNIEnv* env) {
    if (str == nullptr) return true;
    buf = Block(1, PERNIX_PATH_SIZE);
    if (!buf) return false;
    jni_jstring_to_char_array(env, str, static_cast<char*>(buf.get()), kLimit);
    return true;
  }
  const char* arg() { return static_cast<const char*>(buf.get()); }
};

// A record the library takes by value, converted from a Java object that
// must be there (258 when it is null).  Bytes the description does not
// cover stay zero.
template <typename R>
struct ByValue {
  ByValue(jobject o, const Desc<R>& d) : obj(o), desc(d) {}
  jobject obj;
  const Desc<R>& desc;
  R rec{};

  bool missing() const { return obj == nullptr; }
  bool prepare(JNIEnv*) { return true; }
  void fill(JNIEnv* env) { read_record(env, obj, desc, &rec); }
  R arg() { return rec; }
};

// One record per controller, each its own block, returned as an array of
// two objects.  An element that cannot be built ends the array quietly
// (later elements null, nothing reported).
template <typename R>
struct PerController {
  static constexpr jsize kControllers = 2;

  explicit PerController(const Desc<R>& d) : desc(d) {}
  const Desc<R>& desc;
  Records<R> rec[kControllers];
  R* ptrs[kControllers] = {};
  using result_type = jobjectArray;

  bool prepare(JNIEnv*) {
    for (jsize c = 0; c < kControllers; ++c) {
      rec[c] = Records<R>(1);
      if (!rec[c]) return false;
      ptrs[c] = rec[c].get();
    }
    return true;
  }
  R* const* arg() { return ptrs; }
  jobjectArray convert(JNIEnv* env, int&) {
    LocalRef<jobjectArray> arr(env, new_object_array(env, desc.cls, kControllers));
    if (!arr) return nullptr;
    for (jsize c = 0; c < kControllers; ++c) {
      LocalRef<jobject> item(env, write_record(env, desc, ptrs[c]));
      if (!item || pending(env)) break;
      env->SetObjectArrayElement(arr.get(), c, item.get());
      if (pending(env)) break;
    }
    return arr.release();
  }
};

// The LU flags of a summary: a zero-filled 4096-byte buffer holding the Java
// bytes, at most 4096 of them (a null array sends all zeros).
struct LuFlags {
  static constexpr jsize kSize = 4096;
  explicit LuFlags(jbyteArray a) : arr(a) {}
  jbyteArray arr;
  Block buf;

  bool prepare(JNIEnv*) {
    buf = Block(1, kSize);
    return static_cast<bool>(buf);
  }
  void fill(JNIEnv* env) {
    if (arr == nullptr || pending(env)) return;
    jsize n = std::min(env->GetArrayLength(arr), kSize);
    env->GetByteArrayRegion(arr, 0, n, static_cast<jbyte*>(buf.get()));
  }
  const uint8_t* arg() { return static_cast<const uint8_t*>(buf.get()); }
};

}  // namespace kx::perf
