// Copy pairs, command devices, DMLUs, the remote array and volume migration,
// called straight into the library.  Pairs are made the way a host makes
// them, through the model's pair commands on the same database.
#include <memory>
#include <string>
#include <vector>

#include "raid.h"
#include "replication.h"
#include "session_support.h"
#include "sim/core/call.h"
#include "sim/model/replication.h"

namespace {

using namespace t;

// LUs 0..7 of the default array: 100 GB each, LU n in RAID group n mod 2.
constexpr int64_t kLuBlocks = 195312500;

int pair(const std::vector<std::string>& words) {
  try {
    sim::Db& db = sim::Db::open();
    sim::Tx tx(db, sim::Tx::kWrite);
    sim::pair_command(db, sim::clock_now(db), words);
    tx.commit();
    return 0;
  } catch (const sim::Error& e) {
    return e.code;
  }
}

int set_dmlu(const KXSessionInfoRec& s, int lun) {
  DMLUInformationRec d{};
  d.dmlu_count = lun >= 0 ? 1 : 0;
  d.dmlu[0] = {lun >= 0 ? 1 : 0, 1, lun};
  d.dmlu[1] = {0, 0, -1};
  return KX_SetDMLU(kUnit, &s, &d);
}

int add_lu(const KXSessionInfoRec& s, int number, int blocks) {
  LogicalUnitRec lu{};
  lu.luNumber = number;
  lu.rgNumber = 0;
  lu.capacity = blocks;
  return KX_LogicalUnitAdd(kUnit, &s, &lu);
}

void roles_and_refusals() {
  fresh_db("roles");
  KXSessionInfoRec s = admin();
  CHECK_EQ(pair({"create", "mirror", "0", "1"}), kBusy);  // no DMLU yet
  DMLUInformationRec d{};
  CHECK_EQ(KX_GetDMLU(kUnit, &s, &d), 0);
  CHECK_EQ(d.dmlu_count, 0);
  CHECK_EQ(d.dmlu[0].dmlu_lu, -1);
  CHECK_EQ(set_dmlu(s, 99), kNoSuchObject);
  d = DMLUInformationRec{};
  d.dmlu_count = 2;  // one slot only is valid
  d.dmlu[0] = {1, 1, 7};
  d.dmlu[1] = {0, 0, -1};
  CHECK_EQ(KX_SetDMLU(kUnit, &s, &d), kBadParameter);
  d.dmlu_count = 1;
  d.mode = 1;
  CHECK_EQ(KX_SetDMLU(kUnit, &s, &d), 0);
  DMLUInformationRec back{};
  CHECK_EQ(KX_GetDMLU(kUnit, &s, &back), 0);
  CHECK(std::memcmp(&back, &d, sizeof d) == 0);
  CHECK_EQ(KX_LogicalUnitDeleteByLUN(kUnit, &s, 7), kBusy);  // held

  // Command devices: existing LUs, not a DMLU, counted right.
  CommandDeviceRec c{};
  CHECK_EQ(KX_GetCommandDevice(kUnit, &s, &c), 0);
  CHECK_EQ(c.cmd_count, 0);
  CHECK_EQ(c.cmddev[1].cmd_lu, -1);
  c.cmd_count = 1;
  c.cmddev[0] = {1, 1, 7, 0};
  CHECK_EQ(KX_SetCommandDevice(kUnit, &s, &c), kBusy);  // LU 7 is the DMLU
  c.cmddev[0] = {1, 1, 3, 1};
  put(c.sequence_no, "ABCDE");
  CHECK_EQ(KX_SetCommandDevice(kUnit, &s, &c), kBadParameter);  // five characters
  put(c.sequence_no, "AB12");
  c.cmd_count = 2;
  CHECK_EQ(KX_SetCommandDevice(kUnit, &s, &c), kBadParameter);
  c.cmd_count = 1;
  CHECK_EQ(KX_SetCommandDevice(kUnit, &s, &c), 0);
  CommandDeviceRec cb{};
  CHECK_EQ(KX_GetCommandDevice(kUnit, &s, &cb), 0);
  CHECK(std::memcmp(&cb, &c, sizeof c) == 0);
  CHECK_EQ(KX_LogicalUnitDeleteByLUN(kUnit, &s, 3), kBusy);
  CHECK_EQ(pair({"create", "mirror", "0", "3"}), kBusy);  // a command device is no secondary
  // Moving the command device frees LU 3.
  c.cmddev[0].cmd_lu = 4;
  CHECK_EQ(KX_SetCommandDevice(kUnit, &s, &c), 0);
  CHECK_EQ(KX_LogicalUnitDeleteByLUN(kUnit, &s, 3), 0);

  // Sizes must match: smaller and larger secondaries.
  CHECK_EQ(add_lu(s, 20, 1000), 0);
  CHECK_EQ(add_lu(s, 21, static_cast<int>(kLuBlocks + 1)), 0);
  CHECK_EQ(pair({"create", "mirror", "0", "20"}), kCapacity);
  CHECK_EQ(pair({"create", "mirror", "0", "21"}), kBadParameter);
  CHECK_EQ(pair({"create", "mirror", "0", "0"}), kBadParameter);
  CHECK_EQ(pair({"create", "mirror", "0", "99"}), kNoSuchObject);
  // An LU guarded against becoming a secondary.
  CHECK_EQ(KX_SetSvolDisableMode(kUnit, &s, 5, 1), 0);
  CHECK_EQ(pair({"create", "mirror", "0", "5"}), kBusy);
  CHECK_EQ(KX_SetSvolDisableMode(kUnit, &s, 5, 2), kBadParameter);
  CHECK_EQ(KX_SetSvolDisableMode(kUnit, &s, 99, 1), kNoSuchObject);
  CHECK_EQ(KX_SetSvolDisableMode(kUnit, &s, 5, 0), 0);
  CHECK_EQ(pair({"create", "mirror", "0", "5"}), 0);
  CHECK_EQ(KX_SetSvolDisableMode(kUnit, &s, 5, 1), kBusy);  // it is one now
  // The DMLU cannot go while a pair needs it; deleting the pair frees both.
  CHECK_EQ(set_dmlu(s, -1), kBusy);
  CHECK_EQ(KX_LogicalUnitDeleteByLUN(kUnit, &s, 5), kBusy);
  CHECK_EQ(pair({"delete", "mirror", "5"}), 0);
  CHECK_EQ(set_dmlu(s, -1), 0);
  CHECK_EQ(KX_LogicalUnitDeleteByLUN(kUnit, &s, 5), 0);
  CHECK_EQ(KX_LogicalUnitDeleteByLUN(kUnit, &s, 7), 0);

  // A monitor may read, not change.
  CHECK_EQ(create_account(s, "watcher", "watcher-pw-1", 2), 0);
  KXSessionInfoRec m{};
  CHECK_EQ(login("watcher", "watcher-pw-1", &m), 0);
  CHECK_EQ(set_dmlu(m, 6), kPermission);
  CHECK_EQ(KX_GetDMLU(kUnit, &m, &d), 0);
}

void mirror_progress() {
  fresh_db("mirror");
  KXSessionInfoRec s = admin();
  CHECK_EQ(unit_login(kAdmin, kAdminPassword), 0);
  CHECK_EQ(set_dmlu(s, 7), 0);
  CHECK_EQ(pair({"create", "mirror", "0", "1"}), 0);
  CHECK_EQ(pair({"create", "mirror", "0", "2"}), 0);
  CHECK_EQ(pair({"create", "mirror", "1", "3"}), kBusy);  // LU 1 is a secondary
  CHECK_EQ(pair({"create", "mirror", "4", "2"}), kBusy);  // LU 2 is taken
  // 100 GB at 400 MB/s: 250 s.
  step_clock(125);
  auto info = std::make_unique<PairInfoRec>();
  CHECK_EQ(KX_GetPairInformation(kUnit, &s, info.get()), 0);
  CHECK_EQ(info->pair_count, 1);
  CHECK_EQ(info->lu[0].lun, 0);
  CHECK_EQ(info->lu[0].mirror_count, 2);
  CHECK_EQ(info->lu[0].m_info[1].lun, 2);
  CHECK_EQ(info->lu[0].m_info[1].mirror_no, 1);
  CHECK_EQ(info->lu[0].m_info[0].pair_status, 1);
  int rate = info->lu[0].m_info[0].changed_rate;
  CHECK(rate >= 49 && rate <= 51);
  CHECK_EQ(KX_SplitMirrexPair(kUnit, 1), kBusy);  // still copying
  CHECK_EQ(KX_SplitMirrexPair(kUnit, 0), kNoSuchObject);  // LU 0 is a primary
  step_clock(130);
  auto mx = std::make_unique<MirrexInformationRec>();
  CHECK_EQ(KX_GetMirrexInformation(kUnit, mx.get()), 0);
  CHECK_EQ(mx->pair_count, 4);  // LU 0 twice, LUs 1 and 2
  CHECK_EQ(mx->lu[0].lun, 0);
  CHECK_EQ(mx->lu[0].pair_status, 2);
  CHECK_EQ(mx->lu[0].changed_rate, 0);
  CHECK_EQ(mx->lu[2].lun, 1);
  CHECK_EQ(mx->lu[2].pair_attr, 1);
  CHECK_EQ(std::string(mx->lu[2].remote_ldev), std::string("0"));
  CHECK_EQ(KX_SplitMirrexPair(kUnit, 1), 0);
  CHECK_EQ(KX_SplitMirrexPair(kUnit, 1), kBusy);
  auto cp = std::make_unique<CouplingInfoRec>();
  CHECK_EQ(KX_GetCouplingInfo(kUnit, &s, cp.get()), 0);
  CHECK_EQ(cp->coupling_num, 2);
  CHECK_EQ(cp->coupling[0].second_lu, 1);
  CHECK_EQ(cp->coupling[0].primary_stat, 3);
  CHECK_EQ(cp->coupling[1].primary_stat, 2);
  // A resync copies the differences again, then the pair is in step.
  CHECK_EQ(pair({"resync", "mirror", "1"}), 0);
  CHECK_EQ(KX_GetCouplingInfo(kUnit, &s, cp.get()), 0);
  CHECK_EQ(cp->coupling[0].primary_stat, 1);
  step_clock(3);
  CHECK_EQ(KX_GetCouplingInfo(kUnit, &s, cp.get()), 0);
  CHECK_EQ(cp->coupling[0].primary_stat, 2);
  CHECK_EQ(KX_LogicalUnitDeleteByLUN(kUnit, &s, 1), kBusy);
}

void remote_pairs() {
  fresh_db("remote");
  KXSessionInfoRec s = admin();
  CHECK_EQ(set_dmlu(s, 7), 0);
  CHECK_EQ(pair({"create", "sync", "0", "10"}), kBusy);  // no remote array known
  RemoteDeviceInformationRec r{};
  r.valid = 1;
  put(r.equipment_id, "PX");
  CHECK_EQ(KX_SetRemoteDeviceInformation(kUnit, &s, &r), kBadParameter);  // no serial
  put(r.serial, "93000099");
  CHECK_EQ(KX_SetRemoteDeviceInformation(kUnit, &s, &r), 0);
  RemoteDeviceInformationRec rb{};
  CHECK_EQ(KX_GetRemoteDeviceInformation(kUnit, &s, &rb), 0);
  CHECK(std::memcmp(&rb, &r, sizeof r) == 0);

  CHECK_EQ(pair({"create", "sync", "0", "10"}), 0);
  CHECK_EQ(pair({"create", "sync", "1", "10"}), kExists);  // remote LU 10 is taken
  CHECK_EQ(pair({"create", "async", "1", "11", "16"}), kBadParameter);
  CHECK_EQ(pair({"create", "async", "1", "11", "3"}), 0);
  CHECK_EQ(pair({"create", "async", "2", "12", "3"}), 0);
  CHECK_EQ(KX_SetRemoteDeviceInformation(kUnit, &s, &rb), 0);  // unchanged is fine
  put(rb.serial, "93000100");
  CHECK_EQ(KX_SetRemoteDeviceInformation(kUnit, &s, &rb), kBusy);

  FarsyncAsyncOptionRec o{};
  CHECK_EQ(KX_GetFarsyncAsyncOption(kUnit, &s, &o), 0);
  CHECK_EQ(o.cycle_time, 300);
  o.cycle_time = 20;
  CHECK_EQ(KX_SetFarsyncAsyncOption(kUnit, &s, &o), kBadParameter);
  o.cycle_time = 60;
  CHECK_EQ(KX_SetFarsyncAsyncOption(kUnit, &s, &o), 0);
  FarsyncAsyncOptionRec ob{};
  CHECK_EQ(KX_GetFarsyncAsyncOption(kUnit, &s, &ob), 0);
  CHECK(std::memcmp(&ob, &o, sizeof o) == 0);

  // 100 GB over 100 MB/s: 1000 s.
  step_clock(500);
  auto fs = std::make_unique<FarsyncPairInformationRec>();
  CHECK_EQ(KX_GetFarsyncPairInformation(kUnit, &s, fs.get()), 0);
  CHECK_EQ(fs->pair_count, 1);
  CHECK_EQ(fs->lu[0].lun, 0);
  CHECK_EQ(fs->lu[0].remote_lu, 10);
  CHECK_EQ(std::string(fs->lu[0].remote_serial), std::string("93000099"));
  CHECK_EQ(fs->lu[0].pair_status, 1);
  auto as = std::make_unique<FarsyncAsyncPairInformationRec>();
  CHECK_EQ(KX_GetFarsyncAsyncPairInformation(kUnit, &s, as.get()), 0);
  CHECK_EQ(as->pair_count, 2);
  CHECK_EQ(as->lu[0].ctg_num, 3);
  CHECK(as->lu[0].synchronized_rate >= 49 && as->lu[0].synchronized_rate <= 50);  // 1001 s in all
  CHECK_EQ(as->ctg[3].ctl[0].ctg_valid, 1);
  CHECK_EQ(as->ctg[3].ctl[1].prediction_status, 1);
  CHECK_EQ(as->ctg[3].ctl[0].prediction_time.minute, 8);  // 500 s left
  CHECK_EQ(as->ctg[2].ctl[0].ctg_valid, 0);
  CHECK_EQ(pair({"split", "async", "1"}), kBusy);
  step_clock(530);  // about 30 s past the copy
  CHECK_EQ(KX_GetFarsyncAsyncPairInformation(kUnit, &s, as.get()), 0);
  CHECK_EQ(as->lu[0].pair_status, 2);
  CHECK_EQ(as->lu[0].difference_rate, 0);
  CHECK(as->ctg[3].ctl[0].lapsed_time.second >= 29 && as->ctg[3].ctl[0].lapsed_time.second <= 31);
  // Splitting one member splits its consistency group.
  CHECK_EQ(pair({"split", "async", "1"}), 0);
  CHECK_EQ(KX_GetFarsyncAsyncPairInformation(kUnit, &s, as.get()), 0);
  CHECK_EQ(as->lu[0].pair_status, 3);
  CHECK_EQ(as->lu[1].pair_status, 3);
}

std::vector<int> states(const KXSessionInfoRec& s) {
  auto st = std::make_unique<LuMigrationStateRec>();
  CHECK_EQ(KX_GetLuMigrationState(kUnit, &s, st.get()), 0);
  return std::vector<int>(st->lun, st->lun + 10);
}

int request(int (*fn)(const char*, const KXSessionInfoRec*, const RequestLuMigrationRec*),
            const KXSessionInfoRec& s, int pvol, int svol, int pace, int owner = 5) {
  auto r = std::make_unique<RequestLuMigrationRec>();
  r->request_pair_count = 1;
  r->owner_id = owner;
  r->lu[0] = {pvol, svol, pace};
  return fn(kUnit, &s, r.get());
}

int reserve(const KXSessionInfoRec& s, int lun, bool add = true) {
  auto r = std::make_unique<LuMigrationReserveLURec>();
  r->reserve_lu[lun] = 1;
  return add ? KX_AddLuMigrationReserveLU(kUnit, &s, r.get()) : KX_DeleteLuMigrationReserveLU(kUnit, &s, r.get());
}

void migration() {
  fresh_db("migration");
  KXSessionInfoRec s = admin();
  CHECK_EQ(reserve(s, 5), 0);
  CHECK_EQ(reserve(s, 5), kExists);
  CHECK_EQ(reserve(s, 99), kNoSuchObject);
  CHECK_EQ(request(KX_StartLuMigration, s, 6, 5, 1), kBusy);  // no DMLU
  CHECK_EQ(set_dmlu(s, 7), 0);
  CHECK_EQ(reserve(s, 7), kBusy);
  CHECK_EQ(add_lu(s, 20, 1000), 0);
  CHECK_EQ(reserve(s, 20), 0);
  CHECK_EQ(request(KX_StartLuMigration, s, 6, 20, 1), kCapacity);  // smaller
  CHECK_EQ(request(KX_StartLuMigration, s, 6, 4, 1), kBusy);       // not reserved
  CHECK_EQ(request(KX_StartLuMigration, s, 6, 5, 3), kBadParameter);
  CHECK_EQ(request(KX_StartLuMigration, s, 6, 5, 1), 0);
  CHECK_EQ(request(KX_StartLuMigration, s, 4, 5, 1), kBusy);  // LU 5 is a target already
  CHECK_EQ(reserve(s, 5, false), kBusy);
  CHECK_EQ(KX_LogicalUnitDeleteByLUN(kUnit, &s, 6), kBusy);
  auto st = states(s);
  CHECK_EQ(st[6], 2);
  CHECK_EQ(st[5], 4);
  CHECK_EQ(st[4], 0);

  // Normal pace, 400 MB/s: half of 100 GB after 125 s; then fast (1 GB/s)
  // for the other half: 50 s more.
  step_clock(125);
  auto info = std::make_unique<LuMigrationInformationRec>();
  CHECK_EQ(KX_GetLuMigrationInformation(kUnit, &s, info.get()), 0);
  CHECK_EQ(info->reserve_lu_count, 2);
  CHECK_EQ(info->pair_lu_count, 1);
  CHECK_EQ(info->reserve_lu[0].lun, 5);
  CHECK_EQ(info->reserve_lu[0].lu_state, 1);
  CHECK_EQ(info->reserve_lu[1].lu_state, 0);
  CHECK_EQ(info->pair_lu[0].pvol_rg_num, 0);
  CHECK_EQ(info->pair_lu[0].svol_rg_num, 1);
  CHECK_EQ(info->pair_lu[0].percent, 50);
  CHECK_EQ(info->pair_lu[0].migration_state, 1);
  CHECK_EQ(info->pair_lu[0].owner_id, 5);
  CHECK_EQ(info->pair_lu[1].pvol_lun, -1);
  CHECK_EQ(request(KX_SplitLuMigration, s, 6, 5, 1), kBusy);  // still copying
  CHECK_EQ(request(KX_ChangeCopyPace, s, 6, 5, 2, 9), kBusy);  // another owner
  CHECK_EQ(request(KX_ChangeCopyPace, s, 6, 4, 2), kBadParameter);
  CHECK_EQ(request(KX_ChangeCopyPace, s, 6, 5, 2), 0);
  step_clock(49);
  CHECK_EQ(KX_GetLuMigrationInformation(kUnit, &s, info.get()), 0);
  CHECK_EQ(info->pair_lu[0].percent, 99);
  CHECK_EQ(info->pair_lu[0].copying_pace, 2);
  step_clock(1);
  CHECK_EQ(states(s)[6], 3);
  CHECK_EQ(request(KX_SplitLuMigration, s, 6, 5, 1, 9), kBusy);  // another owner
  CHECK_EQ(request(KX_SplitLuMigrationFreeOwner, s, 6, 5, 1, 9), 0);
  // LU 6 now lies where LU 5 lay; LU 5 stays reserved.
  LogicalUnitRec lu{};
  CHECK_EQ(KX_GetLogicalUnit1(kUnit, &s, 6, &lu), 0);
  CHECK_EQ(lu.rgNumber, 1);
  CHECK_EQ(KX_GetLogicalUnit1(kUnit, &s, 5, &lu), 0);
  CHECK_EQ(lu.rgNumber, 0);
  st = states(s);
  CHECK_EQ(st[6], 0);
  CHECK_EQ(st[5], 1);
  CHECK_EQ(KX_LogicalUnitDeleteByLUN(kUnit, &s, 6), 0);

  // Cancelling leaves both LUs where they were.
  CHECK_EQ(request(KX_StartLuMigration, s, 4, 5, 0), 0);
  CHECK_EQ(request(KX_CancelLuMigration, s, 3, 5, 0), kNoSuchObject);
  CHECK_EQ(request(KX_CancelLuMigration, s, 4, 5, 0), 0);
  CHECK_EQ(KX_GetLogicalUnit1(kUnit, &s, 4, &lu), 0);
  CHECK_EQ(lu.rgNumber, 0);
  CHECK_EQ(reserve(s, 5, false), 0);
  CHECK_EQ(reserve(s, 5, false), kNoSuchObject);
  CHECK_EQ(states(s)[5], 0);

  // Request records out of range.
  auto r = std::make_unique<RequestLuMigrationRec>();
  r->request_pair_count = 0;
  CHECK_EQ(KX_StartLuMigration(kUnit, &s, r.get()), kBadParameter);
  r->request_pair_count = 2048;
  CHECK_EQ(KX_StartLuMigration(kUnit, &s, r.get()), kBadParameter);
  r->request_pair_count = 2;
  r->lu[0] = {4, 20, 1};
  r->lu[1] = {4, 20, 1};
  CHECK_EQ(KX_StartLuMigration(kUnit, &s, r.get()), kBadParameter);
  auto flags = std::make_unique<LuMigrationReserveLURec>();
  CHECK_EQ(KX_AddLuMigrationReserveLU(kUnit, &s, flags.get()), kBadParameter);  // none flagged
  flags->reserve_lu[1] = 2;
  CHECK_EQ(KX_AddLuMigrationReserveLU(kUnit, &s, flags.get()), kBadParameter);
  CHECK_EQ(KX_GetLuMigrationInformation(kUnit, &s, nullptr), kBadParameter);
}

}  // namespace

int main() {
  roles_and_refusals();
  mirror_progress();
  remote_pairs();
  migration();
  return t::finish("replication_test");
}
