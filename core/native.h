// The frame every native method shares, and the argument kinds it is built from.
//
// A native names the library function and lists its arguments in the
// library's order, each as what it is on the Java side:
//
//   KX_NATIVE(jobject, GetDriveInformation, jstring unit, jobject session, jint a, jint b) {
//     return kx::call(env, KX_GetDriveInformation, kx::Unit(unit), kx::Session(session), a, b,
//                     kx::Out(kx::rec::DiskDriveInformation));
//   }
//
// kx::call then runs the frame: fflush(stdout); a required String that is
// null throws 258 before anything is allocated; strings are copied into
// their fixed buffers; records are allocated zero-filled (65535 when one
// cannot be had); input records are converted from their Java objects (a
// conversion failure is not reported: the library gets what could be read);
// the library is called exactly once; a non-zero result is thrown (256
// silently); the output is converted into its Java result (2817 when that
// fails); fflush(stdout) and return.  Classes and field IDs the conversions
// look up are remembered until the call returns, never longer.  Every record is released exactly once
// on every path, records that held secrets cleared first.
#pragma once

#include <jni.h>

#include <concepts>
#include <cstddef>
#include <cstdio>
#include <type_traits>
#include <utility>

#include "core/accessors.h"
#include "core/errors.h"
#include "core/jni_refs.h"
#include "core/lookups.h"
#include "core/memory.h"
#include "core/record.h"
#include "pernix_common.h"
#include "orvane_str_diskarray_DiskArrayUtilityJNI.h"

// Defines the native method for Java method KX_<Name> of DiskArrayUtilityJNI.
// The generated header declares the same function, so a name or parameter
// type that does not match the Java declaration fails to compile.
#define KX_NATIVE(Ret, Name, ...)                                         \
  extern "C" JNIEXPORT Ret JNICALL Java_orvane_str_diskarray_DiskArrayUtilityJNI_KX_1##Name( \
      JNIEnv* env, jobject __VA_OPT__(, ) __VA_ARGS__)

namespace kx {

// ------------------------------------------------------------ frame options

struct Options {
  bool flush = true;  // fflush(stdout) on entry and before a successful return
  jint failed = 0;    // what an int-returning native returns after a throw
};
inline constexpr Options kNoFlush{.flush = false};

// ------------------------------------------------------------ argument kinds
//
// Each kind may provide: missing() (a required argument is null: 258),
// missing_after_prepare() (the same, tested once every record is allocated),
// prepare(env) (copy or allocate; false when memory ran out: 65535),
// fill(env) (convert the Java input; an int result other than 0 stops the
// call with that code), arg() (what the library receives) and,
// for the one result of a native, convert(env, code) and result_type.

// A String argument copied into an N-byte buffer (at most N-1 bytes and a
// NUL).  A required one that is null throws 258; an optional null or empty
// one goes to the library as an empty string.
template <size_t N, bool Required = true>
struct Text {
  jstring str;
  char buf[N] = {};

  bool missing() const { return Required && str == nullptr; }
  bool prepare(JNIEnv* env) {
    jni_jstring_to_char_array(env, str, buf, N);
    return true;
  }
  char* arg() { return buf; }
};

inline Text<PERNIX_UNIT_NAME_SIZE> Unit(jstring s) { return {s}; }
inline Text<PERNIX_PATH_SIZE> Path(jstring s) { return {s}; }
// A unit name the native does not test for null.
inline Text<PERNIX_UNIT_NAME_SIZE, false> UnitUnchecked(jstring s) { return {s}; }
template <size_t N>
Text<N> Chars(jstring s) { return {s}; }
template <size_t N>
Text<N, false> CharsUnchecked(jstring s) { return {s}; }

// A record converted from a Java object before the call.  The conversion's
// status is not looked at: a null object sends the zero-filled record.
template <typename R>
struct In {
  In(jobject o, const Desc<R>& d, bool wipe = false) : obj(o), desc(d), secret(wipe) {}

