#include "core/record.h"

#include <algorithm>
#include <cstdio>
#include <cstring>

#include "core/accessors.h"
#include "core/errors.h"
#include "core/jni_refs.h"
#include "core/lookups.h"

// The walker reaches fields through IDs remembered for the native call
// (core/lookups.h): a writer makes every object of the class its description
// names, so one lookup of the class, its constructor and each field serves the
// whole tree; a reader looks fields up by the class of the object it is given,
// so an element of a subclass reads its own fields.  Fields are resolved at
// their first use, so a missing field fails at the same field, at the same
// moment, with the same exception as a lookup by name would.

namespace kx {
namespace {

constexpr const char* kStringSig = "Ljava/lang/String;";

const uint8_t* at(const void* rec, uint32_t offset) { return static_cast<const uint8_t*>(rec) + offset; }
uint8_t* at(void* rec, uint32_t offset) { return static_cast<uint8_t*>(rec) + offset; }

int32_t load_int(const void* p) {
  int32_t v;
  std::memcpy(&v, p, sizeof v);
  return v;
}
void store_int(void* p, int32_t v) { std::memcpy(p, &v, sizeof v); }

// One conversion (a read_record or write_record call) under way.
//
// `clean` is true while the walker knows that no exception is pending, so the
// JNI calls that cannot raise one (a field got or set through a valid ID, an
// array element inside its bounds, a new object whose constructor returned)
// need no check of their own.  Anything that may have raised one (a failed
// call, a nested conversion, a custom converter) leaves it false, and the next
// field asks the JVM once.  As in the by-name helpers, no JNI call but the
// exception-safe ones is made while an exception is pending.
struct Walk {
  JNIEnv* env;
  Lookups& lookups;
  bool clean = false;

