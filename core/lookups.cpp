#include "core/lookups.h"

#include "core/errors.h"

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

bool Lookups::hold(bool room) {
  if (!room) return false;  // GCOVR_EXCL_BR_LINE: every native's tree fits the lookups (tests/probe/lookup_room.cmake)
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
  held = cls != nullptr && hold(classes_ < kClasses);
  if (held) {
    paths_[classes_] = path;
    class_refs_[classes_++] = cls;
  }
  return cls;
}

Lookups::Entry* Lookups::add(const RecordDesc& desc, jclass cls, bool made) {
  if (entries_ == kEntries || ids_ + static_cast<int>(desc.field_count) > kIds) return nullptr;  // GCOVR_EXCL_BR_LINE: every native's tree fits the lookups (tests/probe/lookup_room.cmake)
  jfieldID* ids = id_pool_ + ids_;
  for (uint32_t i = 0; i < desc.field_count; ++i) ids[i] = nullptr;
  ids_ += static_cast<int>(desc.field_count);
  Entry* e = &entries_table_[entries_++];
  *e = Entry{&desc, cls, nullptr, ids, made};
  return e;
}

Lookups::Entry* Lookups::made(const RecordDesc& desc, jclass& unheld) {
  for (int i = entries_ - 1; i >= 0; --i) {
    Entry& e = entries_table_[i];
    if (e.made && e.desc == &desc) return &e;
  }
  bool held = false;
  jclass cls = find(desc.cls, held);
  if (cls == nullptr) return nullptr;
  if (!held) {  // no room to keep the class: the caller's own reference
    unheld = cls;
    return nullptr;
  }
  Entry* e = add(desc, cls, true);
  // The class stays in the table; the caller gets a reference of its own.
  if (e == nullptr) unheld = static_cast<jclass>(env_->NewLocalRef(cls));  // GCOVR_EXCL_LINE: every native's tree fits the lookups (tests/probe/lookup_room.cmake)
  return e;
}

jfieldID Lookups::field_id(JNIEnv* env, jobject obj, const Field& f, const char* sig) {
  // The walker that runs the converter has made the call's Lookups current.
  Lookups& l = *current;
  const Writing& w = l.writing;
  if (w.obj == obj && w.entry != nullptr &&
      // The converter's own field (no converter looks up another).
      &w.entry->desc->fields[w.index] == &f) {  // GCOVR_EXCL_BR_LINE: see above
    // An object the walker made: of exactly the entry's class.
    jfieldID& slot = w.entry->ids[w.index];
    if (slot == nullptr) slot = env->GetFieldID(w.entry->cls, f.name, sig);
    return slot;
  }
  jclass cls = env->GetObjectClass(obj);
  for (int i = 0; i < l.field_ids_; ++i) {
    FieldId& known = l.field_id_table_[i];
    if (known.field == &f && env->IsSameObject(known.cls, cls)) {
      env->DeleteLocalRef(cls);
      return known.id;
    }
  }
  jfieldID id = env->GetFieldID(cls, f.name, sig);
  if (id != nullptr && l.hold(l.field_ids_ < kFieldIds)) {
    l.field_id_table_[l.field_ids_++] = FieldId{&f, cls, id};
  } else {
    env->DeleteLocalRef(cls);
  }
  return id;
}

Lookups::Entry* Lookups::seen(const RecordDesc& desc, jclass& cls) {
  for (int i = entries_ - 1; i >= 0; --i) {
    Entry& e = entries_table_[i];
    // A writer's entry of the same class serves as well: its IDs are that class's.
    if (e.desc == &desc && env_->IsSameObject(e.cls, cls)) return &e;
  }
  if (!hold(entries_ < kEntries)) return nullptr;
  Entry* e = add(desc, cls, false);
  if (e == nullptr) {  // GCOVR_EXCL_START: every native's tree fits the lookups (tests/probe/lookup_room.cmake)
    --held_;
    return nullptr;
  }  // GCOVR_EXCL_STOP
  cls = nullptr;
  return e;
}

}  // namespace kx
