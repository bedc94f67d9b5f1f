// Drives, RAID groups, LUs and the work that runs on them (formatting, parity
// correction, drive rebuilds).
//
// Tables (capacities in blocks of 512 bytes):
//
//   drives(enclosure, slot, blocks, kind, state, rg, rg_pos, rebuild_start, rebuild_end)
//     One mounted drive.  kind: 0 SAS, 1 SATA, 2 SSD.  state: 'normal',
//     'offline', 'failed' or 'spun-down'.  rg: the RAID group that holds it or
//     NULL when free; rg_pos its place in the group's drive chain (0 first).
//     rebuild_*: the last rebuild (simulator clock, seconds), NULL if none.
//   raid_groups(number, level, per_group, groups, drive_blocks, capacity, rg_type,
//               spin_downs, created)
//     level: 0, 1, 5, 6 or 10.  per_group drives in each of `groups` parity
//     groups.  drive_blocks: the blocks used on each drive (the smallest
//     drive, or less when the group was made with a last LBA).  capacity:
//     data blocks (data drives x drive_blocks).  rg_type 0 for an ordinary
//     group.  spin_downs: how often its drives were spun down.
//   lus(number, rg, start, size, status, prior_status, staging, stripe, hostblock,
//       use_type, default_ctl, current_ctl, cachepart, pair_cachepart_valid,
//       pair_cachepart, created)
//     An LU holds [start, start+size) of its RAID group's data blocks.
//     status: 0 normal, 2 not formatted, 3 invalid (a running format is
//     reported as 1 but never stored); prior_status: the status an invalid LU
//     returns to when restored.
//   jobs(lun, kind, mode, seq, entered, start, finish)
//     Work on an LU: kind 'format' (full), 'quick' (quick format) or 'parity'
//     (parity correction).  start and finish are fixed when the job is
//     entered, so progress is a function of the clock alone: waiting before
//     start, running until finish, done after it.  One job of each kind per LU.
//   lu_holds(lun, holder)
//     LUs another family has taken (a pool, a host mapping): such an LU is
//     not deleted, renumbered or invalidated.
//
// Default array: `drives` SAS drives of `drive_gb` GB spread evenly over the
// enclosures (15 slots each; more enclosures are added when the drives do not
// fit), `raid_groups` RAID5 groups of 5 drives (4 data + 1 parity) on the
// first drives, as many as the drives allow, and `lus` LUs dealt round the
// groups, each 100 GB or an equal share of its group when that is less; all
// formatted.
#include "sim/model/storage.h"

#include <algorithm>
#include <set>

#include "sim/core/call.h"
#include "sim/model/model.h"

namespace sim {

namespace {

constexpr const char* kSchema = R"(
  CREATE TABLE drives(
    enclosure INT NOT NULL, slot INT NOT NULL, blocks INT NOT NULL, kind INT NOT NULL,
    state TEXT NOT NULL DEFAULT 'normal', rg INT, rg_pos INT,
    rebuild_start INT, rebuild_end INT,
    PRIMARY KEY(enclosure, slot));
  CREATE INDEX drives_by_rg ON drives(rg, rg_pos);
  CREATE TABLE raid_groups(
    number INT PRIMARY KEY, level INT NOT NULL, per_group INT NOT NULL, groups INT NOT NULL,
    drive_blocks INT NOT NULL, capacity INT NOT NULL, rg_type INT NOT NULL DEFAULT 0,
    spin_downs INT NOT NULL DEFAULT 0, created INT NOT NULL);
  CREATE TABLE lus(
    number INT PRIMARY KEY, rg INT NOT NULL, start INT NOT NULL, size INT NOT NULL,
    status INT NOT NULL, prior_status INT NOT NULL DEFAULT 0,
    staging INT NOT NULL DEFAULT 0, stripe INT NOT NULL DEFAULT 256,
    hostblock INT NOT NULL DEFAULT 512, use_type INT NOT NULL DEFAULT 0,
    default_ctl INT NOT NULL DEFAULT 0, current_ctl INT NOT NULL DEFAULT 0,
    cachepart INT NOT NULL DEFAULT 0, pair_cachepart_valid INT NOT NULL DEFAULT 0,
    pair_cachepart INT NOT NULL DEFAULT 0, created INT NOT NULL);
  CREATE INDEX lus_by_rg ON lus(rg, start);
  CREATE TABLE jobs(
    lun INT NOT NULL, kind TEXT NOT NULL, mode INT NOT NULL DEFAULT 0, seq INTEGER NOT NULL,
    entered INT NOT NULL, start INT NOT NULL, finish INT NOT NULL,
    PRIMARY KEY(lun, kind));
  CREATE TABLE lu_holds(lun INT NOT NULL, holder TEXT NOT NULL, PRIMARY KEY(lun, holder));
)";

int64_t gb_blocks(int64_t gb) { return gb * kGB / kBlockBytes; }

std::string pos(int enclosure, int slot) {
  return std::to_string(enclosure) + "/" + std::to_string(slot);
}

}  // namespace

