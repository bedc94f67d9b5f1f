// The simulator's calls timed in the library alone, without Java and the
// bridge: the database PERNIX_SIM_DB names, logged in as the administrator
// (PERNIX_SIM_ADMIN_USER/_PASSWORD, defaults admin/pernix-sim).
//
//   bench_sim_calls CALLS WARMUP NAME...
//
// For each name: WARMUP untimed calls, then CALLS calls each timed on its own,
// printed as "s NAME cpu,...;wall,..." (ns: the thread's CPU time and elapsed
// time), the lines kxbench.SimBench reads.
#include <time.h>

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "account.h"
#include "host.h"
#include "perf.h"
#include "raid.h"
#include "session.h"

namespace {

int64_t ns(clockid_t clock) {
  timespec t{};
  clock_gettime(clock, &t);
  return static_cast<int64_t>(t.tv_sec) * 1000000000 + t.tv_nsec;
}

const char* env(const char* name, const char* fallback) {
  const char* v = std::getenv(name);
  return v && *v ? v : fallback;
}

[[noreturn]] void die(const std::string& what, int code) {
  std::fprintf(stderr, "bench_sim_calls: %s answered %d\n", what.c_str(), code);
  std::exit(1);
}

}  // namespace

int main(int argc, char** argv) {
  if (argc < 4) {
    std::fprintf(stderr, "usage: bench_sim_calls CALLS WARMUP NAME...\n");
    return 2;
  }
  int calls = std::atoi(argv[1]);
  int warmup = std::atoi(argv[2]);
  const char* unit = env("PERNIX_SIM_UNIT", "SIM01");

  KXAccountLoginRec login{};
  std::snprintf(login.user_id, sizeof login.user_id, "%s", env("PERNIX_SIM_ADMIN_USER", "admin"));
  std::snprintf(login.passwd, sizeof login.passwd, "%s", env("PERNIX_SIM_ADMIN_PASSWORD", "pernix-sim"));
  std::snprintf(login.log_string, sizeof login.log_string, "bench_sim_calls");
  KXSessionInfoRec session{};
  if (int rc = KX_LoginKXAccount(unit, &login, &session)) die("KX_LoginKXAccount", rc);

  // Records as large as the bridge hands over, allocated once.
  auto unit_rec = std::make_unique<KXUnitParamRec>();
  auto lu = std::make_unique<LogicalUnitRec>();
  auto groups = std::make_unique<RaidGroupInformationRec>();
  auto lus = std::make_unique<LogicalUnitRec[]>(PERNIX_LOGICAL_UNITS);
  auto stats = std::make_unique<StatisticalInformationRec>();
  auto perf0 = std::make_unique<PerformanceAllRec>();
  auto perf1 = std::make_unique<PerformanceAllRec>();
  auto mapping = std::make_unique<LuMappingRec>();
  auto guard = std::make_unique<LuGuardInformationRec>();
  HGOptionInfoRec hg_option{};
  PrefetchInformationRec prefetch{};
  if (int rc = KX_GetPrefetchInformation(unit, &session, &prefetch)) die("KX_GetPrefetchInformation", rc);
  int next = 0;

  std::map<std::string, std::function<int()>> call{
      {"KX_GetUnitParam", [&] { return KX_GetUnitParam(unit, unit_rec.get()); }},
      {"KX_GetLogicalUnit1", [&] { return KX_GetLogicalUnit1(unit, &session, 0, lu.get()); }},
      {"KX_GetRaidGroupInformation", [&] { return KX_GetRaidGroupInformation(unit, &session, groups.get()); }},
      {"KX_SetPrefetchInformation",
       [&] {
         prefetch.stg_next = next++ % 16385;
         return KX_SetPrefetchInformation(unit, &session, &prefetch);
       }},
      {"KX_GetLogicalUnit", [&] { return KX_GetLogicalUnit(unit, &session, lus.get()); }},
      {"KX_GetStatisticalInformation", [&] { return KX_GetStatisticalInformation(unit, &session, 0, stats.get()); }},
      {"KX_GetPerformanceAll", [&] { return KX_GetPerformanceAll(unit, &session, 0, perf0.get(), perf1.get()); }},
      {"KX_GetLuMappingListAll", [&] { return KX_GetLuMappingListAll(unit, &session, mapping.get()); }},
      {"KX_GetHGOption", [&] { return KX_GetHGOption(unit, &session, 0, 0, 0, &hg_option); }},
      {"KX_GetLuGuardInformation", [&] { return KX_GetLuGuardInformation(unit, &session, guard.get()); }},
  };

  for (int k = 3; k < argc; ++k) {
    auto it = call.find(argv[k]);
    if (it == call.end()) {
      std::fprintf(stderr, "bench_sim_calls: no call %s\n", argv[k]);
      return 2;
    }
    for (int i = 0; i < warmup; ++i)
      if (int rc = it->second()) die(argv[k], rc);
    std::vector<int64_t> cpu(calls), wall(calls);
    for (int i = 0; i < calls; ++i) {
      int64_t c0 = ns(CLOCK_THREAD_CPUTIME_ID), w0 = ns(CLOCK_MONOTONIC);
      int rc = it->second();
      int64_t w1 = ns(CLOCK_MONOTONIC), c1 = ns(CLOCK_THREAD_CPUTIME_ID);
      if (rc) die(argv[k], rc);
      cpu[i] = c1 - c0;
      wall[i] = w1 - w0;
    }
    std::string line = std::string("s ") + argv[k] + " ";
    for (int i = 0; i < calls; ++i) line += (i ? "," : "") + std::to_string(cpu[i]);
    line += ";";
    for (int i = 0; i < calls; ++i) line += (i ? "," : "") + std::to_string(wall[i]);
    std::puts(line.c_str());
  }
  KXAccountLogoutRec logout{};
  KX_LogoutKXAccount(unit, &session, &logout);
  return 0;
}
