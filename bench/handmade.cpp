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

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <string>
#include <vector>

namespace {

int32_t int_at(const uint8_t* p) {
  int32_t v;
  std::memcpy(&v, p, sizeof v);
  return v;
}

// The bytes of a Java byte[] (at most n), zero-filled past its end; all zero
// for a null array.
struct Bytes {
  Bytes(JNIEnv* env, jbyteArray arr, size_t n) : data(new uint8_t[n]()) {
    if (arr == nullptr) return;
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

// The int fields `names` of at most `capacity` elements of arr (the array
// reference deleted here) into consecutive slots of `stride` bytes at dst;
// a null element is skipped.  Each element's fields are looked up by its own
// class when it is not the class seen before (lax: the first element's IDs
// for all).  False when a field cannot be found.
template <size_t N>
bool int_elements(JNIEnv* env, jobjectArray arr, jsize capacity, const char* const (&names)[N], uint8_t* dst,
                  size_t stride, bool lax) {
  jsize n = std::min(env->GetArrayLength(arr), capacity);
  jclass known = nullptr;
  jfieldID id[N] = {};
  for (jsize i = 0; i < n; ++i) {
    jobject e = env->GetObjectArrayElement(arr, i);
    if (e == nullptr) continue;
    jclass ec = (lax && known != nullptr) ? nullptr : env->GetObjectClass(e);
    if (ec != nullptr && (known == nullptr || !env->IsSameObject(ec, known))) {
      for (size_t k = 0; k < N; ++k) {
        id[k] = env->GetFieldID(ec, names[k], "I");
        if (id[k] == nullptr) return false;
      }
      if (known != nullptr) env->DeleteLocalRef(known);
      known = ec;
    } else if (ec != nullptr) {
      env->DeleteLocalRef(ec);
    }
    for (size_t k = 0; k < N; ++k) {
      int32_t v = env->GetIntField(e, id[k]);
      std::memcpy(dst + stride * static_cast<size_t>(i) + 4 * k, &v, 4);
    }
    env->DeleteLocalRef(e);
  }
  if (known != nullptr) env->DeleteLocalRef(known);
  env->DeleteLocalRef(arr);
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
  if (drives != nullptr && !int_elements(env, drives, 450, kCreateRgDrive, rec + 28, 8, lax)) return nullptr;
  jbyteArray out = env->NewByteArray(sizeof rec);
  if (out == nullptr) return nullptr;
  env->SetByteArrayRegion(out, 0, sizeof rec, reinterpret_cast<const jbyte*>(rec));
  return out;
}

namespace {
constexpr const char* kPoolDetail[] = {"pool_no", "poolcapa_h", "poolcapa_l"};
constexpr const char* kPairLu[] = {"lun", "capacity", "pool_usedcapa_h", "pool_usedcapa_l", "pool_usedrate",
                                   "mirror_count"};
constexpr const char* kMirrorLu[] = {"mirror_no", "lun", "ctl_no", "pool_no", "pair_status", "usedcapa",
                                     "changed_rate"};
constexpr const char* kPairTime[] = {"year", "month", "day", "hour", "minute", "second"};

// A new object of rec made from p and set into obj through field id; false when it fails.
template <size_t N>
bool set_made(JNIEnv* env, jobject obj, jfieldID id, const IntRecord<N>& rec, const uint8_t* p, bool lax) {
  jobject o = rec.make(env, p, lax);
  if (o == nullptr) return false;
  env->SetObjectField(obj, id, o);
  env->DeleteLocalRef(o);
  return true;
}
}  // namespace

// Copy pairs: 2 controllers' pool capacities and 2046 LUs of 15 mirrors each,
// every mirror with its creation time (about 63,000 objects).
HAND(jobject, pairInformation)(JNIEnv* env, jclass, jbyteArray bytes, jboolean lax) {
  Bytes b(env, bytes, 1645024);
  IntRecord<1> info, ctl;
  IntRecord<3> pool;
  IntRecord<6> lu, time;
  IntRecord<7> mirror;
  const char* const top[] = {"option"};
  const char* const ctl_names[] = {"pool_enable_count"};
  if (!info.load(env, PKG "PairInfo", top) || !ctl.load(env, PKG "PoolCtlCapa", ctl_names) ||
      !pool.load(env, PKG "PoolDetailCapa", kPoolDetail) || !lu.load(env, PKG "PairLUInfo", kPairLu) ||
      !mirror.load(env, PKG "MirrorLUInfo", kMirrorLu) || !time.load(env, PKG "PairCreateTime", kPairTime)) {
    return nullptr;
  }
  jfieldID ctl_id = env->GetFieldID(info.cls, "ctl", "[L" PKG "PoolCtlCapa;");
  jfieldID count_id = env->GetFieldID(info.cls, "pair_count", "I");
  jfieldID lu_id = env->GetFieldID(info.cls, "lu", "[L" PKG "PairLUInfo;");
  jfieldID pool_id = env->GetFieldID(ctl.cls, "pool", "[L" PKG "PoolDetailCapa;");
  jfieldID m_info_id = env->GetFieldID(lu.cls, "m_info", "[L" PKG "MirrorLUInfo;");
  jfieldID time_id = env->GetFieldID(mirror.cls, "time", "L" PKG "PairCreateTime;");
  if (!ctl_id || !count_id || !lu_id || !pool_id || !m_info_id || !time_id) return nullptr;

  jobject obj = info.make(env, b.data, lax);
  if (obj == nullptr) return nullptr;
  jobjectArray ctls = env->NewObjectArray(2, ctl.cls, nullptr);
  if (ctls == nullptr) return nullptr;
  for (jsize c = 0; c < 2; ++c) {
    const uint8_t* p = b.data + 4 + 16 * static_cast<size_t>(c);
    jobject co = ctl.make(env, p, lax);
    if (co == nullptr) return nullptr;
    jobjectArray pools = pool.list(env, p + 4, 1, 12, lax);
    if (pools == nullptr) return nullptr;
    env->SetObjectField(co, pool_id, pools);
    env->DeleteLocalRef(pools);
    env->SetObjectArrayElement(ctls, c, co);
    env->DeleteLocalRef(co);
  }
  env->SetObjectField(obj, ctl_id, ctls);
  env->DeleteLocalRef(ctls);
  env->SetIntField(obj, count_id, int_at(b.data + 36));

  jobjectArray lus = env->NewObjectArray(2046, lu.cls, nullptr);
  if (lus == nullptr) return nullptr;
  for (jsize i = 0; i < 2046; ++i) {
    const uint8_t* p = b.data + 40 + 804 * static_cast<size_t>(i);
    jobject lo = lu.make(env, p, lax);
    if (lo == nullptr) return nullptr;
    jobjectArray mirrors = env->NewObjectArray(15, mirror.cls, nullptr);
    if (mirrors == nullptr) return nullptr;
    for (jsize m = 0; m < 15; ++m) {
      const uint8_t* q = p + 24 + 52 * static_cast<size_t>(m);
      jobject mo = mirror.make(env, q, lax);
      if (mo == nullptr || !set_made(env, mo, time_id, time, q + 28, lax)) return nullptr;
      env->SetObjectArrayElement(mirrors, m, mo);
      env->DeleteLocalRef(mo);
    }
    env->SetObjectField(lo, m_info_id, mirrors);
    env->DeleteLocalRef(mirrors);
    env->SetObjectArrayElement(lus, i, lo);
    env->DeleteLocalRef(lo);
  }
  env->SetObjectField(obj, lu_id, lus);
  env->DeleteLocalRef(lus);
  return obj;
}

// ------------------------------------------------------------ planned floors
//
// kxbench.Planned hands over a layout read from the Java classes by
// reflection; the code below resolves every class, constructor and field ID
// of it once per call and then builds the tree as the hand-written floors do:
// fflush before each record (unless lax), local references deleted as it goes.

namespace {

enum PlanKind { kInt, kInts, kInts2, kRecord, kRecords, kRecords2, kRate, kBytes, kText, kSByte, kUByte, kSkip };

struct PlanField {
  int kind, count, columns, elem;
  jfieldID id;
  jclass row_class;  // two-level tables: the class of a row (an array)
};

struct PlanClass {
  jclass cls = nullptr;
  jmethodID ctor = nullptr;
  int size = 0;
  std::vector<PlanField> fields;
};

constexpr int kMaxText = 511;  // widest text field a plan may hold

int16_t rate_short(double value) {
  double scaled = std::trunc(value * 100.0);
  int32_t whole = (scaled >= -2147483648.0 && scaled < 2147483648.0) ? static_cast<int32_t>(scaled) : INT32_MIN;
  return static_cast<int16_t>(static_cast<uint16_t>(static_cast<uint32_t>(whole) & 0xFFFFu));
}

std::string utf(JNIEnv* env, jobjectArray arr, jsize i) {
  auto s = static_cast<jstring>(env->GetObjectArrayElement(arr, i));
  const char* c = env->GetStringUTFChars(s, nullptr);
  std::string out(c);
  env->ReleaseStringUTFChars(s, c);
  env->DeleteLocalRef(s);
  return out;
}

class Plan {
 public:
  Plan(JNIEnv* env, jobjectArray flat, bool lax) : env_(env), lax_(lax) {
    auto classes = static_cast<jobjectArray>(env->GetObjectArrayElement(flat, 0));
    auto code_arr = static_cast<jintArray>(env->GetObjectArrayElement(flat, 1));
    auto names = static_cast<jobjectArray>(env->GetObjectArrayElement(flat, 2));
    auto sigs = static_cast<jobjectArray>(env->GetObjectArrayElement(flat, 3));
    std::vector<jint> code(static_cast<size_t>(env->GetArrayLength(code_arr)));
    env->GetIntArrayRegion(code_arr, 0, static_cast<jsize>(code.size()), code.data());
    jsize n = env->GetArrayLength(classes);
    // Every class and row class is held for the call.
    if (env->EnsureLocalCapacity(2 * n + static_cast<jint>(code.size()) / 4 + 16) != JNI_OK) return;
    classes_.resize(static_cast<size_t>(n));
    size_t at = 0;
    jsize name = 0;
    for (jsize i = 0; i < n; ++i) {
      PlanClass& c = classes_[static_cast<size_t>(i)];
      c.cls = env->FindClass(utf(env, classes, i).c_str());
      if (c.cls == nullptr) return;
      c.ctor = env->GetMethodID(c.cls, "<init>", "()V");
      if (c.ctor == nullptr) return;
      c.size = code[at++];
      int count = code[at++];
      for (int k = 0; k < count; ++k, ++name) {
        PlanField f{code[at], code[at + 1], code[at + 2], code[at + 3], nullptr, nullptr};
        at += 4;
        std::string sig = utf(env, sigs, name);
        if (f.kind == kText && f.count >= kMaxText) return;
        if (f.kind == kSkip) {  // reserved bytes: no field
          c.fields.push_back(f);
          continue;
        }
        f.id = env->GetFieldID(c.cls, utf(env, names, name).c_str(), sig.c_str());
        if (f.id == nullptr) return;
        if (f.kind == kInts2 || f.kind == kRecords2) {
          f.row_class = env->FindClass(sig.substr(1).c_str());
          if (f.row_class == nullptr) return;
        }
        c.fields.push_back(f);
      }
    }
    env->DeleteLocalRef(classes);
    env->DeleteLocalRef(code_arr);
    env->DeleteLocalRef(names);
    env->DeleteLocalRef(sigs);
    ok_ = true;
  }
  ~Plan() {
    for (PlanClass& c : classes_) {
      for (PlanField& f : c.fields) {
        if (f.row_class != nullptr) env_->DeleteLocalRef(f.row_class);
      }
      if (c.cls != nullptr) env_->DeleteLocalRef(c.cls);
    }
  }
  Plan(const Plan&) = delete;
  Plan& operator=(const Plan&) = delete;

  bool ok() const { return ok_; }
  const PlanClass& root() const { return classes_[0]; }

  jobject make(int index, const uint8_t* p) {
    const PlanClass& c = classes_[static_cast<size_t>(index)];
    if (!lax_) std::fflush(stdout);
    jobject o = env_->NewObject(c.cls, c.ctor);
    if (o == nullptr) return nullptr;
    for (const PlanField& f : c.fields) {
      switch (f.kind) {
        case kInt:
          env_->SetIntField(o, f.id, int_at(p));
          p += 4;
          continue;
        case kRate: {
          double v;
          std::memcpy(&v, p, sizeof v);
          env_->SetShortField(o, f.id, rate_short(v));
          p += 8;
          continue;
        }
        case kSByte:
        case kUByte:
          env_->SetIntField(o, f.id, f.kind == kSByte ? static_cast<int8_t>(*p) : *p);
          p += 1;
          continue;
        case kSkip:
          p += f.count;
          continue;
        case kText: {
          // NUL-terminated within the field, or all of its bytes.
          const char* text = reinterpret_cast<const char*>(p);
          char copy[kMaxText + 1];
          if (std::memchr(p, 0, static_cast<size_t>(f.count)) == nullptr) {
            std::memcpy(copy, p, static_cast<size_t>(f.count));
            copy[f.count] = '\0';
            text = copy;
          }
          jstring str = env_->NewStringUTF(text);
          if (str == nullptr) return nullptr;
          env_->SetObjectField(o, f.id, str);
          env_->DeleteLocalRef(str);
          p += f.count;
          continue;
        }
        case kBytes: {
          auto arr = static_cast<jbyteArray>(env_->GetObjectField(o, f.id));
          if (arr == nullptr) return nullptr;
          env_->SetByteArrayRegion(arr, 0, f.count, reinterpret_cast<const jbyte*>(p));
          env_->DeleteLocalRef(arr);
          p += f.count;
          continue;
        }
        default:
          break;
      }
      jobject value = nullptr;
      switch (f.kind) {
        case kInts:
          value = ints(p, f.count);
          p += 4 * static_cast<size_t>(f.count);
          break;
        case kInts2: {
          jobjectArray rows = env_->NewObjectArray(f.count, f.row_class, nullptr);
          if (rows == nullptr) return nullptr;
          for (jsize r = 0; r < f.count; ++r) {
            jintArray row = ints(p, f.columns);
            if (row == nullptr) return nullptr;
            p += 4 * static_cast<size_t>(f.columns);
            env_->SetObjectArrayElement(rows, r, row);
            env_->DeleteLocalRef(row);
          }
          value = rows;
          break;
        }
        case kRecord:
          value = make(f.elem, p);
          p += classes_[static_cast<size_t>(f.elem)].size;
          break;
        case kRecords:
          value = list(f.elem, p, f.count);
          p += static_cast<size_t>(f.count) * classes_[static_cast<size_t>(f.elem)].size;
          break;
        case kRecords2: {
          jobjectArray rows = env_->NewObjectArray(f.count, f.row_class, nullptr);
          if (rows == nullptr) return nullptr;
          for (jsize r = 0; r < f.count; ++r) {
            jobjectArray row = list(f.elem, p, f.columns);
            if (row == nullptr) return nullptr;
            p += static_cast<size_t>(f.columns) * classes_[static_cast<size_t>(f.elem)].size;
            env_->SetObjectArrayElement(rows, r, row);
            env_->DeleteLocalRef(row);
          }
          value = rows;
          break;
        }
      }
      if (value == nullptr) return nullptr;
      env_->SetObjectField(o, f.id, value);
      env_->DeleteLocalRef(value);
    }
    return o;
  }

  jobjectArray list(int elem, const uint8_t* p, jsize n) {
    const PlanClass& c = classes_[static_cast<size_t>(elem)];
    jobjectArray arr = env_->NewObjectArray(n, c.cls, nullptr);
    if (arr == nullptr) return nullptr;
    for (jsize i = 0; i < n; ++i) {
      jobject o = make(elem, p + static_cast<size_t>(i) * c.size);
      if (o == nullptr) return nullptr;
      env_->SetObjectArrayElement(arr, i, o);
      env_->DeleteLocalRef(o);
    }
    return arr;
  }

  // Reads o (a record of plan `index`) into the zero-filled record at p, the
  // way the bridge's reader does: a null object or array leaves its bytes
  // zero, arrays beyond the record's capacity are cut.  The plan's IDs serve
  // every element (the elements here are of the described classes).
  bool read(int index, jobject o, uint8_t* p) {
    const PlanClass& c = classes_[static_cast<size_t>(index)];
    for (const PlanField& f : c.fields) {
      size_t width = 0;
      switch (f.kind) {
        case kInt: {
          jint v = env_->GetIntField(o, f.id);
          std::memcpy(p, &v, 4);
          width = 4;
          break;
        }
        case kRate: {
          double v = env_->GetShortField(o, f.id) / 100.0;
          std::memcpy(p, &v, 8);
          width = 8;
          break;
        }
        case kSByte:
        case kUByte:
          *p = static_cast<uint8_t>(env_->GetIntField(o, f.id));
          width = 1;
          break;
        case kSkip:
          width = static_cast<size_t>(f.count);
          break;
        case kRecord:
          width = static_cast<size_t>(classes_[static_cast<size_t>(f.elem)].size);
          break;
        case kRecords:
          width = static_cast<size_t>(f.count) * classes_[static_cast<size_t>(f.elem)].size;
          break;
        case kRecords2:
          width = static_cast<size_t>(f.count) * f.columns * classes_[static_cast<size_t>(f.elem)].size;
          break;
        case kInts:
          width = 4 * static_cast<size_t>(f.count);
          break;
        case kInts2:
          width = 4 * static_cast<size_t>(f.count) * f.columns;
          break;
        default:  // kText, kBytes
          width = static_cast<size_t>(f.count);
          break;
      }
      if (f.kind == kInt || f.kind == kRate || f.kind == kSByte || f.kind == kUByte || f.kind == kSkip) {
        p += width;
        continue;
      }
      jobject v = env_->GetObjectField(o, f.id);
      if (v != nullptr && !read_value(f, v, p)) return false;
      if (v != nullptr) env_->DeleteLocalRef(v);
      p += width;
    }
    return !env_->ExceptionCheck();
  }

 private:
  bool read_value(const PlanField& f, jobject v, uint8_t* p) {
    auto cut = [this](jobject arr, int cap) { return std::min(env_->GetArrayLength(static_cast<jarray>(arr)), cap); };
    switch (f.kind) {
      case kText: {
        auto str = static_cast<jstring>(v);
        jsize n = std::min(env_->GetStringUTFLength(str), f.count - 1);
        const char* chars = env_->GetStringUTFChars(str, nullptr);
        if (chars == nullptr) return false;
        std::memcpy(p, chars, static_cast<size_t>(n));
        env_->ReleaseStringUTFChars(str, chars);
        return true;
      }
      case kBytes:
        env_->GetByteArrayRegion(static_cast<jbyteArray>(v), 0, cut(v, f.count), reinterpret_cast<jbyte*>(p));
        return true;
      case kInts:
        env_->GetIntArrayRegion(static_cast<jintArray>(v), 0, cut(v, f.count), reinterpret_cast<jint*>(p));
        return true;
      case kRecord:
        return read(f.elem, v, p);
      default:
        break;
    }
    // Tables: rows of int arrays or of records, or one row of records.
    const size_t elem_size =
        f.kind == kInts2 ? 4 : static_cast<size_t>(classes_[static_cast<size_t>(f.elem)].size);
    const int rows = f.kind == kRecords ? 1 : f.count;
    const int columns = f.kind == kRecords ? f.count : f.columns;
    const jsize n_rows = f.kind == kRecords ? 1 : cut(v, rows);
    for (jsize r = 0; r < n_rows; ++r) {
      jobject row = f.kind == kRecords ? v : env_->GetObjectArrayElement(static_cast<jobjectArray>(v), r);
      uint8_t* q = p + static_cast<size_t>(r) * columns * elem_size;
      if (row != nullptr && f.kind == kInts2) {
        env_->GetIntArrayRegion(static_cast<jintArray>(row), 0, cut(row, columns), reinterpret_cast<jint*>(q));
      } else if (row != nullptr) {
        jsize n = cut(row, columns);
        for (jsize i = 0; i < n; ++i) {
          jobject e = env_->GetObjectArrayElement(static_cast<jobjectArray>(row), i);
          if (e != nullptr && !read(f.elem, e, q + static_cast<size_t>(i) * elem_size)) return false;
          if (e != nullptr) env_->DeleteLocalRef(e);
        }
      }
      if (row != nullptr && row != v) env_->DeleteLocalRef(row);
    }
    return true;
  }

  jintArray ints(const uint8_t* p, jsize n) {
    jintArray arr = env_->NewIntArray(n);
    if (arr != nullptr) env_->SetIntArrayRegion(arr, 0, n, reinterpret_cast<const jint*>(p));
    return arr;
  }

  JNIEnv* env_;
  bool lax_;
  bool ok_ = false;
  std::vector<PlanClass> classes_;
};

}  // namespace

// The tree of plan 0 built from `bytes`; copies > 0: an array of that many,
// from consecutive records (zero past the end of bytes).
HAND(jobject, planned)(JNIEnv* env, jclass, jobjectArray plan, jbyteArray bytes, jint copies, jboolean lax) {
  Plan p(env, plan, lax);
  if (!p.ok()) return nullptr;
  size_t need = static_cast<size_t>(p.root().size) * static_cast<size_t>(copies > 0 ? copies : 1);
  size_t have = static_cast<size_t>(env->GetArrayLength(bytes));
  Bytes b(env, bytes, need > have ? need : have);
  return copies > 0 ? p.list(0, b.data, copies) : p.make(0, b.data);
}

// Reads `obj` with plan (kxbench.Planned) into a zero-filled record of the
// plan's size; the record's bytes when `give` (to check the reader), else an
// empty array.
HAND(jbyteArray, plannedRead)(JNIEnv* env, jclass, jobjectArray plan, jobject obj, jboolean give) {
  Plan p(env, plan, true);
  if (!p.ok()) return nullptr;
  const auto size = static_cast<size_t>(p.root().size);
  Bytes rec(env, nullptr, size);
  if (obj != nullptr && !p.read(0, obj, rec.data)) return nullptr;
  jbyteArray out = env->NewByteArray(give ? static_cast<jsize>(size) : 0);
  if (out != nullptr && give) env->SetByteArrayRegion(out, 0, static_cast<jsize>(size), reinterpret_cast<jbyte*>(rec.data));
  return out;
}

// The 24572-byte request of up to 2047 migration pairs, read from its Java
// object; each element's fields looked up by the element's own class when it
// is not the class seen before (lax: the first element's IDs for all).
HAND(jbyteArray, startLuMigration)(JNIEnv* env, jclass, jobject request, jboolean lax) {
  constexpr size_t kSize = 24572;
  constexpr const char* kPair[] = {"pvol_lun", "svol_lun", "copying_pace"};
  Bytes rec(env, nullptr, kSize);
  jclass cls = env->GetObjectClass(request);
  jfieldID count_id = env->GetFieldID(cls, "request_pair_count", "I");
  jfieldID owner_id = env->GetFieldID(cls, "owner_id", "I");
  jfieldID lu_id = env->GetFieldID(cls, "lu", "[L" PKG "LuMigrationRequestPairInfo;");
  env->DeleteLocalRef(cls);
  if (count_id == nullptr || owner_id == nullptr || lu_id == nullptr) return nullptr;
  int32_t top[2] = {env->GetIntField(request, count_id), env->GetIntField(request, owner_id)};
  std::memcpy(rec.data, top, sizeof top);
  auto pairs = static_cast<jobjectArray>(env->GetObjectField(request, lu_id));
  if (pairs != nullptr && !int_elements(env, pairs, 2047, kPair, rec.data + 8, 12, lax)) return nullptr;
  jbyteArray out = env->NewByteArray(kSize);
  if (out == nullptr) return nullptr;
  env->SetByteArrayRegion(out, 0, kSize, reinterpret_cast<const jbyte*>(rec.data));
  return out;
}