bool valid_level(int level) {
  return level == 0 || level == 1 || level == 5 || level == 6 || level == 10;
}

int data_drives(int level, int per_group, int groups) {
  if (per_group < 1 || groups < 1 || per_group > kMaxDrives || groups > kMaxDrives ||
      per_group * groups > kMaxDrives)
    return -1;
  int total = per_group * groups;
  switch (level) {
    case 0: return total >= 2 ? total : -1;
    case 1: return per_group == 2 && groups == 1 ? 1 : -1;
    case 5: return per_group >= 3 ? (per_group - 1) * groups : -1;
    case 6: return per_group >= 4 ? (per_group - 2) * groups : -1;
    case 10: return total >= 4 && total % 2 == 0 ? total / 2 : -1;
    default: return -1;
  }
}

void create_storage(Db& db, const Options& o) {
  db.exec(kSchema);
  int n = std::clamp(o.drives, 1, kMaxDrives);
  int enclosures = std::clamp(std::max(o.enclosures, (n + kEnclosureSlots - 1) / kEnclosureSlots), 1,
                              kMaxEnclosures);
  int64_t blocks = gb_blocks(o.drive_gb);
  {
    int base = n / enclosures, extra = n % enclosures;
    for (int e = 0; e < enclosures; ++e) {
      int here = base + (e < extra ? 1 : 0);
      for (int s = 0; s < here; ++s) {
        auto st = db.sql("INSERT INTO drives(enclosure, slot, blocks, kind) VALUES(?1,?2,?3,?4)");
        st.bind(e).bind(s).bind(blocks).bind(static_cast<int>(kDriveSAS)).run();
      }
    }
  }
  int groups = std::min(o.raid_groups, n / 5);
  for (int g = 0; g < groups; ++g) {
    RgSpec want;
    want.number = g;
    want.level = 5;
    want.per_group = 5;
    want.automatic = true;
    create_raid_group(db, want);
  }
  if (groups == 0) return;
  int lus = std::min(o.lus, kMaxLus);
  for (int g = 0; g < groups; ++g) {
    int here = lus / groups + (g < lus % groups ? 1 : 0);
    if (here == 0) continue;
    auto rg = find_raid_group(db, g);
    int64_t size = std::min({gb_blocks(100), rg->capacity / here, kMaxLuBlocks});
    // Laid end to end from the group's start (create_lu would look for room
    // each time: quadratic for a few thousand LUs).
    for (int k = 0; k < here; ++k) {
      int number = g + k * groups;
      auto s = db.sql(
          "INSERT INTO lus(number, rg, start, size, status, default_ctl, current_ctl, created) "
          "VALUES(?1, ?2, ?3, ?4, 0, ?5, ?5, ?6)");
      s.bind(number).bind(g).bind(size * k).bind(size).bind(number % 2).bind(clock_now(db)).run();
    }
  }
}

// ---- drives

namespace {

Drive read_drive(const Stmt& s) {
  Drive d;
  d.enclosure = s.i(0);
  d.slot = s.i(1);
  d.blocks = s.i64(2);
  d.kind = s.i(3);
  d.state = s.text(4);
  d.rg = s.is_null(5) ? -1 : s.i(5);
  return d;
}

}  // namespace

std::optional<Drive> find_drive(Db& db, int enclosure, int slot) {
  auto s = db.sql("SELECT enclosure, slot, blocks, kind, state, rg FROM drives WHERE enclosure=?1 AND slot=?2");
  s.bind(enclosure).bind(slot);
  if (!s.step()) return std::nullopt;
  return read_drive(s);
}

