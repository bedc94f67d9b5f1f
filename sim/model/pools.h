// Pools, virtual volumes, unified LUs, the set-up wizard and LU cache
// settings: what the KX_ functions of those families share.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "sim/core/store.h"
#include "sim/model/storage.h"
#include "raid.h"

namespace sim {

// The simulator's layout of a pool's detail (PoolDetailInfoRec, 292 bytes;
// the application never looks inside).  Capacities in blocks, as LUs count.
struct PoolDetail {
  int32_t pool_no;
  int32_t status;       // 0 empty, 1 normal, 2 over its threshold, 3 full
  int32_t threshold;    // percent of the capacity that raises the warning
  int32_t lu_count;     // LUs in the pool; lun[] holds them in the order added
  int32_t total_capa_h, total_capa_l;
  int32_t used_capa_h, used_capa_l;  // the virtual volumes' capacities
  int32_t vvol_count;
  int32_t lun[64];
};
static_assert(sizeof(PoolDetail) == sizeof(PoolDetailInfoRec));

constexpr int kPoolCtls = 2;        // one pool per controller
constexpr int kPoolLus = 64;        // LUs in one pool
constexpr int kVvols = 1024;        // virtual volume numbers 0..1023
constexpr int kUniteChildren = 127; // children of one unified LU
constexpr int kUniteCallChildren = 12;

// ---- the LUs of the storage family, as the families here need them

// Which LU numbers exist: kMaxLus flags.
std::vector<uint8_t> existing_lus(Db& db);
// Every LU number's size in blocks, 0 where no LU is.
std::vector<int64_t> lu_sizes(Db& db);
// An LU's capacity in blocks (0 when it does not exist).
int64_t lu_capacity(Db& db, int lun);
// Refuses (kNoSuchObject) an LU number that is out of range or not made.
void need_lu(Db& db, int lun, const char* what);

// ---- LU cache settings of one LU

struct LuPrefetch {
  int multi_stream_read = 0, multi_stream_write = 0, next_pre_mode = 0, pre_std = 0;
  int pre_size_basis = 256, pre_size_fixation = 0;
  bool operator==(const LuPrefetch&) const = default;
};
struct LuCache {
  bool exists = false;
  int current = 0, reserve = 0, now = 0, pair = -1;  // cache partition numbers
  LuPrefetch prefetch;
};

// Every LU number's settings (kMaxLus entries; exists tells the LUs made).
std::vector<LuCache> lu_cache_all(Db& db);
void set_lu_partition(Db& db, int lun, int current, int reserve, int now, int pair);
void set_lu_prefetch(Db& db, int lun, const LuPrefetch& p);

// ---- files named by a path

// Writes the whole file or nothing: a temporary beside it, renamed into
// place.  kFileError when that cannot be done.
void write_file(const std::string& path, std::string_view data);
// Reads a whole file of at most limit bytes: kFileError when it cannot be
// read, kBadFile when it is longer.
std::string read_file(const std::string& path, size_t limit);

// ---- the RAID group and LU configuration file
//
// Line-based text, one object a line as `kind name=value ...` (sim/README.md
// gives the fields); '#' starts a comment line.  The first line that counts
// is the header, the last is `end`.

constexpr const char* kRaidLuHeader = "pernix-sim raid-lu 1";

struct RaidLuFile {
  struct Group {
    int64_t number, level, enclosure, slot, per_group, groups, minimum_gb, last_lba_set, last_lba,
        total, rest, largest_free, rg_type, unit_type, unit_type_sub;
  };
  struct Drive {
    int64_t rg, enclosure, slot, group, next_enclosure, next_slot;
  };
  struct Lu {
    int64_t number, rg, level, staging, capacity, before, cachepart, pair_cachepart_valid, pair_cachepart,
        current_cachepart, stripe, use_type, default_ctl, current_ctl, status, hostblock, qf_status,
        correction_status, rg_last_lu, unit_type, unit_type_sub;
  };
  struct Spare {
    int64_t enclosure, slot;
  };
  std::string unit;
  std::vector<Group> groups;
  std::vector<Drive> drives;
  std::vector<Lu> lus;
  std::vector<Spare> spares;
};

// The model as the file holds it, at the simulator's time now.
RaidLuFile raid_lu_snapshot(Db& db, int64_t now);
std::string render_raid_lu(const RaidLuFile& f);
// kBadFile naming the line when the text is not such a file.
RaidLuFile parse_raid_lu(std::string_view text);
// The records a file reads into: the older RAID group list (unused entries
// rgnum -1), the newer RAID group information, the LU list (unused entries
// carry their number only).
void raid_groups_of(const RaidLuFile& f, RaidGroupRec* out /* [90] */);
void raid_group_information_of(const RaidLuFile& f, RaidGroupInformationRec& out);
void logical_units_of(const RaidLuFile& f, LogicalUnitRec* out /* [4096] */);

}  // namespace sim
