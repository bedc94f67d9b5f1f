#include "core/native.h"

#include <cstring>

namespace kx {

jobjectArray string_array(JNIEnv* env, std::initializer_list<TextField> fields, int& code) {
  constexpr size_t kMaxStrings = 8;
  LocalRef<jstring> strings[kMaxStrings] = {
      {env, nullptr}, {env, nullptr}, {env, nullptr}, {env, nullptr},
      {env, nullptr}, {env, nullptr}, {env, nullptr}, {env, nullptr}};
  size_t n = 0;
  for (const TextField& f : fields) {
    if (n == kMaxStrings) break;
    char text[kMaxStringField + 1];
    size_t len = strnlen(f.text, f.size);
    std::memcpy(text, f.text, len);
    text[len] = '\0';
    if (!pending(env)) strings[n].reset(env->NewStringUTF(text));
    ++n;
  }
  LocalRef<jobjectArray> arr(env, new_object_array(env, "java/lang/String", static_cast<jsize>(n)));
  if (!arr) {
    code = kMarshal;
    return nullptr;
  }
  for (size_t i = 0; i < n; ++i) {
    if (strings[i]) env->SetObjectArrayElement(arr.get(), static_cast<jsize>(i), strings[i].get());
  }
  return arr.release();
}

}  // namespace kx
