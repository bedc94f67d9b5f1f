#include "core/lookups.h"

#include "core/errors.h"
#include "core/jni_refs.h"

namespace kx {
namespace {
// The Lookups of the native call running on this thread; null between calls.
thread_local Lookups* current = nullptr;
}  // namespace

Lookups::Lookups(JNIEnv* env) noexcept : env_(env), outer_(current) { current = this; }

Lookups::~Lookups() {
  current = outer_;
  // Exception-safe: runs after the call's exception has been thrown.
  for (int i = 0; i < classes_; ++i) env_->DeleteLocalRef(class_refs_[i]);
  for (int i = 0; i < entries_; ++i) {
    if (!entries_table_[i].made) env_->DeleteLocalRef(entries_table_[i].cls);
  }
  for (int i = 0; i < field_ids_; ++i) env_->DeleteLocalRef(field_id_table_[i].cls);
}

Lookups* Lookups::active() noexcept { return current; }

bool Lookups::hold() {
  if (held_ == kClasses + kEntries + kFieldIds) return false;
  // The references held here come on top of the walker's own; make sure the
  // frame has room for both.  Called only with no exception pending.
  if (env_->EnsureLocalCapacity(held_ + 1 + kSpareRefs) != JNI_OK) {
    // Refused: the walker then looks this class up by name instead.  The
    // OutOfMemoryError of the refusal is ours, not the caller's: clear it.
    env_->ExceptionClear();
    return false;
  }
  ++held_;
  return true;
}

jclass Lookups::find(const char* path, bool& held) {
  for (int i = 0; i < classes_; ++i) {
    if (paths_[i] == path) {
      held = true;
      return class_refs_[i];
    }
  }
  jclass cls = find_class(env_, path);
  held = cls != nullptr && classes_ < kClasses && hold();
  if (held) {
    paths_[classes_] = path;
    class_refs_[classes_++] = cls;
  }
  return cls;
}

Lookups::Entry* Lookups::add(const RecordDesc& desc, jclass cls, bool made) {
  if (entries_ == kEntries || ids_ + static_cast<int>(desc.field_count) > kIds) return nullptr;
  jfieldID* ids = id_pool_ + ids_;
  for (uint32_t i = 0; i < desc.field_count; ++i) ids[i] = nullptr;
  ids_ += static_cast<int>(desc.field_count);
  Entry* e = &entries_table_[entries_++];
  *e = Entry{&desc, cls, nullptr, ids, made};
  return e;
}

Lookups::Entry* Lookups::made(const RecordDesc& desc) {
  for (int i = entries_ - 1; i >= 0; --i) {
    Entry& e = entries_table_[i];
    if (e.made && e.desc == &desc) return &e;
  }
  bool held = false;
  jclass cls = find(desc.cls, held);
  if (cls == nullptr) return nullptr;
  if (!held) {  // GCOVR_EXCL_START: every native's tree fits the lookups (tests/probe/lookup_room.cmake)
    // No room to keep the class: the caller looks it up again by path.
    env_->DeleteLocalRef(cls);
    return nullptr;
  }  // GCOVR_EXCL_STOP
  return add(desc, cls, true);
}

jfieldID Lookups::field_id(JNIEnv* env, jobject obj, const Field& f, const char* sig) {
  if (obj == nullptr || pending(env)) return nullptr;
  Lookups* l = current;
  if (l != nullptr && l->env_ != env) l = nullptr;
  if (l != nullptr && l->writing.obj == obj && l->writing.entry != nullptr &&
      &l->writing.entry->desc->fields[l->writing.index] == &f) {
    // An object the walker made: of exactly the entry's class.
    jfieldID& slot = l->writing.entry->ids[l->writing.index];
    if (slot == nullptr) slot = env->GetFieldID(l->writing.entry->cls, f.name, sig);
    return slot;
  }
  jclass cls = env->GetObjectClass(obj);
  if (cls == nullptr) return nullptr;
  if (l != nullptr) {
    for (int i = 0; i < l->field_ids_; ++i) {
      FieldId& known = l->field_id_table_[i];
      if (known.field == &f && env->IsSameObject(known.cls, cls)) {
        env->DeleteLocalRef(cls);
        return known.id;
      }
    }
  }
  jfieldID id = env->GetFieldID(cls, f.name, sig);
  if (id != nullptr && l != nullptr && l->field_ids_ < kFieldIds && l->hold()) {
    l->field_id_table_[l->field_ids_++] = FieldId{&f, cls, id};
  } else {
    env->DeleteLocalRef(cls);
  }
  return id;
}

Lookups::Entry* Lookups::seen(const RecordDesc& desc, jclass& cls) {
  for (int i = entries_ - 1; i >= 0; --i) {
    Entry& e = entries_table_[i];
    if (!e.made && e.desc == &desc && env_->IsSameObject(e.cls, cls)) return &e;
  }
  if (entries_ == kEntries || !hold()) return nullptr;
  Entry* e = add(desc, cls, false);
  if (e == nullptr) {  // GCOVR_EXCL_START: every native's tree fits the lookups (tests/probe/lookup_room.cmake)
    --held_;
    return nullptr;
  }  // GCOVR_EXCL_STOP
  cls = nullptr;
  return e;
}

}  // namespace kx
