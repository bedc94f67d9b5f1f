#include "core/record.h"

#include <algorithm>
#include <cstdio>
#include <cstring>

#include "core/accessors.h"
#include "core/errors.h"
#include "core/jni_refs.h"

namespace kx {
namespace {

const uint8_t* at(const void* rec, uint32_t offset) { return static_cast<const uint8_t*>(rec) + offset; }
uint8_t* at(void* rec, uint32_t offset) { return static_cast<uint8_t*>(rec) + offset; }

int32_t load_int(const void* p) {
  int32_t v;
  std::memcpy(&v, p, sizeof v);
  return v;
}
void store_int(void* p, int32_t v) { std::memcpy(p, &v, sizeof v); }

// --------------------------------------------------------------- reading

// Reads the elements of a Java array of records into consecutive slots,
// never more than the C array holds.  Element statuses are not reported.
int read_elements(JNIEnv* env, jobjectArray arr, const RecordDesc& elem, uint8_t* dst,
                  uint32_t capacity, uint32_t stride) {
  auto length = static_cast<uint32_t>(env->GetArrayLength(arr));
  for (uint32_t i = 0; i < std::min(length, capacity); ++i) {
    // An element reader that failed left its exception pending: stop there.
    if (pending(env)) return kMarshal;
    LocalRef<jobject> item(env, env->GetObjectArrayElement(arr, static_cast<jsize>(i)));
    if (pending(env)) return kMarshal;
    read_record(env, item.get(), elem, dst + static_cast<size_t>(i) * stride);
  }
  return kOk;
}

int read_field(JNIEnv* env, jobject obj, const Field& f, void* rec) {
  uint8_t* dst = at(rec, f.offset);
  switch (f.kind) {
    case Kind::Int:
    case Kind::SByte:
    case Kind::UByte: {
      jint v = jni_get_int(env, obj, f.name);
      if (pending(env)) return kMarshal;
      if (f.kind == Kind::Int) store_int(dst, v);
      else *dst = static_cast<uint8_t>(v);  // only the low byte is stored
      return kOk;
    }
    case Kind::String:
    case Kind::StringUnicode:
      return jni_get_string(env, obj, f.name, reinterpret_cast<char*>(dst), f.count);
    case Kind::Bytes:
      return jni_get_byte_array(env, obj, f.name, dst, static_cast<jsize>(f.count));
    case Kind::ByteTable:
      return jni_char_array_from_int_array(env, obj, f.name, dst, f.count);
    case Kind::Ints:
      return jni_get_int_array(env, obj, f.name, reinterpret_cast<int32_t*>(dst),
                               static_cast<jsize>(f.count));
    case Kind::Ints2:
      return jni_get_int_2array(env, obj, f.name, reinterpret_cast<int32_t*>(dst),
                                static_cast<jsize>(f.count), static_cast<jsize>(f.columns));
    case Kind::Record: {
      LocalRef<jobject> nested(env, jni_get_object(env, obj, f.name, f.elem->sig));
      if (!nested) return kNullRecord;
      read_record(env, nested.get(), *f.elem, dst);
      return kOk;
    }
    case Kind::Records: {
      LocalRef<jobjectArray> arr(
          env, static_cast<jobjectArray>(jni_get_object(env, obj, f.name, f.elem->array_sig)));
      if (!arr) return kNullRecord;
      return read_elements(env, arr.get(), *f.elem, dst, f.count, f.stride);
    }
    case Kind::Records2: {
      LocalRef<jobjectArray> arr(
          env, static_cast<jobjectArray>(jni_get_object(env, obj, f.name, f.elem->array2_sig)));
      if (!arr) return kNullRecord;
      auto rows = static_cast<uint32_t>(env->GetArrayLength(arr.get()));
      for (uint32_t r = 0; r < std::min(rows, f.count); ++r) {
        if (pending(env)) return kMarshal;
        LocalRef<jobjectArray> row(
            env, static_cast<jobjectArray>(env->GetObjectArrayElement(arr.get(), static_cast<jsize>(r))));
        if (pending(env)) return kMarshal;
        if (!row) continue;
        int rc = read_elements(env, row.get(), *f.elem,
                               dst + static_cast<size_t>(r) * f.columns * f.stride, f.columns, f.stride);
        if (rc != kOk) return rc;
      }
      return kOk;
    }
    case Kind::Custom:
      return f.read ? f.read(env, obj, f, rec) : kOk;
  }
  return kMarshal;
}

// --------------------------------------------------------------- writing

// A string field as a C string that ends inside the record: a field the
// library filled to the last byte is cut there rather than read past.
class FieldText {
 public:
  FieldText(const uint8_t* src, uint32_t n) {
    const char* text = reinterpret_cast<const char*>(src);
    if (std::memchr(text, '\0', n) != nullptr) {
      text_ = text;
    } else {
      std::memcpy(copy_, text, n);
      copy_[n] = '\0';
      text_ = copy_;
    }
  }
  const char* get() const { return text_; }

