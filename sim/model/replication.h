// Copy pairs, command devices, differential-management LUs, the remote
// array and volume migration.  Every operation runs inside the caller's
// transaction and throws sim::Error with the simulator's code when it
// refuses.  A pair's or a migration's state is a function of the clock.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "sim/core/store.h"

namespace sim {

// ---- copy pairs

enum PairKind { kPairMirror = 0, kPairSync = 1, kPairAsync = 2 };
enum PairStatus { kPairCopy = 1, kPairPaired = 2, kPairSplit = 3 };

constexpr int kMaxMirrors = 15;        // local mirrors of one primary LU
constexpr int kMaxLocalPairs = 2046;   // local mirror pairs in the array
constexpr int kMaxRemotePairs = 4096;  // remote pairs of each kind
constexpr int kConsistencyGroups = 16;
// Copy rates in blocks per second.
constexpr int64_t kMirrorRate = 400000000 / 512;  // 400 MB/s inside the array
constexpr int64_t kRemoteRate = 100000000 / 512;  // 100 MB/s over the remote link

struct PairRequest {
  int kind = kPairMirror;
  int pvol = -1;
  int svol = -1;       // a local mirror's secondary LU
  int remote_lu = -1;  // a remote pair's LU on the remote array (0..4095)
  int ctg = -1;        // an asynchronous pair's consistency group (0..15)
};

struct Pair {
  int id = 0, kind = 0, pvol = -1, svol = -1, remote_lu = -1, ctg = -1, mirror_no = 0;
  std::string remote_serial;
  int64_t blocks = 0, created = 0, copy_start = 0, copy_end = 0;
  std::optional<int64_t> split_at;

  int status(int64_t now) const {
    if (split_at) return kPairSplit;
    return now < copy_end ? kPairCopy : kPairPaired;
  }
  // Per cent of the primary copied to the secondary.
  int percent(int64_t now) const {
    if (split_at || now >= copy_end || copy_end <= copy_start) return 100;
    if (now <= copy_start) return 0;
    return static_cast<int>((now - copy_start) * 100 / (copy_end - copy_start));
  }
};

// Every pair, in (kind, primary, mirror number) order.
std::vector<Pair> pairs(Db& db);
// Makes a pair (it starts copying at once); returns its id.  Needs a DMLU
// (kBusy without), a remote pair the remote array's identity (kBusy).
int create_pair(Db& db, int64_t now, const PairRequest& r);
// The pair is named by its secondary (local) or its primary (remote).  Split:
// kBusy while copying or split already.  Resync: a split pair copies its
// differences again.  Delete: the pair goes, its LUs are free.
void split_pair(Db& db, int64_t now, int kind, int lun);
void resync_pair(Db& db, int64_t now, int kind, int lun);
void delete_pair(Db& db, int64_t now, int kind, int lun);
// A command as a host would give it through a command device (the tool's
// words): "create mirror P S", "create sync P R", "create async P R G",
// "split|resync|delete mirror S", "split|resync|delete sync|async P".
// Returns a line describing what was done.
std::string pair_command(Db& db, int64_t now, const std::vector<std::string>& words);

// ---- LUs given a role here
// The DMLUs, the command devices (their LU numbers).
std::vector<int> dmlus(Db& db);
std::vector<int> command_devices(Db& db);
// Replaces the set of DMLUs / command devices: the LUs must exist and not be
// used here otherwise (kNoSuchObject / kBusy); the DMLUs cannot all go while
// pairs or migrations need them (kBusy).  Held through lu_holds.
void set_dmlus(Db& db, const std::vector<int>& luns);
void set_command_devices(Db& db, const std::vector<int>& luns);
// What an LU does here ("" when nothing): for the refusals.
std::string lu_role(Db& db, int lun);
// LUs that may not become a secondary volume.
bool svol_disabled(Db& db, int lun);
void set_svol_disabled(Db& db, int lun, bool disabled);
// The remote array's serial number ("" while none is set).
std::string remote_serial(Db& db);
// True while remote pairs exist (the remote identity cannot change then).
bool remote_pairs_exist(Db& db);

// ---- volume migration

enum MigrationState { kMigrationCopy = 1, kMigrationCopied = 2 };
// Copy pace 0 slow, 1 normal, 2 fast: blocks per second.
int64_t pace_rate(int pace);

struct Migration {
  int pvol = -1, svol = -1, pace = 1, owner = 0;
  int64_t blocks = 0, done = 0, since = 0;  // blocks copied by `since`
  int64_t copied(int64_t now) const {
    int64_t d = done + (now > since ? (now - since) * pace_rate(pace) : 0);
    return d < blocks ? d : blocks;
  }
  int state(int64_t now) const { return copied(now) >= blocks ? kMigrationCopied : kMigrationCopy; }
  int percent(int64_t now) const {
    return blocks <= 0 ? 100 : static_cast<int>(copied(now) * 100 / blocks);
  }
};

std::vector<int> reserve_lus(Db& db);
std::vector<Migration> migrations(Db& db);
void reserve(Db& db, const std::vector<int>& luns);
void unreserve(Db& db, const std::vector<int>& luns);
struct MigrationPair {
  int pvol, svol, pace;
};
void start_migrations(Db& db, int64_t now, const std::vector<MigrationPair>& req, int owner);
// op: cancel, split (the owner must match), split_free (any owner), pace.
enum MigrationOp { kMigCancel, kMigSplit, kMigSplitFree, kMigPace };
void migration_op(Db& db, int64_t now, MigrationOp op, const std::vector<MigrationPair>& req, int owner);

}  // namespace sim