std::vector<Drive> drives(Db& db) {
  std::vector<Drive> all;
  auto s = db.sql("SELECT enclosure, slot, blocks, kind, state, rg FROM drives ORDER BY enclosure, slot");
  while (s.step()) all.push_back(read_drive(s));
  return all;
}

// ---- RAID groups

RaidGroup plan_raid_group(Db& db, const RgSpec& want, std::vector<std::pair<int, int>>* chosen) {
  RaidGroup g;
  if (want.number == -1) {
    std::set<int> used;
    auto s = db.sql("SELECT number FROM raid_groups");
    while (s.step()) used.insert(s.i(0));
    g.number = -1;
    for (int k = 0; k < kMaxRaidGroups; ++k)
      if (!used.count(k)) {
        g.number = k;
        break;
      }
    if (g.number < 0) fail(kCapacity, "all 90 RAID group numbers are in use");
  } else {
    if (want.number < 0 || want.number >= kMaxRaidGroups)
      fail(kBadParameter, "RAID group number " + std::to_string(want.number) + " is not 0-89");
    if (find_raid_group(db, want.number)) fail(kExists, "RAID group " + std::to_string(want.number) + " exists");
    g.number = want.number;
  }
  if (!valid_level(want.level)) fail(kBadParameter, "RAID level " + std::to_string(want.level) + " is not 0, 1, 5, 6 or 10");
  int data = data_drives(want.level, want.per_group, want.groups);
  if (data < 0)
    fail(kBadParameter, "RAID" + std::to_string(want.level) + " cannot be made of " +
                            std::to_string(want.groups) + " x " + std::to_string(want.per_group) + " drives");
  size_t total = static_cast<size_t>(want.per_group) * static_cast<size_t>(want.groups);
  std::vector<Drive> taken;
  if (want.automatic) {
    if (want.kind < -1 || want.kind > kDriveSSD) fail(kBadParameter, "unknown drive type " + std::to_string(want.kind));
    if (want.gb < 0) fail(kBadParameter, "negative drive capacity");
    auto s = db.sql(
        "SELECT enclosure, slot, blocks, kind, state, rg FROM drives WHERE rg IS NULL AND state='normal' "
        "AND (?1<0 OR kind=?1) AND (?2<=0 OR blocks=?3) ORDER BY enclosure, slot");
    s.bind(want.kind).bind(want.gb).bind(gb_blocks(want.gb));
    while (taken.size() < total && s.step()) taken.push_back(read_drive(s));
    if (taken.size() < total)
      fail(kCapacity, "only " + std::to_string(taken.size()) + " free drives of that kind, " +
                          std::to_string(total) + " needed");
  } else {
    if (want.drives.size() != total)
      fail(kBadParameter, std::to_string(want.drives.size()) + " drives named, " + std::to_string(total) + " needed");
    std::set<std::pair<int, int>> seen;
    for (auto [e, sl] : want.drives) {
      if (e < 0 || e >= kMaxEnclosures || sl < 0 || sl >= kEnclosureSlots)
        fail(kBadParameter, "no drive position " + pos(e, sl));
      if (!seen.insert({e, sl}).second) fail(kBadParameter, "drive " + pos(e, sl) + " named twice");
      auto d = find_drive(db, e, sl);
      if (!d) fail(kNoSuchObject, "no drive mounted at " + pos(e, sl));
      if (d->rg >= 0) fail(kBusy, "drive " + pos(e, sl) + " belongs to RAID group " + std::to_string(d->rg));
      if (d->state != "normal") fail(kBusy, "drive " + pos(e, sl) + " is " + d->state);
      if (!taken.empty() && d->kind != taken.front().kind)
        fail(kBadParameter, "drive " + pos(e, sl) + " is of another type than " +
                                pos(taken.front().enclosure, taken.front().slot));
      taken.push_back(*d);
    }
  }
  int64_t smallest = taken.front().blocks;
  for (const auto& d : taken) smallest = std::min(smallest, d.blocks);
  g.level = want.level;
  g.per_group = want.per_group;
  g.groups = want.groups;
  g.drive_blocks = smallest;
  if (want.last_lba >= 0) {
    if (want.last_lba >= smallest) fail(kBadParameter, "last LBA beyond the smallest drive");
    g.drive_blocks = want.last_lba + 1;
  }
  g.capacity = data * g.drive_blocks;
  g.largest_free = g.capacity;
  g.first_enclosure = taken.front().enclosure;
  g.first_slot = taken.front().slot;
  g.smallest_blocks = smallest;
  g.smallest_gb = static_cast<int>(smallest * kBlockBytes / kGB);
  g.rg_type = want.rg_type;
  if (chosen) {
    chosen->clear();
    for (const auto& d : taken) chosen->push_back({d.enclosure, d.slot});
  }
  return g;
}

