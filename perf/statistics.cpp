// The statistical information block: cumulative counters per controller.
#include "perf/records.h"
#include "session/records.h"

using namespace kx;

KX_NATIVE(jobject, GetStatisticalInformation, jstring unit, jobject session, jint selector) {
  return call(env, KX_GetStatisticalInformation, Unit(unit), Session(session), selector,
              Out(rec::StatisticalInformation));
}
