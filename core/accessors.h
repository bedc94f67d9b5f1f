// Field and array accessors: one field of a Java object into C and back.
//
// Every field is looked up by name with a fixed signature on every call; these
// helpers remember nothing.  (The record walker, core/record.cpp, remembers
// lookups within one native call and uses the copy steps at the end of this
// header on the values it fetched itself.)  Status results are 0 or kx::kMarshal;
// the object reader reports failure by returning null and leaves the JVM's
// exception pending for the caller to test.
//
// The object given is never null: these helpers serve the converters of
// custom fields, which the walker runs on the object it holds.  The readers,
// jni_set_object and jni_jstring_to_char_array entered with an exception
// already pending make no JNI call and fail as if their first call had
// failed; the other writers are called with none pending (the walker and the
// converters test first).  Local references a helper creates are deleted
// before it returns, except the reference it hands back.
#pragma once

#include <jni.h>

#include <cstddef>
#include <cstdint>

// ---- readers: Java field into C ----
// Returns a new local reference the caller owns, or null.
jobject jni_get_object(JNIEnv* env, jobject obj, const char* name, const char* sig);
int jni_get_string(JNIEnv* env, jobject obj, const char* name, char* dst, size_t n);
int jni_get_byte_2array(JNIEnv* env, jobject obj, const char* name, void* dst, jsize rows,
                        jsize cols);
// String argument into an n-byte buffer (n > 0).  An empty (or null) String
// yields an empty C string and kx::kMarshal.
int jni_jstring_to_char_array(JNIEnv* env, jstring str, char* dst, size_t n);

// ---- writers: C into a Java object field ----
int jni_set_object(JNIEnv* env, jobject obj, const char* name, const char* sig, jobject value);
int jni_set_string(JNIEnv* env, jobject obj, const char* name, const char* value);
int jni_set_string_unicode(JNIEnv* env, jobject obj, const char* name, const char* value,
                           size_t n);
// New int[n], element i the sign-extended byte i of src; null on failure.
jintArray jni_create_int_array_from_char(JNIEnv* env, const void* src, jsize n);

// ---- arrays ----
jobjectArray new_object_array(JNIEnv* env, const char* cls, jsize length);

namespace kx {

// The copy steps of the readers above, on a value already fetched from its
// field (not null, but for string_into: kMarshal for a null String) into a
// buffer of at least one byte: kMarshal for a failed copy.  Called with no
// exception pending.
int string_into(JNIEnv* env, jstring str, char* dst, size_t n);
int int_array_into(JNIEnv* env, jintArray arr, int32_t* dst, jsize n);
int int_rows_into(JNIEnv* env, jobjectArray arr, int32_t* dst, jsize rows, jsize cols);
int byte_array_into(JNIEnv* env, jbyteArray arr, void* dst, jsize n);
int low_bytes_into(JNIEnv* env, jintArray arr, void* dst, size_t capacity);

// The short stored for a fixed-point value with two decimals: value * 100,
// truncated toward zero to 32 bits, low 16 bits kept.
int16_t fixed_point_short(double value);
}  // namespace kx
