// The workload model behind the statistics and performance calls (see
// perf.h).  Nothing here is stored but the seed and the collection setting:
// every figure is recomputed from the clock at each call.
#include "sim/model/perf.h"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <numbers>

#include "sim/model/model.h"
#include "sim/model/storage.h"

namespace sim {

void create_perf(Db& db, const Options&) {
  // The workload's seed: a different seed gives every LU a different load.
  set_meta(db, "perf_seed", "20240601");
}

}  // namespace sim

namespace sim::perf {
namespace {

constexpr const char* kCfgKey = "perf.cfg";
constexpr double kDay = 86400.0;
constexpr double kSwing = 0.5;  // the load swings by half its mean over the day

uint64_t mix(uint64_t x) {
  x += 0x9e3779b97f4a7c15ull;
  x = (x ^ (x >> 30)) * 0xbf58476d1ce4e5b9ull;
  x = (x ^ (x >> 27)) * 0x94d049bb133111ebull;
  return x ^ (x >> 31);
}

// A number in [0, 1) drawn from (seed, object, field).
double draw(uint64_t seed, uint64_t object, uint64_t field) {
  return static_cast<double>(mix(seed ^ mix(object * 131 + field)) >> 11) / 9007199254740992.0;
}

// Mean load of an LU: operations per second and their shape.
struct Profile {
  double read_iops, write_iops, read_hit, write_hit, read_blocks, write_blocks, seq, phase;
};

Profile profile(uint64_t seed, int lun) {
  Profile p{};
  p.read_iops = 20 + 180 * draw(seed, lun, 1);
  p.write_iops = 5 + 95 * draw(seed, lun, 2);
  p.read_hit = 0.55 + 0.4 * draw(seed, lun, 3);
  p.write_hit = 0.9 + 0.1 * draw(seed, lun, 4);
  p.read_blocks = 8 << static_cast<int>(4 * draw(seed, lun, 5));   // 4 KB .. 32 KB
  p.write_blocks = 8 << static_cast<int>(3 * draw(seed, lun, 6));  // 4 KB .. 16 KB
  p.seq = 0.1 + 0.5 * draw(seed, lun, 7);
  p.phase = kDay * draw(seed, lun, 8);
  return p;
}

// Seconds of mean load carried from `start` to `end`: the integral of
// 1 + kSwing*sin(2*pi*(t + phase)/day), never decreasing in `end`.
double load_seconds(double start, double end, double phase) {
  if (end <= start) return 0;
  const double w = 2 * std::numbers::pi / kDay;
  return (end - start) + kSwing / w * (std::cos(w * (start + phase)) - std::cos(w * (end + phase)));
}

// The load per second at t, relative to the mean.
double load_now(double t, double phase) {
  return 1 + kSwing * std::sin(2 * std::numbers::pi * (t + phase) / kDay);
}

uint64_t take(double x) { return x <= 0 ? 0 : static_cast<uint64_t>(x); }

// Shares of n over k parts that add up to n exactly.
uint64_t share(uint64_t n, int i, int k) {
  uint64_t q = n / k, r = n % k;
  auto upto = [&](uint64_t j) { return q * j + r * j / k; };  // floor(n * j / k)
  return upto(i + 1) - upto(i);
}

Counts share(const Counts& c, int i, int k) {
  Counts s;
  s.reads = share(c.reads, i, k);
  s.writes = share(c.writes, i, k);
  s.read_hits = share(c.read_hits, i, k);
  s.write_hits = share(c.write_hits, i, k);
  s.read_blocks = share(c.read_blocks, i, k);
  s.write_blocks = share(c.write_blocks, i, k);
  s.verify = share(c.verify, i, k);
  return s;
}

// Drive operations per host write, by RAID level.
uint64_t write_penalty(int level) {
  switch (level) {
    case 0: return 1;
    case 5: return 4;  // read data and parity, write both
    case 6: return 6;
    default: return 2;  // mirrors
  }
}

constexpr uint64_t kHitUs = 200;        // a cache hit
constexpr uint64_t kMissUs = 6000;      // a read from the drives
constexpr uint64_t kDriveOpUs = 5000;   // one drive operation
constexpr uint64_t kCommandCpuUs = 40;  // processor time of one host command

void put_command(CommandAll_InfoRec& r, const Counts& c, bool valid) {
  r.valid = valid ? 1 : 0;
  r.support = 1;
  if (!valid) return;
  r.read_count = cut(c.reads);
  r.write_count = cut(c.writes);
  r.read_cache = cut(c.read_hits);
  r.write_cache = cut(c.write_hits);
  r.read_size = cut(c.read_blocks);
  r.write_size = cut(c.write_blocks);
  r.online_verify_count = cut(c.verify);
}

void put_wide(int32_t& h, int32_t& l, uint64_t v) {
  h = static_cast<int32_t>(static_cast<uint32_t>(v >> 32));
  l = static_cast<int32_t>(static_cast<uint32_t>(v));
}

void put_luex(LuEx_CommandInfoRec& r, uint64_t count, uint64_t each_us, uint64_t max_us, double slow) {
  r.valid = r.support = 1;
  r.command_count = cut(count);
  put_wide(r.command_total_time_h, r.command_total_time_l, count * each_us);
  put_wide(r.command_max_time_h, r.command_max_time_l, count ? max_us : 0);
  // Commands slower than 300 ms, 500 ms, 1 s: a small share of the slow kind.
  r.delay_command_count_upto300 = cut(take(static_cast<double>(count) * slow));
  r.delay_command_count_upto500 = cut(take(static_cast<double>(count) * slow / 4));
  r.delay_command_count_upto1000 = cut(take(static_cast<double>(count) * slow / 16));
  r.delay_command_count_ormore1000 = cut(take(static_cast<double>(count) * slow / 64));
}

void put_vu(VUCommandAll_InfoRec& r, uint64_t count, uint64_t blocks, uint64_t each_us) {
  r.valid = r.support = 1;
  r.command_count = cut(count);
  r.command_transfer_block_count = cut(blocks);
  put_wide(r.command_total_time_h, r.command_total_time_l, count * each_us);
  put_wide(r.command_max_time_h, r.command_max_time_l, count ? each_us * 8 : 0);
}

}  // namespace

Counts& Counts::operator+=(const Counts& o) {
  reads += o.reads;
  writes += o.writes;
  read_hits += o.read_hits;
  write_hits += o.write_hits;
  read_blocks += o.read_blocks;
  write_blocks += o.write_blocks;
  verify += o.verify;
  return *this;
}

int collection_cfg(Db& db) {
  int32_t cfg = kCfgAll;
  load_setting(db, kCfgKey, &cfg, sizeof cfg);
  return cfg;
}

void set_collection_cfg(Db& db, int cfg) {
  int32_t v = cfg;
  save_setting(db, kCfgKey, &v, sizeof v);
}

Workload::Workload(Db& db, int64_t clock) : now(clock) {
  created = std::atoll(meta(db, "created", "0").c_str());
  ports = std::atoi(meta(db, "ports", "4").c_str());
  if (ports < 1 || ports > kPorts) ports = kPorts;
  uint64_t seed = static_cast<uint64_t>(std::atoll(meta(db, "perf_seed", "0").c_str()));

  rg_level.assign(kRaidGroups, -1);
  {
    auto s = db.sql("SELECT number, level FROM raid_groups");
    while (s.step())
      if (s.i(0) >= 0 && s.i(0) < kRaidGroups) rg_level[s.i(0)] = s.i(1);
  }

  auto s = db.sql("SELECT number, rg, current_ctl, cachepart, created FROM lus ORDER BY number");
  while (s.step()) {
    LuState lu;
    lu.number = s.i(0);
    lu.rg = s.i(1);
    lu.ctl = s.i(2) == 1 ? 1 : 0;
    lu.cachepart = s.i(3);
    if (lu.number < 0 || lu.number >= kLus) continue;
    double start = static_cast<double>(std::max(s.i64(4), created));
    Profile p = profile(seed, lu.number);
    double f = load_seconds(start, static_cast<double>(now), p.phase);
    lu.c.reads = take(p.read_iops * f);
    lu.c.writes = take(p.write_iops * f);
    lu.c.read_hits = take(p.read_iops * p.read_hit * f);
    lu.c.write_hits = take(p.write_iops * p.write_hit * f);
    lu.c.read_blocks = take(p.read_iops * p.read_blocks * f);
    lu.c.write_blocks = take(p.write_iops * p.write_blocks * f);
    lu.c.verify = take(0.05 * f);
    lu.seq_reads = take(p.read_iops * p.seq * f);
    lu.seq_writes = take(p.write_iops * p.seq * f);
    lu.busy_us = (lu.c.read_hits + lu.c.write_hits) * kHitUs + (lu.c.reads - lu.c.read_hits) * kMissUs +
                 (lu.c.writes - lu.c.write_hits) * kMissUs;
    double rate = (p.read_iops + p.write_iops) * (now >= start ? load_now(static_cast<double>(now), p.phase) : 0);
    lu.tag_count = static_cast<int>(rate * 0.002);  // about 2 ms in the queue
    lus.push_back(lu);
  }

  for (const auto& d : sim::drives(db)) {
    DriveState ds;
    ds.enclosure = d.enclosure;
    ds.slot = d.slot;
    ds.rg = d.rg;
    ds.state = d.state;
    ds.level = d.rg >= 0 && d.rg < kRaidGroups ? rg_level[d.rg] : -1;
    drives.push_back(ds);
  }

  for (const auto& lu : lus) {
    port[lu.ctl][port_of(lu.number)] += lu.c;
    if (lu.rg >= 0 && lu.rg < kRaidGroups) rg[lu.ctl][lu.rg] += lu.c;
    ctl_total[lu.ctl] += lu.c;
    ctl_busy_us[lu.ctl] += (lu.c.reads + lu.c.writes) * kCommandCpuUs;
  }

  // Each group's misses and destaged writes go to its drives in equal shares.
  std::vector<std::vector<size_t>> members(kRaidGroups);
  for (size_t i = 0; i < drives.size(); ++i)
    if (drives[i].rg >= 0 && drives[i].rg < kRaidGroups) members[drives[i].rg].push_back(i);
  for (int g = 0; g < kRaidGroups; ++g) {
    int k = static_cast<int>(members[g].size());
    if (k == 0) continue;
    uint64_t penalty = write_penalty(rg_level[g]);
    for (int c = 0; c < 2; ++c) {
      Counts back;
      back.reads = rg[c][g].reads - rg[c][g].read_hits;
      back.writes = (rg[c][g].writes) * penalty;
      // Misses carry their share of the blocks read.
      back.read_blocks = rg[c][g].reads ? rg[c][g].read_blocks / rg[c][g].reads * back.reads : 0;
      back.write_blocks = rg[c][g].write_blocks * penalty;
      back.verify = rg[c][g].verify;
      for (int i = 0; i < k; ++i) {
        DriveState& d = drives[members[g][i]];
        d.c[c] = share(back, i, k);
        d.busy_us[c] = (d.c[c].reads + d.c[c].writes) * kDriveOpUs;
        backend[c][d.enclosure % kBackends] += d.c[c];
      }
    }
  }
}

void Workload::command(int ctl, StatisticalCommandRec& out) const {
  for (const auto& lu : lus) {
    if (lu.ctl != ctl) continue;
    auto& r = out.lu[lu.number];
    r.read_count = cut(lu.c.reads);
    r.write_count = cut(lu.c.writes);
    r.read_cache = cut(lu.c.read_hits);
    r.write_cache = cut(lu.c.write_hits);
  }
  out.mtime = kx_time(now);
}

void Workload::all(int ctl, int cfg, bool extended, PerformanceAllRec& out) const {
  const bool basic = cfg & kCfgBasic;
  out.valid = 1;
  out.support = 1;
  out.get_status = 0;
  for (int p = 0; p < kPorts; ++p) put_command(out.port[p], port[ctl][p], basic && p < ports);
  for (int g = 0; g < kRaidGroups; ++g) put_command(out.rg[g], rg[ctl][g], basic && rg_level[g] >= 0);
  for (int n = 0; n < kLus; ++n) {
    out.lu[n].support = 1;
    out.lu_ex[n].support = 1;
    out.vu_lu[n].support = 1;
  }
  const bool luex = extended && (cfg & kCfgLuEx);
  const bool vendor = extended && (cfg & kCfgVendor);
  for (const auto& lu : lus) {
    Counts mine = lu.ctl == ctl ? lu.c : Counts{};
    put_command(out.lu[lu.number], mine, basic);
    if (luex) {
      auto& x = out.lu_ex[lu.number];
      x.valid = 1;
      put_luex(x.read_hit, mine.read_hits, kHitUs, 2000, 0);
      put_luex(x.write_hit, mine.write_hits, kHitUs, 2000, 0);
      put_luex(x.read_miss, mine.reads - mine.read_hits, kMissUs, 350000, 0.002);
      put_luex(x.write_miss, mine.writes - mine.write_hits, kMissUs, 350000, 0.002);
      put_luex(x.read_job, mine.reads, (kHitUs + kMissUs) / 2, 350000, 0.001);
      put_luex(x.write_job, mine.writes, (kHitUs + kMissUs) / 2, 350000, 0.001);
      x.tag_count = lu.ctl == ctl ? lu.tag_count : 0;
    }
    if (vendor) put_vu(out.vu_lu[lu.number], mine.verify, mine.verify * 8, 1000);
  }

  // Cache: a tenth of it holds data waiting to be written, more at the peak.
  out.all_cache_size = kCacheMB;
  double level = load_now(static_cast<double>(now), ctl * kDay / 4);
  out.used_cache_size = static_cast<int32_t>(kCacheMB * (0.45 + 0.2 * (level - 1)));
  out.used_cache_middle = static_cast<int32_t>(kCacheMB * (0.10 + 0.05 * (level - 1)));
  out.used_cache_physical = out.used_cache_size - out.used_cache_middle / 2;
  out.used_cache_clean = out.used_cache_size - out.used_cache_middle;
  // Partitions 0 and 1 (the defaults) and every partition an LU of this
  // controller uses; they share the cache equally.
  bool used[kCachePartitions] = {true, true};
  for (const auto& lu : lus)
    if (lu.ctl == ctl && lu.cachepart >= 0 && lu.cachepart < kCachePartitions) used[lu.cachepart] = true;
  int nparts = static_cast<int>(std::count(std::begin(used), std::end(used), true));
  for (int p = 0; p < kCachePartitions; ++p) {
    auto& r = out.cachePartition[p];
    r.support = 1;
    r.valid = basic ? 1 : 0;
    if (!basic || !used[p]) continue;
    r.partition_valid = 1;
    r.partition_cache_size = kCacheMB / nparts;
    r.used_cache_size = out.used_cache_size / nparts;
    r.used_cache_clean = out.used_cache_clean / nparts;
    r.used_cache_middle = out.used_cache_middle / nparts;
    r.used_cache_physical = out.used_cache_physical / nparts;
  }

  uint64_t ms = static_cast<uint64_t>(elapsed()) * 1000;
  uint64_t host_ms = (ctl_total[ctl].read_blocks + ctl_total[ctl].write_blocks) / 400;  // 200 MB/s
  out.cachebus.valid = out.cachebus.support = 1;
  out.cachebus.cachebus_monitoring_time = cut(ms);
  out.cachebus.host_cachebus_used_time = cut(host_ms);
  out.cachebus.drive_cachebus_used_time = cut(host_ms / 2);
  out.cachebus.drr_cachebus_used_time = cut(host_ms / 8);
  out.cachebus.cpu_cachebus_used_time = cut(ms / 50);
  out.cachebus.dual_cachebus_used_time = cut(host_ms / 4);
  out.cachebus.cachebus_used_time =
      cut(host_ms + host_ms / 2 + host_ms / 8 + ms / 50 + host_ms / 4);

  for (int b = 0; b < kBackends; ++b) put_command(out.backend[b], backend[ctl][b], basic);
  uint64_t us = static_cast<uint64_t>(elapsed()) * 1000000;
  for (int e = 0; e < kEnclosures; ++e)
    for (int s = 0; s < kSlots; ++s) out.drive[e][s].support = out.drive[e][s].drive_info.support = 1;
  for (const auto& d : drives) {
    if (d.enclosure < 0 || d.enclosure >= kEnclosures || d.slot < 0 || d.slot >= kSlots) continue;
    auto& r = out.drive[d.enclosure][d.slot];
    put_command(r.drive_info, d.c[ctl], basic);
    r.valid = basic ? 1 : 0;
    if (!basic) continue;
    uint64_t busy = std::min(d.busy_us[ctl], us);
    put_wide(r.not_opr_time_h, r.not_opr_time_l, us - busy);
    // Queue depths seen: most commands alone, a few behind others.
    uint64_t ops = d.c[ctl].reads + d.c[ctl].writes;
    r.tag_count[0] = cut(ops - ops / 4);
    r.tag_count[1] = cut(ops / 4 - ops / 16);
    r.tag_count[2] = cut(ops / 16);
  }

  auto& pr = out.processor;
  pr.valid = pr.support = 1;
  uint64_t busy = std::min(ctl_busy_us[ctl] + us / 20, us);  // 5 % housekeeping
  put_wide(pr.all_opr_time_h, pr.all_opr_time_l, us);
  put_wide(pr.job_io_time_h, pr.job_io_time_l, busy * 6 / 10);
  put_wide(pr.special_job_time_h, pr.special_job_time_l, us / 20);
  put_wide(pr.io_special_time_h, pr.io_special_time_l, busy / 20);
  put_wide(pr.host_interrup_time_h, pr.host_interrup_time_l, busy / 5);
  put_wide(pr.drive_interrup_time_h, pr.drive_interrup_time_l, busy / 10);
  put_wide(pr.drr_interrup_time_h, pr.drr_interrup_time_l, busy / 40);
  put_wide(pr.hostio_stop_time_h, pr.hostio_stop_time_l, 0);

  for (int p = 0; p < kPorts; ++p) {
    auto& v = out.vu_port[p];
    v.control.support = v.data_transfer.support = v.error.support = 1;
    if (!vendor || p >= ports) continue;
    uint64_t control = static_cast<uint64_t>(elapsed()) / 10;  // one inquiry every 10 s
    put_vu(v.control, control, 0, 300);
    put_vu(v.data_transfer, port[ctl][p].verify, port[ctl][p].verify * 8, 1000);
    v.error.valid = 1;
  }
  out.mtime = kx_time(now);
  out.err_code = 0;
}

void Workload::statistics(int selector, StatisticalInformationRec& out) const {
  out.unite_option = selector;
  const uint64_t secs = static_cast<uint64_t>(elapsed());
  const uint64_t us = secs * 1000000;
  for (int c = 0; c < 2; ++c) {
    auto& k = out.controller[c];
    k.power_on = 1;
    k.reset = 0;
    k.total_time = cut(secs);
    k.on_time = cut(secs);
    k.total_time_rap_cnt = cut(secs / 3600);
    k.total_time_rap_cnt_work = cut(secs / 3600);
    uint64_t busy = std::min(ctl_busy_us[c] + us / 20, us);
    k.procnt_time[0] = cut((us - busy) / 1000000);       // idle
    k.procnt_time[1] = cut(busy * 6 / 10 / 1000000);     // I/O jobs
    k.procnt_time[2] = cut(busy / 5 / 1000000);          // host interrupts
    k.procnt_time[3] = cut(busy / 10 / 1000000);         // drive interrupts

    for (int p = 0; p < ports; ++p) {
      out.h_spc[c].port[p].retry = 3;
      out.h_spc[c].port[p].err_threshold = 32;
      out.fibre[c].Install[p].tbl_id = p;
      out.fibre[c].Install[p].lup = 1;
      out.fibre[c].Pson[p].tbl_id = p;
      out.fibre[c].Pson[p].lup = 1;
    }
    out.d_spc[c].retry = 3;
    out.d_spc[c].err_threshold = 32;
    out.cache_mem[c].threshold = 10;

    auto& lim = out.drive_err[c].limit;
    int32_t* l = &lim.limit_had_rec;
    for (size_t i = 0; i < sizeof lim / sizeof(int32_t); ++i) l[i] = i % 2 ? 1 : 32;  // recovered 32, unrecovered 1
    lim.limit_drive_port = 32;
  }

  auto& ca0 = out.cache[0];
  auto& ca1 = out.cache[1];
  for (const auto& lu : lus) {
    int c = lu.ctl;
    out.h_command[c].lu[lu.number] = {cut(lu.c.reads), cut(lu.c.writes)};
    auto& s = out.com_status[c].lu[lu.number];
    s.r_cache = cut(lu.c.read_hits);
    s.w_cache = cut(lu.c.write_hits);
    s.seq_r = cut(lu.seq_reads);
    s.seq_w = cut(lu.seq_writes);
    s.pre_exec = cut(lu.seq_reads / 4);
    s.w_through = cut(lu.c.writes - lu.c.write_hits);
    s.rd_miss = cut(lu.c.reads - lu.c.read_hits);
    s.wr_spl = cut(lu.c.writes / 100);
    if (selector == 1)
      for (int u = 0; u < 2; ++u) {
        out.h_command_unite[u].lu[lu.number] = out.h_command[c].lu[lu.number];
        out.com_status_unite[u].lu[lu.number] = s;
      }
    // Cache: writes held back while the partition is full, and sequential
    // write buffers; the controller's figure is the sum of its partitions.
    auto& cache = c == 0 ? ca0 : ca1;
    uint64_t inh = (lu.c.writes - lu.c.write_hits) / 10;
    int part = lu.cachepart >= 0 && lu.cachepart < kCachePartitions ? lu.cachepart : 0;
    auto& cp = cache.cachepartition[part];
    cp.wrt_inhcnt = cut(static_cast<uint32_t>(cp.wrt_inhcnt) + inh);
    cp.wrt_outhcnt = cut(static_cast<uint32_t>(cp.wrt_outhcnt) + inh / 2);
    cp.seqwr_bufcnt = cut(static_cast<uint32_t>(cp.seqwr_bufcnt) + lu.seq_writes);
    cp.seg_lock_cnt = cut(static_cast<uint32_t>(cp.seg_lock_cnt) + lu.c.writes / 1000);
  }
  for (auto* cache : {&ca0, &ca1})
    for (const auto& cp : cache->cachepartition) {
      cache->wrt_inhcnt = cut(static_cast<uint32_t>(cache->wrt_inhcnt) + static_cast<uint32_t>(cp.wrt_inhcnt));
      cache->wrt_outhcnt = cut(static_cast<uint32_t>(cache->wrt_outhcnt) + static_cast<uint32_t>(cp.wrt_outhcnt));
      cache->seqwr_bufcnt = cut(static_cast<uint32_t>(cache->seqwr_bufcnt) + static_cast<uint32_t>(cp.seqwr_bufcnt));
      cache->seg_lock_cnt = cut(static_cast<uint32_t>(cache->seg_lock_cnt) + static_cast<uint32_t>(cp.seg_lock_cnt));
    }

  for (const auto& d : drives) {
    if (d.enclosure < 0 || d.enclosure >= kEnclosures || d.slot < 0 || d.slot >= kSlots) continue;
    int e = d.enclosure, s = d.slot;
    for (int c = 0; c < 2; ++c) {
      auto& wa = out.writeafter[c];
      uint64_t jobs = d.c[c].writes;
      if (d.level == 0 || d.level == 1 || d.level == 10) {
        wa.raid0_stripe_job[e][s] = cut(jobs);
        wa.raid0_stripe_cnt = cut(static_cast<uint32_t>(wa.raid0_stripe_cnt) + jobs);
      } else if (d.level == 5 || d.level == 6) {
        wa.raid5_stripe_job[e][s] = cut(jobs);
        wa.raid5_stripe_cnt = cut(static_cast<uint32_t>(wa.raid5_stripe_cnt) + jobs);
        wa.stripe_job_rmw[e][s] = cut(jobs - jobs / 4);
        wa.stripe_job_partial[e][s] = cut(jobs / 4);
      }
      auto& pd = wa.pdev[e][s];
      pd.gather_cnt = cut(jobs);
      pd.gather_prc_cnt = cut(jobs / 8);
      pd.gather_max = jobs ? 16 : 0;
      pd.gather_min = jobs ? 1 : 0;

      // Errors: a failed drive reports an unrecovered hardware error, an
      // offline one a lost link; healthy drives none.
      auto& di = out.drive[c].drive[e][s];
      auto& de = out.drive_err[c].drive[e][s];
      de.drv_on_time = cut(secs / 3600);
      if (d.state == "failed") {
        di.d_had_urec = 1;
        di.d_drive_urec = 1;
        de.had_urec_limit = 1;
      } else if (d.state == "offline") {
        di.link_failre[c] = 1;
        di.drv_port_err[c] = 1;
        de.drive_port_limit1[c] = 1;
      }
    }
    if (d.state == "failed") ++out.drive_rest[0].system_cnt;
  }
  out.drive_rest[1].system_cnt = out.drive_rest[0].system_cnt;
}

// ---- graph rates

namespace {

double per_second(uint32_t delta, double secs) { return secs > 0 ? delta / secs : 0; }
uint32_t diff(int32_t a, int32_t b) { return static_cast<uint32_t>(b) - static_cast<uint32_t>(a); }
double pct(double part, double whole) { return whole > 0 ? std::min(100.0, part * 100 / whole) : 0; }

void item(const CommandAll_InfoRec& a, const CommandAll_InfoRec& b, double secs, PerformanceCollectGraphBaseRec& g) {
  g.valid = a.valid && b.valid ? 1 : 0;
  if (!g.valid) return;
  uint32_t r = diff(a.read_count, b.read_count), w = diff(a.write_count, b.write_count);
  uint32_t rb = diff(a.read_size, b.read_size), wb = diff(a.write_size, b.write_size);
  g.iorate = static_cast<int32_t>(per_second(r + w, secs));
  g.readrate = static_cast<int32_t>(per_second(r, secs));
  g.writerate = static_cast<int32_t>(per_second(w, secs));
  g.readhit = pct(diff(a.read_cache, b.read_cache), r);
  g.writehit = pct(diff(a.write_cache, b.write_cache), w);
  // Transfer rates in KB per second (blocks of 512 bytes).
  g.readtransrate = static_cast<int32_t>(per_second(rb, secs) / 2);
  g.writetransrate = static_cast<int32_t>(per_second(wb, secs) / 2);
  g.transrate = static_cast<int32_t>(per_second(rb + wb, secs) / 2);
  g.onverirate = static_cast<int32_t>(per_second(diff(a.online_verify_count, b.online_verify_count), secs));
}

void vu(const VUCommandAll_InfoRec& a, const VUCommandAll_InfoRec& b, double secs, PerformanceCollectGraphVUBaseRec& g) {
  g.valid = a.valid && b.valid ? 1 : 0;
  if (!g.valid) return;
  uint32_t n = diff(a.command_count, b.command_count);
  g.command_iorate = static_cast<int32_t>(per_second(n, secs));
  g.command_transrate =
      static_cast<int32_t>(per_second(diff(a.command_transfer_block_count, b.command_transfer_block_count), secs) / 2);
  // Mean response time of the interval, microseconds.
  uint64_t total = static_cast<uint64_t>(join(b.command_total_time_h, b.command_total_time_l) -
                                         join(a.command_total_time_h, a.command_total_time_l));
  put_wide(g.command_time_h, g.command_time_l, n ? total / n : 0);
  g.command_max_time_h = b.command_max_time_h;
  g.command_max_time_l = b.command_max_time_l;
}

}  // namespace

void graph(const PerformanceAllRec& a, const PerformanceAllRec& b, PerformanceCollectGraphRec& g) {
  std::memset(static_cast<void*>(&g), 0, sizeof g);
  g.mtime[0] = a.mtime;
  g.mtime[1] = b.mtime;
  double secs = static_cast<double>(from_kx_time(b.mtime) - from_kx_time(a.mtime));
  if (!a.valid || !b.valid) return;
  for (int p = 0; p < kPorts; ++p) item(a.port[p], b.port[p], secs, g.port[p].base);
  for (int n = 0; n < kLus; ++n) item(a.lu[n], b.lu[n], secs, g.lu[n].base);
  for (int x = 0; x < kBackends; ++x) item(a.backend[x], b.backend[x], secs, g.backend[x].base);
  for (int r = 0; r < kRaidGroups; ++r) item(a.rg[r], b.rg[r], secs, g.rg[r].base);
  for (int e = 0; e < kEnclosures; ++e)
    for (int s = 0; s < kSlots; ++s) {
      const auto &da = a.drive[e][s], &db = b.drive[e][s];
      item(da.drive_info, db.drive_info, secs, g.drive[e][s].base);
      auto& o = g.driveopr[e][s];
      o.valid = da.valid && db.valid ? 1 : 0;
      if (!o.valid) continue;
      double idle = static_cast<double>(join(db.not_opr_time_h, db.not_opr_time_l) -
                                        join(da.not_opr_time_h, da.not_opr_time_l));
      o.operate_rate = secs > 0 ? std::clamp(100 - idle * 100 / (secs * 1e6), 0.0, 100.0) : 0;
      // Commands per second that waited behind others.
      o.tag_count = static_cast<int32_t>(
          per_second(diff(da.tag_count[1], db.tag_count[1]) + diff(da.tag_count[2], db.tag_count[2]), secs));
    }
  if (b.all_cache_size > 0) {
    g.cache.valid = 1;
    g.cache.cachewritependingrate = pct(b.used_cache_middle, b.all_cache_size);
    g.cache2.valid = 1;
    g.cache2.cachecleanusagerate = pct(b.used_cache_clean, b.all_cache_size);
    g.cache2.cachemiddleusagegrate = pct(b.used_cache_middle, b.all_cache_size);
    g.cache2.cachephysicalusagerate = pct(b.used_cache_physical, b.all_cache_size);
    g.cache2.cachetotalusagerate = pct(b.used_cache_size, b.all_cache_size);
  }
  for (int p = 0; p < kCachePartitions; ++p) {
    const auto& cp = b.cachePartition[p];
    auto& o = g.cachepartition[p];
    o.valid = a.cachePartition[p].valid && cp.valid && cp.partition_valid && cp.partition_cache_size > 0 ? 1 : 0;
    if (!o.valid) continue;
    o.cachewritependingrate = pct(cp.used_cache_middle, cp.partition_cache_size);
    o.cachecleanusagerate = pct(cp.used_cache_clean, cp.partition_cache_size);
    o.cachemiddleusagegrate = pct(cp.used_cache_middle, cp.partition_cache_size);
    o.cachephysicalusagerate = pct(cp.used_cache_physical, cp.partition_cache_size);
    o.cachetotalusagerate = pct(cp.used_cache_size, cp.partition_cache_size);
  }
  if (a.processor.valid && b.processor.valid) {
    g.processor.valid = 1;
    auto span = [&](int32_t bh, int32_t bl, int32_t ah, int32_t al) {
      return static_cast<double>(join(bh, bl) - join(ah, al));
    };
    const auto &pa = a.processor, &pb = b.processor;
    double all = span(pb.all_opr_time_h, pb.all_opr_time_l, pa.all_opr_time_h, pa.all_opr_time_l);
    double busy = span(pb.job_io_time_h, pb.job_io_time_l, pa.job_io_time_h, pa.job_io_time_l) +
                  span(pb.host_interrup_time_h, pb.host_interrup_time_l, pa.host_interrup_time_h, pa.host_interrup_time_l) +
                  span(pb.drive_interrup_time_h, pb.drive_interrup_time_l, pa.drive_interrup_time_h, pa.drive_interrup_time_l) +
                  span(pb.special_job_time_h, pb.special_job_time_l, pa.special_job_time_h, pa.special_job_time_l);
    g.processor.used_rate = pct(busy, all);
  }
  for (int n = 0; n < kLus; ++n) {
    g.luex[n].valid = a.lu_ex[n].valid && b.lu_ex[n].valid ? 1 : 0;
    if (g.luex[n].valid) g.luex[n].tag_count = b.lu_ex[n].tag_count;
    vu(a.vu_lu[n], b.vu_lu[n], secs, g.vu_lu[n].data_transfer);
  }
  for (int p = 0; p < kPorts; ++p) {
    vu(a.vu_port[p].control, b.vu_port[p].control, secs, g.vu_port[p].control);
    vu(a.vu_port[p].data_transfer, b.vu_port[p].data_transfer, secs, g.vu_port[p].data_transfer);
  }
}

// ---- times

KXTimeRec kx_time(int64_t t) {
  time_t tt = static_cast<time_t>(t);
  struct tm tm {};
  gmtime_r(&tt, &tm);
  KXTimeRec k{};
  k.tm_sec = tm.tm_sec;
  k.tm_min = tm.tm_min;
  k.tm_hour = tm.tm_hour;
  k.tm_mday = tm.tm_mday;
  k.tm_mon = tm.tm_mon;
  k.tm_year = tm.tm_year;
  k.tm_wday = tm.tm_wday;
  k.tm_yday = tm.tm_yday;
  k.tm_isdst = 0;
  return k;
}

int64_t from_kx_time(const KXTimeRec& k) {
  struct tm tm {};
  tm.tm_sec = k.tm_sec;
  tm.tm_min = k.tm_min;
  tm.tm_hour = k.tm_hour;
  tm.tm_mday = k.tm_mday;
  tm.tm_mon = k.tm_mon;
  tm.tm_year = k.tm_year;
  return static_cast<int64_t>(timegm(&tm));
}

std::string iso_time(int64_t t) {
  time_t tt = static_cast<time_t>(t);
  struct tm tm {};
  gmtime_r(&tt, &tm);
  char buf[32];
  std::strftime(buf, sizeof buf, "%Y-%m-%dT%H:%M:%SZ", &tm);
  return buf;
}

}  // namespace sim::perf
