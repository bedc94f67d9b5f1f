// Declarative record descriptions and the shared code that walks them.
//
// A record is described once, field by field, in the order of its C layout:
// the Java field name, how the bytes travel (kind), where they sit (offset),
// how wide they are, and whether a failure to set the field drops the Java
// object being built.  read_record() fills a C record from a Java object,
// write_record() builds a new Java object from a C record.
//
//   KX_RECORD(KXUnitParam, KXUnitParamRec,
//             KX_STRING(unit_name), KX_BYTE(connect_type), KX_BYTE(device_type), ...);
//
// defines kx::rec::KXUnitParam, the description of the Java class
// "orvane/str/diskarray/KXUnitParam" over the C struct KXUnitParamRec.
// Offsets, widths and the sign of one-byte members (int8_t or uint8_t) come
// from the struct members, so the descriptions cannot disagree with the
// layouts asserted in include/.
#pragma once

#include <jni.h>

#include <cstddef>
#include <cstdint>
#include <iterator>
#include <type_traits>

namespace kx {

enum class Kind : uint8_t {
  Int,            // int32        <-> "I"
  SByte,          // one byte     <-> "I", widened with sign
  UByte,          // one byte     <-> "I", widened without sign
  String,         // char[N]      <-> "Ljava/lang/String;" (modified UTF-8)
  StringUnicode,  // char[N]      <-> "Ljava/lang/String;" (default charset when written)
  Bytes,          // byte[N]      <-> "[B", written into the array the field holds
  ByteTable,      // byte[N]      <-> "[I", each byte widened with sign
  Ints,           // int32[N]     <-> "[I"
  Ints2,          // int32[R][C]  <-> "[[I"
  Record,         // nested record <-> "L<class>;"
  Records,        // record[N]    <-> "[L<class>;"
  Records2,       // record[R][C] <-> "[[L<class>;"
  Custom,         // a one-off layout, read and written by the field's own functions
  // Kinds added here convert through helpers that test for exceptions
  // themselves; the walker asks the JVM again after each such field.
};

struct RecordDesc;
struct Field;

// Converters of a Custom field; `rec` is the whole record.  Same status rules
// as the built-in kinds: 0, kMarshal, or kNullRecord for a null nested value.
using CustomReader = int (*)(JNIEnv* env, jobject obj, const Field& f, void* rec);
using CustomWriter = int (*)(JNIEnv* env, jobject obj, const Field& f, const void* rec);

struct Field {
  const char* name;
  Kind kind;
  bool checked;             // writer: a failure to set this field fails the object
  uint32_t offset;
  uint32_t count;           // bytes (strings, byte tables), elements (arrays) or rows
  uint32_t columns;         // two-level arrays: elements per row
  uint32_t stride;          // arrays of records: bytes per element
  const RecordDesc* elem;   // nested record description
  CustomReader read = nullptr;
  CustomWriter write = nullptr;
};

struct RecordDesc {
  const char* cls;        // "orvane/str/diskarray/X"
  const char* sig;        // "Lorvane/str/diskarray/X;"
  const char* array_sig;  // "[Lorvane/str/diskarray/X;"
  const char* array2_sig; // "[[Lorvane/str/diskarray/X;"
  uint32_t size;          // bytes of the C record
  const Field* fields;
  uint32_t field_count;
  bool flush;             // the writer flushes stdout before it starts
};

// A description tied to its C record type, so natives cannot pair a record
// with the wrong description.
template <typename R>
struct Desc : RecordDesc {};

// Fills `rec` (never null) from `obj`, fields in record order, stopping at
// the first failure: -1 for a null object (or a null nested object or array),
// kMarshal for a field that cannot be read or that left a Java exception
// pending, 0 when all were read (no exception is then pending; converters of
// custom fields keep the same rule).  Arrays of
// records are read over the Java array's length, at most the C capacity;
// the elements' own statuses are not reported.
int read_record(JNIEnv* env, jobject obj, const RecordDesc& desc, void* rec);

// A new Java object built from `rec`, or null when the record is null, the
// object cannot be made or a checked field cannot be set.  Arrays of records
// are always built at their full capacity.
jobject write_record(JNIEnv* env, const RecordDesc& desc, const void* rec);

// write_record for callers that keep track of pending exceptions: `clean`
// says on entry whether the caller knows that none is pending, and on return
// whether none is.
jobject write_record(JNIEnv* env, const RecordDesc& desc, const void* rec, bool& clean);

template <typename R>
int read_record(JNIEnv* env, jobject obj, const Desc<R>& desc, R* rec) {
  return read_record(env, obj, static_cast<const RecordDesc&>(desc), static_cast<void*>(rec));
}
template <typename R>
jobject write_record(JNIEnv* env, const Desc<R>& desc, const R* rec) {
  return write_record(env, static_cast<const RecordDesc&>(desc), static_cast<const void*>(rec));
}

// Longest string field a record may have (the writer copies it with a NUL).
inline constexpr uint32_t kMaxStringField = 4096;

namespace field {

template <typename M>
constexpr Field int32(const char* name, size_t offset) {
  static_assert(std::is_same_v<M, int32_t>, "int fields must be int32_t members");
  return Field{name, Kind::Int, true, static_cast<uint32_t>(offset), 1, 0, 0, nullptr};
}

// One-byte members carry their sign rule in their type: int8_t widens with
// sign, uint8_t without.
template <typename M>
constexpr Field byte(const char* name, size_t offset) {
  static_assert(std::is_same_v<M, int8_t> || std::is_same_v<M, uint8_t>,
                "one-byte fields must be int8_t (signed) or uint8_t (unsigned) members");
  return Field{name, std::is_signed_v<M> ? Kind::SByte : Kind::UByte, true,
               static_cast<uint32_t>(offset), 1, 0, 0, nullptr};
}

template <typename M>
constexpr Field bytes(const char* name, Kind kind, size_t offset) {
  static_assert(std::is_array_v<M> && sizeof(std::remove_all_extents_t<M>) == 1,
                "byte fields must be byte arrays");
  static_assert(sizeof(M) <= kMaxStringField, "string field too long");
  return Field{name, kind, kind != Kind::String && kind != Kind::StringUnicode,
               static_cast<uint32_t>(offset), static_cast<uint32_t>(sizeof(M)), 0, 0, nullptr};
}

template <typename M>
constexpr Field ints(const char* name, size_t offset) {
  static_assert(std::rank_v<M> == 1 && sizeof(std::remove_all_extents_t<M>) == 4);
  return Field{name, Kind::Ints, true, static_cast<uint32_t>(offset),
               static_cast<uint32_t>(std::extent_v<M>), 0, 0, nullptr};
}

template <typename M>
constexpr Field ints2(const char* name, size_t offset) {
  static_assert(std::rank_v<M> == 2 && sizeof(std::remove_all_extents_t<M>) == 4);
  return Field{name, Kind::Ints2, true, static_cast<uint32_t>(offset),
               static_cast<uint32_t>(std::extent_v<M, 0>), static_cast<uint32_t>(std::extent_v<M, 1>),
               0, nullptr};
}

template <typename M, typename E>
constexpr Field record(const char* name, size_t offset, const Desc<E>& elem) {
  static_assert(std::is_same_v<M, E>, "nested description does not match the member's type");
  return Field{name, Kind::Record, true, static_cast<uint32_t>(offset), 1, 0, sizeof(E), &elem};
}

template <typename M, typename E>
constexpr Field records(const char* name, size_t offset, const Desc<E>& elem) {
  static_assert(std::rank_v<M> == 1 && std::is_same_v<std::remove_all_extents_t<M>, E>,
                "array member does not hold the described records");
  return Field{name, Kind::Records, true, static_cast<uint32_t>(offset),
               static_cast<uint32_t>(std::extent_v<M>), 0, sizeof(E), &elem};
}

template <typename M, typename E>
constexpr Field records2(const char* name, size_t offset, const Desc<E>& elem) {
  static_assert(std::rank_v<M> == 2 && std::is_same_v<std::remove_all_extents_t<M>, E>,
                "array member does not hold the described records");
  return Field{name, Kind::Records2, true, static_cast<uint32_t>(offset),
               static_cast<uint32_t>(std::extent_v<M, 0>), static_cast<uint32_t>(std::extent_v<M, 1>),
               sizeof(E), &elem};
}

template <typename M>
constexpr Field custom(const char* name, size_t offset, CustomReader read, CustomWriter write) {
  return Field{name, Kind::Custom, true, static_cast<uint32_t>(offset),
               static_cast<uint32_t>(sizeof(M)), 0, 0, nullptr, read, write};
}

constexpr Field unchecked(Field f) {
  f.checked = false;
  return f;
}
constexpr Field checked(Field f) {
  f.checked = true;
  return f;
}

}  // namespace field
}  // namespace kx

