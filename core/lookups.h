// Class, constructor and field IDs remembered for the length of one native call.
//
// Looking a class up by path, or a field up by name, costs far more than using
// it.  A record tree of thousands of objects uses a handful of classes, so the
// walker resolves each class, its constructor and each field once per native
// call and reuses them for every object of the tree.
//
// Nothing outlives the call.  A Lookups object lives on the stack of the
// native (kx::call makes one as it starts; the walker's entry points make their
// own when called outside any).  While it exists, a thread-local pointer names
// it so the walker finds it without an extra parameter; the destructor puts
// the previous pointer back, so between calls the pointer is null and no class,
// ID or reference survives: no static cache, no global reference, no load hook.
// The classes it holds are local references of the native's frame, deleted when
// it goes out of scope.
//
// Code that runs the walker inside its own PushLocalFrame must open a Lookups
// inside that frame too: references made there die with the frame.
//
// Room is fixed: 64 classes, 64 record entries, 512 field IDs and 64 IDs of
// custom converters' fields, all in the object itself (no allocation; about
// 9 KB of the native's stack).  Past
// that, the walker looks the rest up by name at every use, as the accessors
// do, so the references held stay
// bounded however many classes a tree holds; EnsureLocalCapacity is asked for
// each reference kept, with room to spare for the walker's own.
//
// The room is sized for the largest tree of the library (the statistics
// record: 35 classes, 31 entries, 246 IDs) with room to spare: lookup_need()
// below counts what a tree takes, and the test build asserts at compile time
// that every record described in a <subsystem>/records.h fits
// (tests/probe/lookup_room.cmake).
//
// Only successes are remembered.  A class, constructor or field that cannot be
// found is looked up again at its next use, which fails the same way (the JVM's
// exception is pending by then, so the walker stops first anyway).
#pragma once

#include <jni.h>

#include <cstdint>

#include "core/record.h"

namespace kx {

class Lookups {
 public:
  // What one record description resolves to.  A writer's entry holds the
  // described class (every object it makes is of that class); a reader's entry
  // holds the class of an object it was given, which may be a subclass (a
  // writer's entry serves readers of objects of exactly its class).
  struct Entry {
    const RecordDesc* desc;
    jclass cls;        // held for the call (writers share it with the class table)
    jmethodID ctor;    // writers: "<init>" "()V", resolved at the first object
    jfieldID* ids;     // one per field of desc, null until first used
    bool made;         // a writer's entry
  };

  // Room: classes (described classes and the array classes of two-level
  // tables), record entries, field IDs.
  static constexpr int kClasses = 64;
  static constexpr int kEntries = 64;
  static constexpr int kIds = 512;
  static constexpr int kFieldIds = 64;  // fields of custom converters

  explicit Lookups(JNIEnv* env) noexcept;
  ~Lookups();
  Lookups(const Lookups&) = delete;
  Lookups& operator=(const Lookups&) = delete;

  // The Lookups of the native call running on this thread, or null.
  static Lookups* active() noexcept;

  // The class at `path` (a string that lives as long as the program, compared
  // by address), found with find_class at its first use.  Null when it cannot
  // be found (ClassNotFoundException pending) or there is no room left; `held`
  // tells the caller whether the reference is the table's or its own to delete.
  jclass find(const char* path, bool& held);

  // The writer's entry of desc, its class found at the first call.  Null with
  // an exception pending when the class cannot be found; null without one when
  // there is no room, `unheld` then set to a local reference of the class
  // that the caller owns (and everything is looked up by name).
  Entry* made(const RecordDesc& desc, jclass& unheld);

  // The ID of field f (signature sig) of obj, for the converters of custom
  // fields, which the walker runs within a call's Lookups with the object it
  // holds and no exception pending: remembered per field and class of obj
  // for the call; looked up by name as the accessors do when there is no
  // room left.  Null with the JVM's exception pending when the class has no
  // such field.
  static jfieldID field_id(JNIEnv* env, jobject obj, const Field& f, const char* sig);

  // The object whose field `index` a custom converter is writing, with the
  // writer's entry that made it: field_id() then keeps that field's ID in the
  // entry, without asking the JVM for the object's class (a snapshot holds
  // thousands of such fields).
  struct Writing {
    jobject obj;
    Entry* entry;
    uint32_t index;
  };
  Writing writing{};

