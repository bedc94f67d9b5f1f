// The statistical information block: the cumulative counters of both
// controllers, built from the workload model at the moment of the call.
#include <string>

#include "include/perf.h"
#include "sim/core/call.h"
#include "sim/core/text.h"
#include "sim/model/perf.h"

extern "C" {

int KX_GetStatisticalInformation(const char* unit, const KXSessionInfoRec* session, int selector,
                                 StatisticalInformationRec* info) {
  return sim::run(__func__, sim::kRead, [&](sim::Call& c) {
    c.session(unit, session);
    if (selector != 0 && selector != 1)
      sim::fail(sim::kBadParameter, "selector " + std::to_string(selector) + " is neither 0 nor 1");
    auto& out = sim::out(info, "statistical information");
    sim::perf::Workload(c.db, c.now).statistics(selector, out);
  });
}

}  // extern "C"
