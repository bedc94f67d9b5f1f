// Test-only natives of kxtest.Absent: make one field of one class look
// absent to the JNI lookups made on the calling thread, as if the class had
// been compiled without it, so that a test can see what the bridge does with
// each field of a record missing in turn, without a class set per field.
//
// The thread's JNIEnv is pointed at a copy of its function table (under
// -Xcheck:jni the checking one, which keeps checking every call) whose
// GetFieldID asks the JVM for a name no class has when it is given the
// absent field: the JVM raises its own NoSuchFieldError.
#include <jni.h>

#include <cstring>
#include <string>

namespace {

const JNINativeInterface_* g_real = nullptr;  // the thread's table before absent()
JNINativeInterface_ g_table;
jclass g_class = nullptr;  // global reference
std::string g_field;
int g_lookups = 0;  // lookups of the absent field since absent()

jfieldID JNICALL get_field_id(JNIEnv* env, jclass cls, const char* name, const char* sig) {
  if (g_class != nullptr && g_field == name && g_real->IsSameObject(env, cls, g_class)) {
    ++g_lookups;
    name = "kx$absent";
  }
  return g_real->GetFieldID(env, cls, name, sig);
}

}  // namespace

extern "C" JNIEXPORT void JNICALL Java_kxtest_Absent_field(JNIEnv* env, jclass, jclass cls, jstring field) {
  if (g_real == nullptr) {
    g_real = env->functions;
    g_table = *g_real;
    g_table.GetFieldID = get_field_id;
  }
  if (g_class != nullptr) env->DeleteGlobalRef(g_class);
  g_class = static_cast<jclass>(env->NewGlobalRef(cls));
  const char* chars = env->GetStringUTFChars(field, nullptr);
  if (chars == nullptr) return;
  g_field = chars;
  env->ReleaseStringUTFChars(field, chars);
  g_lookups = 0;
  env->functions = &g_table;
}

// Puts the thread's table back; how often the absent field was looked up.
extern "C" JNIEXPORT jint JNICALL Java_kxtest_Absent_none(JNIEnv* env, jclass) {
  if (g_real != nullptr) env->functions = g_real;
  if (g_class != nullptr) env->DeleteGlobalRef(g_class);
  g_class = nullptr;
  return g_lookups;
}
