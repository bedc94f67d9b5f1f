/* Shared conventions of the pernix record headers.
 *
 * Every record is byte-packed and laid out exactly as libpernix.so expects on
 * i386 Linux.  Each header asserts the size of its records and the offset of
 * every member at compile time, so a layout slip fails the build on every
 * architecture we compile for.  Members are named like the Java fields they
 * travel to and from.
 *
 * Input records are passed as pointers to const, output records as plain
 * pointers; the C ABI does not see the difference, but the compiler checks
 * that a record only goes where it belongs.
 */
#ifndef PERNIX_COMMON_H
#define PERNIX_COMMON_H

#include <stddef.h>
#include <stdint.h>

#ifdef __cplusplus
#define PERNIX_BEGIN_DECLS extern "C" {
#define PERNIX_END_DECLS }
#define PERNIX_STATIC_ASSERT(cond, msg) static_assert(cond, msg)
#else
#define PERNIX_BEGIN_DECLS
#define PERNIX_END_DECLS
#define PERNIX_STATIC_ASSERT(cond, msg) _Static_assert(cond, msg)
#endif

#define PERNIX_SIZE(T, n) PERNIX_STATIC_ASSERT(sizeof(T) == (n), #T " must be " #n " bytes")
#define PERNIX_OFFSET(T, m, o) \
  PERNIX_STATIC_ASSERT(offsetof(T, m) == (o), #T "." #m " must be at offset " #o)

/* Buffer sizes of the string arguments (NUL included). */
enum {
  PERNIX_UNIT_NAME_SIZE = 65,
  PERNIX_PATH_SIZE = 1024
};

#endif
