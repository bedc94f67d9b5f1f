#!/usr/bin/env python3
"""Fault planting: applies one fault of the list below at a time to the source
tree, builds the x86-64 test bridge and suites, runs the x86-64 JVM legs,
records which tests failed and restores the file.  Never commit while it runs.

  python3 tests/tools/mutants.py [ID ...]     (default: every fault)

A fault is (id, file, text, replacement, what a caller would see); the text
must occur exactly once.  Results go to stdout and build/host/mutants.jsonl;
each run's logs to build/host/mutants/.  A fault that "survives" is either
caught by no test (strengthen the suite) or cannot be seen by a Java caller
or the array library (say why beside it)."""
import json, os, re, subprocess, sys, time

ROOT = os.path.abspath(os.path.join(os.path.dirname(__file__), "..", ".."))

MUTANTS = [
 ("F1", "session/login.cpp", "  call(env, KX_KeepSession, Unit(unit)", "  call(env, kNoFlush, KX_KeepSession, Unit(unit)", "session: KeepSession no longer flushes on entry"),
 ("F2", "raid/lu_cache.cpp", "call(env, kNoFlush, KX_GetTurboLU,", "call(env, KX_GetTurboLU,", "lu cache: GetTurboLU flushes though it must not"),
 ("F3", "session/login.cpp", "jobject user) {\n  std::fflush(stdout);\n", "jobject user) {\n", "session: LoginKXUnit entry flush removed"),
 ("F4", "raid/records.h", "KX_RECORD_NO_FLUSH(TurboLu_info,", "KX_RECORD(TurboLu_info,", "lu cache: TurboLu_info writer flushes"),
 ("F5", "account/users.cpp", "  if (rc != kOk && rc != -1) errorThrow(env, rc);\n  std::fflush(stdout);\n", "  if (rc != kOk && rc != -1) errorThrow(env, rc);\n", "account: PasswdCheck success flush removed"),
 ("Z1", "core/memory.cpp", "if (block != nullptr) std::memset(block, 0, bytes);", "(void)0;", "core: allocations not zero-filled"),
 ("Z2", "raid/table_kinds.h", "  R rec{};\n  using result_type = jobject;", "  R rec;\n  using result_type = jobject;", "pools/lu cache: in-frame output record not cleared"),
 ("Z3", "session/login.cpp", "KXLoginResultRec answer{};", "KXLoginResultRec answer;", "session: login answer not cleared"),
 ("Z4", "perf/kinds.h", "char text[kLinkedTextSize] = {};", "char text[kLinkedTextSize];", "perf: linked text buffer not cleared"),
 ("C1", "session/records.h", "KX_UNCHECKED(KX_BYTES(session_id))", "KX_BYTES(session_id)", "session: session id checked"),
 ("C2", "account/records.h", "          KX_INT(modify_session));", "          KX_UNCHECKED(KX_INT(modify_session)));", "account: last field of KXAccountInfo unchecked"),
 ("C3", "replication/records.h", "KX_UNCHECKED(KX_CUSTOM(sequence_no, kx::read_sequence_no, kx::write_sequence_no))", "KX_CUSTOM(sequence_no, kx::read_sequence_no, kx::write_sequence_no)", "replication: sequence_no checked"),
 ("C4", "firmware/records.h", "KX_STRING(rev_rtr), KX_STRING(rev_ses));", "KX_STRING(rev_rtr), KX_CHECKED(KX_STRING(rev_ses)));", "firmware: ENCRevision last string checked"),
 ("C5", "core/record.cpp", "if (rc != kOk && f.checked) return nullptr;", "if (rc != kOk) return nullptr;", "core: every field checked"),
 ("R1", "core/record.cpp", "if (!nested) return kNullRecord;", "if (!nested) return kOk;", "core: reader goes on after a null nested record"),
 ("R2", "core/record.cpp", "      if (!arr) return kNullRecord;\n      return read_elements", "      if (!arr) return kOk;\n      return read_elements", "core: reader goes on after a null record array"),
 ("R3", "perf/fields.cpp", "if (!arr) return pending(env) ? kMarshal : kNullRecord;", "if (!arr) return pending(env) ? kMarshal : kOk;", "perf: linked array reader goes on after null"),
 ("R4", "host/records.h", "          KX_BYTE(lun_manage),\n          KX_RECORDS(ctl, kx::rec::WWNHGCtlInfo));", "          KX_RECORDS(ctl, kx::rec::WWNHGCtlInfo),\n          KX_BYTE(lun_manage));", "fibre: WWNHGInformation reads ctl before lun_manage"),
 ("R5", "raid/records.h", "          KX_INT(pre_std),\n          KX_RECORDS(lu_range, rec::PrefetchTuningLURange),", "          KX_RECORDS(lu_range, rec::PrefetchTuningLURange),\n          KX_INT(pre_std),", "lu cache: PrefetchTuning pre_std after lu_range"),
 ("N1", "account/users.cpp", "UnitUnchecked(unit),\n              CharsUnchecked", "Unit(unit),\n              CharsUnchecked", "account: FibreInfoPermissionImport refuses a null unit"),
 ("N2", "host/fibre.cpp", "Path(file), ctl, SecondController<TargetIdRec>{ctl});", "CharsUnchecked<PERNIX_PATH_SIZE>(file), ctl, SecondController<TargetIdRec>{ctl});", "fibre: TargetIdImport no longer refuses a null file"),
 ("N3", "firmware/enclosure.cpp", "  bool missing_after_prepare() const { return str == nullptr; }", "  bool missing_after_prepare() const { return false; }", "firmware: ENC concat null path goes on"),
 ("A1", "core/native.h", "    return list_of(env, desc, table.get(), length, end);", "    jobjectArray arr = list_of(env, desc, table.get(), length, end);\n    if (arr == nullptr) code = kMarshal;\n    return arr;", "counted lists: an array that cannot be made reported 2817"),
 ("A2", "raid/table_kinds.h", "      code = kMarshal;\n      return nullptr;\n    }\n    return arr.release();", "      code = kNoMemory;\n      return nullptr;\n    }\n    return arr.release();", "pools: RaidLuImport failure reported 65535"),
 ("A3", "perf/kinds.h", "  jobjectArray convert(JNIEnv* env, int&) {\n    LocalRef<jobjectArray> arr(env, new_object_array(env, desc.cls, kControllers));\n    if (!arr) return nullptr;", "  jobjectArray convert(JNIEnv* env, int& code) {\n    LocalRef<jobjectArray> arr(env, new_object_array(env, desc.cls, kControllers));\n    if (!arr) { code = kMarshal; return nullptr; }", "perf: per-controller array failure reported 2817"),
 ("A4", "session/units.cpp", "if (!units) rc = kNullRecord;", "if (!units) rc = kMarshal;", "session: unit table array failure reported 2817 instead of -1"),
 ("A5", "host/host_groups.cpp", "    LocalRef<jobject> table(env, write_record(env, rec::LuMappingHGInfo, &lu));\n    if (!table) return nullptr;", "    LocalRef<jobject> table(env, write_record(env, rec::LuMappingHGInfo, &lu));\n    if (!table) { code = kMarshal; return nullptr; }", "groups: LU mapping table failure reported"),
 ("W1", "account/login.cpp", "Out(rec::AlertCheckUser, true)", "Out(rec::AlertCheckUser)", "account: alert-check user not wiped"),
 ("W2", "host/iscsi.cpp", "Secret(port, rec::KXiSCSICHAPUserPortInfo)", "In(port, rec::KXiSCSICHAPUserPortInfo)", "iSCSI: CHAP port info not wiped"),
 ("W3", "core/memory.cpp", "    std::memset(block, 0, bytes);\n", "    std::memset(block, 0, bytes - 1);\n", "core: wipe misses the last byte"),
 ("S1", "include/host.h", "typedef struct FibreInformationSecurityRec {\n  int8_t access_guard;\n  int8_t all_lun_security;", "typedef struct FibreInformationSecurityRec {\n  int8_t access_guard;\n  uint8_t all_lun_security;", "fibre: all_lun_security zero-extended"),
 ("S2", "include/raid.h", "  int8_t board_type;\n  uint8_t rate;", "  uint8_t board_type;\n  uint8_t rate;", "wizard: board_type zero-extended"),
 ("S3", "perf/kinds.h", "static constexpr size_t kLimit = 4;", "static constexpr size_t kLimit = 5;", "perf: short path copy limit 5"),
 ("S4", "replication/pairs.cpp", "constexpr size_t kSequenceNoLimit = 5;", "constexpr size_t kSequenceNoLimit = 6;", "replication: sequence_no read limit 6"),
 ("S5", "raid/wizard.cpp", "std::memcpy(copy.get(), text, f.count);", "std::memcpy(copy.get(), text, f.count - 1);", "wizard: long text cut one byte short"),
 ("S6", "firmware/microcode.cpp", "size_t len = strnlen(buf, sizeof buf);", "size_t len = strnlen(buf, sizeof buf - 1);", "firmware: revision cut one byte short"),
 ("S7", "include/host.h", "  int32_t permission_count;\n  int32_t security_chk_lv;\n  FibreInformationPermissionRec permission[PERNIX_FC_PERMISSIONS];", "  int32_t security_chk_lv;\n  int32_t permission_count;\n  FibreInformationPermissionRec permission[PERNIX_FC_PERMISSIONS];", "fibre: two members swapped"),
 ("S8", "core/record.cpp", "               : f.kind == Kind::SByte ? static_cast<int8_t>(*src)", "               : f.kind == Kind::SByte ? static_cast<uint8_t>(*src)", "core: writer zero-extends signed bytes"),
 ("S9", "host/lu_guard.cpp", "Session(session), a, b);\n}\n\nKX_NATIVE(void, SetExpirationLock", "Session(session), b, a);\n}\n\nKX_NATIVE(void, SetExpirationLock", "LU guard: ExtendRetentionTerm ints swapped"),
 ("L1", "raid/wizard.cpp", "  Block copy(1, f.count + 1);\n  if (!copy) return kMarshal;\n  std::memcpy(copy.get(), text, f.count);\n  return jni_set_string(env, obj, f.name, static_cast<const char*>(copy.get()));", "  void* copy = kx::allocate(1, f.count + 1);\n  if (copy == nullptr) return kMarshal;\n  std::memcpy(copy, text, f.count);\n  int rc = jni_set_string(env, obj, f.name, static_cast<const char*>(copy));\n  if (rc == kOk) kx::release(copy, f.count + 1, false);\n  return rc;", "wizard: long-text copy leaked when the field cannot be set"),
 ("L2", "session/units.cpp", "  std::fflush(stdout);\n  params.reset();", "  std::fflush(stdout);\n  if (rc != kOk) kx::release(params.get(), params.bytes(), false);\n  params.reset();", "session: unit table released twice on library failure"),
 ("L3", "perf/kinds.h", "          if (n == kMaxLinks) return false;\n          links[n] = Block(1, f.elem->size);", "          if (n == kMaxLinks) return false;\n          if (n == 1) { void* leak = kx::allocate(1, 8); (void)leak; }\n          links[n] = Block(1, f.elem->size);", "perf: a block leaked when preparing the second link"),
 ("E1", "core/errors.cpp", "\"java/lang/OutofMemoryError\"", "\"java/lang/OutOfMemoryError\"", "core: OOM class name corrected"),
 ("E2", "core/record.cpp", "for (uint32_t i = 0; i < std::min(length, capacity); ++i) {\n    // An element", "for (uint32_t i = 0; i < std::min(length, capacity - 1); ++i) {\n    // An element", "core: record arrays read one short of capacity"),
 ("E3", "core/record.cpp", "        if (!row) continue;", "        if (!row) return kNullRecord;", "core: null row of a 2-level record array ends reading"),
 ("E4", "replication/records.h", "KX_INT(usedcapa), KX_INT(changed_rate), KX_NESTED(time, kx::rec::PairCreateTime));", "KX_INT(changed_rate), KX_INT(usedcapa), KX_NESTED(time, kx::rec::PairCreateTime));", "replication: two int fields read in another order"),
 ("G1", "host/records.h", "          KX_INT(option),\n          KX_INT(expirationlock),\n          KX_RECORDS(lu, kx::rec::LuGuard));", "          KX_INT(option),\n          KX_UNCHECKED(KX_INT(expirationlock)),\n          KX_RECORDS(lu, kx::rec::LuGuard));", "LU guard: expirationlock unchecked"),
 ("P1", "raid/records.h", "PoolLuAddListRec,\n          KX_INT(lu_count),\n          KX_INTS(lu));", "PoolLuAddListRec,\n          KX_INTS(lu),\n          KX_INT(lu_count));", "pools: PoolLuAddList reads lu before lu_count"),
 ("L4", "core/native.h", "  LocalRef<jobjectArray> arr(env, new_object_array(env, desc.cls, n));\n  if (!arr) return nullptr;", "  LocalRef<jobjectArray> arr(env, new_object_array(env, desc.cls, n));\n  if (!arr) { (void)kx::allocate(1, 8); return nullptr; }", "lists: a block leaked when the array cannot be made"),
 ("W4", "core/memory.cpp", "  if (wipe) {\n", "  if (wipe && bytes < 4096) {\n", "core: large secret records released unwiped"),
 ("F6", "raid/format.cpp", "call(env, kNoFlush,", "call(env,", "raid: a no-flush format native flushes"),
 ("C6", "account/records.h", "KX_RECORDS(account_info, rec::KXAccountInfo));", "KX_UNCHECKED(KX_RECORDS(account_info, rec::KXAccountInfo)));", "account: last field of KXAccountInfoList unchecked"),
 ("C7", "replication/records.h", "KX_INT(valid), KX_STRING(equipment_id), KX_STRING(serial));", "KX_INT(valid), KX_STRING(equipment_id), KX_CHECKED(KX_STRING(serial)));", "replication: remote device serial checked"),
 ("E5", "replication/records.h", "KX_INTS(valid), KX_INTS(lu),", "KX_INTS(lu), KX_INTS(valid),", "replication: CommandDevice reads lu before valid"),
 ("N4", "firmware/enclosure.cpp", "call(env, KX_BootOptionExport, Unit(unit), Session(session), Path(path));", "call(env, KX_BootOptionExport, Unit(unit), Session(session), CharsUnchecked<PERNIX_PATH_SIZE>(path));", "firmware: BootOptionExport no longer refuses a null path"),
 ("N5", "replication/pairs.cpp", "call(env, KX_SetDMLU, Unit(unit)", "call(env, KX_SetDMLU, UnitUnchecked(unit)", "replication: SetDMLU no longer refuses a null unit"),
 ("F7", "replication/pairs.cpp", "call(env, KX_SplitMirrexPair,", "call(env, kNoFlush, KX_SplitMirrexPair,", "replication: SplitMirrexPair no longer flushes"),
 ("F8", "firmware/enclosure.cpp", "call(env, KX_CancelENCMicroFileConcat);", "call(env, kNoFlush, KX_CancelENCMicroFileConcat);", "firmware: CancelENCMicroFileConcat no longer flushes"),
 ("A6", "core/record.cpp", "  if (arr == nullptr) w.clean = false;\n  return arr;", "  return arr;", "core: a record array the JVM could not make leaves its error unseen"),
 ("S10", "include/session.h", "  int8_t kx_type;\n  uint8_t device_type;\n  int8_t unit_conf;", "  uint8_t kx_type;\n  uint8_t device_type;\n  int8_t unit_conf;", "session: a unit's kx_type zero-extended"),
 ("S11", "include/host.h", "  int8_t lun_security;\n  uint8_t reserved1[3];", "  uint8_t lun_security;\n  uint8_t reserved1[3];", "fibre: lun_security zero-extended"),
 ("S12", "include/raid.h", "  int8_t single;\n  uint8_t multi[16];\n  WZTargetLunListRec", "  uint8_t single;\n  uint8_t multi[16];\n  WZTargetLunListRec", "wizard: target single zero-extended"),
 ("C8", "firmware/records.h", "KX_STRING(vendor), KX_STRING(product), KX_STRING(rom_micro)", "KX_STRING(vendor), KX_CHECKED(KX_STRING(product)), KX_STRING(rom_micro)", "firmware: BootOption's product (not its last String) checked"),
 ("E6", "firmware/records.h", "KX_INT(startup_attr), KX_INT(data_share),", "KX_INT(data_share), KX_INT(startup_attr),", "firmware: BootOption reads data_share before startup_attr"),
 ("E7", "session/records.h", "          KX_STRING(unit_name),\n          KX_STRING(group_name),", "          KX_STRING(group_name),\n          KX_STRING(unit_name),", "session: KXUnitParam reads group_name before unit_name"),
 ("K1", "core/native.h", "  if (count < 0) return -1;", "  if (count < 0) return 0;", "counted lists: a negative count answers an empty array"),
 ("K2", "core/native.h", " : static_cast<jsize>(capacity);", " : static_cast<jsize>(capacity - 1);", "counted lists: a count at or past the table drops its last record"),
 ("K3", "core/native.h", "    if (length < 0) {\n      code = kMarshal;\n", "    if (length < 0) {\n      (void)code;\n", "counted lists: a negative count answers null quietly"),
 ("K4", "core/native.h", "  if (count < 0) return -1;\n  return static_cast<size_t>(count) < capacity", "  return static_cast<size_t>(count) < capacity", "counted lists: a negative count converts the whole table"),
]