RaidGroup create_raid_group(Db& db, const RgSpec& want) {
  std::vector<std::pair<int, int>> chosen;
  RaidGroup g = plan_raid_group(db, want, &chosen);
  auto s = db.sql(
      "INSERT INTO raid_groups(number, level, per_group, groups, drive_blocks, capacity, rg_type, created) "
      "VALUES(?1,?2,?3,?4,?5,?6,?7,?8)");
  s.bind(g.number).bind(g.level).bind(g.per_group).bind(g.groups).bind(g.drive_blocks).bind(g.capacity)
      .bind(g.rg_type).bind(clock_now(db)).run();
  int k = 0;
  for (auto [e, sl] : chosen) {
    auto u = db.sql("UPDATE drives SET rg=?1, rg_pos=?2 WHERE enclosure=?3 AND slot=?4");
    u.bind(g.number).bind(k++).bind(e).bind(sl).run();
  }
  return g;
}

std::vector<Area> rg_areas(Db& db, int number) {
  auto c = db.sql("SELECT capacity FROM raid_groups WHERE number=?1");
  c.bind(number);
  if (!c.step()) fail(kNoSuchObject, "no RAID group " + std::to_string(number));
  int64_t capacity = c.i64(0);
  std::vector<Area> areas;
  int64_t at = 0;
  int before = -1;
  auto s = db.sql("SELECT number, start, size FROM lus WHERE rg=?1 ORDER BY start");
  s.bind(number);
  while (s.step()) {
    int64_t start = s.i64(1), size = s.i64(2);
    if (start > at) areas.push_back({at, start - at, -1, before});
    areas.push_back({start, size, s.i(0), before});
    before = s.i(0);
    at = start + size;
  }
  if (at < capacity) areas.push_back({at, capacity - at, -1, before});
  return areas;
}

namespace {

RaidGroup read_group(Db& db, const Stmt& s) {
  RaidGroup g;
  g.number = s.i(0);
  g.level = s.i(1);
  g.per_group = s.i(2);
  g.groups = s.i(3);
  g.drive_blocks = s.i64(4);
  g.capacity = s.i64(5);
  g.rg_type = s.i(6);
  g.first_enclosure = s.is_null(8) ? -1 : s.i(8);
  g.first_slot = s.is_null(9) ? -1 : s.i(9);
  g.smallest_blocks = s.i64(10);
  g.smallest_gb = static_cast<int>(g.smallest_blocks * kBlockBytes / kGB);
  // The blocks in use and the largest free area in one pass over the group's
  // LUs in address order (each group's LUs read once, nothing kept).
  auto l = db.sql("SELECT start, size FROM lus WHERE rg=?1 ORDER BY start");
  l.bind(g.number);
  int64_t at = 0;
  while (l.step()) {
    int64_t start = l.i64(0), size = l.i64(1);
    if (start > at) g.largest_free = std::max(g.largest_free, start - at);
    g.used += size;
    at = start + size;
  }
  if (at < g.capacity) g.largest_free = std::max(g.largest_free, g.capacity - at);
  return g;
}

constexpr const char* kGroupColumns =
    "SELECT g.number, g.level, g.per_group, g.groups, g.drive_blocks, g.capacity, g.rg_type, "
    "0, "  // the blocks in use: summed by read_group
    "(SELECT enclosure FROM drives WHERE rg=g.number AND rg_pos=0), "
    "(SELECT slot FROM drives WHERE rg=g.number AND rg_pos=0), "
    "(SELECT coalesce(min(blocks), 0) FROM drives WHERE rg=g.number) FROM raid_groups g ";

}  // namespace

std::optional<RaidGroup> find_raid_group(Db& db, int number) {
  static const std::string q = std::string(kGroupColumns) + "WHERE g.number=?1";
  auto s = db.sql(q.c_str());
  s.bind(number);
  if (!s.step()) return std::nullopt;
  return read_group(db, s);
}

