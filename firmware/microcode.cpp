// Controller microcode: joining the files into one image, reading its
// description, downloading it in transfers and putting it in force.
#include <cstring>

#include "firmware/records.h"

using namespace kx;

namespace {

// The revision buffer the library fills, returned as a new String.  A String
// that cannot be made leaves the JVM's error to the caller, with no report of
// our own.
struct RevisionOut {
  char buf[PERNIX_MICRO_REVISION_SIZE] = {};
  using result_type = jstring;

  bool prepare(JNIEnv*) { return true; }
  char* arg() { return buf; }
  jstring convert(JNIEnv* env, int&) {
    // A buffer filled to its last byte is cut there rather than read past.
    char text[sizeof buf + 1];
    size_t len = strnlen(buf, sizeof buf);
    std::memcpy(text, buf, len);
    text[len] = '\0';
    return pending(env) ? nullptr : env->NewStringUTF(text);
  }
};

}  // namespace

KX_NATIVE(jint, MicroFileConcat, jstring unit, jobject session, jstring path, jint value) {
  return call(env, KX_MicroFileConcat, Unit(unit), Session(session), Path(path), value, IntOut{});
}

KX_NATIVE(void, MicroFileConcat2, jstring unit, jobject session, jstring path) {
  call(env, KX_MicroFileConcat2, Unit(unit), Session(session), Path(path));
}

KX_NATIVE(void, MicroFileConcatEx, jstring unit, jobject session, jstring path) {
  call(env, KX_MicroFileConcatEx, Unit(unit), Session(session), Path(path));
}

KX_NATIVE(void, CancelMicroFileConcat) {
  call(env, KX_CancelMicroFileConcat);
}

KX_NATIVE(jobject, GetMicroFileInformation) {
  return call(env, KX_GetMicroFileInformation, Out(rec::MicroFileInformation));
}

KX_NATIVE(jstring, GetNewMicroRevision) {
  return call(env, KX_GetNewMicroRevision, RevisionOut{});
}

KX_NATIVE(jint, GetMicroDownloadCount, jstring unit) {
  return call(env, KX_GetMicroDownloadCount, Unit(unit), IntOut{});
}

KX_NATIVE(jint, GetMicroDownloadCountEx, jstring unit, jint value) {
  return call(env, KX_GetMicroDownloadCountEx, Unit(unit), value, IntOut{});
}

KX_NATIVE(void, MicroDownload, jstring unit, jobject session, jint a, jint b, jint c) {
  call(env, KX_MicroDownload, Unit(unit), Session(session), a, b, c);
}

KX_NATIVE(void, MicroDownloadEx, jstring unit, jobject session, jint a, jint b, jint c, jint d) {
  call(env, KX_MicroDownloadEx, Unit(unit), Session(session), a, b, c, d);
}

KX_NATIVE(void, MicroReplace, jstring unit, jobject session, jint value) {
  call(env, KX_MicroReplace, Unit(unit), Session(session), value);
}

KX_NATIVE(jobject, MicroReplaceEx, jstring unit, jobject session, jint value) {
  return call(env, KX_MicroReplaceEx, Unit(unit), Session(session), value,
              Out(rec::MicroReplaceInformation));
}

KX_NATIVE(void, CompleteMicroReplace, jstring unit, jobject session, jint value) {
  call(env, KX_CompleteMicroReplace, Unit(unit), Session(session), value);
}
