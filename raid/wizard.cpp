// The array set-up wizard: reading, testing and writing a unit's whole initial
// configuration, the current port options and controller identifier, and the
// LU set-up contents written to a file.
#include <cstring>

#include "raid/records.h"

using namespace kx;

int kx::read_long_text(JNIEnv* env, jobject obj, const Field& f, void* rec) {
  return jni_get_string(env, obj, f.name, static_cast<char*>(rec) + f.offset, f.count);
}

int kx::write_long_text(JNIEnv* env, jobject obj, const Field& f, const void* rec) {
  const char* text = static_cast<const char*>(rec) + f.offset;
  if (std::memchr(text, '\0', f.count) != nullptr) return jni_set_string(env, obj, f.name, text);
  // Filled to the last byte: cut at the end of the buffer, never read past it.
  Block copy(1, f.count + 1);
  if (!copy) return kMarshal;
  std::memcpy(copy.get(), text, f.count);
  return jni_set_string(env, obj, f.name, static_cast<const char*>(copy.get()));
}

// The path comes before the int, and the record last.
KX_NATIVE(jobject, GetWizardParam, jstring unit, jstring path, jint x) {
  return call(env, KX_GetWizardParam, Unit(unit), Path(path), x, Out(rec::WizardParam));
}

// The record comes before the path.
KX_NATIVE(void, SetWizardParam, jstring unit, jobject param, jstring path, jint x) {
  call(env, KX_SetWizardParam, Unit(unit), In(param, rec::WizardParam), Path(path), x);
}

KX_NATIVE(void, TestWizardParam, jstring unit, jobject param, jstring path, jint x) {
  call(env, KX_TestWizardParam, Unit(unit), In(param, rec::WizardParam), Path(path), x);
}

KX_NATIVE(jobject, GetNowWZParam, jstring unit, jint x) {
  return call(env, KX_GetNowWZParam, Unit(unit), x, Out(rec::NowWZParameter));
}

KX_NATIVE(void, SetNowWZParam, jstring unit, jint x, jobject param) {
  call(env, KX_SetNowWZParam, Unit(unit), x, In(param, rec::NowWZParameter));
}

KX_NATIVE(void, LuWizardOutput, jstring unit, jobject session, jstring path, jobject contents) {
  call(env, KX_LuWizardOutput, Unit(unit), Session(session), Path(path),
       In(contents, rec::LuWZSetContents));
}