// ---- field macros, used inside KX_RECORD (kx_rec_t is the C record) ----
#define KX_MEMBER_T(m) decltype(kx_rec_t::m)
#define KX_INT(m) ::kx::field::int32<KX_MEMBER_T(m)>(#m, offsetof(kx_rec_t, m))
// A one-byte member; int8_t members widen with sign, uint8_t without.
#define KX_BYTE(m) ::kx::field::byte<KX_MEMBER_T(m)>(#m, offsetof(kx_rec_t, m))
#define KX_STRING(m) ::kx::field::bytes<KX_MEMBER_T(m)>(#m, ::kx::Kind::String, offsetof(kx_rec_t, m))
#define KX_STRING_UNICODE(m) \
  ::kx::field::bytes<KX_MEMBER_T(m)>(#m, ::kx::Kind::StringUnicode, offsetof(kx_rec_t, m))
#define KX_BYTES(m) ::kx::field::bytes<KX_MEMBER_T(m)>(#m, ::kx::Kind::Bytes, offsetof(kx_rec_t, m))
#define KX_BYTE_TABLE(m) \
  ::kx::field::bytes<KX_MEMBER_T(m)>(#m, ::kx::Kind::ByteTable, offsetof(kx_rec_t, m))
#define KX_INTS(m) ::kx::field::ints<KX_MEMBER_T(m)>(#m, offsetof(kx_rec_t, m))
#define KX_INTS2(m) ::kx::field::ints2<KX_MEMBER_T(m)>(#m, offsetof(kx_rec_t, m))
#define KX_NESTED(m, desc) ::kx::field::record<KX_MEMBER_T(m)>(#m, offsetof(kx_rec_t, m), desc)
#define KX_RECORDS(m, desc) ::kx::field::records<KX_MEMBER_T(m)>(#m, offsetof(kx_rec_t, m), desc)
#define KX_RECORDS2(m, desc) ::kx::field::records2<KX_MEMBER_T(m)>(#m, offsetof(kx_rec_t, m), desc)
// A field with its own reader and writer (either may be null: not converted
// in that direction).  Field::count holds the member's size in bytes.
#define KX_CUSTOM(m, reader, writer) \
  ::kx::field::custom<KX_MEMBER_T(m)>(#m, offsetof(kx_rec_t, m), reader, writer)
// Writer status policy, where it departs from the default (strings are not
// checked, everything else is).
#define KX_UNCHECKED(f) ::kx::field::unchecked(f)
#define KX_CHECKED(f) ::kx::field::checked(f)

#define KX_CLASS_PATH(Class) "orvane/str/diskarray/" #Class

// Describes Java class `Class` over C record `Rec`: kx::rec::Class.
#define KX_RECORD(Class, Rec, ...) KX_RECORD_IMPL(Class, Rec, true, __VA_ARGS__)
// The same for the few writers that do not flush stdout first.
#define KX_RECORD_NO_FLUSH(Class, Rec, ...) KX_RECORD_IMPL(Class, Rec, false, __VA_ARGS__)

#define KX_RECORD_IMPL(Class, Rec, flush, ...)                                                \
  namespace kx::rec {                                                                         \
  struct Class##_fields {                                                                     \
    using kx_rec_t = Rec;                                                                     \
    static constexpr ::kx::Field list[] = {__VA_ARGS__};                                      \
  };                                                                                          \
  inline constexpr ::kx::Desc<Rec> Class{{KX_CLASS_PATH(Class), "L" KX_CLASS_PATH(Class) ";", \
                                          "[L" KX_CLASS_PATH(Class) ";",                      \
                                          "[[L" KX_CLASS_PATH(Class) ";", sizeof(Rec),        \
                                          Class##_fields::list,                               \
                                          static_cast<uint32_t>(std::size(Class##_fields::list)), \
                                          flush}};                                            \
  }

// The named converters of a record: make_<Reader> (Java into C) and
// make_java_<Class> (C into a new Java object).
#define KX_READER(Reader, Class, Rec)                                           \
  [[gnu::used]] inline int make_##Reader(JNIEnv* env, jobject obj, Rec* rec) {  \
    return ::kx::read_record(env, obj, ::kx::rec::Class, rec);                  \
  }
#define KX_WRITER(Class, Rec)                                                     \
  [[gnu::used]] inline jobject make_java_##Class(JNIEnv* env, const Rec* rec) {   \
    return ::kx::write_record(env, ::kx::rec::Class, rec);                        \
  }
#define KX_CONVERTERS(Reader, Class, Rec) \
  KX_READER(Reader, Class, Rec)           \
  KX_WRITER(Class, Rec)
