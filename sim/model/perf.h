// Statistics and performance: a deterministic workload model.
//
// Every counter is a pure function of the object it counts, the simulator's
// clock and the array's workload seed (meta 'perf_seed').  Each LU carries a
// host load of its own (reads and writes per second, hit ratios, transfer
// sizes) that swings over the day; its counters are the integral of that load
// since the LU was made, so they only rise.  Every other figure (ports, RAID
// groups, drives, back-end paths, controllers, cache partitions) is summed
// from the LUs' counters at the same instant, so the tables agree exactly.
// Counters are kept 64-bit and cut to 32 bits only when written to a record:
// like the array's own counters they wrap at 2^32, and a difference of two
// snapshots taken modulo 2^32 stays right across a wrap.
#pragma once

#include <cstdint>
#include <ctime>
#include <string>
#include <vector>

#include "include/perf.h"
#include "sim/core/store.h"

namespace sim::perf {

constexpr int kPorts = 4;
constexpr int kRaidGroups = 90;
constexpr int kLus = 4096;
constexpr int kEnclosures = 30;
constexpr int kSlots = 15;
constexpr int kBackends = 8;
constexpr int kCachePartitions = 32;
constexpr int kCacheMB = 16384;  // cache of each controller

// Collection settings (KX_SetPfmStatisCfg): bits of what is collected.
constexpr int kCfgBasic = 1;     // ports, RAID groups, LUs, back end, drives
constexpr int kCfgLuEx = 2;      // per-LU response times (lu_ex)
constexpr int kCfgVendor = 4;    // vendor-unique command figures (vu_port, vu_lu)
constexpr int kCfgAll = 7;
int collection_cfg(Db& db);
void set_collection_cfg(Db& db, int cfg);

// Cumulative counts of one object, not yet cut to 32 bits.
struct Counts {
  uint64_t reads = 0, writes = 0, read_hits = 0, write_hits = 0;
  uint64_t read_blocks = 0, write_blocks = 0, verify = 0;
  Counts& operator+=(const Counts& o);
};

struct LuState {
  int number = 0, rg = 0, ctl = 0, cachepart = 0;
  Counts c;
  uint64_t seq_reads = 0, seq_writes = 0;
  uint64_t busy_us = 0;  // time spent serving this LU's commands
  int tag_count = 0;     // commands queued now
};

struct DriveState {
  int enclosure = 0, slot = 0, rg = -1, level = 0;
  std::string state;
  Counts c[2];         // per controller
  uint64_t busy_us[2] = {0, 0};
};

// The whole array's counters at one instant, computed once per call.
class Workload {
 public:
  Workload(Db& db, int64_t now);

  int64_t now;
  int64_t created;  // the array's creation time
  int ports;        // host ports per controller
  std::vector<LuState> lus;        // existing LUs in number order
  std::vector<int> rg_level;       // level by group number, -1 when unused
  std::vector<DriveState> drives;  // mounted drives in position order

  Counts port[2][kPorts];
  Counts rg[2][kRaidGroups];
  Counts backend[2][kBackends];
  Counts ctl_total[2];
  uint64_t ctl_busy_us[2] = {0, 0};

  // The port of its controller an LU's commands arrive at (LUs alternate
  // between the controllers, so consecutive LUs of one controller take
  // consecutive ports).
  int port_of(int lun) const { return (lun / 2) % ports; }
  int64_t elapsed() const { return now > created ? now - created : 0; }

  void statistics(int selector, StatisticalInformationRec& out) const;
  void command(int ctl, StatisticalCommandRec& out) const;
  void all(int ctl, int cfg, bool extended, PerformanceAllRec& out) const;
};

// Rates between two snapshots of one controller.
void graph(const PerformanceAllRec& pre, const PerformanceAllRec& after, PerformanceCollectGraphRec& out);

// The collection time of a snapshot (UTC), and back.
KXTimeRec kx_time(int64_t t);
int64_t from_kx_time(const KXTimeRec& t);
std::string iso_time(int64_t t);  // 2026-01-31T12:00:00Z

inline int32_t cut(uint64_t v) { return static_cast<int32_t>(static_cast<uint32_t>(v)); }
inline int64_t join(int32_t h, int32_t l) {
  return static_cast<int64_t>((static_cast<uint64_t>(static_cast<uint32_t>(h)) << 32) | static_cast<uint32_t>(l));
}

}  // namespace sim::perf
