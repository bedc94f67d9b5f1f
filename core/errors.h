// Result codes and the one way a failure becomes a Java exception.
#pragma once

#include <jni.h>

namespace kx {

// Result codes the bridge produces itself.  Every other non-zero code comes
// from libpernix.so and is thrown unchanged.
enum Code : int {
  kOk = 0,
  kNotReported = 256,   // the library asks for no report: no exception, empty result
  kNullArgument = 258,  // a required String or object argument is null
  kMarshal = 2817,      // a Java field, object or array could not be read or built
  kNoMemory = 65535,    // a C record could not be allocated
  kNullRecord = -1,     // a record reader was given a null object or record
};

// Java class thrown for every reported code.
extern const char* const kDiskArrayExceptionClass;

}  // namespace kx

// Looks a class up by path; a missing class raises ClassNotFoundException
// carrying the path and yields null.
jclass find_class(JNIEnv* env, const char* path);

// Throws a new instance of the class at `path` with `message`; 0 when the
// class cannot be found (ClassNotFoundException is then pending instead).
int throw_new(JNIEnv* env, const char* path, const char* message);

// Throws ClassNotFoundException(path), except for ClassNotFoundException
// itself, which ends the chain.
int classNotFoundThrow(JNIEnv* env, const char* path);

// Turns a result code into the one exception Java sees from this call:
// 256 throws nothing, 65535 throws by the class name "java/lang/OutofMemoryError"
// (which surfaces as ClassNotFoundException), anything else throws
// DiskArrayException(code).  Any exception already pending is replaced.
int errorThrow(JNIEnv* env, int code);
