// Test-only natives of kxtest.Absent: make one field of one class look
// absent to the JNI lookups made on the calling thread, as if the class had
// been compiled without it, or make the JVM fail to create arrays of given
// classes, so that a test can see what the bridge does with each field of a
// record missing in turn, or with an array it cannot have, without a class
// set per case.
//
// The thread's JNIEnv is pointed at a copy of its function table (under
// -Xcheck:jni the checking one, which keeps checking every call) whose
// GetFieldID asks the JVM for a name no class has when it is given the
// absent field (the JVM raises its own NoSuchFieldError), and whose
// NewObjectArray asks for an array longer than any the JVM can make of the
// given classes (the JVM raises its own OutOfMemoryError).
#include <jni.h>

#include <climits>
#include <string>
#include <vector>

namespace {

const JNINativeInterface_* g_real = nullptr;  // the thread's table before field() or arrays()
JNINativeInterface_ g_table;
jclass g_class = nullptr;  // global reference
std::string g_field;
std::vector<jclass> g_no_arrays;  // global references
int g_hits = 0;  // lookups of the absent field and arrays refused since field() or arrays()

jfieldID JNICALL get_field_id(JNIEnv* env, jclass cls, const char* name, const char* sig) {
  if (g_class != nullptr && g_field == name && g_real->IsSameObject(env, cls, g_class)) {
    ++g_hits;
    name = "kx$absent";
  }
  return g_real->GetFieldID(env, cls, name, sig);
}

jobjectArray JNICALL new_object_array(JNIEnv* env, jsize length, jclass cls, jobject init) {
  for (jclass c : g_no_arrays) {
    if (g_real->IsSameObject(env, cls, c)) {
      ++g_hits;
      length = INT_MAX;
      break;
    }
  }
  return g_real->NewObjectArray(env, length, cls, init);
}

void install(JNIEnv* env) {
  if (g_real == nullptr) {
    g_real = env->functions;
    g_table = *g_real;
    g_table.GetFieldID = get_field_id;
    g_table.NewObjectArray = new_object_array;
  }
  env->functions = &g_table;
}

}  // namespace

extern "C" JNIEXPORT void JNICALL Java_kxtest_Absent_field(JNIEnv* env, jclass, jclass cls, jstring field) {
  if (g_class != nullptr) env->DeleteGlobalRef(g_class);
  g_class = static_cast<jclass>(env->NewGlobalRef(cls));
  const char* chars = env->GetStringUTFChars(field, nullptr);
  if (chars == nullptr) return;
  g_field = chars;
  env->ReleaseStringUTFChars(field, chars);
  g_hits = 0;
  install(env);
}

// From now on, until none(), no array of any of `classes` can be made on this thread.
extern "C" JNIEXPORT void JNICALL Java_kxtest_Absent_arrays(JNIEnv* env, jclass, jobjectArray classes) {
  for (jsize i = 0; i < env->GetArrayLength(classes); ++i) {
    jobject c = env->GetObjectArrayElement(classes, i);
    g_no_arrays.push_back(static_cast<jclass>(env->NewGlobalRef(c)));
    env->DeleteLocalRef(c);
  }
  g_hits = 0;
  install(env);
}

// Puts the thread's table back; how often the absent field was looked up or
// an array refused.
extern "C" JNIEXPORT jint JNICALL Java_kxtest_Absent_none(JNIEnv* env, jclass) {
  if (g_real != nullptr) env->functions = g_real;
  if (g_class != nullptr) env->DeleteGlobalRef(g_class);
  g_class = nullptr;
  for (jclass c : g_no_arrays) env->DeleteGlobalRef(c);
  g_no_arrays.clear();
  return g_hits;
}