std::vector<RaidGroup> raid_groups(Db& db) {
  static const std::string q = std::string(kGroupColumns) + "ORDER BY g.number";
  std::vector<RaidGroup> all;
  auto s = db.sql(q.c_str());
  while (s.step()) all.push_back(read_group(db, s));
  return all;
}

RaidGroup expand_raid_group(Db& db, int number, const std::vector<std::pair<int, int>>& add) {
  auto g = find_raid_group(db, number);
  if (!g) fail(kNoSuchObject, "no RAID group " + std::to_string(number));
  if (g->level == 1) fail(kBadParameter, "a RAID1 group cannot grow");
  if (add.empty()) fail(kBadParameter, "no drives to add");
  if (rg_spun_down(db, number)) fail(kBusy, "the drives of RAID group " + std::to_string(number) + " are spun down");
  int total = g->per_group * g->groups + static_cast<int>(add.size());
  if (total > kMaxDrives) fail(kBadParameter, "a RAID group holds at most 450 drives");
  int per_group = g->per_group, groups = g->groups;
  if (groups == 1) {
    per_group = total;
  } else {
    if (add.size() % static_cast<size_t>(per_group) != 0)
      fail(kBadParameter, "add whole parity groups of " + std::to_string(per_group) + " drives");
    groups = total / per_group;
  }
  int data = data_drives(g->level, per_group, groups);
  if (data < 0) fail(kBadParameter, "RAID" + std::to_string(g->level) + " cannot be made of that many drives");
  auto kind = db.sql("SELECT kind FROM drives WHERE rg=?1 LIMIT 1");
  kind.bind(number);
  int group_kind = kind.step() ? kind.i(0) : -1;
  std::set<std::pair<int, int>> seen;
  int k = g->per_group * g->groups;
  for (auto [e, sl] : add) {
    if (e < 0 || e >= kMaxEnclosures || sl < 0 || sl >= kEnclosureSlots)
      fail(kBadParameter, "no drive position " + pos(e, sl));
    if (!seen.insert({e, sl}).second) fail(kBadParameter, "drive " + pos(e, sl) + " named twice");
    auto d = find_drive(db, e, sl);
    if (!d) fail(kNoSuchObject, "no drive mounted at " + pos(e, sl));
    if (d->rg >= 0) fail(kBusy, "drive " + pos(e, sl) + " belongs to RAID group " + std::to_string(d->rg));
    if (d->state != "normal") fail(kBusy, "drive " + pos(e, sl) + " is " + d->state);
    if (group_kind >= 0 && d->kind != group_kind) fail(kBadParameter, "drive " + pos(e, sl) + " is of another type");
    if (d->blocks < g->drive_blocks) fail(kBadParameter, "drive " + pos(e, sl) + " is smaller than the group's drives");
    auto u = db.sql("UPDATE drives SET rg=?1, rg_pos=?2 WHERE enclosure=?3 AND slot=?4");
    u.bind(number).bind(k++).bind(e).bind(sl).run();
  }
  auto u = db.sql("UPDATE raid_groups SET per_group=?1, groups=?2, capacity=?3 WHERE number=?4");
  u.bind(per_group).bind(groups).bind(data * g->drive_blocks).bind(number).run();
  return *find_raid_group(db, number);
}

bool rg_spun_down(Db& db, int number) {
  auto s = db.sql("SELECT 1 FROM drives WHERE rg=?1 AND state='spun-down' LIMIT 1");
  s.bind(number);
  return s.step();
}

bool lu_formatting(Db& db, int64_t now, int lun) {
  auto s = db.sql("SELECT 1 FROM jobs WHERE lun=?1 AND kind IN ('format','quick') AND finish>?2 LIMIT 1");
  s.bind(lun).bind(now);
  return s.step();
}

void delete_raid_group(Db& db, int number) {
  if (!find_raid_group(db, number)) fail(kNoSuchObject, "no RAID group " + std::to_string(number));
  auto n = db.sql("SELECT count(*) FROM lus WHERE rg=?1");
  n.bind(number);
  n.step();
  if (n.i(0) > 0) fail(kBusy, "RAID group " + std::to_string(number) + " holds " + std::to_string(n.i(0)) + " LUs");
  auto d = db.sql(
      "UPDATE drives SET rg=NULL, rg_pos=NULL, state=CASE state WHEN 'spun-down' THEN 'normal' ELSE state END "
      "WHERE rg=?1");
  d.bind(number).run();
  auto r = db.sql("DELETE FROM raid_groups WHERE number=?1");
  r.bind(number).run();
}

