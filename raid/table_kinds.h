// Argument kinds of the pool, import and turbo-LU natives: records kept in the
// native's own frame, and several tables returned together as one
// java.lang.Object[].  (Tables whose length the library reports are
// core's CountedList.)
#pragma once

#include <cstddef>

#include "core/native.h"

namespace kx {

// A record the library fills that lives in the native's own frame (nothing to
// allocate), returned to Java as a new object.  `quiet`: an object that cannot
// be built is returned as null without a report; otherwise 2817.
template <typename R>
struct FrameOut {
  explicit FrameOut(const Desc<R>& d, bool q = false) : desc(d), quiet(q) {}

  const Desc<R>& desc;
  bool quiet;
  R rec{};
  using result_type = jobject;

  bool prepare(JNIEnv*) { return true; }
  R* arg() { return &rec; }
  jobject convert(JNIEnv* env, int& code) {
    jobject obj = write_record(env, desc, &rec);
    if (obj == nullptr && !quiet) code = kMarshal;
    return obj;
  }
};

// A heap table of `count` records the library fills, converted by the result
// that holds or names it.
template <typename R>
struct Table {
  Table(const Desc<R>& d, jsize n) : desc(d), count(n) {}

  const Desc<R>& desc;
  jsize count;
  Records<R> rec;

  bool prepare(JNIEnv*) {
    rec = Records<R>(count);
    return static_cast<bool>(rec);
  }
  R* arg() { return rec.get(); }

  // Stores record i as element at + i of arr; false as soon as one cannot be
  // built or stored.
  bool store(JNIEnv* env, jobjectArray arr, jsize at) const {
    for (jsize i = 0; i < count; ++i) {
      LocalRef<jobject> item(env, write_record(env, desc, &rec[static_cast<size_t>(i)]));
      if (!item || pending(env)) return false;
      env->SetObjectArrayElement(arr, at + i, item.get());
      if (pending(env)) return false;
    }
    return true;
  }
};

// The last of two tables the library fills, returning both as one
// java.lang.Object[]: the records of `first` in order, then its own.  Any
// element that cannot be built, or an array that cannot be made, is 2817.
template <typename First, typename R>
struct ObjectsWith {
  ObjectsWith(Table<First>& f, Table<R>&& own_table) : first(f), own(std::move(own_table)) {}

  Table<First>& first;
  Table<R> own;
  using result_type = jobjectArray;

  bool prepare(JNIEnv* env) { return own.prepare(env); }
  R* arg() { return own.arg(); }
  jobjectArray convert(JNIEnv* env, int& code) {
    LocalRef<jobjectArray> arr(env, new_object_array(env, "java/lang/Object", first.count + own.count));
    if (!arr || !first.store(env, arr.get(), 0) || !own.store(env, arr.get(), first.count)) {
      code = kMarshal;
      return nullptr;
    }
    return arr.release();
  }
};

}  // namespace kx
