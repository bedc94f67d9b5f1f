// Test double of libpernix.so.
//
// Every KX_ function records its call (function name; each int; the bytes of
// every buffer and record it was handed, as they were before the function
// wrote anything) and then serves what the test scripted: bytes written into
// output buffers and records, and the result code (0 unless scripted).
//
// A function is defined by listing its parameters as argument kinds, in
// order; the definition must match the declaration in include/, so the
// compiler checks the kinds against the real prototypes:
//
//   PERNIX_FAKE(KX_GetDriveInformation, Str<65>, In<KXSessionInfoRec>, Int, Int,
//               Out<DiskDriveInformationRec>)
//
// Kinds:  Str<N>     const char*, an N-byte input buffer
//         StrOut<N>  char*, an N-byte output buffer
//         In<R>      const R*, one input record; In<R[K]>, K records
//         Out<R>     R*, one output record; Out<R[K]>, K records
//         Int        int, by value
//         IntOut     int*, one int the function writes
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

namespace fake {

struct Arg {
  bool is_null = false;
  int32_t value = 0;           // Int arguments
  std::vector<uint8_t> bytes;  // pointer arguments: the bytes as handed over
  std::vector<Arg> pointees;   // records that pointers inside this one lead to
  // A seam block handed over here: how the bridge released it.
  enum Release : uint8_t { NotABlock, Live, Released, ReleasedWiped } release = NotABlock;
};

struct Call {
  std::string fn;
  std::vector<Arg> args;
  long flushes = -1;  // stdout flushes by the bridge before this call (-1: not counted)
};

// Flushes of stdout the bridge has made since the JVM started, as counted by
// the flush shim preloaded into the test JVM; -1 without the shim.
long stdout_flushes();

// Starts recording a call of `fn`; finish() serves the scripted result.
// Both take the fake's lock; use them only through the kinds below (or, for a
// function whose buffer sizes depend on its arguments, in that order).
Call& begin(const char* fn);
// Records a pointer argument of `size` bytes (null pointers are marked).
void record(Call& call, const void* p, size_t size);
void record_int(Call& call, int32_t value);
// Records the buffer that a pointer inside the last recorded argument leads to.
void record_pointee(Call& call, const void* p, size_t size);
// Writes the bytes scripted for argument `index` of `fn` into p (at most size).
void serve(const char* fn, size_t index, void* p, size_t size);
// The same from byte `offset` of the scripted bytes on (nothing when they are shorter).
void serve_at(const char* fn, size_t index, size_t offset, void* p, size_t size);
int finish(const char* fn);

template <size_t N>
struct Str {
  using type = const char*;
  static void capture(Call& c, type p) { record(c, p, N); }
  static void apply(const char*, size_t, type) {}
};
template <size_t N>
struct StrOut {
  using type = char*;
  static void capture(Call& c, type p) { record(c, p, N); }
  static void apply(const char* fn, size_t i, type p) { serve(fn, i, p, N); }
};
template <typename R>
struct In {
  using type = const std::remove_extent_t<R>*;
  static void capture(Call& c, type p) { record(c, p, sizeof(R)); }
  static void apply(const char*, size_t, type) {}
};
template <typename R>
struct Out {
  using type = std::remove_extent_t<R>*;
  static void capture(Call& c, type p) { record(c, p, sizeof(R)); }
  static void apply(const char* fn, size_t i, type p) { serve(fn, i, p, sizeof(R)); }
};
struct Int {
  using type = int;
  static void capture(Call& c, type v) { record_int(c, v); }
  static void apply(const char*, size_t, type) {}
};
struct IntOut {
  using type = int*;
  static void capture(Call& c, type p) { record(c, p, sizeof(int)); }
  static void apply(const char* fn, size_t i, type p) { serve(fn, i, p, sizeof(int)); }
};

template <typename... K>
struct Fake {
  template <typename... V, size_t... I>
  static int run(const char* fn, std::index_sequence<I...>, V... v) {
    Call& c = begin(fn);
    (K::capture(c, v), ...);
    (K::apply(fn, I, v), ...);
    return finish(fn);
  }
  static int call(const char* fn, typename K::type... v) {
    return run(fn, std::index_sequence_for<K...>{}, v...);
  }
};

}  // namespace fake

