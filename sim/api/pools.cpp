// Pools, virtual volumes, unified LUs, the label list, and the RAID group and
// LU configuration exported to and imported from a file.
#include <algorithm>
#include <climits>
#include <cstring>
#include <map>
#include <memory>
#include <set>
#include <string>
#include <vector>

#include "raid.h"
#include "sim/core/call.h"
#include "sim/core/text.h"
#include "sim/model/model.h"
#include "sim/model/pools.h"

namespace {

using sim::fail;
using sim::kBadParameter;

constexpr const char* kPoolHolder = "pool";
constexpr const char* kUniteHolder = "unified LU";
// A configuration file of 90 groups, 450 drives and 4096 LUs stays far below.
constexpr size_t kRaidLuFileLimit = 16u << 20;

std::string lu_name(int lun) { return "LU " + std::to_string(lun); }

// ---- pools

// A controller's pool: ctl 0 or 1, pool 0.
void need_pool(int ctl, int pool) {
  if (ctl != 0 && ctl != 1) fail(kBadParameter, "controller " + std::to_string(ctl) + " is not 0 or 1");
  if (pool < 0) fail(kBadParameter, "pool number " + std::to_string(pool) + " is negative");
  if (pool != 0) fail(sim::kNoSuchObject, "controller " + std::to_string(ctl) + " has no pool " + std::to_string(pool));
}

std::string pool_name(int ctl, int pool) {
  return "pool " + std::to_string(pool) + " of controller " + std::to_string(ctl);
}

int pool_lu_count(sim::Db& db, int ctl, int pool) {
  auto s = db.sql("SELECT count(*) FROM pool_lus WHERE ctl=?1 AND pool=?2");
  s.bind(ctl).bind(pool).step();
  return s.i(0);
}

// Pool blocks: the LUs' sizes, and what the virtual volumes take of them.
struct PoolUse {
  int64_t total = 0, used = 0;
  int vvols = 0;
};

PoolUse pool_use(sim::Db& db, int ctl, int pool) {
  PoolUse u;
  auto t = db.sql(
      "SELECT coalesce(sum(l.size), 0) FROM pool_lus p JOIN lus l ON l.number=p.lun "
      "WHERE p.ctl=?1 AND p.pool=?2");
  t.bind(ctl).bind(pool).step();
  u.total = t.i64(0);
  auto v = db.sql("SELECT coalesce(sum(blocks), 0), count(*) FROM vvols WHERE ctl=?1 AND pool=?2");
  v.bind(ctl).bind(pool).step();
  u.used = v.i64(0);
  u.vvols = v.i(1);
  return u;
}

// Adds one LU to a pool, refusing what a pool cannot take.
void add_pool_lu(sim::Db& db, int ctl, int pool, int lun) {
  sim::need_lu(db, lun, "pool LU");
  auto in = db.sql("SELECT ctl, pool FROM pool_lus WHERE lun=?1");
  in.bind(lun);
  if (in.step()) {
    if (in.i(0) == ctl && in.i(1) == pool) fail(sim::kExists, lu_name(lun) + " is in " + pool_name(ctl, pool) + " already");
    fail(sim::kBusy, lu_name(lun) + " is in " + pool_name(in.i(0), in.i(1)));
  }
  auto held = db.sql("SELECT holder FROM lu_holds WHERE lun=?1 LIMIT 1");
  held.bind(lun);
  if (held.step()) fail(sim::kBusy, lu_name(lun) + " is in use by " + held.text(0));
  auto st = db.sql("SELECT status FROM lus WHERE number=?1");
  st.bind(lun).step();
  if (st.i(0) == sim::kLuInvalid) fail(sim::kBusy, lu_name(lun) + " is invalid");
  if (pool_lu_count(db, ctl, pool) >= sim::kPoolLus)
    fail(sim::kCapacity, pool_name(ctl, pool) + " holds " + std::to_string(sim::kPoolLus) + " LUs");
  auto add = db.sql(
      "INSERT INTO pool_lus(lun, ctl, pool, seq) VALUES(?1, ?2, ?3, "
      "(SELECT coalesce(max(seq), 0) + 1 FROM pool_lus))");
  add.bind(lun).bind(ctl).bind(pool).run();
  sim::hold_lu(db, lun, kPoolHolder);
}

// ---- unified LUs

struct Unified {
  int parent = 0;
  std::vector<int> children;  // chain order
};

// Every unified LU, by parent.
std::map<int, Unified> unified(sim::Db& db) {
  std::map<int, Unified> all;
  auto s = db.sql("SELECT lun, parent, pos FROM unite ORDER BY parent, pos");
  while (s.step()) {
    auto& u = all[s.i(1)];
    u.parent = s.i(1);
    if (s.i(2) > 0) u.children.push_back(s.i(0));
  }
  return all;
}

// The parent of the unified LU an LU belongs to, or -1.
int unified_parent(sim::Db& db, int lun) {
  auto s = db.sql("SELECT parent FROM unite WHERE lun=?1");
  s.bind(lun);
  return s.step() ? s.i(0) : -1;
}

int64_t unified_blocks(sim::Db& db, const Unified& u) {
  int64_t sum = sim::lu_capacity(db, u.parent);
  for (int c : u.children) sum += sim::lu_capacity(db, c);
  return sum;
}

int32_t clamp32(int64_t v) { return static_cast<int32_t>(std::min<int64_t>(v, INT32_MAX)); }

void join(sim::Db& db, const IntegrationLUSetRec& r) {
  int parent = r.parent_lun;
  sim::need_lu(db, parent, "parent LU");
  if (r.child_count < 0 || r.child_count > sim::kUniteCallChildren)
    fail(kBadParameter, "child count " + std::to_string(r.child_count) + " is not within 0.." +
                            std::to_string(sim::kUniteCallChildren));
  std::vector<int> add;
  if (r.child_count == 0) add.push_back(r.child_lun);
  else add.assign(r.child_lu, r.child_lu + r.child_count);
  int at = unified_parent(db, parent);
  if (at >= 0 && at != parent) fail(sim::kBusy, lu_name(parent) + " is a child of unified LU " + std::to_string(at));
  {
    auto p = db.sql("SELECT 1 FROM pool_lus WHERE lun=?1");
    p.bind(parent);
    if (p.step()) fail(sim::kBusy, lu_name(parent) + " is a pool LU");
  }
  std::set<int> seen;
  for (int c : add) {
    if (c == parent) fail(kBadParameter, lu_name(c) + " cannot be its own child");
    if (!seen.insert(c).second) fail(kBadParameter, lu_name(c) + " is named twice");
    sim::need_lu(db, c, "child LU");
    int of = unified_parent(db, c);
    if (of >= 0) fail(sim::kBusy, lu_name(c) + " belongs to unified LU " + std::to_string(of));
    auto held = db.sql("SELECT holder FROM lu_holds WHERE lun=?1 LIMIT 1");
    held.bind(c);
    if (held.step()) fail(sim::kBusy, lu_name(c) + " is in use by " + held.text(0));
  }
  Unified u{parent, {}};
  auto all = unified(db);
  if (auto it = all.find(parent); it != all.end()) u = it->second;
  if (u.children.size() + add.size() > static_cast<size_t>(sim::kUniteChildren))
    fail(sim::kCapacity, "a unified LU has at most " + std::to_string(sim::kUniteChildren) + " children");
  int64_t blocks = unified_blocks(db, u);
  for (int c : add) blocks += sim::lu_capacity(db, c);
  if (blocks > sim::kMaxLuBlocks) fail(sim::kCapacity, "a unified LU holds at most 2147483647 blocks");
  if (at < 0) {
    auto p = db.sql("INSERT INTO unite(lun, parent, pos) VALUES(?1, ?1, 0)");
    p.bind(parent).run();
    sim::hold_lu(db, parent, kUniteHolder);
  }
  auto last = db.sql("SELECT max(pos) FROM unite WHERE parent=?1");
  last.bind(parent).step();
  int pos = last.i(0);
  for (int c : add) {
    auto s = db.sql("INSERT INTO unite(lun, parent, pos) VALUES(?1, ?2, ?3)");
    s.bind(c).bind(parent).bind(++pos).run();
    sim::hold_lu(db, c, kUniteHolder);
  }
}

void need_parent(sim::Db& db, int parent) {
  auto s = db.sql("SELECT 1 FROM unite WHERE lun=?1 AND parent=?1");
  s.bind(parent);
  if (!s.step()) fail(sim::kNoSuchObject, lu_name(parent) + " is not the parent of a unified LU");
}

void part_one(sim::Db& db, int lun) {
  auto d = db.sql("DELETE FROM unite WHERE lun=?1");
  d.bind(lun).run();
  sim::release_lu(db, lun, kUniteHolder);
}

void release_all(sim::Db& db, int parent) {
  need_parent(db, parent);
  std::vector<int> members;
  auto s = db.sql("SELECT lun FROM unite WHERE parent=?1");
  s.bind(parent);
  while (s.step()) members.push_back(s.i(0));
  for (int m : members) part_one(db, m);
}

void release_child(sim::Db& db, int parent, int child) {
  need_parent(db, parent);
  if (child == parent || unified_parent(db, child) != parent)
    fail(sim::kNoSuchObject, lu_name(child) + " is not a child of unified LU " + std::to_string(parent));
  part_one(db, child);
  auto left = db.sql("SELECT count(*) FROM unite WHERE parent=?1");
  left.bind(parent).step();
  if (left.i(0) == 1) part_one(db, parent);
}

// ---- labels: the names older firmware printed and the names shown now

struct Label {
  const char* old_name;
  const char* new_name;
};
constexpr Label kLabels[] = {
    {"HDU", "DRIVE"},   {"UNIT", "ENCL"},    {"RG", "RAIDGRP"}, {"LUN", "LU"},
    {"CTL", "CTRL"},    {"PORT", "HOSTPRT"}, {"SPARE", "SPAREDR"}, {"POOL", "DPPOOL"},
    {"VVOL", "VIRTVOL"}, {"UNITE", "UNIFIED"}, {"CMDDEV", "CMDDEVC"}, {"DMLU", "DIFFLU"},
};
// The newer list adds the names of the later families.
constexpr Label kLabels2[] = {
    {"TURBO", "RESIDNT"}, {"PREFTCH", "PREFECH"}, {"CACHEPT", "CACHEPN"}, {"HOSTGRP", "HOSTGP"},
    {"WWN", "HOSTWWN"},   {"ISCSI", "ISCSIP"},    {"MIGRATE", "VOLMIG"},  {"SNAP", "SNAPSHT"},
};

void labels(KXLabelRec* out, int cap, int* count, bool newer) {
  if (!out) fail(kBadParameter, "labels: null");
  if (!count) fail(kBadParameter, "count: null");
  std::vector<Label> all(std::begin(kLabels), std::end(kLabels));
  if (newer) all.insert(all.end(), std::begin(kLabels2), std::end(kLabels2));
  std::memset(out, 0, sizeof(KXLabelRec) * static_cast<size_t>(cap));
  int n = std::min(cap, static_cast<int>(all.size()));
  for (int i = 0; i < n; ++i) {
    sim::out_text(out[i].oldlabel, all[static_cast<size_t>(i)].old_name);
    sim::out_text(out[i].newlabel, all[static_cast<size_t>(i)].new_name);
  }
  *count = n;
}

}  // namespace