  jobject obj;
  const Desc<R>& desc;
  bool secret;
  Records<R> rec;

  bool missing() const { return false; }
  bool prepare(JNIEnv*) {
    rec = Records<R>(1, secret);
    return static_cast<bool>(rec);
  }
  void fill(JNIEnv* env) { read_record(env, obj, desc, rec.get()); }
  const R* arg() { return rec.get(); }
};

// An input record that carries a password or other secret: cleared before it
// is released.
template <typename R>
In<R> Secret(jobject obj, const Desc<R>& desc) { return In<R>{obj, desc, true}; }

// An input record whose conversion must succeed: when it fails (a null
// object included) or leaves a Java exception pending, 2817 is thrown and the
// library is not called.
template <typename R>
struct Required : In<R> {
  using In<R>::In;
  int fill(JNIEnv* env) {
    // Read whole only when no exception is left pending (read_record).
    return read_record(env, this->obj, this->desc, this->rec.get()) == kOk ? kOk : kMarshal;
  }
};
template <typename R>
Required(jobject, const Desc<R>&) -> Required<R>;

// A record the library fills, returned to Java as a new object; 2817 when the
// object cannot be built.
template <typename R>
struct Out {
  // `secret`: the record carries a password, cleared before release.
  explicit Out(const Desc<R>& d, bool wipe = false) : desc(d), secret(wipe) {}

  const Desc<R>& desc;
  bool secret;
  Records<R> rec;
  using result_type = jobject;

  bool prepare(JNIEnv*) {
    rec = Records<R>(1, secret);
    return static_cast<bool>(rec);
  }
  R* arg() { return rec.get(); }
  jobject convert(JNIEnv* env, int& code) {
    jobject obj = write_record(env, desc, rec.get());
    if (obj == nullptr) code = kMarshal;
    return obj;
  }
};

// How a list of records answers an element that cannot be built.
enum class ListEnd {
  Stop,   // the array is returned as it stands, later elements null, no report
  Skip,   // the element stays null and the list goes on
};

// A new array of `n` objects built from records[0..n), ending at an element
// that cannot be built as `end` says; null, without a report, when the array
// itself cannot be made.
template <typename R>
jobjectArray list_of(JNIEnv* env, const Desc<R>& desc, const R* records, jsize n, ListEnd end) {
  LocalRef<jobjectArray> arr(env, new_object_array(env, desc.cls, n));
  if (!arr) return nullptr;
  bool clean = true;  // no exception pending
  for (jsize i = 0; i < n; ++i) {
    LocalRef<jobject> item(env, write_record(env, desc, &records[i], clean));
    // With an exception pending the element cannot be stored: it counts
    // as not built.
    if (!item || !clean) {
      if (end == ListEnd::Stop) break;
      continue;
    }
    // An element of the array's own class, inside its bounds: cannot raise.
    env->SetObjectArrayElement(arr.get(), i, item.get());
  }
  return arr.release();
}

// A fixed table of `count` records the library fills, returned to Java as an
// array of `count` objects whatever the library says is valid.  Failing to
// make the array returns null without a report.
template <typename R>
struct OutList {
  OutList(const Desc<R>& d, jsize n, ListEnd e = ListEnd::Stop) : desc(d), count(n), end(e) {}

  const Desc<R>& desc;
  jsize count;
  ListEnd end;
  Records<R> rec;
  using result_type = jobjectArray;

