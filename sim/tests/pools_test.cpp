// Pools, virtual volumes, unified LUs, labels, the RAID group and LU file, the
// set-up wizard and LU cache settings, called straight into the library on a
// database of their own.
#include <sqlite3.h>
#include <stdlib.h>
#include <unistd.h>

#include <cstdio>
#include <cstring>
#include <fstream>
#include <memory>
#include <sstream>
#include <string>

#include "account.h"
#include "raid.h"
#include "session.h"

namespace {

int failures = 0;

#define CHECK(cond)                                                                   \
  do {                                                                                \
    if (!(cond)) {                                                                    \
      std::fprintf(stderr, "%s:%d: CHECK(%s) failed\n", __FILE__, __LINE__, #cond); \
      ++failures;                                                                     \
    }                                                                                 \
  } while (0)

#define CHECK_RC(call, want)                                                                         \
  do {                                                                                               \
    int got_ = (call);                                                                               \
    if (got_ != (want)) {                                                                            \
      std::fprintf(stderr, "%s:%d: %s answered %d, not %d\n", __FILE__, __LINE__, #call, got_, want); \
      ++failures;                                                                                    \
    }                                                                                                \
  } while (0)

enum {
  kBadParameter = 12292, kExists = 12293, kNoSuchObject = 12294, kCapacity = 12295, kBusy = 12296,
  kPermission = 12298, kFileError = 12304, kBadFile = 12305,
};

const char* kUnit = "SIM01";
const char* kPassword = "pools-test-pw";
std::string dir, db_path;

void sql(const std::string& text) {
  sqlite3* h = nullptr;
  if (sqlite3_open(db_path.c_str(), &h) != SQLITE_OK) std::abort();
  sqlite3_busy_timeout(h, 5000);
  char* err = nullptr;
  if (sqlite3_exec(h, text.c_str(), nullptr, nullptr, &err) != SQLITE_OK) {
    std::fprintf(stderr, "sql: %s: %s\n", text.c_str(), err ? err : "?");
    std::abort();
  }
  sqlite3_close(h);
}

template <size_t N>
void put(char (&field)[N], const std::string& s) {
  std::memset(field, 0, N);
  std::memcpy(field, s.data(), s.size() < N ? s.size() : N);
}

template <class T>
bool same(const T& a, const T& b) {
  return std::memcmp(&a, &b, sizeof(T)) == 0;
}

std::string slurp(const std::string& path) {
  std::ifstream f(path, std::ios::binary);
  std::stringstream ss;
  ss << f.rdbuf();
  return ss.str();
}

void spit(const std::string& path, const std::string& text) {
  std::ofstream(path, std::ios::binary) << text;
}

// A fresh default array; the administrator logged in both ways.
KXSessionInfoRec fresh(const char* name) {
  db_path = dir + "/" + name + ".db";
  setenv("PERNIX_SIM_DB", db_path.c_str(), 1);
  KXAccountLoginRec l{};
  put(l.user_id, "admin");
  put(l.passwd, kPassword);
  KXSessionInfoRec s{};
  if (int rc = KX_LoginKXAccount(kUnit, &l, &s)) {
    std::fprintf(stderr, "login: %d\n", rc);
    std::exit(1);
  }
  KXUserInfoRec u{};
  put(u.user, "admin");
  put(u.passwd, kPassword);
  KXLoginResultRec r{};
  if (int rc = KX_LoginKXUnit(kUnit, 0, &u, &r)) {
    std::fprintf(stderr, "unit login: %d\n", rc);
    std::exit(1);
  }
  return s;
}

// A role without the storage right, for the refusals.
KXSessionInfoRec monitor(const KXSessionInfoRec& admin) {
  KXAccountBaseInfoRec b{};
  put(b.user_id, "watcher");
  b.set_passwd = 1;
  put(b.passwd, "watcher-pw-1");
  b.role = 2;
  b.account_enable = 1;
  CHECK_RC(KX_CreateAccount(kUnit, &admin, &b), 0);
  KXAccountLoginRec l{};
  put(l.user_id, "watcher");
  put(l.passwd, "watcher-pw-1");
  KXSessionInfoRec s{};
  CHECK_RC(KX_LoginKXAccount(kUnit, &l, &s), 0);
  return s;
}

void lu_cache() {
  auto s = fresh("lu_cache");
  // Staging sizes: kept whole, refused out of range without a change.
  PrefetchInformationRec p{}, back{};
  CHECK_RC(KX_GetPrefetchInformation(kUnit, &s, &p), 0);
  p.stg_rd0 = 11, p.stg_rd1 = 22, p.stg_rd5 = 33, p.stg_next = 44, p.stg_hed_size = 55;
  CHECK_RC(KX_SetPrefetchInformation(kUnit, &s, &p), 0);
  CHECK_RC(KX_GetPrefetchInformation(kUnit, &s, &back), 0);
  CHECK(same(p, back));
  auto bad = p;
  bad.stg_rd5 = -1;
  CHECK_RC(KX_SetPrefetchInformation(kUnit, &s, &bad), kBadParameter);
  CHECK_RC(KX_SetPrefetchInformation(kUnit, &s, nullptr), kBadParameter);
  CHECK_RC(KX_SetPrefetchInformation(kUnit, &s, &p), 0);
  auto watcher = monitor(s);
  CHECK_RC(KX_SetPrefetchInformation(kUnit, &watcher, &bad), kPermission);
  CHECK_RC(KX_GetPrefetchInformation(kUnit, &watcher, &back), 0);
  CHECK(same(p, back));

  // Cache partitions: made LUs carry numbers, the others -1.
  auto part = std::make_unique<LuCachePartitionRec>();
  auto part2 = std::make_unique<LuCachePartitionRec>();
  CHECK_RC(KX_GetLuCachePartition(kUnit, &s, part.get()), 0);
  CHECK(part->current_prt_num[3] == 0 && part->pair_prt_num[3] == -1);
  CHECK(part->current_prt_num[100] == -1 && part->now_prt_num[4095] == -1);
  part->option = 1;
  part->current_prt_num[3] = 5;
  part->reserve_prt_num[3] = 6;
  part->now_prt_num[3] = 7;
  part->pair_prt_num[3] = 2;
  CHECK_RC(KX_SetLuCachePartition(kUnit, &s, part.get()), 0);
  CHECK_RC(KX_GetLuCachePartition(kUnit, &s, part2.get()), 0);
  CHECK(same(*part, *part2));
  // The LU record shows the same partitions.
  LogicalUnitRec lu{};
  CHECK_RC(KX_GetLogicalUnit1(kUnit, &s, 3, &lu), 0);
  CHECK(lu.cachepart_no == 5 && lu.pair_cachepart_valid == 1 && lu.pair_cachepart_no == 2);
  // A partition for an LU not made, or out of range: nothing changes.
  *part2 = *part;
  part2->current_prt_num[3] = 1;
  part2->reserve_prt_num[100] = 3;
  CHECK_RC(KX_SetLuCachePartition(kUnit, &s, part2.get()), kNoSuchObject);
  part2->reserve_prt_num[100] = 0;  // a new record's zeros are accepted there
  part2->now_prt_num[4] = 16;
  CHECK_RC(KX_SetLuCachePartition(kUnit, &s, part2.get()), kBadParameter);
  CHECK_RC(KX_GetLuCachePartition(kUnit, &s, part2.get()), 0);
  CHECK(same(*part, *part2));

  // Prefetch tuning: unit-wide and per LU.
  auto tune = std::make_unique<PrefetchTuningRec>();
  auto tune2 = std::make_unique<PrefetchTuningRec>();
  CHECK_RC(KX_GetPrefetchTuning(kUnit, &s, tune.get()), 0);
  CHECK(tune->lu[0].pre_size_basis == 256 && tune->lu[200].pre_size_basis == -1);
  tune->set_mode = 1;
  tune->setting_range = 1;
  tune->seq_count = 9;
  tune->lu_range[2] = {1, 1, 2, 1};
  tune->lu[2] = {4096, 1};
  CHECK_RC(KX_SetPrefetchTuning(kUnit, &s, tune.get()), 0);
  CHECK_RC(KX_GetPrefetchTuning(kUnit, &s, tune2.get()), 0);
  CHECK(same(*tune, *tune2));
  // The partition of LU 2 did not move with its tuning row.
  CHECK_RC(KX_GetLuCachePartition(kUnit, &s, part2.get()), 0);
  CHECK(same(*part, *part2));
  tune2->lu[300].pre_size_fixation = 1;
  CHECK_RC(KX_SetPrefetchTuning(kUnit, &s, tune2.get()), kNoSuchObject);
  *tune2 = *tune;
  tune2->seq_count = 17;
  CHECK_RC(KX_SetPrefetchTuning(kUnit, &s, tune2.get()), kBadParameter);
  *tune2 = *tune;
  tune2->lu_range[1].next_pre_mode = 3;
  CHECK_RC(KX_SetPrefetchTuning(kUnit, &s, tune2.get()), kBadParameter);
  CHECK_RC(KX_GetPrefetchTuning(kUnit, &s, tune2.get()), 0);
  CHECK(same(*tune, *tune2));

  // Turbo LU.
  TurboLuRec t{}, t2{};
  CHECK_RC(KX_GetTurboLU(kUnit, &s, &t), 0);
  CHECK(t.ctl[0].current_assign == 0 && t.ctl[1].reserve_lun == -1);
  t.option = 1;
  t.ctl[0] = {1, 1, 4, 1, 5};
  CHECK_RC(KX_SetTurboLU(kUnit, &s, &t), 0);
  CHECK_RC(KX_GetTurboLU(kUnit, &s, &t2), 0);
  CHECK(same(t, t2));
  t2.ctl[1] = {0, 0, -1, 1, 5};
  CHECK_RC(KX_SetTurboLU(kUnit, &s, &t2), kBusy);
  t2.ctl[1] = {0, 0, -1, 1, 99};
  CHECK_RC(KX_SetTurboLU(kUnit, &s, &t2), kNoSuchObject);
  t2.ctl[1] = {0, 2, -1, 0, -1};
  CHECK_RC(KX_SetTurboLU(kUnit, &s, &t2), kBadParameter);
  CHECK_RC(KX_GetTurboLU(kUnit, &s, &t2), 0);
  CHECK(same(t, t2));

  // What was kept for an LU goes when the LU goes.
  CHECK_RC(KX_LogicalUnitDeleteByLUN(kUnit, &s, 2), 0);
  CHECK_RC(KX_GetPrefetchTuning(kUnit, &s, tune2.get()), 0);
  CHECK(tune2->lu[2].pre_size_basis == -1);
  sql("SELECT 1");  // the database stays readable beside the library
}

void wizard() {
  auto s = fresh("wizard");
  auto p = std::make_unique<WizardParamRec>();
  auto q = std::make_unique<WizardParamRec>();
  CHECK_RC(KX_GetWizardParam(kUnit, "", 0, p.get()), 0);
  CHECK(std::strcmp(p->dual_conf.serial, "93000001") == 0);
  CHECK(std::strcmp(p->lan_conf[1].ip_address, "192.0.2.11") == 0);
  // Test checks and keeps nothing; Set keeps.
  p->fd_backup = 1;
  p->lan_conf[0].lan_connect = 200;
  p->sync_control[1].port_val[2].board_type = -56;
  put(p->ctl_opt[1].id_front, "REAR-CTL");
  CHECK_RC(KX_TestWizardParam(kUnit, p.get(), "", 0), 0);
  CHECK_RC(KX_GetWizardParam(kUnit, "", 0, q.get()), 0);
  CHECK(q->fd_backup == 0);
  CHECK_RC(KX_SetWizardParam(kUnit, p.get(), "", 0), 0);
  CHECK_RC(KX_GetWizardParam(kUnit, "", 0, q.get()), 0);
  CHECK(same(*p, *q));
  // Refusals change nothing.
  *q = *p;
  q->mode_param.buzzer = 2;
  CHECK_RC(KX_TestWizardParam(kUnit, q.get(), "", 0), kBadParameter);
  CHECK_RC(KX_SetWizardParam(kUnit, q.get(), "", 0), kBadParameter);
  *q = *p;
  std::memset(q->inquiry.vendor, 'V', sizeof q->inquiry.vendor);  // no NUL
  CHECK_RC(KX_SetWizardParam(kUnit, q.get(), "", 0), kBadParameter);
  *q = *p;
  put(q->lan_conf[0].gateway, "300.1.2.3");
  CHECK_RC(KX_SetWizardParam(kUnit, q.get(), "", 0), kBadParameter);
  CHECK_RC(KX_SetWizardParam(kUnit, p.get(), "", 5), kBadParameter);
  CHECK_RC(KX_GetWizardParam(kUnit, "", 0, q.get()), 0);
  CHECK(same(*p, *q));
  // A parameter file: written, read back; missing or foreign files refused.
  std::string file = dir + "/wizard.param";
  p->fd_backup = 0;
  CHECK_RC(KX_SetWizardParam(kUnit, p.get(), file.c_str(), 1), 0);
  CHECK_RC(KX_GetWizardParam(kUnit, file.c_str(), 1, q.get()), 0);
  CHECK(same(*p, *q));
  CHECK_RC(KX_GetWizardParam(kUnit, "", 0, q.get()), 0);
  CHECK(q->fd_backup == 1);  // the unit's own were not touched
  CHECK_RC(KX_GetWizardParam(kUnit, (dir + "/absent").c_str(), 1, q.get()), kFileError);
  spit(dir + "/foreign", "hello\n");
  CHECK_RC(KX_GetWizardParam(kUnit, (dir + "/foreign").c_str(), 1, q.get()), kBadFile);
  CHECK_RC(KX_SetWizardParam(kUnit, p.get(), (dir + "/no/such/dir/f").c_str(), 1), kFileError);

  // The current parameters of a controller follow the unit's until set.
  NowWZParameterRec n{}, m{};
  CHECK_RC(KX_GetNowWZParam(kUnit, 1, &n), 0);
  CHECK(std::strcmp(n.ctrl_id.id_front, "REAR-CTL") == 0 && n.fd_backup == 1);
  n.port_option.mode[2][1] = 3;
  n.ctrl_id.ctrl_name_mode = 1;
  CHECK_RC(KX_SetNowWZParam(kUnit, 1, &n), 0);
  CHECK_RC(KX_GetNowWZParam(kUnit, 1, &m), 0);
  CHECK(same(n, m));
  CHECK_RC(KX_GetNowWZParam(kUnit, 0, &m), 0);
  CHECK(std::strcmp(m.ctrl_id.id_front, "CTL0") == 0);
  n.port_option.mode[0][0] = 4;
  CHECK_RC(KX_SetNowWZParam(kUnit, 1, &n), kBadParameter);
  CHECK_RC(KX_GetNowWZParam(kUnit, 2, &m), kBadParameter);

  // The LU set-up text goes to the file as it is.
  auto text = std::make_unique<LuWZSetContentsRec>();
  put(text->setcontens, "LU 0 RG 0 100GB\nLU 1 RG 0 100GB\n");
  std::string out = dir + "/lu-wizard.txt";
  CHECK_RC(KX_LuWizardOutput(kUnit, &s, out.c_str(), text.get()), 0);
  CHECK(slurp(out) == "LU 0 RG 0 100GB\nLU 1 RG 0 100GB\n");
  std::memset(text->setcontens, 'x', sizeof text->setcontens);
  CHECK_RC(KX_LuWizardOutput(kUnit, &s, out.c_str(), text.get()), kBadParameter);
  CHECK(slurp(out) == "LU 0 RG 0 100GB\nLU 1 RG 0 100GB\n");
}

void labels() {
  KXLabelRec l[PERNIX_LABELS];
  KXLabelRec l2[PERNIX_LABELS2];
  int n = -1, n2 = -1;
  CHECK_RC(KX_GetLabelList(l, &n), 0);
  CHECK_RC(KX_GetLabelList2(l2, &n2), 0);
  CHECK(n == 12 && n2 == 20);
  CHECK(std::strcmp(l[0].oldlabel, "HDU") == 0 && std::strcmp(l[0].newlabel, "DRIVE") == 0);
  for (int i = 0; i < n; ++i) CHECK(same(l[i], l2[i]));  // the newer list extends the older
  CHECK_RC(KX_GetLabelList(nullptr, &n), kBadParameter);
  CHECK_RC(KX_GetLabelList2(l2, nullptr), kBadParameter);
}

// Pool detail as the simulator lays it out.
struct Detail {
  int32_t pool_no, status, threshold, lu_count, total_h, total_l, used_h, used_l, vvol_count, lun[64];
};
static_assert(sizeof(Detail) == sizeof(PoolDetailInfoRec));

Detail detail(const KXSessionInfoRec& s, int ctl) {
  PoolInfoRec p{};
  CHECK_RC(KX_GetPoolInformation(kUnit, &s, &p), 0);
  Detail d;
  std::memcpy(&d, &p.ctl[ctl].pool[0], sizeof d);
  CHECK(p.ctl[ctl].pool_enable_count == (d.lu_count > 0 ? 1 : 0));
  return d;
}

void pools() {
  auto s = fresh("pools");
  LogicalUnitRec lu{};
  CHECK_RC(KX_GetLogicalUnit1(kUnit, &s, 0, &lu), 0);
  int64_t size = lu.capacity;
  CHECK(detail(s, 0).status == 0);
  CHECK_RC(KX_PoolLUAdd(kUnit, &s, 0, 0, 0), 0);
  CHECK_RC(KX_PoolLUAdd(kUnit, &s, 0, 0, 0), kExists);
  CHECK_RC(KX_PoolLUAdd(kUnit, &s, 1, 0, 0), kBusy);
  CHECK_RC(KX_PoolLUAdd(kUnit, &s, 0, 0, 4000), kNoSuchObject);
  CHECK_RC(KX_PoolLUAdd(kUnit, &s, 2, 0, 1), kBadParameter);
  CHECK_RC(KX_PoolLUAdd(kUnit, &s, 0, 1, 1), kNoSuchObject);
  auto d = detail(s, 0);
  CHECK(d.lu_count == 1 && d.lun[0] == 0 && d.total_l == size && d.status == 1 && d.threshold == 80);
  // A list goes in whole or not at all.
  PoolLuAddListRec list{};
  list.lu_count = 3;
  list.lu[0] = 1, list.lu[1] = 2, list.lu[2] = 999;
  CHECK_RC(KX_PoolLUAddList(kUnit, &s, 0, 0, &list), kNoSuchObject);
  list.lu[2] = 1;
  CHECK_RC(KX_PoolLUAddList(kUnit, &s, 0, 0, &list), kBadParameter);
  list.lu_count = 65;
  CHECK_RC(KX_PoolLUAddList(kUnit, &s, 0, 0, &list), kBadParameter);
  CHECK(detail(s, 0).lu_count == 1);
  list.lu_count = 2;
  CHECK_RC(KX_PoolLUAddList(kUnit, &s, 0, 0, &list), 0);
  d = detail(s, 0);
  CHECK(d.lu_count == 3 && d.lun[1] == 1 && d.lun[2] == 2);
  // A pool LU cannot be deleted.
  CHECK_RC(KX_LogicalUnitDeleteByLUN(kUnit, &s, 1), kBusy);
  // Virtual volumes take the pool's capacity.
  CHECK_RC(KX_CreateVVOL(kUnit, &s, 1, 0, 100), kBusy);  // controller 1's pool is empty
  CHECK_RC(KX_CreateVVOL(kUnit, &s, 0, 7, static_cast<int>(size)), 0);
  CHECK_RC(KX_CreateVVOL(kUnit, &s, 0, 7, 10), kExists);
  CHECK_RC(KX_CreateVVOL(kUnit, &s, 0, 8, static_cast<int>(2 * size) + 1), kCapacity);
  CHECK_RC(KX_CreateVVOL(kUnit, &s, 0, 1024, 10), kBadParameter);
  CHECK_RC(KX_CreateVVOL(kUnit, &s, 0, 8, 0), kBadParameter);
  d = detail(s, 0);
  CHECK(d.vvol_count == 1 && d.used_l == size && d.status == 1);
  ChgPoolInfoRec chg{0, 0, 0, 30};
  CHECK_RC(KX_ChangePoolInformation(kUnit, &s, &chg), 0);
  d = detail(s, 0);
  CHECK(d.threshold == 30 && d.status == 2);
  chg.threshold = 100;
  CHECK_RC(KX_ChangePoolInformation(kUnit, &s, &chg), kBadParameter);
  chg = {0, 0, 1, 50};
  CHECK_RC(KX_ChangePoolInformation(kUnit, &s, &chg), kBadParameter);
  chg = {0, 3, 0, 50};
  CHECK_RC(KX_ChangePoolInformation(kUnit, &s, &chg), kNoSuchObject);
  CHECK(detail(s, 0).threshold == 30);
  // Emptying the pool waits for its virtual volumes.
  CHECK_RC(KX_PoolLUAllDelete(kUnit, &s, 0, 0), kBusy);
  CHECK_RC(KX_DeleteVVOL(kUnit, &s, 1, 7), kNoSuchObject);
  CHECK_RC(KX_DeleteVVOL(kUnit, &s, 0, 7), 0);
  CHECK_RC(KX_DeleteVVOL(kUnit, &s, 0, 7), kNoSuchObject);
  CHECK_RC(KX_PoolLUAllDelete(kUnit, &s, 0, 0), 0);
  CHECK(detail(s, 0).lu_count == 0);
  CHECK_RC(KX_LogicalUnitDeleteByLUN(kUnit, &s, 1), 0);
  auto watcher = monitor(s);
  CHECK_RC(KX_PoolLUAdd(kUnit, &watcher, 0, 0, 0), kPermission);
}

void unified() {
  auto s = fresh("unified");
  auto sizes = std::make_unique<LogicalUnitRec[]>(PERNIX_LOGICAL_UNITS);
  CHECK_RC(KX_GetLogicalUnit(kUnit, &s, sizes.get()), 0);
  IntegrationLUSetRec u{};
  u.operation = 0;
  u.parent_lun = 1;
  u.child_count = 2;
  u.child_lu[0] = 3, u.child_lu[1] = 2;
  CHECK_RC(KX_SetIntegrationLU(kUnit, &s, &u), 0);
  // A second parent may not take a joined LU, nor an LU not made.
  IntegrationLUSetRec v{};
  v.parent_lun = 4;
  v.child_lun = 2;
  CHECK_RC(KX_SetIntegrationLU(kUnit, &s, &v), kBusy);
  v.child_lun = 1;
  CHECK_RC(KX_SetIntegrationLU(kUnit, &s, &v), kBusy);
  v.child_lun = 900;
  CHECK_RC(KX_SetIntegrationLU(kUnit, &s, &v), kNoSuchObject);
  v.child_lun = 4;
  CHECK_RC(KX_SetIntegrationLU(kUnit, &s, &v), kBadParameter);
  v.child_count = 13;
  CHECK_RC(KX_SetIntegrationLU(kUnit, &s, &v), kBadParameter);
  v = {};
  v.parent_lun = 2;  // a child cannot become a parent
  v.child_lun = 5;
  CHECK_RC(KX_SetIntegrationLU(kUnit, &s, &v), kBusy);
  v.parent_lun = 1;  // the parent grows its chain
  CHECK_RC(KX_SetIntegrationLU(kUnit, &s, &v), 0);
  CHECK_RC(KX_LogicalUnitDeleteByLUN(kUnit, &s, 3), kBusy);
  CHECK_RC(KX_PoolLUAdd(kUnit, &s, 0, 0, 5), kBusy);

  auto info2 = std::make_unique<IntegrationLUInfo2Rec>();
  CHECK_RC(KX_IntegrationLUInfo2(kUnit, &s, info2.get()), 0);
  CHECK(info2->parent_count == 1 && info2->parent_lu[0] == 1);
  const auto& p = info2->unite_info[1];
  int64_t want = int64_t{sizes[1].capacity} + sizes[2].capacity + sizes[3].capacity + sizes[5].capacity;
  CHECK(p.unite_info == 1 && p.child_lu_count == 3 && p.capacity == want);
  CHECK(p.next_lun == 3 && info2->unite_info[3].next_lun == 2 && info2->unite_info[2].next_lun == 5 &&
        info2->unite_info[5].next_lun == -1);
  CHECK(info2->unite_info[5].unite_info == 1 && info2->unite_info[0].unite_info == -1);
  auto pin = std::make_unique<PINInformationRec>();
  CHECK_RC(KX_GetIntegrationPinInfo(kUnit, &s, pin.get()), 0);
  CHECK(pin->single_lu[0] == 1 && pin->single_lu[2] == 0 && pin->single_lu[100] == 0);
  CHECK(pin->unite_lu[2] == 1 && pin->unite_lu[0] == -1);
  auto info = std::make_unique<IntegrationLUInfoRec>();
  CHECK_RC(KX_IntegrationLUInfo(kUnit, info.get()), 0);
  CHECK(info->integration_lu == 1 && info->unite_info[0].unite_info == 1 &&
        info->unite_info[0].child_lu_count == 3 && info->unite_info[0].child_lun[2] == 5);

  // Parting: one child, then the rest.
  v = {};
  v.operation = 2;
  v.parent_lun = 1;
  v.child_lun = 4;
  CHECK_RC(KX_SetIntegrationLU(kUnit, &s, &v), kNoSuchObject);
  v.child_lun = 2;
  CHECK_RC(KX_SetIntegrationLU(kUnit, &s, &v), 0);
  CHECK_RC(KX_IntegrationLUInfo2(kUnit, &s, info2.get()), 0);
  CHECK(info2->unite_info[3].next_lun == 5 && info2->unite_info[2].unite_info == -1);
  v.operation = 1;
  v.parent_lun = 3;
  CHECK_RC(KX_SetIntegrationLU(kUnit, &s, &v), kNoSuchObject);
  v.parent_lun = 1;
  CHECK_RC(KX_SetIntegrationLU(kUnit, &s, &v), 0);
  CHECK_RC(KX_IntegrationLUInfo(kUnit, info.get()), 0);
  CHECK(info->integration_lu == 0);
  CHECK_RC(KX_LogicalUnitDeleteByLUN(kUnit, &s, 3), 0);
  v.operation = 7;
  CHECK_RC(KX_SetIntegrationLU(kUnit, &s, &v), kBadParameter);
}

void export_import() {
  auto s = fresh("export");
  // Something besides the default: a hole in a group, a partition, a format.
  CHECK_RC(KX_LogicalUnitDeleteByLUN(kUnit, &s, 2), 0);
  auto part = std::make_unique<LuCachePartitionRec>();
  CHECK_RC(KX_GetLuCachePartition(kUnit, &s, part.get()), 0);
  part->current_prt_num[5] = 9;
  part->pair_prt_num[5] = 4;
  CHECK_RC(KX_SetLuCachePartition(kUnit, &s, part.get()), 0);
  std::string file = dir + "/config.txt";
  CHECK_RC(KX_RaidLuExport(kUnit, &s, file.c_str()), 0);
  std::string text = slurp(file);
  CHECK(text.find("pernix-sim raid-lu 1\n") != std::string::npos);

  auto info = std::make_unique<RaidLUInformationRec>();
  CHECK_RC(KX_RaidLuImportEx(kUnit, &s, file.c_str(), info.get()), 0);
  auto groups = std::make_unique<RaidGroupInformationRec>();
  auto lus = std::make_unique<LogicalUnitRec[]>(PERNIX_LOGICAL_UNITS);
  CHECK_RC(KX_GetRaidGroupInformation(kUnit, &s, groups.get()), 0);
  CHECK_RC(KX_GetLogicalUnit(kUnit, &s, lus.get()), 0);
  CHECK(groups->rg_count == 2);
  CHECK(same(info->rgparam, *groups));
  CHECK(std::memcmp(info->luparam, lus.get(), sizeof info->luparam) == 0);
  CHECK(info->luparam[5].cachepart_no == 9 && info->luparam[2].lu_valid == 0 && info->spare_count == 0);

  RaidGroupRec old[PERNIX_RAID_GROUPS], got[PERNIX_RAID_GROUPS];
  auto lus2 = std::make_unique<LogicalUnitRec[]>(PERNIX_LOGICAL_UNITS);
  CHECK_RC(KX_GetRaidGroups(kUnit, old), 0);
  CHECK_RC(KX_RaidLuImport(kUnit, file.c_str(), got, lus2.get()), 0);
  CHECK(std::memcmp(old, got, sizeof old) == 0);
  CHECK(std::memcmp(lus2.get(), lus.get(), sizeof(LogicalUnitRec) * PERNIX_LOGICAL_UNITS) == 0);

  // The file is read as it is now: a change to the array does not show.
  CHECK_RC(KX_LogicalUnitDeleteByLUN(kUnit, &s, 6), 0);
  CHECK_RC(KX_RaidLuImport(kUnit, file.c_str(), got, lus2.get()), 0);
  CHECK(lus2[6].lu_valid == 1);

  // Refused files leave the caller's records alone.
  std::memset(info.get(), 0xab, sizeof *info);
  auto untouched = std::make_unique<RaidLUInformationRec>();
  std::memset(untouched.get(), 0xab, sizeof *untouched);
  auto refuse = [&](const std::string& body, int code) {
    spit(dir + "/bad.txt", body);
    CHECK_RC(KX_RaidLuImportEx(kUnit, &s, (dir + "/bad.txt").c_str(), info.get()), code);
    CHECK(same(*info, *untouched));
  };
  CHECK_RC(KX_RaidLuImportEx(kUnit, &s, (dir + "/absent.txt").c_str(), info.get()), kFileError);
  CHECK(same(*info, *untouched));
  refuse("", kBadFile);
  refuse(text.substr(0, text.rfind("end\n")), kBadFile);  // cut short
  auto swap = [&](const std::string& from, const std::string& to) {
    std::string t = text;
    auto at = t.find(from);
    CHECK(at != std::string::npos);
    return t.replace(at, from.size(), to);
  };
  refuse(swap(" level=5", " level=4"), kBadFile);
  refuse(swap(" capacity=", " capacity=x"), kBadFile);
  refuse(swap(" stripe=", " stripe=1 stripe="), kBadFile);
  refuse(swap(" hostblock=", " hostblok="), kBadFile);
  refuse(swap("\nlu number=0 rg=0", "\nlu number=0 rg=7"), kBadFile);
  refuse(swap("\nlu ", "\nlun "), kBadFile);
  refuse(swap("pernix-sim raid-lu 1", "pernix-sim raid-lu 2"), kBadFile);
  refuse(text + "lu\n", kBadFile);
  // Comments and blank lines are fine.
  spit(dir + "/commented.txt", "# kept by hand\n\n" + text);
  CHECK_RC(KX_RaidLuImportEx(kUnit, &s, (dir + "/commented.txt").c_str(), info.get()), 0);
  CHECK(same(info->rgparam, *groups));
  CHECK_RC(KX_RaidLuExport(kUnit, &s, (dir + "/no/such/dir/x").c_str()), kFileError);
}

}  // namespace

int main() {
  char tmpl[] = "/tmp/pernix-pools-test-XXXXXX";
  if (!mkdtemp(tmpl)) return 1;
  dir = tmpl;
  setenv("PERNIX_SIM_UNIT", kUnit, 1);
  setenv("PERNIX_SIM_ADMIN_USER", "admin", 1);
  setenv("PERNIX_SIM_ADMIN_PASSWORD", kPassword, 1);
  unsetenv("PERNIX_SIM_CONFIG");
  unsetenv("PERNIX_SIM_FAULTS");
  lu_cache();
  wizard();
  labels();
  pools();
  unified();
  export_import();
  std::string rm = "rm -rf '" + dir + "'";
  if (std::system(rm.c_str()) != 0) std::fprintf(stderr, "could not remove %s\n", dir.c_str());
  if (failures) {
    std::fprintf(stderr, "pools_test: %d check(s) failed\n", failures);
    return 1;
  }
  std::printf("pools_test: all checks passed\n");
  return 0;
}
