// Test-only natives of kxtest.Absent: make one field of one class look
// absent to the JNI lookups made on the calling thread, as if the class had
// been compiled without it, make the JVM fail to create arrays of given
// classes, or make one JNI function fail as the JVM fails it when memory or
// room runs out, so that a test can see what the bridge does with each field
// of a record missing in turn, with an array it cannot have, or with any
// other refusal, without a class set per case.
//
// The thread's JNIEnv is pointed at a copy of its function table (under
// -Xcheck:jni the checking one, which keeps checking every call) whose
// GetFieldID asks the JVM for a name no class has when it is given the
// absent field (the JVM raises its own NoSuchFieldError), and whose
// NewObjectArray asks for an array longer than any the JVM can make of the
// given classes (the JVM raises its own OutOfMemoryError).  A refused
// function asks the JVM for more than it can give where it can (arrays,
// local capacity); otherwise it raises OutOfMemoryError itself and returns
// null, as the JVM does.
#include <jni.h>

#include <climits>
#include <cstdarg>
#include <cstring>
#include <string>
#include <vector>

namespace {

const JNINativeInterface_* g_real = nullptr;  // the thread's table before field() or arrays()
JNINativeInterface_ g_table;
jclass g_class = nullptr;  // global reference
std::string g_field;
std::vector<jclass> g_no_arrays;  // global references
int g_hits = 0;  // lookups of the absent field, arrays and calls refused since field(), arrays() or refuse()

// The functions refuse() can refuse, in the order of their indexes below.
const char* const kRefusable[] = {"EnsureLocalCapacity", "NewStringUTF", "NewIntArray", "NewByteArray",
                                  "GetStringUTFChars", "GetIntArrayElements", "NewObject", "FindClass",
                                  "GetMethodID"};
enum Fn { kEnsureLocalCapacity, kNewStringUTF, kNewIntArray, kNewByteArray, kGetStringUTFChars,
          kGetIntArrayElements, kNewObject, kFindClass, kGetMethodID, kFns };

// refuse(): the function (-1: none), the number of its call that fails (-1:
// every call), and the calls of each function since.
int g_refused = -1;
int g_nth = -1;
int g_calls[kFns] = {};

// Whether this call of fn is refused; counts it.
bool refused(Fn fn) {
  int call = g_calls[fn]++;
  if (fn != g_refused || (g_nth >= 0 && call != g_nth)) return false;
  ++g_hits;
  return true;
}

// Raises OutOfMemoryError on env, as the JVM does when it refuses a call.
void out_of_memory(JNIEnv* env, const char* fn) {
  jclass oom = g_real->FindClass(env, "java/lang/OutOfMemoryError");
  if (oom == nullptr) return;
  std::string what = std::string("refused ") + fn;
  g_real->ThrowNew(env, oom, what.c_str());
  g_real->DeleteLocalRef(env, oom);
}

jint JNICALL ensure_local_capacity(JNIEnv* env, jint capacity) {
  // Past the JVM's limit on local references, which it refuses.
  if (refused(kEnsureLocalCapacity)) capacity = INT_MAX;
  return g_real->EnsureLocalCapacity(env, capacity);
}

jstring JNICALL new_string_utf(JNIEnv* env, const char* utf) {
  if (refused(kNewStringUTF)) {
    out_of_memory(env, "NewStringUTF");
    return nullptr;
  }
  return g_real->NewStringUTF(env, utf);
}

jintArray JNICALL new_int_array(JNIEnv* env, jsize length) {
  return g_real->NewIntArray(env, refused(kNewIntArray) ? INT_MAX : length);
}

jbyteArray JNICALL new_byte_array(JNIEnv* env, jsize length) {
  return g_real->NewByteArray(env, refused(kNewByteArray) ? INT_MAX : length);
}

const char* JNICALL get_string_utf_chars(JNIEnv* env, jstring str, jboolean* copy) {
  if (refused(kGetStringUTFChars)) {
    out_of_memory(env, "GetStringUTFChars");
    return nullptr;
  }
  return g_real->GetStringUTFChars(env, str, copy);
}

jint* JNICALL get_int_array_elements(JNIEnv* env, jintArray arr, jboolean* copy) {
  if (refused(kGetIntArrayElements)) {
    out_of_memory(env, "GetIntArrayElements");
    return nullptr;
  }
  return g_real->GetIntArrayElements(env, arr, copy);
}

jobject JNICALL new_object_v(JNIEnv* env, jclass cls, jmethodID ctor, va_list args) {
  if (refused(kNewObject)) {
    out_of_memory(env, "NewObject");
    return nullptr;
  }
  return g_real->NewObjectV(env, cls, ctor, args);
}

jclass JNICALL find_class(JNIEnv* env, const char* name) {
  if (refused(kFindClass)) {
    out_of_memory(env, "FindClass");
    return nullptr;
  }
  return g_real->FindClass(env, name);
}

jmethodID JNICALL get_method_id(JNIEnv* env, jclass cls, const char* name, const char* sig) {
  if (refused(kGetMethodID)) {
    out_of_memory(env, "GetMethodID");
    return nullptr;
  }
  return g_real->GetMethodID(env, cls, name, sig);
}

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
    g_table.EnsureLocalCapacity = ensure_local_capacity;
    g_table.NewStringUTF = new_string_utf;
    g_table.NewIntArray = new_int_array;
    g_table.NewByteArray = new_byte_array;
    g_table.GetStringUTFChars = get_string_utf_chars;
    g_table.GetIntArrayElements = get_int_array_elements;
    g_table.NewObjectV = new_object_v;
    g_table.FindClass = find_class;
    g_table.GetMethodID = get_method_id;
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

// From now on, until none(), call number `nth` (0 the first, -1 every one)
// of JNI function `function` on this thread fails.
extern "C" JNIEXPORT void JNICALL Java_kxtest_Absent_refuse(JNIEnv* env, jclass, jstring function, jint nth) {
  const char* chars = env->GetStringUTFChars(function, nullptr);
  if (chars == nullptr) return;
  std::string fn = chars;
  env->ReleaseStringUTFChars(function, chars);
  int known = -1;
  for (int i = 0; i < kFns; ++i) {
    if (fn == kRefusable[i]) known = i;
  }
  if (known < 0) {
    jclass iae = env->FindClass("java/lang/IllegalArgumentException");
    if (iae != nullptr) env->ThrowNew(iae, ("cannot refuse " + fn).c_str());
    return;
  }
  g_refused = known;
  g_nth = nth;
  for (int& c : g_calls) c = 0;
  g_hits = 0;
  install(env);
}

// Calls of JNI function `function` since refuse() (0 for one it cannot refuse).
extern "C" JNIEXPORT jint JNICALL Java_kxtest_Absent_calls(JNIEnv* env, jclass, jstring function) {
  const char* chars = env->GetStringUTFChars(function, nullptr);
  if (chars == nullptr) return 0;
  int n = 0;
  for (int i = 0; i < kFns; ++i) {
    if (std::strcmp(chars, kRefusable[i]) == 0) n = g_calls[i];
  }
  env->ReleaseStringUTFChars(function, chars);
  return n;
}

// Puts the thread's table back; how often the absent field was looked up, an
// array refused or a call refused.
extern "C" JNIEXPORT jint JNICALL Java_kxtest_Absent_none(JNIEnv* env, jclass) {
  if (g_real != nullptr) env->functions = g_real;
  if (g_class != nullptr) env->DeleteGlobalRef(g_class);
  g_class = nullptr;
  for (jclass c : g_no_arrays) env->DeleteGlobalRef(c);
  g_no_arrays.clear();
  g_refused = -1;
  return g_hits;
}
