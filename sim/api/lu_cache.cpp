// LU cache settings: staging sizes, the cache partition of each LU, prefetch
// tuning (unit-wide and per LU) and the controller-resident ("turbo") LU.
//
// Per-LU values live in lu_cache (one row per LU that has been set; an LU
// without a row has the defaults).  Slots of LU numbers that do not exist
// read back as -1 everywhere; a setter accepts -1 or 0 in them and refuses
// anything else there with kNoSuchObject.
#include <cstring>
#include <memory>
#include <string>

#include "raid.h"
#include "sim/core/call.h"
#include "sim/core/text.h"
#include "sim/model/model.h"
#include "sim/model/pools.h"

namespace {

using sim::fail;
using sim::kBadParameter;

using sim::range;

std::string slot(const char* what, int lun) { return std::string(what) + " of LU " + std::to_string(lun); }

// A slot of an LU that does not exist carries nothing.
bool empty_slot(std::initializer_list<int> values) {
  bool all_none = true, all_zero = true;
  for (int v : values) {
    all_none = all_none && v == -1;
    all_zero = all_zero && v == 0;
  }
  return all_none || all_zero;
}

void no_lu(int lun) { fail(sim::kNoSuchObject, "LU " + std::to_string(lun) + " does not exist"); }

// ---- staging sizes

constexpr const char* kPrefetchKey = "lu_cache.prefetch";
constexpr int kMaxStaging = 16384;  // blocks

PrefetchInformationRec prefetch_defaults() {
  PrefetchInformationRec p{};
  p.stg_rd0 = 128;
  p.stg_rd1 = 128;
  p.stg_rd5 = 256;
  p.stg_next = 64;
  p.stg_hed_size = 32;
  return p;
}

// ---- cache partitions

constexpr int kPartitions = 16;
constexpr const char* kPartitionKey = "lu_cache.partition";

struct PartitionHead {
  int32_t option, support_index, valid_index;
};

// ---- prefetch tuning

constexpr const char* kTuningKey = "lu_cache.tuning";
constexpr int kMaxPrefetchBasis = 65535;  // blocks

struct TuningHead {
  int32_t support_index, valid_index, set_mode, setting_range, multi_stream_read,
      multi_stream_write, seq_count, next_pre_mode, pre_std;
};
static_assert(sizeof(TuningHead) == offsetof(PrefetchTuningRec, lu_range));

void check_tuning_head(const PrefetchTuningRec& t) {
  range(t.support_index, 0, 1, "support_index");
  range(t.valid_index, 0, 1, "valid_index");
  range(t.set_mode, 0, 1, "set_mode");
  range(t.setting_range, 0, 1, "setting_range");
  range(t.multi_stream_read, 0, 1, "multi_stream_read");
  range(t.multi_stream_write, 0, 1, "multi_stream_write");
  range(t.seq_count, 0, 16, "seq_count");
  range(t.next_pre_mode, 0, 2, "next_pre_mode");
  range(t.pre_std, 0, 2, "pre_std");
}

// ---- turbo LU

constexpr const char* kTurboKey = "lu_cache.turbo";

TurboLuRec turbo_defaults() {
  TurboLuRec t{};
  for (auto& c : t.ctl) c.current_lun = c.reserve_lun = -1;
  return t;
}

}  // namespace

