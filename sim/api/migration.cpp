// Volume migration: reserve LUs, migrations started, followed, re-paced,
// split and cancelled.
#include <string>
#include <vector>

#include "replication.h"
#include "sim/core/call.h"
#include "sim/core/text.h"
#include "sim/model/pools.h"
#include "sim/model/replication.h"
#include "sim/model/storage.h"

namespace {

using sim::Call;
using sim::fail;
using sim::kBadParameter;

// LU states of KX_GetLuMigrationState.
enum {
  kNoLu = -1, kIdle = 0, kReserved = 1, kSourceCopying = 2, kSourceCopied = 3, kTargetCopying = 4,
  kTargetCopied = 5,
};

std::vector<int> flagged(const LuMigrationReserveLURec& r) {
  std::vector<int> v;
  for (int n = 0; n < 4096; ++n) {
    if (r.reserve_lu[n] > 1)
      fail(kBadParameter, "reserve_lu[" + std::to_string(n) + "] is " + std::to_string(r.reserve_lu[n]) + ", not 0 or 1");
    if (r.reserve_lu[n]) v.push_back(n);
  }
  return v;
}

std::vector<sim::MigrationPair> pairs_of(const RequestLuMigrationRec& r) {
  if (r.request_pair_count < 1 || r.request_pair_count > PERNIX_MIGRATION_PAIRS)
    fail(kBadParameter, "request_pair_count " + std::to_string(r.request_pair_count) + " is not within 1..2047");
  std::vector<sim::MigrationPair> v;
  for (int i = 0; i < r.request_pair_count; ++i) v.push_back({r.lu[i].pvol_lun, r.lu[i].svol_lun, r.lu[i].copying_pace});
  return v;
}

std::string first_pair(const std::vector<sim::MigrationPair>& v) {
  return "migration of LU " + std::to_string(v.front().pvol) + (v.size() > 1 ? " and others" : "");
}

int op(const char* fn, const char* unit, const KXSessionInfoRec* session, const RequestLuMigrationRec* request,
       sim::MigrationOp what) {
  return sim::run(fn, sim::kWrite, [&](Call& c) {
    c.session(unit, session, sim::kRightReplication);
    const auto& r = sim::in(request, "request");
    auto v = pairs_of(r);
    c.what = first_pair(v);
    sim::migration_op(c.db, c.now, what, v, r.owner_id);
  });
}

}  // namespace

extern "C" {

int KX_AddLuMigrationReserveLU(const char* unit, const KXSessionInfoRec* session, const LuMigrationReserveLURec* lus) {
  return sim::run(__func__, sim::kWrite, [&](Call& c) {
    c.session(unit, session, sim::kRightReplication);
    c.what = "migration reserve LUs";
    sim::reserve(c.db, flagged(sim::in(lus, "reserve LUs")));
  });
}

int KX_DeleteLuMigrationReserveLU(const char* unit, const KXSessionInfoRec* session,
                                  const LuMigrationReserveLURec* lus) {
  return sim::run(__func__, sim::kWrite, [&](Call& c) {
    c.session(unit, session, sim::kRightReplication);
    c.what = "migration reserve LUs";
    sim::unreserve(c.db, flagged(sim::in(lus, "reserve LUs")));
  });
}

int KX_StartLuMigration(const char* unit, const KXSessionInfoRec* session, const RequestLuMigrationRec* request) {
  return sim::run(__func__, sim::kWrite, [&](Call& c) {
    c.session(unit, session, sim::kRightReplication);
    const auto& r = sim::in(request, "request");
    auto v = pairs_of(r);
    c.what = first_pair(v);
    sim::start_migrations(c.db, c.now, v, r.owner_id);
  });
}

int KX_CancelLuMigration(const char* unit, const KXSessionInfoRec* session, const RequestLuMigrationRec* request) {
  return op(__func__, unit, session, request, sim::kMigCancel);
}

int KX_SplitLuMigration(const char* unit, const KXSessionInfoRec* session, const RequestLuMigrationRec* request) {
  return op(__func__, unit, session, request, sim::kMigSplit);
}

int KX_SplitLuMigrationFreeOwner(const char* unit, const KXSessionInfoRec* session,
                                 const RequestLuMigrationRec* request) {
  return op(__func__, unit, session, request, sim::kMigSplitFree);
}

int KX_ChangeCopyPace(const char* unit, const KXSessionInfoRec* session, const RequestLuMigrationRec* request) {
  return op(__func__, unit, session, request, sim::kMigPace);
}

int KX_GetLuMigrationState(const char* unit, const KXSessionInfoRec* session, LuMigrationStateRec* state) {
  return sim::run(__func__, sim::kRead, [&](Call& c) {
    c.session(unit, session);
    auto& r = sim::out(state, "state");
    for (int n = 0; n < 4096; ++n) r.lun[n] = kNoLu;
    auto made = sim::existing_lus(c.db);
    for (int n = 0; n < 4096 && n < static_cast<int>(made.size()); ++n)
      if (made[static_cast<size_t>(n)]) r.lun[n] = kIdle;
    for (int lun : sim::reserve_lus(c.db))
      if (lun >= 0 && lun < 4096) r.lun[lun] = kReserved;
    for (const auto& m : sim::migrations(c.db)) {
      bool done = m.state(c.now) == sim::kMigrationCopied;
      if (m.pvol >= 0 && m.pvol < 4096) r.lun[m.pvol] = done ? kSourceCopied : kSourceCopying;
      if (m.svol >= 0 && m.svol < 4096) r.lun[m.svol] = done ? kTargetCopied : kTargetCopying;
    }
  });
}

int KX_GetLuMigrationInformation(const char* unit, const KXSessionInfoRec* session, LuMigrationInformationRec* info) {
  return sim::run(__func__, sim::kRead, [&](Call& c) {
    c.session(unit, session);
    auto& r = sim::out(info, "information");
    r.option = 1;
    for (auto& e : r.reserve_lu) e.lun = -1;
    for (auto& e : r.pair_lu) e.pvol_lun = e.svol_lun = e.pvol_rg_num = e.svol_rg_num = -1;
    auto ms = sim::migrations(c.db);
    int n = 0;
    for (int lun : sim::reserve_lus(c.db)) {
      if (n >= PERNIX_MIGRATION_PAIRS) break;
      auto& e = r.reserve_lu[n++];
      e.lun = lun;
      for (const auto& m : ms)
        if (m.svol == lun) e.lu_state = 1;
    }
    r.reserve_lu_count = n;
    n = 0;
    for (const auto& m : ms) {
      if (n >= PERNIX_MIGRATION_PAIRS) break;
      auto& e = r.pair_lu[n++];
      e.pvol_lun = m.pvol;
      e.svol_lun = m.svol;
      auto pp = sim::lu_place(c.db, m.pvol), sp = sim::lu_place(c.db, m.svol);
      e.pvol_rg_num = pp ? pp->rg : -1;
      e.svol_rg_num = sp ? sp->rg : -1;
      e.copying_pace = m.pace;
      e.owner_id = m.owner;
      e.migration_state = m.state(c.now);
      e.percent = m.percent(c.now);
      e.migration_error = 0;
    }
    r.pair_lu_count = n;
  });
}

}  // extern "C"
