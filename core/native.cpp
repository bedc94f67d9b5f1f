#include "core/native.h"

#include <cstring>

namespace kx {

jobjectArray string_array(JNIEnv* env, const TextField* fields, size_t n, int& code) {
  constexpr size_t kMaxStrings = 8;
  LocalRef<jstring> strings[kMaxStrings] = {
      {env, nullptr}, {env, nullptr}, {env, nullptr}, {env, nullptr},
      {env, nullptr}, {env, nullptr}, {env, nullptr}, {env, nullptr}};
  for (size_t i = 0; i < n; ++i) {
    const TextField& f = fields[i];
    char text[kMaxStringField + 1];
    size_t len = strnlen(f.text, f.size);
    std::memcpy(text, f.text, len);
    text[len] = '\0';
    if (!pending(env)) strings[i].reset(env->NewStringUTF(text));
  }
  // A String that could not be made left its exception pending: the array
  // cannot be made either.
  LocalRef<jobjectArray> arr(env, new_object_array(env, "java/lang/String", static_cast<jsize>(n)));
  if (!arr) {
    code = kMarshal;
    return nullptr;
  }
  for (size_t i = 0; i < n; ++i) env->SetObjectArrayElement(arr.get(), static_cast<jsize>(i), strings[i].get());
  return arr.release();
}

}  // namespace kx
