// Byte scans for the tests: the i386 legs interpret Java, where a loop over a
// 1.5 MB record costs seconds; here it is one memchr or memcmp.
#include <jni.h>

#include <algorithm>
#include <cstring>

namespace {

struct Pinned {
  JNIEnv* env;
  jbyteArray array;
  jsize n;
  const unsigned char* p;
  Pinned(JNIEnv* e, jbyteArray a)
      : env(e), array(a), n(e->GetArrayLength(a)),
        p(static_cast<const unsigned char*>(e->GetPrimitiveArrayCritical(a, nullptr))) {}
  ~Pinned() {
    if (p) env->ReleasePrimitiveArrayCritical(array, const_cast<unsigned char*>(p), JNI_ABORT);
  }
};

}  // namespace

// Index of the first byte from `from` equal to `value` (`other`: not equal), or -1.
extern "C" JNIEXPORT jint JNICALL Java_kxtest_Bytes_find(JNIEnv* env, jclass, jbyteArray a, jint from,
                                                         jint value, jboolean other) {
  Pinned b(env, a);
  if (!b.p) return -1;
  auto v = static_cast<unsigned char>(value);
  if (!other) {
    if (from >= b.n) return -1;
    const void* hit = std::memchr(b.p + from, v, static_cast<size_t>(b.n - from));
    return hit ? static_cast<jint>(static_cast<const unsigned char*>(hit) - b.p) : -1;
  }
  const unsigned char* end = b.p + b.n;
  const unsigned char* hit = std::find_if(b.p + std::min(from, b.n), end, [v](unsigned char c) { return c != v; });
  return hit == end ? -1 : static_cast<jint>(hit - b.p);
}

// Index of the first byte where a and b differ (the shorter's length when one is a prefix), or -1.
extern "C" JNIEXPORT jint JNICALL Java_kxtest_Bytes_mismatch(JNIEnv* env, jclass, jbyteArray a, jbyteArray b) {
  Pinned x(env, a);
  Pinned y(env, b);
  if (!x.p || !y.p) return -1;
  jsize n = std::min(x.n, y.n);
  auto d = std::mismatch(x.p, x.p + n, y.p);
  if (d.first != x.p + n) return static_cast<jint>(d.first - x.p);
  return x.n == y.n ? -1 : n;
}
