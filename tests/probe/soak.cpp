// Test-only natives of kxtest.SoakProbe: what the load test watches while
// several threads call the bridge, the process's native heap and the JNI
// references the JVM holds.  Built into the probe library, never into the
// product.
#include <jni.h>
#include <jvmti.h>
#include <malloc.h>

#include <mutex>

namespace {

// The JVM's tool interface, asked once; null when the JVM refuses it or the
// object tags a heap walk needs.
jvmtiEnv* tool(JNIEnv* env) {
  static std::once_flag once;
  static jvmtiEnv* ti = nullptr;
  std::call_once(once, [env] {
    JavaVM* vm = nullptr;
    if (env->GetJavaVM(&vm) != JNI_OK) return;
    jvmtiEnv* t = nullptr;
    if (vm->GetEnv(reinterpret_cast<void**>(&t), JVMTI_VERSION_1_2) != JNI_OK || t == nullptr) return;
    jvmtiCapabilities caps{};
    caps.can_tag_objects = 1;
    if (t->AddCapabilities(&caps) != JVMTI_ERROR_NONE) return;
    ti = t;
  });
  return ti;
}

struct RefCounts {
  jlong global = 0;
  jlong local = 0;
};

// Counts the JNI roots of the heap and follows nothing from them.
jint JNICALL count_root(jvmtiHeapReferenceKind kind, const jvmtiHeapReferenceInfo*, jlong, jlong,
                        jlong, jlong*, jlong*, jint, void* user) {
  auto* counts = static_cast<RefCounts*>(user);
  if (kind == JVMTI_HEAP_REFERENCE_JNI_GLOBAL) ++counts->global;
  if (kind == JVMTI_HEAP_REFERENCE_JNI_LOCAL) ++counts->local;
  return 0;
}

}  // namespace

#define PROBE(ret, name) extern "C" JNIEXPORT ret JNICALL Java_kxtest_SoakProbe_##name

// {JNI global references, JNI local references of every thread}, counted as
// heap roots by the tool interface at one safepoint; null (with
// IllegalStateException) when the JVM offers no heap walk.
PROBE(jlongArray, jniReferences)(JNIEnv* env, jclass) {
  jvmtiEnv* ti = tool(env);
  RefCounts counts;
  jvmtiHeapCallbacks callbacks{};
  callbacks.heap_reference_callback = count_root;
  if (ti == nullptr || ti->FollowReferences(0, nullptr, nullptr, &callbacks, &counts) != JVMTI_ERROR_NONE) {
    env->ThrowNew(env->FindClass("java/lang/IllegalStateException"), "no JVMTI heap walk in this JVM");
    return nullptr;
  }
  jlongArray out = env->NewLongArray(2);
  if (out == nullptr) return nullptr;
  const jlong values[2] = {counts.global, counts.local};
  env->SetLongArrayRegion(out, 0, 2, values);
  return out;
}

// Gives the memory malloc keeps free in its arenas back to the system, so that
// the resident size sampled next counts what is held, not what the allocator
// caches (a compiler thread's freed arenas stay resident for seconds otherwise).
PROBE(void, trimMalloc)(JNIEnv*, jclass) { malloc_trim(0); }

// Bytes malloc has handed out and not yet taken back (small blocks and
// mapped ones), over every arena.
PROBE(jlong, mallocInUse)(JNIEnv*, jclass) {
  struct mallinfo2 m = mallinfo2();
  return static_cast<jlong>(m.uordblks + m.hblkhd);
}