extern "C" {

int KX_GetPoolInformation(const char* unit, const KXSessionInfoRec* session, PoolInfoRec* info) {
  return sim::run(__func__, sim::kRead, [&](sim::Call& c) {
    c.session(unit, session);
    auto& r = sim::out(info, "pool information");
    r.option = 1;
    for (int ctl = 0; ctl < sim::kPoolCtls; ++ctl) {
      auto& k = r.ctl[ctl];
      sim::PoolDetail d{};
      auto p = c.db.sql("SELECT threshold FROM pools WHERE ctl=?1 AND pool=0");
      p.bind(ctl);
      d.threshold = p.step() ? p.i(0) : 0;
      auto lus = c.db.sql("SELECT lun FROM pool_lus WHERE ctl=?1 AND pool=0 ORDER BY seq");
      lus.bind(ctl);
      while (lus.step() && d.lu_count < sim::kPoolLus) d.lun[d.lu_count++] = lus.i(0);
      auto use = pool_use(c.db, ctl, 0);
      d.total_capa_h = sim::hi_word(use.total);
      d.total_capa_l = sim::lo_word(use.total);
      d.used_capa_h = sim::hi_word(use.used);
      d.used_capa_l = sim::lo_word(use.used);
      d.vvol_count = use.vvols;
      if (d.lu_count == 0) d.status = 0;
      else if (use.used >= use.total) d.status = 3;
      else if (use.used * 100 >= use.total * d.threshold) d.status = 2;
      else d.status = 1;
      k.pool_enable_count = d.lu_count > 0 ? 1 : 0;
      std::memcpy(&k.pool[0], &d, sizeof d);
    }
  });
}

int KX_ChangePoolInformation(const char* unit, const KXSessionInfoRec* session, const ChgPoolInfoRec* change) {
  return sim::run(__func__, sim::kWrite, [&](sim::Call& c) {
    c.what = "pool";
    c.session(unit, session);
    const auto& r = sim::in(change, "pool change");
    c.what = pool_name(r.ctl_no, r.pool_no);
    c.require(sim::kRightStorage);
    need_pool(r.ctl_no, r.pool_no);
    if (r.poolinfo_chg_index != 0)
      fail(kBadParameter, "pool item " + std::to_string(r.poolinfo_chg_index) + " cannot be changed");
    if (r.threshold < 1 || r.threshold > 99)
      fail(kBadParameter, "threshold " + std::to_string(r.threshold) + "% is not within 1..99");
    auto s = c.db.sql("UPDATE pools SET threshold=?3 WHERE ctl=?1 AND pool=?2");
    s.bind(r.ctl_no).bind(r.pool_no).bind(r.threshold).run();
  });
}

int KX_PoolLUAdd(const char* unit, const KXSessionInfoRec* session, int a, int b, int c) {
  return sim::run(__func__, sim::kWrite, [&](sim::Call& call) {
    call.what = lu_name(c) + " to " + pool_name(a, b);
    call.session(unit, session, sim::kRightStorage);
    need_pool(a, b);
    add_pool_lu(call.db, a, b, c);
  });
}

int KX_PoolLUAddList(const char* unit, const KXSessionInfoRec* session, int a, int b,
                     const PoolLuAddListRec* list) {
  return sim::run(__func__, sim::kWrite, [&](sim::Call& c) {
    c.what = "LUs to " + pool_name(a, b);
    c.session(unit, session, sim::kRightStorage);
    need_pool(a, b);
    const auto& l = sim::in(list, "LU list");
    if (l.lu_count < 1 || l.lu_count > sim::kPoolLus)
      fail(kBadParameter, "LU count " + std::to_string(l.lu_count) + " is not within 1..64");
    std::set<int> seen;
    for (int i = 0; i < l.lu_count; ++i)
      if (!seen.insert(l.lu[i]).second) fail(kBadParameter, lu_name(l.lu[i]) + " is named twice");
    for (int i = 0; i < l.lu_count; ++i) add_pool_lu(c.db, a, b, l.lu[i]);
  });
}

int KX_PoolLUAllDelete(const char* unit, const KXSessionInfoRec* session, int a, int b) {
  return sim::run(__func__, sim::kWrite, [&](sim::Call& c) {
    c.what = "the LUs of " + pool_name(a, b);
    c.session(unit, session, sim::kRightStorage);
    need_pool(a, b);
    auto use = pool_use(c.db, a, b);
    if (use.vvols > 0)
      fail(sim::kBusy, pool_name(a, b) + " holds " + std::to_string(use.vvols) + " virtual volumes");
    std::vector<int> lus;
    auto s = c.db.sql("SELECT lun FROM pool_lus WHERE ctl=?1 AND pool=?2");
    s.bind(a).bind(b);
    while (s.step()) lus.push_back(s.i(0));
    for (int lun : lus) sim::release_lu(c.db, lun, kPoolHolder);
    auto d = c.db.sql("DELETE FROM pool_lus WHERE ctl=?1 AND pool=?2");
    d.bind(a).bind(b).run();
  });
}

int KX_CreateVVOL(const char* unit, const KXSessionInfoRec* session, int a, int b, int c) {
  return sim::run(__func__, sim::kWrite, [&](sim::Call& call) {
    call.what = "virtual volume " + std::to_string(b);
    call.session(unit, session, sim::kRightStorage);
    need_pool(a, 0);
    if (b < 0 || b >= sim::kVvols)
      fail(kBadParameter, "virtual volume number " + std::to_string(b) + " is not within 0..1023");
    if (c < 1) fail(kBadParameter, "a virtual volume holds at least one block");
    auto e = call.db.sql("SELECT ctl FROM vvols WHERE vvol=?1");
    e.bind(b);
    if (e.step()) fail(sim::kExists, "virtual volume " + std::to_string(b) + " exists");
    if (pool_lu_count(call.db, a, 0) == 0) fail(sim::kBusy, pool_name(a, 0) + " holds no LU");
    auto use = pool_use(call.db, a, 0);
    if (use.used + c > use.total)
      fail(sim::kCapacity, pool_name(a, 0) + " has " + std::to_string(use.total - use.used) + " blocks free");
    auto s = call.db.sql("INSERT INTO vvols(vvol, ctl, pool, blocks) VALUES(?1, ?2, 0, ?3)");
    s.bind(b).bind(a).bind(c).run();
  });
}

int KX_DeleteVVOL(const char* unit, const KXSessionInfoRec* session, int a, int b) {
  return sim::run(__func__, sim::kWrite, [&](sim::Call& c) {
    c.what = "virtual volume " + std::to_string(b);
    c.session(unit, session, sim::kRightStorage);
    need_pool(a, 0);
    if (b < 0 || b >= sim::kVvols)
      fail(kBadParameter, "virtual volume number " + std::to_string(b) + " is not within 0..1023");
    auto d = c.db.sql("DELETE FROM vvols WHERE vvol=?1 AND ctl=?2");
    d.bind(b).bind(a).run();
    if (c.db.changes() == 0)
      fail(sim::kNoSuchObject, "controller " + std::to_string(a) + " has no virtual volume " + std::to_string(b));
  });
}

int KX_SetIntegrationLU(const char* unit, const KXSessionInfoRec* session, const IntegrationLUSetRec* set) {
  return sim::run(__func__, sim::kWrite, [&](sim::Call& c) {
    c.what = "unified LU";
    c.session(unit, session);
    const auto& r = sim::in(set, "unified LU change");
    c.what = "unified LU " + std::to_string(r.parent_lun);
    c.require(sim::kRightStorage);
    switch (r.operation) {
      case 0: join(c.db, r); break;
      case 1: release_all(c.db, r.parent_lun); break;
      case 2: release_child(c.db, r.parent_lun, r.child_lun); break;
      default: fail(kBadParameter, "unified LU operation " + std::to_string(r.operation) + " is not 0, 1 or 2");
    }
  });
}

int KX_IntegrationLUInfo(const char* unit, IntegrationLUInfoRec* info) {
  return sim::run(__func__, sim::kRead, [&](sim::Call& c) {
    c.unit_login(unit);
    auto& r = sim::out(info, "unified LU information");
    int n = 0;
    for (const auto& [parent, u] : unified(c.db)) {
      if (n == 512) break;
      auto& e = r.unite_info[n++];
      e.unite_info = parent;
      e.capacity = clamp32(unified_blocks(c.db, u));
      e.child_lu_count = static_cast<int32_t>(u.children.size());
      std::copy(u.children.begin(), u.children.end(), e.child_lun);
    }
    r.integration_lu = n;
  });
}

int KX_IntegrationLUInfo2(const char* unit, const KXSessionInfoRec* session, IntegrationLUInfo2Rec* info) {
  return sim::run(__func__, sim::kRead, [&](sim::Call& c) {
    c.session(unit, session);
    auto& r = sim::out(info, "unified LU information");
    auto sizes = sim::lu_sizes(c.db);
    for (int i = 0; i < sim::kMaxLus; ++i) {
      auto& e = r.unite_info[i];
      e.unite_info = -1;
      e.next_lun = -1;
      e.capacity = clamp32(sizes[static_cast<size_t>(i)]);
    }
    int n = 0;
    for (const auto& [parent, u] : unified(c.db)) {
      r.parent_lu[n++] = parent;
      auto& p = r.unite_info[parent];
      p.unite_info = parent;
      p.capacity = clamp32(unified_blocks(c.db, u));
      p.child_lu_count = static_cast<int32_t>(u.children.size());
      int prev = parent;
      for (int child : u.children) {
        r.unite_info[prev].next_lun = child;
        r.unite_info[child].unite_info = parent;
        prev = child;
      }
    }
    r.integration_lu = r.parent_count = n;
  });
}

int KX_GetIntegrationPinInfo(const char* unit, const KXSessionInfoRec* session, PINInformationRec* info) {
  return sim::run(__func__, sim::kRead, [&](sim::Call& c) {
    c.session(unit, session);
    auto& r = sim::out(info, "unified LU map");
    r.unite_option = 1;
    auto lus = sim::existing_lus(c.db);
    for (int i = 0; i < sim::kMaxLus; ++i) {
      r.single_lu[i] = lus[static_cast<size_t>(i)] ? 1 : 0;
      r.unite_lu[i] = -1;
    }
    auto s = c.db.sql("SELECT lun, parent FROM unite");
    while (s.step()) {
      int lun = s.i(0);
      if (lun < 0 || lun >= sim::kMaxLus) continue;
      r.single_lu[lun] = 0;
      r.unite_lu[lun] = s.i(1);
    }
  });
}

int KX_GetLabelList(KXLabelRec* labels_out, int* count) {
  return sim::run(__func__, sim::kRead, [&](sim::Call&) { labels(labels_out, PERNIX_LABELS, count, false); });
}

int KX_GetLabelList2(KXLabelRec* labels_out, int* count) {
  return sim::run(__func__, sim::kRead, [&](sim::Call&) { labels(labels_out, PERNIX_LABELS2, count, true); });
}

int KX_RaidLuExport(const char* unit, const KXSessionInfoRec* session, const char* path) {
  return sim::run(__func__, sim::kRead, [&](sim::Call& c) {
    c.session(unit, session);
    std::string file = sim::in_text(path, PERNIX_PATH_SIZE, "path");
    auto f = sim::raid_lu_snapshot(c.db, c.now);
    f.unit = c.where;
    sim::write_file(file, sim::render_raid_lu(f));
  });
}

int KX_RaidLuImportEx(const char* unit, const KXSessionInfoRec* session, const char* path,
                      RaidLUInformationRec* info) {
  return sim::run(__func__, sim::kRead, [&](sim::Call& c) {
    c.session(unit, session);
    std::string file = sim::in_text(path, PERNIX_PATH_SIZE, "path");
    if (!info) fail(kBadParameter, "RAID group and LU information: null");
    auto f = sim::parse_raid_lu(sim::read_file(file, kRaidLuFileLimit));
    // Filled aside, so a refused file leaves the caller's record as it was.
    auto r = std::make_unique<RaidLUInformationRec>();
    std::memset(r.get(), 0, sizeof *r);
    sim::raid_group_information_of(f, r->rgparam);
    sim::logical_units_of(f, r->luparam);
    r->spare_count = static_cast<int32_t>(f.spares.size());
    for (size_t k = 0; k < f.spares.size(); ++k)
      r->spareinfo[k] = {static_cast<int32_t>(f.spares[k].enclosure), static_cast<int32_t>(f.spares[k].slot)};
    std::memcpy(info, r.get(), sizeof *r);
  });
}

int KX_RaidLuImport(const char* unit, const char* path, RaidGroupRec* groups, LogicalUnitRec* lus) {
  return sim::run(__func__, sim::kRead, [&](sim::Call& c) {
    c.unit_login(unit);
    std::string file = sim::in_text(path, PERNIX_PATH_SIZE, "path");
    if (!groups) fail(kBadParameter, "RAID groups: null");
    if (!lus) fail(kBadParameter, "LUs: null");
    auto f = sim::parse_raid_lu(sim::read_file(file, kRaidLuFileLimit));
    auto g = std::make_unique<RaidGroupRec[]>(PERNIX_RAID_GROUPS);
    auto l = std::make_unique<LogicalUnitRec[]>(PERNIX_LOGICAL_UNITS);
    sim::raid_groups_of(f, g.get());
    sim::logical_units_of(f, l.get());
    std::memcpy(groups, g.get(), sizeof(RaidGroupRec) * PERNIX_RAID_GROUPS);
    std::memcpy(lus, l.get(), sizeof(LogicalUnitRec) * PERNIX_LOGICAL_UNITS);
  });
}

}  // extern "C"
