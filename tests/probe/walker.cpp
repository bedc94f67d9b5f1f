// Test-only natives of kxtest.CoreProbe that run the record walker inside one
// call's lookups, as kx::call does, optionally with the lookups filled up first
// so that every class and field goes the by-name way instead.
#include <jni.h>

#include <cstdint>
#include <cstring>
#include <vector>

#include "core/jni_refs.h"
#include "core/lookups.h"
#include "core/record.h"
#include "raid.h"

namespace {

// A row whose description names a field, `gone`, that its Java class lacks.
struct RowRec {
  int32_t a;
  char s[8];
  int32_t gone;
};
struct RowFields {
  using kx_rec_t = RowRec;
  static constexpr kx::Field list[] = {KX_INT(a), KX_STRING(s), KX_INT(gone)};
};
#define ROW_CLASS "kxtest/CallLookupsTest$Row"
constexpr kx::Desc<RowRec> kRow{{ROW_CLASS, "L" ROW_CLASS ";", "[L" ROW_CLASS ";", "[[L" ROW_CLASS ";",
                                 sizeof(RowRec), RowFields::list, 3, false}};

struct TableRec {
  RowRec rows[4096];
};
struct TableFields {
  using kx_rec_t = TableRec;
  static constexpr kx::Field list[] = {KX_RECORDS(rows, kRow)};
};
#define TABLE_CLASS "kxtest/CallLookupsTest$Table"
constexpr kx::Desc<TableRec> kTable{{TABLE_CLASS, "L" TABLE_CLASS ";", "[L" TABLE_CLASS ";",
                                     "[[L" TABLE_CLASS ";", sizeof(TableRec), TableFields::list, 1, false}};

}  // namespace

// The RAID group report (as raid/records.h describes it): records, an array
// of them and a 30 x 15 table of them, every one flushing stdout.
KX_RECORD(RgDetail, RgDetailRec,
          KX_INT(valid_index), KX_INT(rgnum), KX_INT(level), KX_INT(start_unit_no),
          KX_INT(start_hdu_no), KX_INT(parity_hdu_count), KX_INT(parity_count),
          KX_INT(minimum_capa), KX_INT(total_capa_h), KX_INT(total_capa_l), KX_INT(rest_capa_h),
          KX_INT(rest_capa_l), KX_INT(rg_type));
KX_RECORD(RgDriveInfo, RgDriveInfoRec,
          KX_INT(valid_index), KX_INT(next_unit_no), KX_INT(next_hdu_no), KX_INT(paritygroup_no));
KX_RECORD(RaidGroupInformation, RaidGroupInformationRec,
          KX_INT(rg_count),
          KX_RECORDS(rg, kx::rec::RgDetail),
          KX_RECORDS2(rgdrv, kx::rec::RgDriveInfo));

namespace {

// Takes every place of the lookups: later classes and descriptions find no
// room and are looked up by name at each use, as the helpers do.
class Stuffing {
 public:
  Stuffing(JNIEnv* env, kx::Lookups& lookups) : descs_(kx::Lookups::kEntries, kRow) {
    for (auto& d : descs_) {
      jclass unheld = nullptr;
      lookups.made(d, unheld);
      if (unheld != nullptr) env->DeleteLocalRef(unheld);
    }
    for (int i = 0; i < kx::Lookups::kClasses; ++i) {
      std::strcpy(paths_[i], "java/lang/Object");
      bool held = false;
      jclass cls = lookups.find(paths_[i], held);
      if (cls != nullptr && !held) env->DeleteLocalRef(cls);
    }
  }

 private:
  std::vector<kx::RecordDesc> descs_;
  char paths_[kx::Lookups::kClasses][20];
};

// Runs fn with the call's lookups, stuffed first when asked.
template <typename Fn>
auto in_call(JNIEnv* env, jboolean stuffed, Fn fn) {
  kx::Lookups lookups(env);
  if (!stuffed) return fn();
  Stuffing stuffing(env, lookups);
  return fn();
}

}  // namespace

#define PROBE(ret, name) extern "C" JNIEXPORT ret JNICALL Java_kxtest_CoreProbe_##name

// Reads a CallLookupsTest.Table into dst (the C table's bytes); the status is
// returned and whatever exception the walker left pending is thrown after
// the bytes are copied back.
PROBE(jint, readRows)(JNIEnv* env, jclass, jobject table, jboolean stuffed, jbyteArray dst) {
  std::vector<TableRec> rec(1);
  std::memset(rec.data(), 0, sizeof(TableRec));
  jint rc = in_call(env, stuffed, [&] { return kx::read_record(env, table, kTable, rec.data()); });
  kx::LocalRef<jthrowable> error(env, env->ExceptionOccurred());
  env->ExceptionClear();
  env->SetByteArrayRegion(dst, 0, static_cast<jsize>(sizeof(TableRec)), reinterpret_cast<const jbyte*>(rec.data()));
  if (error) env->Throw(error.get());
  return rc;
}

// Builds the RAID group report from `bytes` twice within one call.
PROBE(jobjectArray, writeGroupsTwice)(JNIEnv* env, jclass, jbyteArray bytes, jboolean stuffed) {
  std::vector<uint8_t> rec(sizeof(RaidGroupInformationRec));
  env->GetByteArrayRegion(bytes, 0, static_cast<jsize>(rec.size()), reinterpret_cast<jbyte*>(rec.data()));
  const auto* info = reinterpret_cast<const RaidGroupInformationRec*>(rec.data());
  return in_call(env, stuffed, [&]() -> jobjectArray {
    kx::LocalRef<jobject> first(env, kx::write_record(env, kx::rec::RaidGroupInformation, info));
    kx::LocalRef<jobject> second(env, kx::write_record(env, kx::rec::RaidGroupInformation, info));
    if (!first || !second || env->ExceptionCheck()) return nullptr;
    kx::LocalRef<jclass> object(env, env->FindClass("java/lang/Object"));
    if (!object) return nullptr;
    jobjectArray both = env->NewObjectArray(2, object.get(), nullptr);
    if (both == nullptr) return nullptr;
    env->SetObjectArrayElement(both, 0, first.get());
    env->SetObjectArrayElement(both, 1, second.get());
    return both;
  });
}