  bool ok() {
    if (!clean) clean = !pending(env);
    return clean;
  }
};

// The kinds before Custom keep Walk::clean up to date; Custom and any kind
// after it convert through code that may leave an exception pending unseen.
bool keeps_state(Kind k) { return k < Kind::Custom; }

// One Java object being read or written, and where its field IDs come from:
// its entry in the call's lookups or, when there was no room for one, a lookup
// by name at every use (GetObjectClass + GetFieldID, as the helpers do).
struct Target {
  jobject obj;
  Lookups::Entry* entry;
};

// field_id's way when the ID is not at hand yet.
[[gnu::noinline]] jfieldID resolve_id(Walk& w, const Target& t, const Field& f, uint32_t i,
                                      const char* sig) {
  if (!w.ok()) return nullptr;
  jfieldID id;
  if (t.entry != nullptr) {
    jfieldID& slot = t.entry->ids[i];
    if (slot == nullptr) slot = w.env->GetFieldID(t.entry->cls, f.name, sig);
    id = slot;
  } else {  // no room for an entry: by name, as the accessors do
    LocalRef<jclass> cls(w.env, w.env->GetObjectClass(t.obj));
    id = w.env->GetFieldID(cls.get(), f.name, sig);
  }
  if (id == nullptr) w.clean = false;
  return id;
}

// The ID of field `i` (f) of the target with signature `sig`; null when an
// exception is pending or the class has no such field (NoSuchFieldError then
// pending).  Once per field and call the ID is looked up; every other use
// takes it from the entry.
[[gnu::always_inline]] inline jfieldID field_id(Walk& w, const Target& t, const Field& f, uint32_t i,
                                                const char* sig) {
  if (w.clean && t.entry != nullptr) {
    if (jfieldID id = t.entry->ids[i]) return id;
  }
  return resolve_id(w, t, f, i, sig);
}

// The object a field holds (a new local reference), or null when the field is
// null or cannot be looked up.
template <typename T = jobject>
LocalRef<T> get_object(Walk& w, const Target& t, const Field& f, uint32_t i, const char* sig) {
  jfieldID id = field_id(w, t, f, i, sig);
  return LocalRef<T>(w.env, id ? static_cast<T>(w.env->GetObjectField(t.obj, id)) : nullptr);
}

// Stores `value` into an object field; kMarshal when it cannot be looked up.
int set_object(Walk& w, const Target& t, const Field& f, uint32_t i, const char* sig, jobject value) {
  jfieldID id = field_id(w, t, f, i, sig);
  if (id == nullptr) return kMarshal;
  w.env->SetObjectField(t.obj, id, value);
  return kOk;
}

// A status from code that tested for exceptions itself: clean when it succeeded.
int checked(Walk& w, int rc) {
  w.clean = rc == kOk;
  return rc;
}

// --------------------------------------------------------------- reading

int read_object(Walk& w, jobject obj, const RecordDesc& desc, void* rec);

// Reads the elements of a Java array of records into consecutive slots,
// never more than the C array holds.  Element statuses are not reported, but
// an element whose reader left its exception pending stops the array there
// (kMarshal).  Entered with no exception pending.
int read_elements(Walk& w, jobjectArray arr, const RecordDesc& elem, uint8_t* dst, uint32_t capacity,
                  uint32_t stride) {
  JNIEnv* env = w.env;
  auto length = static_cast<uint32_t>(env->GetArrayLength(arr));
  for (uint32_t i = 0; i < std::min(length, capacity); ++i) {
    // Inside the bounds: cannot raise.
    LocalRef<jobject> item(env, env->GetObjectArrayElement(arr, static_cast<jsize>(i)));
    read_object(w, item.get(), elem, dst + static_cast<size_t>(i) * stride);
    if (!w.ok()) return kMarshal;
  }
  return kOk;
}

[[gnu::always_inline]] inline int read_field(Walk& w, const Target& t, const Field& f, uint32_t index,
                                             void* rec) {
  JNIEnv* env = w.env;
  jobject obj = t.obj;
  uint8_t* dst = at(rec, f.offset);
  switch (f.kind) {  // GCOVR_EXCL_BR_LINE: the edge past the last case (every kind has one)
    case Kind::Int:
    case Kind::SByte:
    case Kind::UByte: {
      jfieldID id = field_id(w, t, f, index, "I");
      if (id == nullptr) return kMarshal;
      jint v = env->GetIntField(obj, id);
      if (f.kind == Kind::Int) store_int(dst, v);
      else *dst = static_cast<uint8_t>(v);  // only the low byte is stored
      return kOk;
    }
    case Kind::String:
    case Kind::StringUnicode: {
      auto str = get_object<jstring>(w, t, f, index, kStringSig);
      if (!str) return kMarshal;
      return checked(w, string_into(env, str.get(), reinterpret_cast<char*>(dst), f.count));
    }
    case Kind::Bytes: {
      auto arr = get_object<jbyteArray>(w, t, f, index, "[B");
      if (!arr) return kMarshal;
      return checked(w, byte_array_into(env, arr.get(), dst, static_cast<jsize>(f.count)));
    }
    case Kind::ByteTable: {
      auto arr = get_object<jintArray>(w, t, f, index, "[I");
      if (!arr) return kMarshal;
      return checked(w, low_bytes_into(env, arr.get(), dst, f.count));
    }
    case Kind::Ints: {
      auto arr = get_object<jintArray>(w, t, f, index, "[I");
      if (!arr) return kMarshal;
      return checked(w, int_array_into(env, arr.get(), reinterpret_cast<int32_t*>(dst),
                                       static_cast<jsize>(f.count)));
    }
    case Kind::Ints2: {
      auto arr = get_object<jobjectArray>(w, t, f, index, "[[I");
      if (!arr) return kMarshal;
      return checked(w, int_rows_into(env, arr.get(), reinterpret_cast<int32_t*>(dst),
                                      static_cast<jsize>(f.count), static_cast<jsize>(f.columns)));
    }
    case Kind::Record: {
      auto nested = get_object(w, t, f, index, f.elem->sig);
      if (!nested) return kNullRecord;
      // Its own status is not reported, but an exception its reader left
      // pending stops the reader here.
      read_object(w, nested.get(), *f.elem, dst);
      return w.ok() ? kOk : kMarshal;
    }
    case Kind::Records: {
      auto arr = get_object<jobjectArray>(w, t, f, index, f.elem->array_sig);
      if (!arr) return kNullRecord;
      return read_elements(w, arr.get(), *f.elem, dst, f.count, f.stride);
    }
    case Kind::Records2: {
      auto arr = get_object<jobjectArray>(w, t, f, index, f.elem->array2_sig);
      if (!arr) return kNullRecord;
      auto rows = static_cast<uint32_t>(env->GetArrayLength(arr.get()));
      for (uint32_t r = 0; r < std::min(rows, f.count); ++r) {
        // Inside the bounds, after rows that left no exception: cannot raise.
        LocalRef<jobjectArray> row(
            env, static_cast<jobjectArray>(env->GetObjectArrayElement(arr.get(), static_cast<jsize>(r))));
        if (!row) continue;
        int rc = read_elements(w, row.get(), *f.elem,
                               dst + static_cast<size_t>(r) * f.columns * f.stride, f.columns, f.stride);
        if (rc != kOk) return rc;
      }
      return kOk;
    }
    case Kind::Custom:
      // The fields without a reader (UnitCondition.connector,
      // PoolDetailInfo.detail) are in records no native reads.
      if (!f.read) return kOk;  // GCOVR_EXCL_BR_LINE: see above
      // A converter is never entered with an exception pending.
      if (!w.ok()) return kMarshal;
      return f.read(env, obj, f, rec);
  }
  return kMarshal;  // GCOVR_EXCL_LINE: every kind returns above (-Wswitch keeps the list whole)
}

// The reader's target for obj: the entry of its own class.
Target reader_target(Walk& w, jobject obj, const RecordDesc& desc) {
  // With an exception pending the fields are "looked up by name", which fails
  // at once as the helpers do.
  if (!w.ok()) return {obj, nullptr};
  jclass cls = w.env->GetObjectClass(obj);
  Lookups::Entry* entry = w.lookups.seen(desc, cls);
  if (cls != nullptr) w.env->DeleteLocalRef(cls);
  return {obj, entry};
}

int read_object(Walk& w, jobject obj, const RecordDesc& desc, void* rec) {
  if (obj == nullptr) return kNullRecord;
  Target t = reader_target(w, obj, desc);
  for (uint32_t i = 0; i < desc.field_count; ++i) {
    const Field& f = desc.fields[i];
    int rc = read_field(w, t, f, i, rec);
    if (!keeps_state(f.kind)) w.clean = false;
    if (rc != kOk) return rc;
  }
  return kOk;
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

jobject write_object(Walk& w, const RecordDesc& desc, const void* rec);

// The class at `path`, from the call's lookups; a reference of its own
// (deleted on scope exit) when there was no room to keep it.  Made with no
// exception pending (the writer's fields test first).
class ClassRef {
 public:
  ClassRef(Walk& w, const char* path) : env_(w.env) {
    cls_ = w.lookups.find(path, held_);
    if (cls_ == nullptr) w.clean = false;  // ClassNotFoundException
  }
  ClassRef(const ClassRef&) = delete;
  ClassRef& operator=(const ClassRef&) = delete;
  ~ClassRef() {
    if (cls_ != nullptr && !held_) env_->DeleteLocalRef(cls_);
  }
  jclass get() const { return cls_; }

 private:
  JNIEnv* env_;
  jclass cls_;
  bool held_ = false;
};

// A new Java array of `length` elements of the class at `path`, all null.
jobjectArray new_array(Walk& w, const char* path, uint32_t length) {
  ClassRef cls(w, path);
  if (cls.get() == nullptr) return nullptr;
  jobjectArray arr = w.env->NewObjectArray(static_cast<jsize>(length), cls.get(), nullptr);
  if (arr == nullptr) w.clean = false;
  return arr;
}

// A new Java array of `count` records built from consecutive slots; null as
// soon as an element cannot be built.
jobjectArray write_elements(Walk& w, const RecordDesc& elem, const uint8_t* src, uint32_t count,
                            uint32_t stride) {
  JNIEnv* env = w.env;
  LocalRef<jobjectArray> arr(env, new_array(w, elem.cls, count));
  if (!arr) return nullptr;
  for (uint32_t i = 0; i < count; ++i) {
    LocalRef<jobject> item(env, write_object(w, elem, src + static_cast<size_t>(i) * stride));
    // An element whose unchecked field failed comes back with the JVM's
    // exception pending: storing it would be a JNI call made then.
    if (!item || !w.ok()) return nullptr;
    // An element of the array's own class, inside its bounds: cannot raise.
    env->SetObjectArrayElement(arr.get(), static_cast<jsize>(i), item.get());
  }
  return arr.release();
}

// Inlined into the record loop: the call would cost more than most fields.
[[gnu::always_inline]] inline int write_field(Walk& w, const Target& t, const Field& f, uint32_t index,
                                              const void* rec) {
  JNIEnv* env = w.env;
  jobject obj = t.obj;
  const uint8_t* src = at(rec, f.offset);
  // After a field that failed with an exception and did not fail the object,
  // every field fails at once; only a nested record's writer starts anyway
  // (it flushes stdout first).
  if (!w.ok() && f.kind != Kind::Record) return kMarshal;
  switch (f.kind) {  // GCOVR_EXCL_BR_LINE: the edge past the last case (every kind has one)
    // gcov counts here the test of w.clean in the field_id() inlined below,
    // always clean after the test above (covered both ways where it stands).
    case Kind::Int:  // GCOVR_EXCL_BR_LINE: see above
    case Kind::SByte:
    case Kind::UByte: {
      jfieldID id = field_id(w, t, f, index, "I");
      if (id == nullptr) return kMarshal;
      jint v = f.kind == Kind::Int     ? load_int(src)
               : f.kind == Kind::SByte ? static_cast<int8_t>(*src)
                                       : static_cast<jint>(*src);
      env->SetIntField(obj, id, v);
      return kOk;
    }
    case Kind::String: {
      // The string is made before the field is looked up.
      LocalRef<jstring> str(env, env->NewStringUTF(FieldText(src, f.count).get()));
      if (!str) {
        w.clean = false;
        return kMarshal;
      }
      return set_object(w, t, f, index, kStringSig, str.get());
    }
    case Kind::StringUnicode:
      w.clean = false;
      return jni_set_string_unicode(env, obj, f.name, reinterpret_cast<const char*>(src), f.count);
    case Kind::Bytes: {
      // Written into the array the field already holds.
      auto arr = get_object<jbyteArray>(w, t, f, index, "[B");
      if (!arr) return kMarshal;
      env->SetByteArrayRegion(arr.get(), 0, static_cast<jsize>(f.count), reinterpret_cast<const jbyte*>(src));
      return checked(w, pending(env) ? kMarshal : kOk);
    }
    case Kind::ByteTable: {
      LocalRef<jintArray> arr(env, jni_create_int_array_from_char(env, src, static_cast<jsize>(f.count)));
      if (!arr) {
        w.clean = false;
        return kMarshal;
      }
      return set_object(w, t, f, index, "[I", arr.get());
    }
    case Kind::Ints: {
      LocalRef<jintArray> arr(env, env->NewIntArray(static_cast<jsize>(f.count)));
      if (!arr) {
        w.clean = false;
        return kMarshal;
      }
      // The whole new array: cannot raise.
      env->SetIntArrayRegion(arr.get(), 0, static_cast<jsize>(f.count), reinterpret_cast<const jint*>(src));
      return set_object(w, t, f, index, "[I", arr.get());
    }
    case Kind::Ints2: {
      LocalRef<jobjectArray> outer(env, new_array(w, "[I", f.count));
      if (!outer) return kMarshal;
      for (uint32_t r = 0; r < f.count; ++r) {
        LocalRef<jintArray> row(env, env->NewIntArray(static_cast<jsize>(f.columns)));
        if (!row) {
          w.clean = false;
          return kMarshal;
        }
        env->SetIntArrayRegion(row.get(), 0, static_cast<jsize>(f.columns),
                               reinterpret_cast<const jint*>(src) + static_cast<size_t>(r) * f.columns);
        env->SetObjectArrayElement(outer.get(), static_cast<jsize>(r), row.get());
      }
      return set_object(w, t, f, index, "[[I", outer.get());
    }
    case Kind::Record: {
      LocalRef<jobject> nested(env, write_object(w, *f.elem, src));
      if (!nested) return kMarshal;
      return set_object(w, t, f, index, f.elem->sig, nested.get());
    }
    case Kind::Records: {
      LocalRef<jobjectArray> arr(env, write_elements(w, *f.elem, src, f.count, f.stride));
      if (!arr) return kMarshal;
      return set_object(w, t, f, index, f.elem->array_sig, arr.get());
    }
    case Kind::Records2: {
      // The outer array's element class is the array class of the record.
      LocalRef<jobjectArray> outer(env, new_array(w, f.elem->array_sig, f.count));
      if (!outer) return kMarshal;
      for (uint32_t r = 0; r < f.count; ++r) {
        LocalRef<jobjectArray> row(
            env, write_elements(w, *f.elem, src + static_cast<size_t>(r) * f.columns * f.stride,
                                f.columns, f.stride));
        if (!row) return kMarshal;
        env->SetObjectArrayElement(outer.get(), static_cast<jsize>(r), row.get());
      }
      return set_object(w, t, f, index, f.elem->array2_sig, outer.get());
    }
    case Kind::Custom: {
      if (!f.write) return kOk;
      // A converter is never entered with an exception pending (above).
      // The converter's field_id() finds this field's ID in the entry.
      const Lookups::Writing outer = w.lookups.writing;
      w.lookups.writing = {obj, t.entry, index};
      int rc = f.write(env, obj, f, rec);
      w.lookups.writing = outer;
      return rc;
    }
  }
  return kMarshal;  // GCOVR_EXCL_LINE: every kind returns above (-Wswitch keeps the list whole)
}

// A new object of the described class, or null (the JVM's exception pending
// unless the class could not be found, when ClassNotFoundException is).
// `entry` is null when there was no room to remember the class: the object
// is then made from a class reference of its own and its fields are looked
// up by name.
jobject new_object(Walk& w, const RecordDesc& desc, Lookups::Entry*& entry) {
  entry = nullptr;
  if (!w.ok()) return nullptr;
  jclass unheld = nullptr;
  entry = w.lookups.made(desc, unheld);
  LocalRef<jclass> own(w.env, unheld);
  jclass cls = entry != nullptr ? entry->cls : own.get();
  if (cls == nullptr) return nullptr;  // the class is missing
  jmethodID ctor = entry != nullptr ? entry->ctor : nullptr;
  if (ctor == nullptr) {
    ctor = w.env->GetMethodID(cls, "<init>", "()V");
    if (ctor == nullptr) return nullptr;
    if (entry != nullptr) entry->ctor = ctor;
  }
  // Null exactly when the object could not be made or its constructor threw.
  return w.env->NewObject(cls, ctor);
}

jobject write_object(Walk& w, const RecordDesc& desc, const void* rec) {
  if (desc.flush) std::fflush(stdout);
  if (rec == nullptr) return nullptr;
  Lookups::Entry* entry = nullptr;
  LocalRef<jobject> obj(w.env, new_object(w, desc, entry));
  if (!obj) {
    w.clean = false;
    return nullptr;
  }
  w.clean = true;  // the constructor returned
  Target t{obj.get(), entry};
  for (uint32_t i = 0; i < desc.field_count; ++i) {
    const Field& f = desc.fields[i];
    int rc = write_field(w, t, f, i, rec);
    if (!keeps_state(f.kind)) w.clean = false;
    if (rc != kOk && f.checked) return nullptr;
  }
  return obj.release();
}

}  // namespace

int read_record(JNIEnv* env, jobject obj, const RecordDesc& desc, void* rec) {
  return with_lookups(env, [&](Lookups& lookups) {
    Walk w{env, lookups};
    return read_object(w, obj, desc, rec);
  });
}

jobject write_record(JNIEnv* env, const RecordDesc& desc, const void* rec) {
  bool clean = false;
  return write_record(env, desc, rec, clean);
}

jobject write_record(JNIEnv* env, const RecordDesc& desc, const void* rec, bool& clean) {
  return with_lookups(env, [&](Lookups& lookups) {
    Walk w{env, lookups, clean};
    jobject obj = write_object(w, desc, rec);
    clean = w.ok();
    return obj;
  });
}

}  // namespace kx
