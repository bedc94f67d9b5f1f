// Test-only natives of kxtest.PerfProbe: the converters of the statistics
// record from Java into C, which no native calls.
#include <jni.h>

#include <vector>

#include "perf/records.h"

// The record make_StatisticalInformation fills from obj; status[0] gets its
// result, status[1] 1 when it left an exception pending (cleared here).
extern "C" JNIEXPORT jbyteArray JNICALL Java_kxtest_PerfProbe_readStatistics(JNIEnv* env, jclass,
                                                                              jobject obj,
                                                                              jintArray status) {
  std::vector<jbyte> rec(sizeof(StatisticalInformationRec));
  jint rc = make_StatisticalInformation(env, obj, reinterpret_cast<StatisticalInformationRec*>(rec.data()));
  jint result[2] = {rc, env->ExceptionCheck() ? 1 : 0};
  env->ExceptionClear();
  env->SetIntArrayRegion(status, 0, 2, result);
  jbyteArray out = env->NewByteArray(static_cast<jsize>(rec.size()));
  if (out != nullptr) env->SetByteArrayRegion(out, 0, static_cast<jsize>(rec.size()), rec.data());
  return out;
}
