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
// Room is fixed: 48 classes, 48 record entries, 1024 field IDs, all in the
// object itself (no allocation).  Past that, the walker looks the rest up by
// name at every use, as the accessors do, so the references held stay
// bounded however many classes a tree holds; EnsureLocalCapacity is asked for
// each reference kept, with room to spare for the walker's own.
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
  // holds the class of an object it was given, which may be a subclass.
  struct Entry {
    const RecordDesc* desc;
    jclass cls;        // held for the call (writers share it with the class table)
    jmethodID ctor;    // writers: "<init>" "()V", resolved at the first object
    jfieldID* ids;     // one per field of desc, null until first used
    bool made;         // a writer's entry
  };

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
  // there is no room (the caller then looks everything up by name).
  Entry* made(const RecordDesc& desc);

  // The reader's entry of desc for objects of class `cls` (a local reference
  // the caller owns; an entry that keeps it takes it over and sets cls to
  // null).  Null when there is no room.
  Entry* seen(const RecordDesc& desc, jclass& cls);

 private:
  static constexpr int kClasses = 48;
  static constexpr int kEntries = 48;
  static constexpr int kIds = 1024;
  // Local references the walker may make besides those held here.
  static constexpr jint kSpareRefs = 32;

  bool hold();  // room for one more held reference
  Entry* add(const RecordDesc& desc, jclass cls, bool made);

  JNIEnv* env_;
  Lookups* outer_;
  int held_ = 0;
  int classes_ = 0;
  int entries_ = 0;
  int ids_ = 0;
  const char* paths_[kClasses];
  jclass class_refs_[kClasses];
  Entry entries_table_[kEntries];
  jfieldID id_pool_[kIds];
};

// write_record for callers that keep track of pending exceptions: `clean`
// says on entry whether the caller knows that none is pending, and on return
// whether the walker knows that none is (when false, ask the JVM).
// `lookups` is the call's (Lookups::active() or one of the caller's own).
jobject write_record(Lookups& lookups, JNIEnv* env, const RecordDesc& desc, const void* rec, bool& clean);

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