  bool prepare(JNIEnv*) {
    rec = Records<R>(count);
    return static_cast<bool>(rec);
  }
  R* arg() { return rec.get(); }
  jobjectArray convert(JNIEnv* env, int&) { return list_of(env, desc, rec.get(), count, end); }
};

// The number of entries the library says a table holds, an int it stores
// through a pointer of its own; read by the table's CountedList.
struct Count {
  int value = 0;
  bool prepare(JNIEnv*) { return true; }
  int* arg() { return &value; }
};

// The length of an array sized by `count` over a table of `capacity` records:
// at most the capacity; -1 for a negative count, from which none is made.
constexpr jsize counted_length(int count, size_t capacity) {
  if (count < 0) return -1;
  return static_cast<size_t>(count) < capacity ? static_cast<jsize>(count) : static_cast<jsize>(capacity);
}

// Where a counted table lives: in the native's own frame (nothing to
// allocate), or in a zero-filled block (65535 when it cannot be had).
enum class TableIn { Frame, Block };

namespace detail {
template <typename R, size_t N, TableIn Where>
struct TableStore {
  R rec[N]{};
  bool prepare() { return true; }
  R* get() { return rec; }
};
template <typename R, size_t N>
struct TableStore<R, N, TableIn::Block> {
  Records<R> rec;
  bool prepare() {
    rec = Records<R>(N);
    return static_cast<bool>(rec);
  }
  R* get() { return rec.get(); }
};
}  // namespace detail

// A table of N records the library fills, returned as an array sized by the
// library's Count (listed where the library takes it).  The count is never
// trusted: the array has that many elements but never more than N, so a
// larger count converts the whole table and nothing past it; a negative count
// makes no array and answers 2817.  Elements that cannot be built end the
// list as `end` says; failing to make the array returns null without a report.
template <typename R, size_t N, TableIn Where = TableIn::Frame>
struct CountedList {
  static_assert(N > 0 && N <= 0x7fffffff, "a table's capacity must be a Java array length");

  CountedList(const Desc<R>& d, const Count& n, ListEnd e = ListEnd::Stop) : desc(d), count(n), end(e) {}

  const Desc<R>& desc;
  const Count& count;
  ListEnd end;
  detail::TableStore<R, N, Where> table;
  using result_type = jobjectArray;