# Known survivors and why:
#   L1, S5  the long-text writer: no native builds an LuWZSetContents, so no
#           caller can see it.
#   R3      the graph request's linked array is its last field and a linked
#           request's status is not looked at: nothing changes.
#   C2, C4  a field of a class that is only ever nested in another: whether
#           its failure drops its own object or leaves the JVM's error pending,
#           the field that holds the object fails alike.
#   E4      two ints of a result record set in another order: the object is
#           whole either way, and a missing field drops it or not by its own
#           kind (the order of a reader is another matter: E5-E7).
#   A6      every record array a description holds is a field whose failure
#           drops its object, so the walker stops there whatever it believes
#           of the pending error (kept: a later unchecked array would show it).
#   (C8, E6 and E7 are caught only by the missing-field test.  C3 and G1 no
#   caller can see either: a checked field after them drops the object
#   whatever they are, as the missing-field test finds; the writer-unchecked
#   leg fails on them only because its classes, derived from the descriptions
#   at build time, no longer match its committed expect.tsv.)

def sh(cmd, log):
    with open(log, "w") as f:
        return subprocess.run(cmd, shell=True, cwd=ROOT, stdout=f, stderr=subprocess.STDOUT).returncode


def main(selected):
    logs = os.path.join(ROOT, "build", "host", "mutants")
    os.makedirs(logs, exist_ok=True)
    for mid, path, old, new, what in MUTANTS:
        if selected and mid not in selected:
            continue
        full = os.path.join(ROOT, path)
        src = open(full).read()
        if src.count(old) != 1:
            print(f"{mid}: text found {src.count(old)} times in {path}", flush=True)
            continue
        open(full, "w").write(src.replace(old, new))
        t0 = time.time()
        try:
            blog, tlog = os.path.join(logs, mid + ".build.log"), os.path.join(logs, mid + ".test.log")
            if sh("cmake --build build/host -j2 --target bridge kx_test_classes", blog) != 0:
                out = {"id": mid, "status": "build-failed"}
            else:
                sh("ctest --test-dir build/host -R '^jvm' -E 'i386|asan' -j2 --output-on-failure", tlog)
                text = open(tlog, errors="replace").read()
                legs = re.findall(r"Test\s+#\d+: (\S+) \.+\*+Failed", text)
                tests = sorted(set(re.findall(r"^\d+\) (\S+\(kxtest\.\S+\))", text, re.M)))
                out = {"id": mid, "status": "caught" if legs else "SURVIVED", "legs": legs, "tests": tests}
        finally:
            open(full, "w").write(src)
        out["what"] = what
        out["secs"] = round(time.time() - t0)
        print(json.dumps(out), flush=True)
        with open(os.path.join(ROOT, "build", "host", "mutants.jsonl"), "a") as f:
            f.write(json.dumps(out) + "\n")
    # Leave the build as the sources are.
    sh("cmake --build build/host -j2 --target bridge kx_test_classes", os.path.join(logs, "restore.build.log"))


if __name__ == "__main__":
    main(sys.argv[1:])
