// Natives of kxbench.HandJni: the benchmark's trees built (and its input
// record read) by hand-written JNI code, the reference the bridge is measured
// against.  Written as careful code for one native would be: every class,
// constructor and field looked up once per call, local references deleted
// inside the loops, failures checked where they can happen.  Test-only; never
// in the product.
//
// `lax` drops what the bridge's contract adds to plain JNI code: for the
// builders, the fflush(stdout) before each record; for the reader, looking
// each element's fields up by the element's own class (the lax reader uses
// the IDs of the first element for all of them).
#include <jni.h>

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstring>

namespace {

int32_t int_at(const uint8_t* p) {
  int32_t v;
  std::memcpy(&v, p, sizeof v);
  return v;
}

// The bytes of a Java byte[] (at most n), zero-filled past its end.
struct Bytes {
  Bytes(JNIEnv* env, jbyteArray arr, size_t n) : data(new uint8_t[n]()) {
    jsize len = env->GetArrayLength(arr);
    env->GetByteArrayRegion(arr, 0, len < static_cast<jsize>(n) ? len : static_cast<jsize>(n),
                            reinterpret_cast<jbyte*>(data));
  }
  ~Bytes() { delete[] data; }
  Bytes(const Bytes&) = delete;
  Bytes& operator=(const Bytes&) = delete;
  uint8_t* data;
};

// A record class whose first N fields are ints stored as N consecutive int32.
template <size_t N>
struct IntRecord {
  jclass cls = nullptr;
  jmethodID ctor = nullptr;
  jfieldID id[N] = {};

  bool load(JNIEnv* env, const char* path, const char* const (&names)[N]) {
    cls = env->FindClass(path);
    if (cls == nullptr) return false;
    ctor = env->GetMethodID(cls, "<init>", "()V");
    if (ctor == nullptr) return false;
    for (size_t i = 0; i < N; ++i) {
      id[i] = env->GetFieldID(cls, names[i], "I");
      if (id[i] == nullptr) return false;
    }
    return true;
  }

  jobject make(JNIEnv* env, const uint8_t* p, bool lax) const {
    if (!lax) std::fflush(stdout);
    jobject o = env->NewObject(cls, ctor);
    if (o == nullptr) return nullptr;
    for (size_t i = 0; i < N; ++i) env->SetIntField(o, id[i], int_at(p + 4 * i));
    return o;
  }

  jobjectArray list(JNIEnv* env, const uint8_t* p, jsize count, size_t stride, bool lax) const {
    jobjectArray arr = env->NewObjectArray(count, cls, nullptr);
    if (arr == nullptr) return nullptr;
    for (jsize i = 0; i < count; ++i) {
      jobject o = make(env, p + static_cast<size_t>(i) * stride, lax);
      if (o == nullptr) {
        env->DeleteLocalRef(arr);
        return nullptr;
      }
      env->SetObjectArrayElement(arr, i, o);
      env->DeleteLocalRef(o);
    }
    return arr;
  }
};

constexpr const char* kLogicalUnit[] = {
    "luNumber", "rgNumber", "raid_level", "staging", "capacity", "befor_lun", "cachepart_no",
    "pair_cachepart_valid", "pair_cachepart_no", "current_cachepart_no", "stripe", "lu_use_type",
    "defaultCTL", "currentCTL", "status", "hostblock", "lu_valid", "qf_status", "correction_status",
    "rg_last_lu", "unit_type", "unit_type_sub_code"};
constexpr const char* kAreaInfo[] = {"areakind", "lun", "befor_lun", "area_capa_h", "area_capa_l"};
constexpr const char* kRgDetail[] = {
    "valid_index", "rgnum", "level", "start_unit_no", "start_hdu_no", "parity_hdu_count", "parity_count",
    "minimum_capa", "total_capa_h", "total_capa_l", "rest_capa_h", "rest_capa_l", "rg_type"};
constexpr const char* kRgDriveInfo[] = {"valid_index", "next_unit_no", "next_hdu_no", "paritygroup_no"};
constexpr const char* kSpinRg[] = {"rgnum", "rg_power_saving_status", "rg_power_saving", "spin_down_count",
                                   "spin_error"};
constexpr const char* kSpinLu[] = {"lun", "lu_power_saving", "lu_power_saving_detail"};
constexpr const char* kCreateRg[] = {"create_mode", "rgnum", "level", "drive_type", "drive_capa",
                                     "parity_hdu_count", "parity_count"};
constexpr const char* kCreateRgDrive[] = {"unit_no", "hdu_no"};

#define PKG "orvane/str/diskarray/"

bool set_object(JNIEnv* env, jobject obj, jclass cls, const char* name, const char* sig, jobject value) {
  jfieldID id = env->GetFieldID(cls, name, sig);
  if (id == nullptr) return false;
  env->SetObjectField(obj, id, value);
  return true;
}

}  // namespace

