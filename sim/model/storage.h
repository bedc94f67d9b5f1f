// Drives, RAID groups and LUs: the model operations other families build on
// (pools carve LUs, exports read RAID groups and LUs, the unit condition
// report reads drive states).  The tables are described at the top of
// storage.cpp.  Every operation runs inside the caller's transaction and
// throws sim::Error with the simulator's code when it refuses.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "sim/core/store.h"

namespace sim {

// Capacities are counted in blocks of 512 bytes everywhere in the model;
// records carry wide ones as high and low 32-bit words.
constexpr int64_t kBlockBytes = 512;
constexpr int64_t kGB = 1000000000;  // drive sizes are decimal gigabytes
constexpr int kEnclosureSlots = 15;  // drive slots per enclosure
constexpr int kMaxEnclosures = 30;
constexpr int kMaxDrives = 450;
constexpr int kMaxRaidGroups = 90;
constexpr int kMaxLus = 4096;
constexpr int64_t kMaxLuBlocks = 2147483647;  // an LU's size travels as one int

// Array type codes reported in every record that has them.
constexpr int kUnitType = 1;
constexpr int kUnitTypeSub = 0;

// Drive kinds.
enum DriveKind { kDriveSAS = 0, kDriveSATA = 1, kDriveSSD = 2 };

// RAID levels are coded by their number: 0, 1, 5, 6, 10.
bool valid_level(int level);
// Data drives of a group of `per_group` drives in `groups` parity groups, or
// -1 when the level cannot be built from those drives.
int data_drives(int level, int per_group, int groups);

// The two words of a wide value, and back.
inline int32_t hi_word(int64_t v) { return static_cast<int32_t>(static_cast<uint64_t>(v) >> 32); }
inline int32_t lo_word(int64_t v) { return static_cast<int32_t>(static_cast<uint32_t>(v & 0xffffffff)); }

struct Drive {
  int enclosure = 0, slot = 0;
  int64_t blocks = 0;
  int kind = kDriveSAS;
  std::string state;  // normal, offline, failed, spun-down
  int rg = -1;        // -1: free
};

struct RaidGroup {
  int number = 0, level = 0;
  int per_group = 0, groups = 0;  // drives per parity group, parity groups
  int64_t drive_blocks = 0;       // blocks used on each drive
  int64_t capacity = 0;           // blocks for data
  int64_t used = 0;               // blocks held by LUs
  int64_t largest_free = 0;       // the largest free area
  int first_enclosure = -1, first_slot = -1;
  int64_t smallest_blocks = 0;    // the smallest drive of the group
  int smallest_gb = 0;            // the same in GB
  int rg_type = 0;
};

// One extent of a RAID group in address order: an LU's, or free (lun -1).
struct Area {
  int64_t start = 0, size = 0;
  int lun = -1;
  int before = -1;  // the LU that ends where this area starts, -1 at the start
};

// A RAID group to make.  drives empty with automatic: the first free drives in
// the normal state are taken (of `kind` when >= 0, of `gb` when > 0).
struct RgSpec {
  int number = -1;  // -1: the lowest free number
  int level = 5;
  int per_group = 0, groups = 1;
  std::vector<std::pair<int, int>> drives;  // (enclosure, slot)
  bool automatic = false;
  int kind = -1;
  int gb = 0;
  int64_t last_lba = -1;  // >= 0: use blocks 0..last_lba of each drive only
  int rg_type = 0;
};

struct LuSpec {
  int number = -1;  // -1: the lowest free number
  int rg = 0;
  int64_t blocks = 0;
  int after = -1;   // >= 0: placed in the free area right after this LU
  int staging = 0, stripe = 256, hostblock = 512, use_type = 0;
  int ctl = 0;
  int cachepart = 0, pair_cachepart_valid = 0, pair_cachepart = 0;
  int status = 2;   // 0 normal (formatted), 2 not formatted
};

// LU states as stored (lus.status); 1 is reported while a format runs.
enum LuStatus { kLuNormal = 0, kLuFormatting = 1, kLuUnformatted = 2, kLuInvalid = 3 };

// ---- drives
std::optional<Drive> find_drive(Db& db, int enclosure, int slot);
// Every mounted drive in position order.
std::vector<Drive> drives(Db& db);

// ---- RAID groups
// What a RAID group made as asked would look like, checked against the model
// (nothing is changed).  The drives chosen are returned through `chosen`.
RaidGroup plan_raid_group(Db& db, const RgSpec& want, std::vector<std::pair<int, int>>* chosen = nullptr);
RaidGroup create_raid_group(Db& db, const RgSpec& want);
std::optional<RaidGroup> find_raid_group(Db& db, int number);
std::vector<RaidGroup> raid_groups(Db& db);
// Adds drives to a group: its capacity grows at the end (a new free area).
RaidGroup expand_raid_group(Db& db, int number, const std::vector<std::pair<int, int>>& drives);
// Refused while the group holds LUs (kBusy).
void delete_raid_group(Db& db, int number);
// True when the group's drives are spun down.
bool rg_spun_down(Db& db, int number);
// Free and used extents of a group in address order (kNoSuchObject).
std::vector<Area> rg_areas(Db& db, int number);

// ---- LUs
int create_lu(Db& db, const LuSpec& want);  // returns the LU number
// Refused while another family holds the LU (lu_holds) with kBusy.
void delete_lu(Db& db, int lun);
bool lu_exists(Db& db, int lun);
// Grows an LU into the free area right after it (kCapacity when too small).
void expand_lu(Db& db, int lun, int64_t add_blocks);

// Work on LUs: a job's progress is a function of the clock only.
enum JobStatus { kJobNone = 0, kJobWaiting = 1, kJobRunning = 2, kJobDone = 3 };
struct JobState {
  int status = kJobNone;
  int percent = 0;
};
inline JobState job_state(int64_t now, int64_t start, int64_t finish) {
  if (now < start) return {kJobWaiting, 0};
  if (now >= finish || finish <= start) return {kJobDone, 100};
  return {kJobRunning, static_cast<int>((now - start) * 100 / (finish - start))};
}
// Blocks per second of each kind of work.
constexpr int64_t kFormatRate = 1000000000 / kBlockBytes;         // full format: 1 GB/s
constexpr int64_t kQuickFormatRate = 10000000000 / kBlockBytes;   // quick format: 10 GB/s
constexpr int64_t kParityRate = 2000000000 / kBlockBytes;         // parity correction: 2 GB/s
constexpr int64_t kRebuildRate = 1000000000 / kBlockBytes;        // drive rebuild: 1 GB/s
// True while a full or quick format of the LU is entered and not finished.
bool lu_formatting(Db& db, int64_t now, int lun);

// Where an LU lies: its RAID group, its current controller and its size.
struct LuPlace {
  int rg = -1, ctl = 0;
  int64_t blocks = 0;
};
std::optional<LuPlace> lu_place(Db& db, int lun);
// Two LUs of one size trade their places (RAID group and start): what a
// finished volume migration does.  kNoSuchObject / kBadParameter.
void swap_lu_places(Db& db, int a, int b);

// Another family marks an LU as its own (a pool member, a mapped LU); a held
// LU cannot be deleted, renumbered or invalidated.
void hold_lu(Db& db, int lun, std::string_view holder);
void release_lu(Db& db, int lun, std::string_view holder);

}  // namespace sim