#define PERNIX_FAKE_N(...) PERNIX_FAKE_N_(__VA_ARGS__, 10, 9, 8, 7, 6, 5, 4, 3, 2, 1, 0)
#define PERNIX_FAKE_N_(_1, _2, _3, _4, _5, _6, _7, _8, _9, _10, N, ...) N
#define PERNIX_FAKE_CAT(a, b) PERNIX_FAKE_CAT_(a, b)
#define PERNIX_FAKE_CAT_(a, b) a##b

#define PERNIX_FAKE_P1(a) fake::a::type p1
#define PERNIX_FAKE_P2(a, b) PERNIX_FAKE_P1(a), fake::b::type p2
#define PERNIX_FAKE_P3(a, b, c) PERNIX_FAKE_P2(a, b), fake::c::type p3
#define PERNIX_FAKE_P4(a, b, c, d) PERNIX_FAKE_P3(a, b, c), fake::d::type p4
#define PERNIX_FAKE_P5(a, b, c, d, e) PERNIX_FAKE_P4(a, b, c, d), fake::e::type p5
#define PERNIX_FAKE_P6(a, b, c, d, e, f) PERNIX_FAKE_P5(a, b, c, d, e), fake::f::type p6
#define PERNIX_FAKE_P7(a, b, c, d, e, f, g) PERNIX_FAKE_P6(a, b, c, d, e, f), fake::g::type p7
#define PERNIX_FAKE_P8(a, b, c, d, e, f, g, h) PERNIX_FAKE_P7(a, b, c, d, e, f, g), fake::h::type p8
#define PERNIX_FAKE_P9(a, b, c, d, e, f, g, h, i) \
  PERNIX_FAKE_P8(a, b, c, d, e, f, g, h), fake::i::type p9
#define PERNIX_FAKE_P10(a, b, c, d, e, f, g, h, i, j) \
  PERNIX_FAKE_P9(a, b, c, d, e, f, g, h, i), fake::j::type p10
#define PERNIX_FAKE_A1 p1
#define PERNIX_FAKE_A2 PERNIX_FAKE_A1, p2
#define PERNIX_FAKE_A3 PERNIX_FAKE_A2, p3
#define PERNIX_FAKE_A4 PERNIX_FAKE_A3, p4
#define PERNIX_FAKE_A5 PERNIX_FAKE_A4, p5
#define PERNIX_FAKE_A6 PERNIX_FAKE_A5, p6
#define PERNIX_FAKE_A7 PERNIX_FAKE_A6, p7
#define PERNIX_FAKE_A8 PERNIX_FAKE_A7, p8
#define PERNIX_FAKE_A9 PERNIX_FAKE_A8, p9
#define PERNIX_FAKE_A10 PERNIX_FAKE_A9, p10

// Defines fake function `fn` with the given argument kinds.
#define PERNIX_FAKE(fn, ...)                                                                  \
  extern "C" __attribute__((visibility("default"))) int fn(                                   \
      PERNIX_FAKE_CAT(PERNIX_FAKE_P, PERNIX_FAKE_N(__VA_ARGS__))(__VA_ARGS__)) {              \
    using namespace fake;                                                                     \
    return Fake<__VA_ARGS__>::call(#fn, PERNIX_FAKE_CAT(PERNIX_FAKE_A, PERNIX_FAKE_N(__VA_ARGS__))); \
  }

// Defines fake function `fn` that takes no arguments.
#define PERNIX_FAKE0(fn)                                                      \
  extern "C" __attribute__((visibility("default"))) int fn(void) {            \
    fake::begin(#fn);                                                         \
    return fake::finish(#fn);                                                 \
  }
