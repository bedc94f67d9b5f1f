// Copy pairs, command devices, DMLUs, the remote array and volume migration.
//
// Tables:
//   copy_pairs(id, kind, pvol, svol, remote_lu, remote_serial, ctg, mirror_no,
//              blocks, created, copy_start, copy_end, split_at)
//     kind 0 local mirror (svol an LU of this array), 1 remote synchronous,
//     2 remote asynchronous (remote_lu on the array remote_serial, ctg its
//     consistency group).  Copying runs from copy_start to copy_end; split_at
//     is set while split.
//   lu_roles(lun, role)        'DMLU' or 'command device'
//   svol_disabled(lun)         LU numbers that may not become a secondary
//   migration_reserve(lun)     reserve LUs of volume migration
//   migrations(pvol, svol, pace, owner, blocks, done, since)
//     one migration of pvol onto the reserve LU svol: `done` blocks were
//     copied by `since`, the rest goes at the pace's rate.
// Every LU used here is held (lu_holds) so the storage family cannot delete it.
#include "sim/model/replication.h"

#include <algorithm>
#include <set>

#include "include/replication.h"
#include "sim/model/model.h"
#include "sim/model/pools.h"
#include "sim/model/storage.h"

namespace sim {

namespace {

constexpr const char* kPairHolder = "copy pair";
constexpr const char* kDmluRole = "DMLU";
constexpr const char* kCmdRole = "command device";
constexpr const char* kReserveHolder = "migration reserve LU";
constexpr const char* kMigrationHolder = "migration";
constexpr const char* kRemoteKey = "replication.remote";

std::string lu_name(int lun) { return "LU " + std::to_string(lun); }

void need(Db& db, int lun, const char* what) {
  if (lun < 0 || lun >= kMaxLus) fail(kBadParameter, std::string(what) + " " + std::to_string(lun) + " is not within 0..4095");
  if (!lu_exists(db, lun)) fail(kNoSuchObject, std::string(what) + ": " + lu_name(lun) + " does not exist");
}

void same_size(Db& db, int pvol, int svol) {
  int64_t p = lu_capacity(db, pvol), s = lu_capacity(db, svol);
  if (s < p) fail(kCapacity, lu_name(svol) + " is smaller than " + lu_name(pvol));
  if (s > p) fail(kBadParameter, lu_name(svol) + " is larger than " + lu_name(pvol) + "; the sizes must match");
}

bool in_pairs(Db& db, int lun) {
  auto s = db.sql("SELECT 1 FROM copy_pairs WHERE pvol=?1 OR (kind=0 AND svol=?1) LIMIT 1");
  s.bind(lun);
  return s.step();
}

void release_if_free(Db& db, int lun) {
  if (!in_pairs(db, lun)) release_lu(db, lun, kPairHolder);
}

bool need_dmlu(Db& db) {
  auto s = db.sql("SELECT 1 FROM copy_pairs UNION ALL SELECT 1 FROM migrations LIMIT 1");
  return s.step();
}

Pair row(Stmt& s) {
  Pair p;
  p.id = s.i(0);
  p.kind = s.i(1);
  p.pvol = s.i(2);
  p.svol = s.i(3);
  p.remote_lu = s.i(4);
  p.remote_serial = s.text(5);
  p.ctg = s.i(6);
  p.mirror_no = s.i(7);
  p.blocks = s.i64(8);
  p.created = s.i64(9);
  p.copy_start = s.i64(10);
  p.copy_end = s.i64(11);
  if (!s.is_null(12)) p.split_at = s.i64(12);
  return p;
}

// The pair a local secondary or a remote primary names.
Pair find_pair(Db& db, int kind, int lun) {
  if (kind < kPairMirror || kind > kPairAsync) fail(kBadParameter, "pair kind " + std::to_string(kind) + " is unknown");
  auto s = db.sql(kind == kPairMirror ? "SELECT id, kind, pvol, svol, remote_lu, remote_serial, ctg, mirror_no, blocks, "
                                        "created, copy_start, copy_end, split_at FROM copy_pairs WHERE kind=0 AND svol=?2"
                                      : "SELECT id, kind, pvol, svol, remote_lu, remote_serial, ctg, mirror_no, blocks, "
                                        "created, copy_start, copy_end, split_at FROM copy_pairs WHERE kind=?1 AND pvol=?2");
  s.bind(kind).bind(lun);
  if (!s.step()) fail(kNoSuchObject, lu_name(lun) + " is in no such pair");
  return row(s);
}

int64_t copy_seconds(int64_t blocks, int kind) {
  int64_t rate = kind == kPairMirror ? kMirrorRate : kRemoteRate;
  int64_t t = (blocks + rate - 1) / rate;
  return t < 1 ? 1 : t;
}

std::vector<int> role_luns(Db& db, const char* role) {
  std::vector<int> v;
  auto s = db.sql("SELECT lun FROM lu_roles WHERE role=?1 ORDER BY lun");
  s.bind(role);
  while (s.step()) v.push_back(s.i(0));
  return v;
}

void set_role(Db& db, const char* role, const std::vector<int>& luns) {
  std::set<int> want(luns.begin(), luns.end());
  if (want.size() != luns.size()) fail(kBadParameter, std::string(role) + ": an LU named twice");
  for (int lun : want) {
    need(db, lun, role);
    std::string r = lu_role(db, lun);
    if (!r.empty() && r != role) fail(kBusy, lu_name(lun) + " is a " + r);
  }
  for (int lun : role_luns(db, role)) {
    if (want.count(lun)) continue;
    release_lu(db, lun, role);
    auto d = db.sql("DELETE FROM lu_roles WHERE lun=?1");
    d.bind(lun).run();
  }
  for (int lun : want) {
    hold_lu(db, lun, role);
    auto i = db.sql("INSERT OR IGNORE INTO lu_roles(lun, role) VALUES(?1, ?2)");
    i.bind(lun).bind(role).run();
  }
}

}  // namespace

void create_replication(Db& db, const Options&) {
  db.exec(R"(
    CREATE TABLE copy_pairs(
      id INTEGER PRIMARY KEY, kind INT NOT NULL, pvol INT NOT NULL, svol INT NOT NULL,
      remote_lu INT NOT NULL, remote_serial TEXT NOT NULL, ctg INT NOT NULL, mirror_no INT NOT NULL,
      blocks INT NOT NULL, created INT NOT NULL, copy_start INT NOT NULL, copy_end INT NOT NULL,
      split_at INT);
    CREATE INDEX copy_pairs_by_pvol ON copy_pairs(kind, pvol, mirror_no);
    CREATE TABLE lu_roles(lun INT PRIMARY KEY, role TEXT NOT NULL);
    CREATE TABLE svol_disabled(lun INT PRIMARY KEY);
    CREATE TABLE migration_reserve(lun INT PRIMARY KEY);
    CREATE TABLE migrations(
      pvol INT PRIMARY KEY, svol INT NOT NULL UNIQUE, pace INT NOT NULL, owner INT NOT NULL,
      blocks INT NOT NULL, done INT NOT NULL, since INT NOT NULL);
  )");
}

// ---- copy pairs

std::vector<Pair> pairs(Db& db) {
  std::vector<Pair> v;
  auto s = db.sql(
      "SELECT id, kind, pvol, svol, remote_lu, remote_serial, ctg, mirror_no, blocks, created, copy_start, "
      "copy_end, split_at FROM copy_pairs ORDER BY kind, pvol, mirror_no, id");
  while (s.step()) v.push_back(row(s));
  return v;
}

int create_pair(Db& db, int64_t now, const PairRequest& r) {
  if (r.kind < kPairMirror || r.kind > kPairAsync) fail(kBadParameter, "pair kind " + std::to_string(r.kind) + " is unknown");
  need(db, r.pvol, "primary");
  if (dmlus(db).empty()) fail(kBusy, "no differential-management LU (DMLU) is set");
  std::string prole = lu_role(db, r.pvol);
  if (!prole.empty() && prole != kPairHolder) fail(kBusy, lu_name(r.pvol) + " is a " + prole);
  {
    auto s = db.sql("SELECT 1 FROM copy_pairs WHERE kind=0 AND svol=?1");
    s.bind(r.pvol);
    if (s.step()) fail(kBusy, lu_name(r.pvol) + " is the secondary of a mirror");
  }
  int64_t blocks = lu_capacity(db, r.pvol);
  int svol = -1, remote_lu = -1, ctg = -1, mirror_no = 0;
  std::string serial;
  if (r.kind == kPairMirror) {
    need(db, r.svol, "secondary");
    if (r.svol == r.pvol) fail(kBadParameter, "a pair needs two LUs");
    same_size(db, r.pvol, r.svol);
    std::string srole = lu_role(db, r.svol);
    if (!srole.empty()) fail(kBusy, lu_name(r.svol) + " is a " + srole);
    if (svol_disabled(db, r.svol)) fail(kBusy, lu_name(r.svol) + " may not become a secondary volume");
    std::set<int> used;
    auto s = db.sql("SELECT mirror_no FROM copy_pairs WHERE kind=0 AND pvol=?1");
    s.bind(r.pvol);
    while (s.step()) used.insert(s.i(0));
    if (static_cast<int>(used.size()) >= kMaxMirrors) fail(kCapacity, lu_name(r.pvol) + " has 15 mirrors");
    while (used.count(mirror_no)) ++mirror_no;
    auto n = db.sql("SELECT count(*) FROM copy_pairs WHERE kind=0");
    if (n.step() && n.i(0) >= kMaxLocalPairs) fail(kCapacity, "the array holds 2046 local pairs");
    svol = r.svol;
  } else {
    serial = remote_serial(db);
    if (serial.empty()) fail(kBusy, "the remote array's identity is not set");
    if (r.remote_lu < 0 || r.remote_lu >= kMaxLus) fail(kBadParameter, "remote LU " + std::to_string(r.remote_lu) + " is not within 0..4095");
    if (r.kind == kPairAsync) {
      if (r.ctg < 0 || r.ctg >= kConsistencyGroups) fail(kBadParameter, "consistency group " + std::to_string(r.ctg) + " is not within 0..15");
      ctg = r.ctg;
    }
    auto s = db.sql("SELECT 1 FROM copy_pairs WHERE kind<>0 AND (pvol=?1 OR remote_lu=?2)");
    s.bind(r.pvol).bind(r.remote_lu);
    if (s.step()) fail(kExists, lu_name(r.pvol) + " or remote LU " + std::to_string(r.remote_lu) + " is in a remote pair already");
    remote_lu = r.remote_lu;
  }
  int64_t end = now + copy_seconds(blocks, r.kind);
  auto i = db.sql(
      "INSERT INTO copy_pairs(kind, pvol, svol, remote_lu, remote_serial, ctg, mirror_no, blocks, created, "
      "copy_start, copy_end) VALUES(?1,?2,?3,?4,?5,?6,?7,?8,?9,?9,?10)");
  i.bind(r.kind).bind(r.pvol).bind(svol).bind(remote_lu).bind(serial).bind(ctg).bind(mirror_no).bind(blocks).bind(now).bind(end).run();
  int id = static_cast<int>(db.last_id());
  hold_lu(db, r.pvol, kPairHolder);
  if (svol >= 0) hold_lu(db, svol, kPairHolder);
  return id;
}

void split_pair(Db& db, int64_t now, int kind, int lun) {
  Pair p = find_pair(db, kind, lun);
  std::vector<Pair> group{p};
  if (p.kind == kPairAsync) {
    // A consistency group splits as one.
    group.clear();
    auto s = db.sql(
        "SELECT id, kind, pvol, svol, remote_lu, remote_serial, ctg, mirror_no, blocks, created, copy_start, "
        "copy_end, split_at FROM copy_pairs WHERE kind=2 AND ctg=?1");
    s.bind(p.ctg);
    while (s.step()) group.push_back(row(s));
  }
  for (const auto& g : group) {
    if (g.status(now) == kPairCopy) fail(kBusy, lu_name(g.pvol) + "'s pair is still copying");
    if (g.status(now) == kPairSplit && g.id == p.id) fail(kBusy, lu_name(lun) + "'s pair is split already");
  }
  for (const auto& g : group) {
    if (g.split_at) continue;
    auto u = db.sql("UPDATE copy_pairs SET split_at=?2 WHERE id=?1");
    u.bind(g.id).bind(now).run();
  }
}

void resync_pair(Db& db, int64_t now, int kind, int lun) {
  Pair p = find_pair(db, kind, lun);
  if (!p.split_at) fail(kBusy, lu_name(lun) + "'s pair is not split");
  // Only the differences travel: a hundredth of the whole, at least a second.
  int64_t secs = copy_seconds(p.blocks, p.kind) / 100;
  auto u = db.sql("UPDATE copy_pairs SET split_at=NULL, copy_start=?2, copy_end=?3 WHERE id=?1");
  u.bind(p.id).bind(now).bind(now + (secs < 1 ? 1 : secs)).run();
}

void delete_pair(Db& db, int64_t, int kind, int lun) {
  Pair p = find_pair(db, kind, lun);
  auto d = db.sql("DELETE FROM copy_pairs WHERE id=?1");
  d.bind(p.id).run();
  release_if_free(db, p.pvol);
  if (p.svol >= 0) release_if_free(db, p.svol);
}

std::string pair_command(Db& db, int64_t now, const std::vector<std::string>& w) {
  auto num = [](const std::string& s) {
    if (s.empty() || s.size() > 6 || s.find_first_not_of("0123456789") != std::string::npos)
      fail(kBadParameter, "'" + s + "' is not a number");
    return std::stoi(s);
  };
  if (w.size() < 3) fail(kBadParameter, "pair create|split|resync|delete mirror|sync|async LU ...");
  int kind = w[1] == "mirror" ? kPairMirror : w[1] == "sync" ? kPairSync : w[1] == "async" ? kPairAsync : -1;
  if (kind < 0) fail(kBadParameter, "kind must be mirror, sync or async");
  if (w[0] == "create") {
    PairRequest r;
    r.kind = kind;
    r.pvol = num(w[2]);
    size_t want = kind == kPairAsync ? 5 : 4;
    if (w.size() != want) fail(kBadParameter, "wrong number of words");
    if (kind == kPairMirror) r.svol = num(w[3]);
    else r.remote_lu = num(w[3]);
    if (kind == kPairAsync) r.ctg = num(w[4]);
    create_pair(db, now, r);
    return "pair created: " + w[1] + " LU " + w[2] + " -> " + w[3];
  }
  if (w.size() != 3) fail(kBadParameter, "wrong number of words");
  int lun = num(w[2]);
  if (w[0] == "split") split_pair(db, now, kind, lun);
  else if (w[0] == "resync") resync_pair(db, now, kind, lun);
  else if (w[0] == "delete") delete_pair(db, now, kind, lun);
  else fail(kBadParameter, "unknown pair command " + w[0]);
  return "pair " + w[0] + ": " + w[1] + " LU " + w[2];
}

// ---- LU roles

std::vector<int> dmlus(Db& db) { return role_luns(db, kDmluRole); }
std::vector<int> command_devices(Db& db) { return role_luns(db, kCmdRole); }

void set_dmlus(Db& db, const std::vector<int>& luns) {
  if (luns.empty() && need_dmlu(db)) fail(kBusy, "copy pairs or migrations need a DMLU");
  set_role(db, kDmluRole, luns);
}

void set_command_devices(Db& db, const std::vector<int>& luns) { set_role(db, kCmdRole, luns); }

std::string lu_role(Db& db, int lun) {
  {
    auto s = db.sql("SELECT role FROM lu_roles WHERE lun=?1");
    s.bind(lun);
    if (s.step()) return s.text(0);
  }
  if (in_pairs(db, lun)) return kPairHolder;
  {
    auto s = db.sql("SELECT 1 FROM migration_reserve WHERE lun=?1");
    s.bind(lun);
    if (s.step()) return kReserveHolder;
  }
  auto s = db.sql("SELECT 1 FROM migrations WHERE pvol=?1");
  s.bind(lun);
  if (s.step()) return "migration source";
  return "";
}

bool svol_disabled(Db& db, int lun) {
  auto s = db.sql("SELECT 1 FROM svol_disabled WHERE lun=?1");
  s.bind(lun);
  return s.step();
}

void set_svol_disabled(Db& db, int lun, bool disabled) {
  need(db, lun, "LU");
  if (disabled) {
    auto s = db.sql("SELECT 1 FROM copy_pairs WHERE kind=0 AND svol=?1 UNION ALL SELECT 1 FROM migration_reserve WHERE lun=?1");
    s.bind(lun);
    if (s.step()) fail(kBusy, lu_name(lun) + " is a secondary volume now");
    auto i = db.sql("INSERT OR IGNORE INTO svol_disabled(lun) VALUES(?1)");
    i.bind(lun).run();
  } else {
    auto d = db.sql("DELETE FROM svol_disabled WHERE lun=?1");
    d.bind(lun).run();
  }
}

std::string remote_serial(Db& db) {
  RemoteDeviceInformationRec r{};
  if (!load_setting(db, kRemoteKey, &r, sizeof r) || r.valid != 1) return "";
  r.serial[sizeof r.serial - 1] = 0;
  return r.serial;
}

bool remote_pairs_exist(Db& db) {
  auto s = db.sql("SELECT 1 FROM copy_pairs WHERE kind<>0 LIMIT 1");
  return s.step();
}

// ---- volume migration

int64_t pace_rate(int pace) {
  switch (pace) {
    case 0: return 100000000 / 512;    // slow: 100 MB/s
    case 2: return 1000000000 / 512;   // fast: 1 GB/s
    default: return 400000000 / 512;   // normal: 400 MB/s
  }
}

std::vector<int> reserve_lus(Db& db) {
  std::vector<int> v;
  auto s = db.sql("SELECT lun FROM migration_reserve ORDER BY lun");
  while (s.step()) v.push_back(s.i(0));
  return v;
}

std::vector<Migration> migrations(Db& db) {
  std::vector<Migration> v;
  auto s = db.sql("SELECT pvol, svol, pace, owner, blocks, done, since FROM migrations ORDER BY pvol");
  while (s.step()) v.push_back({s.i(0), s.i(1), s.i(2), s.i(3), s.i64(4), s.i64(5), s.i64(6)});
  return v;
}

void reserve(Db& db, const std::vector<int>& luns) {
  if (luns.empty()) fail(kBadParameter, "no LU selected");
  for (int lun : luns) {
    need(db, lun, "reserve LU");
    std::string r = lu_role(db, lun);
    if (r == kReserveHolder) fail(kExists, lu_name(lun) + " is reserved already");
    if (!r.empty()) fail(kBusy, lu_name(lun) + " is a " + r);
    if (svol_disabled(db, lun)) fail(kBusy, lu_name(lun) + " may not become a secondary volume");
  }
  for (int lun : luns) {
    hold_lu(db, lun, kReserveHolder);
    auto i = db.sql("INSERT INTO migration_reserve(lun) VALUES(?1)");
    i.bind(lun).run();
  }
}

void unreserve(Db& db, const std::vector<int>& luns) {
  if (luns.empty()) fail(kBadParameter, "no LU selected");
  for (int lun : luns) {
    auto s = db.sql("SELECT 1 FROM migration_reserve WHERE lun=?1");
    s.bind(lun);
    if (!s.step()) fail(kNoSuchObject, lu_name(lun) + " is not a reserve LU");
    auto m = db.sql("SELECT 1 FROM migrations WHERE svol=?1");
    m.bind(lun);
    if (m.step()) fail(kBusy, lu_name(lun) + " is the target of a migration");
  }
  for (int lun : luns) {
    release_lu(db, lun, kReserveHolder);
    auto d = db.sql("DELETE FROM migration_reserve WHERE lun=?1");
    d.bind(lun).run();
  }
}

void start_migrations(Db& db, int64_t now, const std::vector<MigrationPair>& req, int owner) {
  if (owner < 0) fail(kBadParameter, "owner " + std::to_string(owner) + " is negative");
  std::set<int> named;
  for (const auto& p : req) {
    if (!named.insert(p.pvol).second || !named.insert(p.svol).second)
      fail(kBadParameter, "an LU is named twice in the request");
    if (p.pace < 0 || p.pace > 2) fail(kBadParameter, "copy pace " + std::to_string(p.pace) + " is not 0, 1 or 2");
  }
  for (const auto& p : req) {
    need(db, p.pvol, "source");
    need(db, p.svol, "reserve LU");
    if (lu_role(db, p.svol) != kReserveHolder) fail(kBusy, lu_name(p.svol) + " is not a reserve LU");
    auto m = db.sql("SELECT 1 FROM migrations WHERE svol=?1");
    m.bind(p.svol);
    if (m.step()) fail(kBusy, lu_name(p.svol) + " is the target of a migration");
    std::string r = lu_role(db, p.pvol);
    if (!r.empty()) fail(kBusy, lu_name(p.pvol) + " is a " + r);
    same_size(db, p.pvol, p.svol);
  }
  if (dmlus(db).empty()) fail(kBusy, "no differential-management LU (DMLU) is set");
  for (const auto& p : req) {
    auto i = db.sql("INSERT INTO migrations(pvol, svol, pace, owner, blocks, done, since) VALUES(?1,?2,?3,?4,?5,0,?6)");
    i.bind(p.pvol).bind(p.svol).bind(p.pace).bind(owner).bind(lu_capacity(db, p.pvol)).bind(now).run();
    hold_lu(db, p.pvol, kMigrationHolder);
  }
}

void migration_op(Db& db, int64_t now, MigrationOp op, const std::vector<MigrationPair>& req, int owner) {
  std::vector<Migration> found;
  std::set<int> named;
  for (const auto& p : req) {
    if (!named.insert(p.pvol).second) fail(kBadParameter, lu_name(p.pvol) + " is named twice in the request");
    auto s = db.sql("SELECT pvol, svol, pace, owner, blocks, done, since FROM migrations WHERE pvol=?1");
    s.bind(p.pvol);
    if (!s.step()) fail(kNoSuchObject, lu_name(p.pvol) + " is not being migrated");
    Migration m{s.i(0), s.i(1), s.i(2), s.i(3), s.i64(4), s.i64(5), s.i64(6)};
    if (m.svol != p.svol) fail(kBadParameter, lu_name(p.pvol) + " is migrated to " + lu_name(m.svol) + ", not " + lu_name(p.svol));
    if (op != kMigSplitFree && m.owner != owner)
      fail(kBusy, lu_name(p.pvol) + "'s migration belongs to owner " + std::to_string(m.owner));
    if ((op == kMigSplit || op == kMigSplitFree) && m.state(now) != kMigrationCopied)
      fail(kBusy, lu_name(p.pvol) + " is still being copied");
    if (op == kMigPace && (p.pace < 0 || p.pace > 2)) fail(kBadParameter, "copy pace " + std::to_string(p.pace) + " is not 0, 1 or 2");
    found.push_back(m);
  }
  for (size_t k = 0; k < found.size(); ++k) {
    const Migration& m = found[k];
    if (op == kMigPace) {
      auto u = db.sql("UPDATE migrations SET pace=?2, done=?3, since=?4 WHERE pvol=?1");
      u.bind(m.pvol).bind(req[k].pace).bind(m.copied(now)).bind(now).run();
      continue;
    }
    // The source LU keeps its number and now lies where the reserve LU lay;
    // the reserve LU takes the old place and stays reserved.
    if (op != kMigCancel) swap_lu_places(db, m.pvol, m.svol);
    auto d = db.sql("DELETE FROM migrations WHERE pvol=?1");
    d.bind(m.pvol).run();
    release_lu(db, m.pvol, kMigrationHolder);
  }
}

}  // namespace sim
