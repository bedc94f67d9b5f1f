// LU guard: each LU's access level (0 read/write, 1 read only, 2 protect)
// with a retention term in days that counts down with the simulator's clock,
// and the array's expiration lock, which keeps an LU at its level after its
// term has run out.  Changes need the security right.
#include <string>

#include "host.h"
#include "sim/core/call.h"
#include "sim/core/text.h"
#include "sim/model/hosts.h"
#include "sim/model/pools.h"
#include "sim/model/storage.h"

namespace {

using sim::fail;

std::string lu_name(int lun) { return "LU " + std::to_string(lun); }

void need_guarded_lu(sim::Db& db, int lun) {
  if (lun < 0 || lun >= sim::kMaxLus) fail(sim::kBadParameter, "LU " + std::to_string(lun) + " is not within 0..4095");
  if (!sim::lu_exists(db, lun)) fail(sim::kNoSuchObject, "no " + lu_name(lun));
}

// A term in days: -1 unlimited, 0 none, 1..kMaxRetentionDays.
void check_term(int days) {
  if (days < -1 || days > sim::kMaxRetentionDays)
    fail(sim::kBadParameter, "retention term " + std::to_string(days) + " is not -1 or 0..21900 days");
}

int64_t expiry_of(int64_t now, int days) {
  if (days == -1) return -1;
  return days == 0 ? 0 : now + static_cast<int64_t>(days) * sim::kSecondsPerDay;
}

// The level may change: no term runs, and the expiration lock does not keep an
// LU whose term has run out.
bool changeable(const sim::LuGuard& g, int64_t now, int lock) {
  if (g.level == 0) return true;
  if (sim::retention_days(g, now) != 0) return false;
  return !(lock && g.expiry != 0);
}

}  // namespace

extern "C" {

int KX_GetLuGuardInformation(const char* unit, const KXSessionInfoRec* session, LuGuardInformationRec* info) {
  return sim::run(__func__, sim::kRead, [&](sim::Call& c) {
    c.session(unit, session);
    auto& r = sim::out(info, "LU guard information");
    r.option = 1;
    int lock = sim::expiration_lock(c.db);
    r.expirationlock = lock;
    auto guards = sim::lu_guards(c.db);
    auto sizes = sim::lu_sizes(c.db);
    auto exists = sim::existing_lus(c.db);
    for (int l = 0; l < sim::kMaxLus; ++l) {
      if (!exists[static_cast<size_t>(l)]) continue;
      const auto& g = guards[static_cast<size_t>(l)];
      auto& o = r.lu[l];
      int days = sim::retention_days(g, c.now);
      o.lu_valid = 1;
      o.capacity = static_cast<int32_t>(std::min<int64_t>(sizes[static_cast<size_t>(l)], sim::kMaxLuBlocks));
      o.access_level_valid = 1;
      o.access_level_status = days != 0 ? 1 : 0;
      o.access_level = g.level;
      o.svol_disable = g.level != 0 ? 1 : 0;
      o.access_inhibit_mode = g.level;
      o.access_attr = g.level == 0 ? 3 : g.level == 1 ? 1 : 0;
      o.changeable_attr = changeable(g, c.now, lock) ? 3 : 0;
      o.retention_term = days;
    }
  });
}

int KX_SetLuAccessLevel(const char* unit, const KXSessionInfoRec* session, const LuAccessLevelRec* level) {
  return sim::run(__func__, sim::kWrite, [&](sim::Call& c) {
    c.what = "LU access level";
    c.session(unit, session, sim::kRightSecurity);
    const auto& in = sim::in(level, "LU access level");
    c.what = "access level of " + lu_name(in.lu);
    need_guarded_lu(c.db, in.lu);
    if (in.access_level < 0 || in.access_level > 2)
      fail(sim::kBadParameter, "access level " + std::to_string(in.access_level) + " is not 0, 1 or 2");
    check_term(in.retention_term);
    if (in.access_level == 0 && in.retention_term != 0)
      fail(sim::kBadParameter, "a read/write LU has no retention term");
    auto cur = sim::lu_guard(c.db, in.lu);
    if (!changeable(cur, c.now, sim::expiration_lock(c.db)))
      fail(sim::kBusy, lu_name(in.lu) + " is kept at its access level by its retention term or the expiration lock");
    sim::set_lu_guard(c.db, in.lu, {in.access_level, expiry_of(c.now, in.retention_term)});
  });
}

int KX_ExtendRetentionTerm(const char* unit, const KXSessionInfoRec* session, int a, int b) {
  return sim::run(__func__, sim::kWrite, [&](sim::Call& c) {
    c.what = "retention term of " + lu_name(a);
    c.session(unit, session, sim::kRightSecurity);
    need_guarded_lu(c.db, a);
    if (b == 0 || b < -1 || b > sim::kMaxRetentionDays)
      fail(sim::kBadParameter, "extension " + std::to_string(b) + " is not -1 or 1..21900 days");
    auto g = sim::lu_guard(c.db, a);
    if (g.level == 0) fail(sim::kBusy, lu_name(a) + " is read/write: it has no term to extend");
    if (g.expiry == -1) fail(sim::kBusy, lu_name(a) + " is retained without limit");
    if (b == -1) {
      g.expiry = -1;
    } else {
      int64_t from = std::max<int64_t>(g.expiry, c.now);
      int64_t end = from + static_cast<int64_t>(b) * sim::kSecondsPerDay;
      if (end - c.now > static_cast<int64_t>(sim::kMaxRetentionDays) * sim::kSecondsPerDay)
        fail(sim::kBadParameter, "the term would pass 21900 days");
      g.expiry = end;
    }
    sim::set_lu_guard(c.db, a, g);
  });
}

int KX_SetExpirationLock(const char* unit, const KXSessionInfoRec* session, int a) {
  return sim::run(__func__, sim::kWrite, [&](sim::Call& c) {
    c.what = "expiration lock " + std::to_string(a);
    c.session(unit, session, sim::kRightSecurity);
    sim::set_expiration_lock(c.db, a);
  });
}

}  // extern "C"
