// Natives that convert more than one tree within one call share its lookups:
// their trees together must fit.  (Each record's own tree is checked by the
// generated lookup_room_all.cpp.)
#include "core/lookups.h"
#include "perf/records.h"

namespace {
using kx::lookup_need;
namespace rec = kx::rec;

// The graph native reads four snapshots and builds both controllers' graphs.
static_assert((lookup_need(rec::PerformanceOutputGraphInfo) + lookup_need(rec::PerformanceCollectGraphInfo)).fits());

// The count follows what it is given: the statistics tree is the largest.
static_assert(lookup_need(rec::StatisticalInformation).entries > 30);
static_assert(lookup_need(rec::StatisticalInformation).ids > 240);
// A description reached twice counts once.
static_assert(lookup_need(rec::PerformanceAll, rec::PerformanceAll).entries ==
              lookup_need(rec::PerformanceAll).entries);
}  // namespace