  bool prepare(JNIEnv*) { return table.prepare(); }
  R* arg() { return table.get(); }
  jobjectArray convert(JNIEnv* env, int& code) {
    const jsize length = counted_length(count.value, N);
    if (length < 0) {
      code = kMarshal;
      return nullptr;
    }
    return list_of(env, desc, table.get(), length, end);
  }
};

// An int the library writes, returned to Java.
struct IntOut {
  int value = 0;
  using result_type = jint;
  bool prepare(JNIEnv*) { return true; }
  int* arg() { return &value; }
  jint convert(JNIEnv*, int&) { return value; }
};

// ------------------------------------------------------------ string results

// A text field of a C record: at most `size` bytes, NUL-terminated within
// them unless the library filled every byte.
struct TextField {
  const char* text;
  size_t size;
};

// A new String[] holding the given fields (at most 8) in order.  Every
// String is made before the array.  Null, with `code` set to 2817, when a
// String or the array cannot be made.
jobjectArray string_array(JNIEnv* env, const TextField* fields, size_t n, int& code);
template <size_t N>
jobjectArray string_array(JNIEnv* env, const TextField (&fields)[N], int& code) {
  static_assert(N <= 8, "at most 8 strings");
  return string_array(env, fields, N, code);
}

// ------------------------------------------------------------ the frame

namespace detail {

template <typename S>
concept ArgKind = requires(S s) { s.arg(); };
template <typename S>
concept Result = ArgKind<S> && requires { typename S::result_type; };

// The steps of the frame over its arguments, each one function over the
// whole list, so that the frame tests one decision per step whatever the
// number and kinds of the arguments.  The tests of whether an argument is
// missing have no effect and are all made; preparing and filling stop at
// the first argument that fails.
template <typename S>
bool missing(const S& s) {
  if constexpr (requires { s.missing(); }) return s.missing();
  else return false;
}
// A kind may be required only once the arguments before it have been
// prepared: missing_after_prepare() is asked after every allocation.
template <typename S>
bool missing_after_prepare(const S& s) {
  if constexpr (requires { s.missing_after_prepare(); }) return s.missing_after_prepare();
  else return false;
}
template <typename... S>
bool any_missing(const S&... s) {
  return (missing(s) | ... | false);
}
template <typename... S>
bool any_missing_after_prepare(const S&... s) {
  return (missing_after_prepare(s) | ... | false);
}
inline bool prepare_each(JNIEnv*) { return true; }
template <typename S, typename... Rest>
bool prepare_each(JNIEnv* env, S& s, Rest&... rest) {
  if constexpr (ArgKind<S>) {
    if (!s.prepare(env)) return false;
  }
  return prepare_each(env, rest...);
}
// A kind's fill() may return a status: non-zero stops the call before the
// library is reached, and that code is thrown.  A kind whose fill() returns
// nothing cannot stop the call.
inline int fill_each(JNIEnv*) { return kOk; }
template <typename S, typename... Rest>
int fill_each(JNIEnv* env, S& s, Rest&... rest) {
  if constexpr (requires { { s.fill(env) } -> std::same_as<int>; }) {
    if (int rc = s.fill(env); rc != kOk) return rc;
  } else if constexpr (requires { s.fill(env); }) {
    s.fill(env);
  }
  return fill_each(env, rest...);
}
template <typename S>
decltype(auto) arg(S& s) {
  if constexpr (ArgKind<S>) return s.arg();
  else return s;
}

template <typename... S>
struct ResultOf {
  using type = void;
};
template <typename S, typename... Rest>
  requires Result<S>
struct ResultOf<S, Rest...> {
  using type = typename S::result_type;
};
template <typename S, typename... Rest>
  requires(!Result<S>)
struct ResultOf<S, Rest...> {
  using type = typename ResultOf<Rest...>::type;
};
template <typename... S>
using result_t = typename ResultOf<std::remove_cvref_t<S>...>::type;

template <typename T>
T failure(const Options& opt) {
  if constexpr (std::is_same_v<T, jint>) return opt.failed;
  else return T{};
}

// The result kind's conversion; exactly one argument may be a result.
template <typename T, typename S, typename... Rest>
T convert(JNIEnv* env, int& code, S& s, Rest&... rest) {
  if constexpr (Result<S>) return s.convert(env, code);
  else return convert<T>(env, code, rest...);
}

}  // namespace detail

template <typename Fn, typename... S>
  requires(!std::same_as<std::remove_cvref_t<Fn>, Options>)
auto call(JNIEnv* env, const Options& opt, Fn&& fn, S&&... args) -> detail::result_t<S...> {
  using T = detail::result_t<S...>;
  static_assert(((detail::Result<std::remove_cvref_t<S>> ? 1 : 0) + ... + 0) <= 1,
                "a native has at most one result");
  if (opt.flush) std::fflush(stdout);
  // Classes and IDs the conversions look up, remembered until this call
  // returns (core/lookups.h).
  Lookups lookups(env);

  auto fail = [&](int code) -> T {
    errorThrow(env, code);
    if constexpr (!std::is_void_v<T>) return detail::failure<T>(opt);
  };

  if (detail::any_missing(args...)) return fail(kNullArgument);
  if (!detail::prepare_each(env, args...)) return fail(kNoMemory);
  if (detail::any_missing_after_prepare(args...)) return fail(kNullArgument);
  if (int filled = detail::fill_each(env, args...); filled != kOk) return fail(filled);

  int rc = fn(detail::arg(args)...);
  if (rc != kOk) return fail(rc);

  if constexpr (std::is_void_v<T>) {
    if (opt.flush) std::fflush(stdout);
  } else {
    int code = kOk;
    T result = detail::convert<T>(env, code, args...);
    if (code != kOk) return fail(code);
    if (opt.flush) std::fflush(stdout);
    return result;
  }
}

template <typename Fn, typename... S>
  requires(!std::same_as<std::remove_cvref_t<Fn>, Options>)
auto call(JNIEnv* env, Fn&& fn, S&&... args) -> detail::result_t<S...> {
  return call(env, Options{}, std::forward<Fn>(fn), std::forward<S>(args)...);
}

}  // namespace kx