#define HAND(ret, name) extern "C" JNIEXPORT ret JNICALL Java_kxbench_HandJni_##name

HAND(jobject, logicalUnits)(JNIEnv* env, jclass, jbyteArray bytes, jboolean lax) {
  Bytes b(env, bytes, 4096 * 88);
  IntRecord<22> lu;
  if (!lu.load(env, PKG "LogicalUnit", kLogicalUnit)) return nullptr;
  return lu.list(env, b.data, 4096, 88, lax);
}

HAND(jobject, areaInformation)(JNIEnv* env, jclass, jbyteArray bytes, jboolean lax) {
  Bytes b(env, bytes, 163872);
  IntRecord<3> info;
  IntRecord<5> area;
  const char* const top[] = {"rgnum", "lumaxcapa", "area_count"};
  if (!info.load(env, PKG "RGAreaInformation", top) || !area.load(env, PKG "AreaInfo", kAreaInfo)) return nullptr;
  jobject obj = info.make(env, b.data, lax);
  if (obj == nullptr) return nullptr;
  jobjectArray arr = area.list(env, b.data + 12, 8193, 20, lax);
  if (arr == nullptr || !set_object(env, obj, info.cls, "area", "[L" PKG "AreaInfo;", arr)) return nullptr;
  env->DeleteLocalRef(arr);
  return obj;
}

HAND(jobject, raidGroupInformation)(JNIEnv* env, jclass, jbyteArray bytes, jboolean lax) {
  Bytes b(env, bytes, 11884);
  IntRecord<1> info;
  IntRecord<13> rg;
  IntRecord<4> drv;
  const char* const top[] = {"rg_count"};
  if (!info.load(env, PKG "RaidGroupInformation", top) || !rg.load(env, PKG "RgDetail", kRgDetail) ||
      !drv.load(env, PKG "RgDriveInfo", kRgDriveInfo)) {
    return nullptr;
  }
  jobject obj = info.make(env, b.data, lax);
  if (obj == nullptr) return nullptr;
  jobjectArray groups = rg.list(env, b.data + 4, 90, 52, lax);
  if (groups == nullptr || !set_object(env, obj, info.cls, "rg", "[L" PKG "RgDetail;", groups)) return nullptr;
  env->DeleteLocalRef(groups);
  jclass row_class = env->FindClass("[L" PKG "RgDriveInfo;");
  if (row_class == nullptr) return nullptr;
  jobjectArray rows = env->NewObjectArray(30, row_class, nullptr);
  if (rows == nullptr) return nullptr;
  for (jsize r = 0; r < 30; ++r) {
    jobjectArray row = drv.list(env, b.data + 4684 + static_cast<size_t>(r) * 240, 15, 16, lax);
    if (row == nullptr) return nullptr;
    env->SetObjectArrayElement(rows, r, row);
    env->DeleteLocalRef(row);
  }
  if (!set_object(env, obj, info.cls, "rgdrv", "[[L" PKG "RgDriveInfo;", rows)) return nullptr;
  env->DeleteLocalRef(rows);
  return obj;
}