// ---- LUs

bool lu_exists(Db& db, int lun) {
  auto s = db.sql("SELECT 1 FROM lus WHERE number=?1");
  s.bind(lun);
  return s.step();
}

int create_lu(Db& db, const LuSpec& want) {
  int number = want.number;
  if (number == -1) {
    auto s = db.sql("SELECT number FROM lus ORDER BY number");
    number = 0;
    while (s.step() && s.i(0) == number) ++number;
    if (number >= kMaxLus) fail(kCapacity, "all 4096 LU numbers are in use");
  } else if (number < 0 || number >= kMaxLus) {
    fail(kBadParameter, "LU number " + std::to_string(number) + " is not 0-4095");
  } else if (lu_exists(db, number)) {
    fail(kExists, "LU " + std::to_string(number) + " exists");
  }
  if (want.blocks <= 0 || want.blocks > kMaxLuBlocks)
    fail(kBadParameter, "LU size " + std::to_string(want.blocks) + " blocks is not 1-2147483647");
  int stripe = want.stripe == 0 ? 256 : want.stripe;
  if (stripe != 64 && stripe != 256 && stripe != 512) fail(kBadParameter, "stripe size is not 64, 256 or 512");
  int hostblock = want.hostblock == 0 ? 512 : want.hostblock;
  if (hostblock != 512 && hostblock != 520 && hostblock != 4096)
    fail(kBadParameter, "host block size is not 512, 520 or 4096");
  if (want.ctl != 0 && want.ctl != 1) fail(kBadParameter, "controller is not 0 or 1");
  if (want.staging < 0 || want.staging > 2) fail(kBadParameter, "staging mode is not 0-2");
  if (want.use_type < 0 || want.use_type > 15) fail(kBadParameter, "LU use type is not 0-15");
  if (want.cachepart < 0 || want.cachepart > 15 || want.pair_cachepart < 0 || want.pair_cachepart > 15 ||
      (want.pair_cachepart_valid != 0 && want.pair_cachepart_valid != 1))
    fail(kBadParameter, "cache partition is not 0-15");
  if (want.status != kLuNormal && want.status != kLuUnformatted) fail(kBadParameter, "LU status");
  auto areas = rg_areas(db, want.rg);  // kNoSuchObject for a missing group
  const Area* fit = nullptr;
  if (want.after >= 0) {
    for (size_t k = 0; k < areas.size(); ++k)
      if (areas[k].lun == want.after) {
        if (k + 1 < areas.size() && areas[k + 1].lun < 0) fit = &areas[k + 1];
        break;
      }
    if (!fit && !lu_exists(db, want.after))
      fail(kNoSuchObject, "no LU " + std::to_string(want.after) + " to place the new LU after");
    if (!fit) {
      bool here = false;
      for (const auto& a : areas) here |= a.lun == want.after;
      if (!here) fail(kBadParameter, "LU " + std::to_string(want.after) + " is in another RAID group");
      fail(kCapacity, "no free area after LU " + std::to_string(want.after));
    }
    if (fit->size < want.blocks) fail(kCapacity, "the free area after LU " + std::to_string(want.after) + " is too small");
  } else {
    for (const auto& a : areas)
      if (a.lun < 0 && a.size >= want.blocks) {
        fit = &a;
        break;
      }
    if (!fit) fail(kCapacity, "no free area of RAID group " + std::to_string(want.rg) + " holds " +
                                  std::to_string(want.blocks) + " blocks");
  }
  auto count = db.sql("SELECT count(*) FROM lus");
  count.step();
  if (count.i(0) >= kMaxLus) fail(kCapacity, "4096 LUs exist");
  auto s = db.sql(
      "INSERT INTO lus(number, rg, start, size, status, prior_status, staging, stripe, hostblock, use_type, "
      "default_ctl, current_ctl, cachepart, pair_cachepart_valid, pair_cachepart, created) "
      "VALUES(?1,?2,?3,?4,?5,?5,?6,?7,?8,?9,?10,?10,?11,?12,?13,?14)");
  s.bind(number).bind(want.rg).bind(fit->start).bind(want.blocks).bind(want.status).bind(want.staging)
      .bind(stripe).bind(hostblock).bind(want.use_type).bind(want.ctl).bind(want.cachepart)
      .bind(want.pair_cachepart_valid).bind(want.pair_cachepart).bind(clock_now(db)).run();
  return number;
}

