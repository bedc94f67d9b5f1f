// The frame of every KX_ function of the simulator, written once:
//
//   int KX_GetRaidGroup(const char* unit, const KXSessionInfoRec* s, ...) {
//     return sim::run(__func__, sim::kRead, [&](sim::Call& c) {
//       c.session(unit, s);
//       ...
//     });
//   }
//
// run() takes the process's lock, opens the database, applies injected
// faults, runs the body in one transaction (a change is all or nothing; a
// read sees one snapshot), appends the audit entry of a change, and turns
// every sim::Error (and anything else thrown) into a result code.  Nothing
// escapes a KX_ function.
#pragma once

#include <cstdint>
#include <string>
#include <type_traits>

#include "sim/core/store.h"
#include "session.h"

namespace sim {

enum Kind { kRead, kWrite };

// The nine operation rights an account's role grants (OwnUserPermission).
enum Right {
  kRightAccounts = 0,
  kRightStorage = 1,
  kRightHosts = 2,
  kRightPerformance = 3,
  kRightFirmware = 4,
  kRightReplication = 5,
  kRightMaintenance = 6,
  kRightAudit = 7,
  kRightSecurity = 8,
};
constexpr int kRights = 9;

struct Actor {
  std::string user;
  int role = -1;
  std::string rights;  // kRights characters '0' or '1'
};

class Call {
 public:
  Call(Db& d, const char* f, Kind k);

  Db& db;
  const char* fn;
  Kind kind;
  int64_t now;              // the simulator's clock, seconds since the epoch
  std::string who = "-";    // the acting account, for the audit log
  std::string where;        // the unit named, for the audit log
  std::string what;         // the object acted on, for the audit log
  Actor actor;

  // A unit name in a buffer of cap bytes: registered and answered by the
  // simulated array.  Returns the name.
  std::string unit(const char* name, size_t cap = 65);
  // The session a call carries: known, not expired, opened on that unit.
  const Actor& session(const char* unit_name, const KXSessionInfoRec* s);
  // The same, and the account's role must grant the right.
  const Actor& session(const char* unit_name, const KXSessionInfoRec* s, Right need);
  // The older calls name only a unit: they act for the account logged in to
  // that unit with KX_LoginKXUnit (any mode), while that login lasts.
  const Actor& unit_login(const char* unit_name, size_t cap = 65);
  const Actor& unit_login(const char* unit_name, Right need, size_t cap = 65);
  void require(Right need) const;
};

// The simulator's clock: real time plus the offset the tool or a test set.
int64_t clock_now(Db& db);

using Body = void (*)(void* ctx, Call& c);
int run_body(const char* fn, Kind kind, Body body, void* ctx) noexcept;

template <class F>
int run(const char* fn, Kind kind, F&& f) noexcept {
  using L = std::remove_reference_t<F>;
  return run_body(fn, kind, [](void* ctx, Call& c) { (*static_cast<L*>(ctx))(c); }, const_cast<void*>(static_cast<const void*>(&f)));
}

// Random bytes for tokens and salts.
void random_bytes(void* p, size_t n);

}  // namespace sim