HAND(jobject, spinDownUp)(JNIEnv* env, jclass, jbyteArray bytes, jboolean lax) {
  Bytes b(env, bytes, 50964);
  IntRecord<2> info;
  IntRecord<5> rg;
  IntRecord<3> lu;
  const char* const top[] = {"option", "rg_count"};
  if (!info.load(env, PKG "SpinDownUpInformation", top) || !rg.load(env, PKG "SpinDownUpRGInfo", kSpinRg) ||
      !lu.load(env, PKG "SpinDownUpLuInfo", kSpinLu)) {
    return nullptr;
  }
  jobject obj = info.make(env, b.data, lax);
  if (obj == nullptr) return nullptr;
  jobjectArray groups = rg.list(env, b.data + 8, 90, 20, lax);
  if (groups == nullptr || !set_object(env, obj, info.cls, "rg", "[L" PKG "SpinDownUpRGInfo;", groups)) {
    return nullptr;
  }
  env->DeleteLocalRef(groups);
  jfieldID lu_count = env->GetFieldID(info.cls, "lu_count", "I");
  if (lu_count == nullptr) return nullptr;
  env->SetIntField(obj, lu_count, int_at(b.data + 1808));
  jobjectArray lus = lu.list(env, b.data + 1812, 4096, 12, lax);
  if (lus == nullptr || !set_object(env, obj, info.cls, "lu", "[L" PKG "SpinDownUpLuInfo;", lus)) return nullptr;
  env->DeleteLocalRef(lus);
  return obj;
}

// The 3628-byte record of a RAID group to create, read from its Java object.
HAND(jbyteArray, createRaidGroup)(JNIEnv* env, jclass, jobject create, jboolean lax) {
  uint8_t rec[3628] = {};
  jclass cls = env->GetObjectClass(create);
  jfieldID top[7];
  for (size_t i = 0; i < 7; ++i) {
    top[i] = env->GetFieldID(cls, kCreateRg[i], "I");
    if (top[i] == nullptr) return nullptr;
  }
  jfieldID drives_id = env->GetFieldID(cls, "rgdrv", "[L" PKG "CreateRgDrive;");
  if (drives_id == nullptr) return nullptr;
  for (size_t i = 0; i < 7; ++i) {
    int32_t v = env->GetIntField(create, top[i]);
    std::memcpy(rec + 4 * i, &v, 4);
  }
  auto drives = static_cast<jobjectArray>(env->GetObjectField(create, drives_id));
  if (drives != nullptr) {
    jsize n = env->GetArrayLength(drives);
    if (n > 450) n = 450;
    jclass known = nullptr;
    jfieldID id[2] = {};
    for (jsize i = 0; i < n; ++i) {
      jobject d = env->GetObjectArrayElement(drives, i);
      if (d == nullptr) continue;
      // The fields of the element's own class: looked up again when it is
      // not the class seen before (the lax reader skips the test).
      jclass dc = (lax && known != nullptr) ? nullptr : env->GetObjectClass(d);
      if (dc != nullptr && (known == nullptr || !env->IsSameObject(dc, known))) {
        for (size_t k = 0; k < 2; ++k) {
          id[k] = env->GetFieldID(dc, kCreateRgDrive[k], "I");
          if (id[k] == nullptr) return nullptr;
        }
        if (known != nullptr) env->DeleteLocalRef(known);
        known = dc;
      } else if (dc != nullptr) {
        env->DeleteLocalRef(dc);
      }
      for (size_t k = 0; k < 2; ++k) {
        int32_t v = env->GetIntField(d, id[k]);
        std::memcpy(rec + 28 + 8 * static_cast<size_t>(i) + 4 * k, &v, 4);
      }
      env->DeleteLocalRef(d);
    }
    if (known != nullptr) env->DeleteLocalRef(known);
    env->DeleteLocalRef(drives);
  }
  jbyteArray out = env->NewByteArray(sizeof rec);
  if (out == nullptr) return nullptr;
  env->SetByteArrayRegion(out, 0, sizeof rec, reinterpret_cast<const jbyte*>(rec));
  return out;
}