 private:
  const char* text_;
  char copy_[kMaxStringField + 1];
};

// A new Java array of `count` records built from consecutive slots; null as
// soon as an element cannot be built or stored.
jobjectArray write_elements(JNIEnv* env, const RecordDesc& elem, const uint8_t* src, uint32_t count,
                            uint32_t stride) {
  LocalRef<jobjectArray> arr(env, new_object_array(env, elem.cls, static_cast<jsize>(count)));
  if (!arr) return nullptr;
  for (uint32_t i = 0; i < count; ++i) {
    LocalRef<jobject> item(env, write_record(env, elem, src + static_cast<size_t>(i) * stride));
    // An element whose unchecked field failed comes back with the JVM's
    // exception pending: storing it would be a JNI call made then.
    if (!item || pending(env)) return nullptr;
    env->SetObjectArrayElement(arr.get(), static_cast<jsize>(i), item.get());
    if (pending(env)) return nullptr;
  }
  return arr.release();
}

int write_field(JNIEnv* env, jobject obj, const Field& f, const void* rec) {
  const uint8_t* src = at(rec, f.offset);
  switch (f.kind) {
    case Kind::Int:
      return jni_set_int(env, obj, f.name, load_int(src));
    case Kind::SByte:
      return jni_set_int(env, obj, f.name, static_cast<int8_t>(*src));
    case Kind::UByte:
      return jni_set_int(env, obj, f.name, *src);
    case Kind::String:
      return jni_set_string(env, obj, f.name, FieldText(src, f.count).get());
    case Kind::StringUnicode:
      return jni_set_string_unicode(env, obj, f.name, reinterpret_cast<const char*>(src), f.count);
    case Kind::Bytes:
      return jni_set_byte_array(env, obj, f.name, src, static_cast<jsize>(f.count));
    case Kind::ByteTable: {
      LocalRef<jintArray> arr(env, jni_create_int_array_from_char(env, src, static_cast<jsize>(f.count)));
      if (!arr) return kMarshal;
      return jni_set_object(env, obj, f.name, "[I", arr.get());
    }
    case Kind::Ints:
      return jni_set_int_array(env, obj, f.name, reinterpret_cast<const int32_t*>(src),
                               static_cast<jsize>(f.count));
    case Kind::Ints2: {
      LocalRef<jobjectArray> outer(env, new_object_array(env, "[I", static_cast<jsize>(f.count)));
      if (!outer) return kMarshal;
      for (uint32_t r = 0; r < f.count; ++r) {
        LocalRef<jintArray> row(env, env->NewIntArray(static_cast<jsize>(f.columns)));
        if (!row) return kMarshal;
        env->SetIntArrayRegion(row.get(), 0, static_cast<jsize>(f.columns),
                               reinterpret_cast<const jint*>(src) + static_cast<size_t>(r) * f.columns);
        env->SetObjectArrayElement(outer.get(), static_cast<jsize>(r), row.get());
        if (pending(env)) return kMarshal;
      }
      return jni_set_object(env, obj, f.name, "[[I", outer.get());
    }
    case Kind::Record: {
      LocalRef<jobject> nested(env, write_record(env, *f.elem, src));
      if (!nested) return kMarshal;
      return jni_set_object(env, obj, f.name, f.elem->sig, nested.get());
    }
    case Kind::Records: {
      LocalRef<jobjectArray> arr(env, write_elements(env, *f.elem, src, f.count, f.stride));
      if (!arr) return kMarshal;
      return jni_set_object(env, obj, f.name, f.elem->array_sig, arr.get());
    }
    case Kind::Records2: {
      // The outer array's element class is the array class of the record.
      LocalRef<jobjectArray> outer(env, new_object_array(env, f.elem->array_sig, static_cast<jsize>(f.count)));
      if (!outer) return kMarshal;
      for (uint32_t r = 0; r < f.count; ++r) {
        LocalRef<jobjectArray> row(
            env, write_elements(env, *f.elem, src + static_cast<size_t>(r) * f.columns * f.stride,
                                f.columns, f.stride));
        if (!row) return kMarshal;
        env->SetObjectArrayElement(outer.get(), static_cast<jsize>(r), row.get());
        if (pending(env)) return kMarshal;
      }
      return jni_set_object(env, obj, f.name, f.elem->array2_sig, outer.get());
    }
    case Kind::Custom:
      return f.write ? f.write(env, obj, f, rec) : kOk;
  }
  return kMarshal;
}

}  // namespace

int read_record(JNIEnv* env, jobject obj, const RecordDesc& desc, void* rec) {
  if (obj == nullptr || rec == nullptr) return kNullRecord;
  for (uint32_t i = 0; i < desc.field_count; ++i) {
    int rc = read_field(env, obj, desc.fields[i], rec);
    if (rc != kOk) return rc;
  }
  return kOk;
}

jobject write_record(JNIEnv* env, const RecordDesc& desc, const void* rec) {
  if (desc.flush) std::fflush(stdout);
  if (rec == nullptr) return nullptr;
  LocalRef<jobject> obj(env, jni_new_object(env, desc.cls));
  if (!obj) return nullptr;
  for (uint32_t i = 0; i < desc.field_count; ++i) {
    const Field& f = desc.fields[i];
    if (write_field(env, obj.get(), f, rec) != kOk && f.checked) return nullptr;
  }
  return obj.release();
}

}  // namespace kx