  // The reader's entry of desc for objects of class `cls` (a local reference
  // the caller owns; an entry that keeps it takes it over and sets cls to
  // null).  Null when there is no room.
  Entry* seen(const RecordDesc& desc, jclass& cls);

 private:
  // Local references the walker may make besides those held here.
  static constexpr jint kSpareRefs = 32;

  // Room for one more held reference: `room` says whether its table has a
  // free place, and the JVM must agree to one more local reference.
  bool hold(bool room);
  Entry* add(const RecordDesc& desc, jclass cls, bool made);

  JNIEnv* env_;
  Lookups* outer_;
  int held_ = 0;
  int classes_ = 0;
  int entries_ = 0;
  int ids_ = 0;
  struct FieldId {
    const Field* field;
    jclass cls;
    jfieldID id;
  };
  int field_ids_ = 0;
  FieldId field_id_table_[kFieldIds];
  const char* paths_[kClasses];
  jclass class_refs_[kClasses];
  Entry entries_table_[kEntries];
  jfieldID id_pool_[kIds];
};

// What converting one tree (or several within one call) takes of a Lookups:
// every description reachable from the roots holds one entry, its class and
// its fields' IDs; a two-level table also holds its row array class, and
// two-level int tables share "[I".  Descriptions reached only through a
// custom converter's own code (one that names no `elem`) are not seen.
// Classes are counted per description, so two descriptions of one class
// count twice (an upper bound: the table compares paths by address).
struct LookupNeed {
  int classes = 0;
  int entries = 0;
  int ids = 0;
  int field_ids = 0;  // fields of custom converters (Lookups::field_id)
  bool counted = true;  // false: more descriptions than the count can follow

  constexpr bool fits() const {
    return counted && classes <= Lookups::kClasses && entries <= Lookups::kEntries && ids <= Lookups::kIds &&
           field_ids <= Lookups::kFieldIds;
  }
};

namespace detail {
struct NeedCount {
  static constexpr int kMax = 512;
  const RecordDesc* descs[kMax] = {};
  const RecordDesc* rows[kMax] = {};
  int n = 0;
  int n_rows = 0;
  bool int_rows = false;
  LookupNeed need;

  static constexpr bool has(const RecordDesc* const* list, int n, const RecordDesc* d) {
    for (int i = 0; i < n; ++i) {
      if (list[i] == d) return true;
    }
    return false;
  }

  constexpr void visit(const RecordDesc& d) {
    if (has(descs, n, &d)) return;
    if (n == kMax) {
      need.counted = false;
      return;
    }
    descs[n++] = &d;
    need.entries += 1;
    need.classes += 1;
    need.ids += static_cast<int>(d.field_count);
    for (uint32_t i = 0; i < d.field_count; ++i) {
      const Field& f = d.fields[i];
      if (f.kind == Kind::Ints2 && !int_rows) {
        int_rows = true;
        need.classes += 1;
      }
      if (f.kind == Kind::Records2 && !has(rows, n_rows, f.elem) && n_rows < kMax) {
        rows[n_rows++] = f.elem;
        need.classes += 1;
      }
      if (f.kind == Kind::Custom && f.elem == nullptr) need.field_ids += 1;
      if (f.elem != nullptr) visit(*f.elem);
    }
  }
};
}  // namespace detail

// The need of the trees below `roots`, converted within one call in one
// direction (a reader's entries and a writer's do not share: add the needs).
template <typename... Descs>
constexpr LookupNeed lookup_need(const Descs&... roots) {
  detail::NeedCount count;
  (count.visit(roots), ...);
  return count.need;
}

constexpr LookupNeed operator+(LookupNeed a, LookupNeed b) {
  return {a.classes + b.classes, a.entries + b.entries, a.ids + b.ids, a.field_ids + b.field_ids,
          a.counted && b.counted};
}

// Runs fn(Lookups&) with the call's Lookups, or with one of its own while no
// call has one.
template <typename Fn>
auto with_lookups(JNIEnv* env, Fn&& fn) -> decltype(fn(*Lookups::active())) {
  if (Lookups* lookups = Lookups::active()) return fn(*lookups);
  // Out of line, so that a call that has its Lookups does not reserve stack
  // for a second one.
  return [&]() __attribute__((noinline)) {
    Lookups own(env);
    return fn(own);
  }();
}

}  // namespace kx