extern "C" {

int KX_GetPrefetchInformation(const char* unit, const KXSessionInfoRec* session,
                              PrefetchInformationRec* info) {
  return sim::run(__func__, sim::kRead, [&](sim::Call& c) {
    c.session(unit, session);
    auto& p = sim::out(info, "prefetch information");
    p = sim::setting_or(c.db, kPrefetchKey, prefetch_defaults());
  });
}

int KX_SetPrefetchInformation(const char* unit, const KXSessionInfoRec* session,
                              const PrefetchInformationRec* info) {
  return sim::run(__func__, sim::kWrite, [&](sim::Call& c) {
    c.what = "staging sizes";
    c.session(unit, session, sim::kRightStorage);
    const auto& p = sim::in(info, "prefetch information");
    range(p.stg_rd0, 0, kMaxStaging, "stg_rd0");
    range(p.stg_rd1, 0, kMaxStaging, "stg_rd1");
    range(p.stg_rd5, 0, kMaxStaging, "stg_rd5");
    range(p.stg_next, 0, kMaxStaging, "stg_next");
    range(p.stg_hed_size, 0, kMaxStaging, "stg_hed_size");
    sim::save_setting(c.db, kPrefetchKey, &p, sizeof p);
  });
}

int KX_GetLuCachePartition(const char* unit, const KXSessionInfoRec* session,
                           LuCachePartitionRec* partition) {
  return sim::run(__func__, sim::kRead, [&](sim::Call& c) {
    c.session(unit, session);
    auto& r = sim::out(partition, "LU cache partitions");
    PartitionHead h{0, 1, 1};
    sim::load_setting(c.db, kPartitionKey, &h, sizeof h);
    r.option = h.option;
    r.support_index = h.support_index;
    r.valid_index = h.valid_index;
    auto all = sim::lu_cache_all(c.db);
    for (int i = 0; i < sim::kMaxLus; ++i) {
      if (all[i].exists) {
        const auto& part = all[i];
        r.current_prt_num[i] = part.current;
        r.reserve_prt_num[i] = part.reserve;
        r.now_prt_num[i] = part.now;
        r.pair_prt_num[i] = part.pair;
      } else {
        r.current_prt_num[i] = r.reserve_prt_num[i] = r.now_prt_num[i] = r.pair_prt_num[i] = -1;
      }
    }
  });
}

int KX_SetLuCachePartition(const char* unit, const KXSessionInfoRec* session,
                           const LuCachePartitionRec* partition) {
  return sim::run(__func__, sim::kWrite, [&](sim::Call& c) {
    c.what = "LU cache partitions";
    c.session(unit, session, sim::kRightStorage);
    const auto& r = sim::in(partition, "LU cache partitions");
    range(r.option, 0, 1, "option");
    range(r.support_index, 0, 1, "support_index");
    range(r.valid_index, 0, 1, "valid_index");
    auto all = sim::lu_cache_all(c.db);
    for (int i = 0; i < sim::kMaxLus; ++i) {
      if (!all[i].exists) {
        if (!empty_slot({r.current_prt_num[i], r.reserve_prt_num[i], r.now_prt_num[i], r.pair_prt_num[i]}))
          no_lu(i);
        continue;
      }
      range(r.current_prt_num[i], 0, kPartitions - 1, slot("current partition", i));
      range(r.reserve_prt_num[i], 0, kPartitions - 1, slot("reserved partition", i));
      range(r.now_prt_num[i], 0, kPartitions - 1, slot("partition in use", i));
      range(r.pair_prt_num[i], -1, kPartitions - 1, slot("pair partition", i));
    }
    PartitionHead h{r.option, r.support_index, r.valid_index};
    sim::save_setting(c.db, kPartitionKey, &h, sizeof h);
    // Only the LUs whose partitions change are written.
    for (int i = 0; i < sim::kMaxLus; ++i) {
      const auto& was = all[i];
      if (was.exists && (was.current != r.current_prt_num[i] || was.reserve != r.reserve_prt_num[i] ||
                         was.now != r.now_prt_num[i] || was.pair != r.pair_prt_num[i]))
        sim::set_lu_partition(c.db, i, r.current_prt_num[i], r.reserve_prt_num[i], r.now_prt_num[i],
                              r.pair_prt_num[i]);
    }
  });
}

int KX_GetPrefetchTuning(const char* unit, const KXSessionInfoRec* session, PrefetchTuningRec* tuning) {
  return sim::run(__func__, sim::kRead, [&](sim::Call& c) {
    c.session(unit, session);
    auto& t = sim::out(tuning, "prefetch tuning");
    TuningHead h{1, 1, 0, 0, 0, 0, 4, 0, 0};
    sim::load_setting(c.db, kTuningKey, &h, sizeof h);
    std::memcpy(&t, &h, sizeof h);
    auto all = sim::lu_cache_all(c.db);
    for (int i = 0; i < sim::kMaxLus; ++i) {
      auto& r = t.lu_range[i];
      auto& l = t.lu[i];
      if (!all[i].exists) {
        r.multi_stream_read = r.multi_stream_write = r.next_pre_mode = r.pre_std = -1;
        l.pre_size_basis = l.pre_size_fixation = -1;
        continue;
      }
      const auto& p = all[i].prefetch;
      r.multi_stream_read = p.multi_stream_read;
      r.multi_stream_write = p.multi_stream_write;
      r.next_pre_mode = p.next_pre_mode;
      r.pre_std = p.pre_std;
      l.pre_size_basis = p.pre_size_basis;
      l.pre_size_fixation = p.pre_size_fixation;
    }
  });
}

int KX_SetPrefetchTuning(const char* unit, const KXSessionInfoRec* session,
                         const PrefetchTuningRec* tuning) {
  return sim::run(__func__, sim::kWrite, [&](sim::Call& c) {
    c.what = "prefetch tuning";
    c.session(unit, session, sim::kRightStorage);
    const auto& t = sim::in(tuning, "prefetch tuning");
    check_tuning_head(t);
    auto all = sim::lu_cache_all(c.db);
    for (int i = 0; i < sim::kMaxLus; ++i) {
      const auto& r = t.lu_range[i];
      const auto& l = t.lu[i];
      if (!all[i].exists) {
        if (!empty_slot({r.multi_stream_read, r.multi_stream_write, r.next_pre_mode, r.pre_std,
                         l.pre_size_basis, l.pre_size_fixation}))
          no_lu(i);
        continue;
      }
      range(r.multi_stream_read, 0, 1, slot("multi_stream_read", i));
      range(r.multi_stream_write, 0, 1, slot("multi_stream_write", i));
      range(r.next_pre_mode, 0, 2, slot("next_pre_mode", i));
      range(r.pre_std, 0, 2, slot("pre_std", i));
      range(l.pre_size_basis, 0, kMaxPrefetchBasis, slot("pre_size_basis", i));
      range(l.pre_size_fixation, 0, 1, slot("pre_size_fixation", i));
    }
    TuningHead h;
    std::memcpy(&h, &t, sizeof h);
    sim::save_setting(c.db, kTuningKey, &h, sizeof h);
    // Only the LUs whose tuning changes are written.
    for (int i = 0; i < sim::kMaxLus; ++i) {
      if (!all[i].exists) continue;
      const auto& r = t.lu_range[i];
      const auto& l = t.lu[i];
      sim::LuPrefetch p{r.multi_stream_read, r.multi_stream_write, r.next_pre_mode, r.pre_std,
                        l.pre_size_basis, l.pre_size_fixation};
      if (!(p == all[i].prefetch)) sim::set_lu_prefetch(c.db, i, p);
    }
  });
}

int KX_GetTurboLU(const char* unit, const KXSessionInfoRec* session, TurboLuRec* turbo) {
  return sim::run(__func__, sim::kRead, [&](sim::Call& c) {
    c.session(unit, session);
    auto& t = sim::out(turbo, "turbo LU");
    t = sim::setting_or(c.db, kTurboKey, turbo_defaults());
    // An LU deleted since is resident no more.
    for (auto& k : t.ctl) {
      if (k.current_assign && !sim::lu_exists(c.db, k.current_lun)) {
        k.current_status = k.current_assign = 0;
        k.current_lun = -1;
      }
      if (k.reserve_assign && !sim::lu_exists(c.db, k.reserve_lun)) {
        k.reserve_assign = 0;
        k.reserve_lun = -1;
      }
    }
  });
}

int KX_SetTurboLU(const char* unit, const KXSessionInfoRec* session, const TurboLuRec* turbo) {
  return sim::run(__func__, sim::kWrite, [&](sim::Call& c) {
    c.what = "turbo LU";
    c.session(unit, session, sim::kRightStorage);
    const auto& t = sim::in(turbo, "turbo LU");
    range(t.option, 0, 1, "option");
    for (int k = 0; k < 2; ++k) {
      const auto& x = t.ctl[k];
      std::string ctl = " of controller " + std::to_string(k);
      range(x.current_status, 0, 2, "current_status" + ctl);
      range(x.current_assign, 0, 1, "current_assign" + ctl);
      range(x.current_lun, -1, sim::kMaxLus - 1, "current_lun" + ctl);
      range(x.reserve_assign, 0, 1, "reserve_assign" + ctl);
      range(x.reserve_lun, -1, sim::kMaxLus - 1, "reserve_lun" + ctl);
      if (x.current_assign) sim::need_lu(c.db, x.current_lun, "current_lun");
      if (x.reserve_assign) sim::need_lu(c.db, x.reserve_lun, "reserve_lun");
    }
    const auto& a = t.ctl[0];
    const auto& b = t.ctl[1];
    if ((a.current_assign && b.current_assign && a.current_lun == b.current_lun) ||
        (a.reserve_assign && b.reserve_assign && a.reserve_lun == b.reserve_lun))
      fail(sim::kBusy, "one LU cannot be resident on both controllers");
    sim::save_setting(c.db, kTurboKey, &t, sizeof t);
  });
}

}  // extern "C"
