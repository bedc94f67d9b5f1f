#include "sim/core/call.h"

#include <sodium.h>

#include <cstdlib>
#include <cstring>
#include <ctime>
#include <map>
#include <memory>
#include <vector>
#include <string_view>

#include "sim/core/text.h"

namespace sim {

namespace {

int64_t real_now() { return static_cast<int64_t>(std::time(nullptr)); }

// ---- injected faults
//
// A rule names a function (or "*"), a code, and when it fires: always, on the
// n-th call counted from when the rule was made, or with a probability drawn
// from a seeded generator (the same seed fires on the same calls).  Rules
// come from the database (pernix-sim faults) and from PERNIX_SIM_FAULTS:
//   KX_GetUnitParam=12296;KX_CreateLU=12295@3;*=12297@p0.25:7

bool draw(double p, int64_t seed, int64_t call) {
  // splitmix64 of (seed, call): reproducible, independent of libc.
  uint64_t z = static_cast<uint64_t>(seed) * 0x9E3779B97F4A7C15ull + static_cast<uint64_t>(call);
  z = (z ^ (z >> 30)) * 0xBF58476D1CE4E5B9ull;
  z = (z ^ (z >> 27)) * 0x94D049BB133111EBull;
  z ^= z >> 31;
  return static_cast<double>(z >> 11) / 9007199254740992.0 < p;
}

bool fires(const std::string& mode, int64_t n, double p, int64_t seed, int64_t call) {
  if (mode == "always") return true;
  if (mode == "nth") return call == n;
  if (mode == "prob") return draw(p, seed, call);
  return false;
}

struct EnvRule {
  std::string fn, mode;
  int code = 0;
  int64_t n = 0, seed = 0;
  double p = 0;
};

// Parses PERNIX_SIM_FAULTS; a malformed rule is ignored as a whole (the tool
// checks rules before it stores them).
std::vector<EnvRule> env_rules(const char* text) {
  std::vector<EnvRule> rules;
  std::string_view all(text);
  while (!all.empty()) {
    auto cut = all.find_first_of(";,");
    std::string_view one = all.substr(0, cut);
    all = cut == std::string_view::npos ? std::string_view() : all.substr(cut + 1);
    auto eq = one.find('=');
    if (eq == std::string_view::npos || eq == 0) continue;
    EnvRule r;
    r.fn = std::string(one.substr(0, eq));
    std::string rest(one.substr(eq + 1));
    auto at = rest.find('@');
    char* end = nullptr;
    r.code = static_cast<int>(std::strtol(rest.c_str(), &end, 10));
    if (end == rest.c_str() || (at == std::string::npos ? *end != 0 : end != rest.c_str() + at)) continue;
    r.mode = "always";
    if (at != std::string::npos) {
      std::string when = rest.substr(at + 1);
      if (!when.empty() && when[0] == 'p') {
        r.mode = "prob";
        r.p = std::strtod(when.c_str() + 1, &end);
        if (*end == ':') r.seed = std::strtoll(end + 1, &end, 10);
        if (*end != 0) continue;
      } else if (when != "always") {
        r.mode = "nth";
        r.n = std::strtoll(when.c_str(), &end, 10);
        if (end == when.c_str() || *end != 0 || r.n < 1) continue;
      }
    }
    rules.push_back(r);
  }
  return rules;
}

// The environment's rules count their calls in this process.
int env_fault(const char* fn) {
  const char* text = std::getenv("PERNIX_SIM_FAULTS");
  if (!text || !*text) return 0;
  static std::string parsed_text;
  static std::vector<EnvRule> rules;
  static std::map<size_t, int64_t> calls;
  if (parsed_text != text) {
    parsed_text = text;
    rules = env_rules(text);
    calls.clear();
  }
  for (size_t i = 0; i < rules.size(); ++i) {
    const auto& r = rules[i];
    if (r.fn != "*" && r.fn != fn) continue;
    int64_t call = ++calls[i];
    if (fires(r.mode, r.n, r.p, r.seed, call)) return r.code;
  }
  return 0;
}

// The database's rules: looked at without a lock; counted in a short write
// transaction of their own only when one applies.
int db_fault(Db& db, const char* fn) {
  {
    auto s = db.sql("SELECT 1 FROM faults WHERE function=?1 OR function='*' LIMIT 1");
    s.bind(fn);
    if (!s.step()) return 0;
  }
  Tx tx(db, Tx::kWrite);
  int code = 0;
  {
    auto up = db.sql(
        "UPDATE faults SET calls=calls+1 WHERE function=?1 OR function='*' "
        "RETURNING id, code, mode, n, prob, seed, calls");
    up.bind(fn);
    while (up.step()) {
      if (!code && fires(up.text(2), up.i64(3), up.d(4), up.i64(5), up.i64(6))) code = up.i(1);
    }
  }
  if (code) {
    auto s = db.sql("UPDATE faults SET fired=fired+1 WHERE (function=?1 OR function='*') AND code=?2");
    s.bind(fn).bind(code).run();
  }
  tx.commit();
  return code;
}

void audit(Db& db, const Call& c, int result) {
  auto s = db.sql(
      "INSERT INTO audit(time, unit, user, function, object, result) VALUES(?1,?2,?3,?4,?5,?6)");
  s.bind(c.now).bind(c.where).bind(c.who).bind(c.fn).bind(c.what).bind(result).run();
}

}  // namespace

void random_bytes(void* p, size_t n) {
  if (sodium_init() < 0) fail(kDbError, "libsodium did not start");
  randombytes_buf(p, n);
}

// Real time plus the offset, or, on a frozen clock, the moment it was frozen
// plus the offset: time then moves only when it is stepped.
int64_t clock_now(Db& db) {
  auto s = db.sql(
      "SELECT (SELECT value FROM meta WHERE key='clock_offset'), "
      "(SELECT value FROM meta WHERE key='clock_frozen')");
  if (!s.step()) return real_now();
  int64_t offset = std::atoll(s.text(0).c_str());
  return (s.is_null(1) ? real_now() : std::atoll(s.text(1).c_str())) + offset;
}

Call::Call(Db& d, const char* f, Kind k) : db(d), fn(f), kind(k), now(clock_now(d)) {}

std::string Call::unit(const char* name, size_t cap) {
  std::string u = in_text(name, cap, "unit name");
  where = u;
  auto s = db.sql(
      "SELECT u.ctl0 IN (m0.value, m1.value) OR u.ctl1 IN (m0.value, m1.value) FROM units u, "
      "meta m0, meta m1 WHERE u.name=?1 AND m0.key='array_ip0' AND m1.key='array_ip1'");
  s.bind(u);
  if (!s.step()) fail(kUnknownUnit, "no unit " + u);
  if (!s.i(0)) fail(kUnreachable, "no simulated array answers at the addresses of " + u);
  return u;
}

const Actor& Call::session(const char* unit_name, const KXSessionInfoRec* rec) {
  std::string u = unit(unit_name);
  if (!rec) fail(kBadParameter, "session: null");
  auto s = db.sql(
      "SELECT s.user, s.unit, s.expires, a.role, r.rights FROM sessions s "
      "LEFT JOIN accounts a ON a.user=s.user LEFT JOIN roles r ON r.id=a.role WHERE s.token=?1");
  s.blob(rec->session_id, sizeof rec->session_id);
  if (!s.step()) fail(kNotLoggedIn, "unknown session");
  who = s.text(0);
  if (s.text(1) != u) fail(kNotLoggedIn, "session of another unit");
  if (s.i64(2) <= now) fail(kSessionExpired, "session expired");
  actor.user = who;
  actor.role = s.is_null(3) ? -1 : s.i(3);
  actor.rights = s.text(4);
  return actor;
}

const Actor& Call::session(const char* unit_name, const KXSessionInfoRec* rec, Right need) {
  session(unit_name, rec);
  require(need);
  return actor;
}

const Actor& Call::unit_login(const char* unit_name, size_t cap) {
  std::string u = unit(unit_name, cap);
  auto s = db.sql(
      "SELECT l.user, a.role, r.rights FROM unit_logins l LEFT JOIN accounts a ON a.user=l.user "
      "LEFT JOIN roles r ON r.id=a.role WHERE l.unit=?1 AND l.expires>?2 ORDER BY l.expires DESC LIMIT 1");
  s.bind(u).bind(now);
  if (!s.step()) fail(kNotLoggedIn, "nobody is logged in to " + u);
  who = actor.user = s.text(0);
  actor.role = s.is_null(1) ? -1 : s.i(1);
  actor.rights = s.text(2);
  return actor;
}

const Actor& Call::unit_login(const char* unit_name, Right need, size_t cap) {
  unit_login(unit_name, cap);
  require(need);
  return actor;
}

void Call::require(Right need) const {
  if (actor.rights.size() != kRights || actor.rights[need] != '1')
    fail(kPermission, "the role of " + actor.user + " lacks that right");
}

int run_body(const char* fn, Kind kind, Body body, void* ctx) noexcept {
  try {
    std::lock_guard<std::mutex> guard(Db::lock());
    Db* db = nullptr;
    try {
      db = &Db::open();
    } catch (const Error& e) {
      return e.code;
    }
    try {
      if (int code = env_fault(fn)) return code;
      if (int code = db_fault(*db, fn)) return code;
      int result = 0;
      std::unique_ptr<Call> call;
      {
        Tx tx(*db, kind == kWrite ? Tx::kWrite : Tx::kRead);
        call = std::make_unique<Call>(*db, fn, kind);
        try {
          body(ctx, *call);
          if (kind == kWrite) audit(*db, *call, 0);
          tx.commit();
          return 0;
        } catch (const Error& e) {
          result = e.code;
        }
      }
      // The change is rolled back; the refusal is still written down.
      if (kind == kWrite && result != kDbLocked && result != kDbReadOnly && result != kDbCorrupt &&
          result != kDbError) {
        try {
          Tx tx(*db, Tx::kWrite);
          audit(*db, *call, result);
          tx.commit();
        } catch (const Error&) {
        }
      }
      return result;
    } catch (const Error& e) {
      // A database that failed under us is opened afresh by the next call.
      if (e.code == kDbCorrupt || e.code == kDbError) Db::close();
      return e.code;
    }
  } catch (const std::bad_alloc&) {
    return kDbError;
  } catch (...) {
    return kDbError;
  }
}

}  // namespace sim
