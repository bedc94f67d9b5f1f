// Strings crossing the simulator's edge.  Input buffers are untrusted: a
// string must end within its buffer.  Output strings are cut to their field
// and the rest of the field is zeroed.
#pragma once

#include <cstring>
#include <string>
#include <string_view>

#include "sim/core/store.h"

namespace sim {

// The string in a buffer of cap bytes; a null pointer or no NUL within the
// buffer is kBadParameter naming what.
inline std::string in_text(const char* p, size_t cap, const char* what) {
  if (!p) fail(kBadParameter, std::string(what) + ": null");
  auto end = static_cast<const char*>(std::memchr(p, 0, cap));
  if (!end) fail(kBadParameter, std::string(what) + ": not terminated within " + std::to_string(cap) + " bytes");
  return std::string(p, static_cast<size_t>(end - p));
}

template <size_t N>
std::string in_text(const char (&field)[N], const char* what) {
  return in_text(field, N, what);
}

// True when a string holds a control character (names never do).
inline bool has_control(std::string_view s) {
  for (unsigned char ch : s)
    if (ch < 0x20 || ch == 0x7f) return true;
  return false;
}

// A name: a string of its buffer, not empty, without control characters.
inline std::string in_name(const char* p, size_t cap, const char* what) {
  std::string s = in_text(p, cap, what);
  if (s.empty()) fail(kBadParameter, std::string(what) + ": empty");
  if (has_control(s)) fail(kBadParameter, std::string(what) + ": control character");
  return s;
}

template <size_t N>
void out_text(char (&field)[N], std::string_view s) {
  size_t n = s.size() < N - 1 ? s.size() : N - 1;
  std::memcpy(field, s.data(), n);
  std::memset(field + n, 0, N - n);
}

inline void out_text(char* field, size_t cap, std::string_view s) {
  if (cap == 0) return;
  size_t n = s.size() < cap - 1 ? s.size() : cap - 1;
  std::memcpy(field, s.data(), n);
  std::memset(field + n, 0, cap - n);
}

// An int argument or field must lie within lo..hi; otherwise kBadParameter
// naming what.
inline void range(int v, int lo, int hi, std::string_view what) {
  if (v < lo || v > hi)
    fail(kBadParameter, std::string(what) + " " + std::to_string(v) + " is not within " + std::to_string(lo) +
                            ".." + std::to_string(hi));
}

// An output record must be there; it is cleared before it is filled.
template <class T>
T& out(T* p, const char* what) {
  if (!p) fail(kBadParameter, std::string(what) + ": null");
  std::memset(static_cast<void*>(p), 0, sizeof(T));
  return *p;
}

template <class T>
const T& in(const T* p, const char* what) {
  if (!p) fail(kBadParameter, std::string(what) + ": null");
  return *p;
}

}  // namespace sim