void delete_lu(Db& db, int lun) {
  if (!lu_exists(db, lun)) fail(kNoSuchObject, "no LU " + std::to_string(lun));
  auto h = db.sql("SELECT holder FROM lu_holds WHERE lun=?1 LIMIT 1");
  h.bind(lun);
  if (h.step()) fail(kBusy, "LU " + std::to_string(lun) + " is in use by " + h.text(0));
  auto j = db.sql("DELETE FROM jobs WHERE lun=?1");
  j.bind(lun).run();
  auto d = db.sql("DELETE FROM lus WHERE number=?1");
  d.bind(lun).run();
}

void expand_lu(Db& db, int lun, int64_t add) {
  auto s = db.sql("SELECT rg, start, size, status FROM lus WHERE number=?1");
  s.bind(lun);
  if (!s.step()) fail(kNoSuchObject, "no LU " + std::to_string(lun));
  int rg = s.i(0);
  int64_t size = s.i64(2);
  if (s.i(3) == kLuInvalid) fail(kBusy, "LU " + std::to_string(lun) + " is invalid");
  if (add <= 0) fail(kBadParameter, "an LU grows by at least one block");
  if (size + add > kMaxLuBlocks) fail(kCapacity, "an LU holds at most 2147483647 blocks");
  auto areas = rg_areas(db, rg);
  int64_t room = 0;
  for (size_t k = 0; k < areas.size(); ++k)
    if (areas[k].lun == lun) {
      if (k + 1 < areas.size() && areas[k + 1].lun < 0) room = areas[k + 1].size;
      break;
    }
  if (room < add)
    fail(kCapacity, "LU " + std::to_string(lun) + " has " + std::to_string(room) + " free blocks after it");
  auto u = db.sql("UPDATE lus SET size=size+?1 WHERE number=?2");
  u.bind(add).bind(lun).run();
}

std::optional<LuPlace> lu_place(Db& db, int lun) {
  auto s = db.sql("SELECT rg, current_ctl, size FROM lus WHERE number=?1");
  s.bind(lun);
  if (!s.step()) return std::nullopt;
  return LuPlace{s.i(0), s.i(1), s.i64(2)};
}

void swap_lu_places(Db& db, int a, int b) {
  auto pa = lu_place(db, a), pb = lu_place(db, b);
  if (!pa || !pb) fail(kNoSuchObject, "no LU " + std::to_string(pa ? b : a));
  if (pa->blocks != pb->blocks) fail(kBadParameter, "LUs of different sizes cannot trade places");
  int64_t start_a = 0, start_b = 0;
  {
    auto s = db.sql("SELECT start FROM lus WHERE number=?1");
    s.bind(a);
    if (s.step()) start_a = s.i64(0);
  }
  {
    auto s = db.sql("SELECT start FROM lus WHERE number=?1");
    s.bind(b);
    if (s.step()) start_b = s.i64(0);
  }
  {
    auto u = db.sql("UPDATE lus SET rg=?2, start=?3 WHERE number=?1");
    u.bind(a).bind(pb->rg).bind(start_b).run();
  }
  auto u = db.sql("UPDATE lus SET rg=?2, start=?3 WHERE number=?1");
  u.bind(b).bind(pa->rg).bind(start_a).run();
}

void hold_lu(Db& db, int lun, std::string_view holder) {
  if (!lu_exists(db, lun)) fail(kNoSuchObject, "no LU " + std::to_string(lun));
  auto s = db.sql("INSERT OR IGNORE INTO lu_holds(lun, holder) VALUES(?1,?2)");
  s.bind(lun).bind(holder).run();
}

void release_lu(Db& db, int lun, std::string_view holder) {
  auto s = db.sql("DELETE FROM lu_holds WHERE lun=?1 AND holder=?2");
  s.bind(lun).bind(holder).run();
}

}  // namespace sim
