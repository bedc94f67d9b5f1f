#include <utility>
#include <vector>

#include "fake.h"
#include "perf.h"

namespace fake {

using Buffers = std::vector<std::pair<const void*, size_t>>;

// The buffers the pointers of a request lead to, in the record's order.
template <typename R>
struct Links;
template <>
struct Links<PerformanceOutputInfoRec> {
  static Buffers of(const PerformanceOutputInfoRec* r) {
    constexpr size_t kAll = sizeof(PerformanceAllRec);
    return {{r->preinfo0, kAll}, {r->afterinfo0, kAll}, {r->preinfo1, kAll}, {r->afterinfo1, kAll},
            {r->filename, PERNIX_PATH_SIZE}};
  }
};
template <>
struct Links<PerformanceOutputInfoExRec> {
  static Buffers of(const PerformanceOutputInfoExRec* r) {
    constexpr size_t kAll = sizeof(PerformanceAllRec);
    return {{r->preinfo0, kAll}, {r->afterinfo0, kAll}, {r->preinfo1, kAll}, {r->afterinfo1, kAll},
            {r->filename, PERNIX_PATH_SIZE}};
  }
};
template <>
struct Links<PerformanceCSVInfoRec> {
  static Buffers of(const PerformanceCSVInfoRec* r) { return {{r->dirname, PERNIX_PATH_SIZE}}; }
};
template <>
struct Links<PerformanceOutputGraphInfoRec> {
  static Buffers of(const PerformanceOutputGraphInfoRec* r) {
    constexpr size_t kAll = sizeof(PerformanceAllRec);
    return {{r->preinfo0, kAll}, {r->afterinfo0, kAll}, {r->preinfo1, kAll}, {r->afterinfo1, kAll}};
  }
};
template <>
struct Links<PerformanceCollectGraphInfoRec> {
  static Buffers of(const PerformanceCollectGraphInfoRec* r) {
    constexpr size_t kGraph = sizeof(PerformanceCollectGraphRec);
    return {{r->graphinfo[0], kGraph}, {r->graphinfo[1], kGraph}};
  }
};

// A request holding pointers: the record, then every buffer it points to.
template <typename R>
struct LinkedIn {
  using type = const R*;
  static void capture(Call& c, type p) {
    record(c, p, sizeof(R));
    if (p == nullptr) return;
    for (const auto& [q, size] : Links<R>::of(p)) record_pointee(c, q, size);
  }
  static void apply(const char*, size_t, type) {}
};

// Records the library fills through the pointers of a record: the scripted
// bytes of the argument are the pointed-to records one after the other.
template <typename R>
struct LinkedOut {
  using type = R*;
  static void capture(Call& c, type p) { LinkedIn<R>::capture(c, p); }
  static void apply(const char* fn, size_t i, type p) {
    if (p == nullptr) return;
    size_t offset = 0;
    for (const auto& [q, size] : Links<R>::of(p)) {
      serve_at(fn, i, offset, const_cast<void*>(q), size);
      offset += size;
    }
  }
};

// A record handed over by value.
template <typename R>
struct Val {
  using type = R;
  static void capture(Call& c, type v) { record(c, &v, sizeof(R)); }
  static void apply(const char*, size_t, type) {}
};

}  // namespace fake

// statistics
PERNIX_FAKE(KX_GetStatisticalInformation, Str<65>, In<KXSessionInfoRec>, Int, Out<StatisticalInformationRec>)

// snapshots
PERNIX_FAKE(KX_GetPerformance, Str<65>, In<KXSessionInfoRec>, Out<StatisticalCommandRec>, Out<StatisticalCommandRec>)
PERNIX_FAKE(KX_GetPerformanceAll, Str<65>, In<KXSessionInfoRec>, Int, Out<PerformanceAllRec>, Out<PerformanceAllRec>)
PERNIX_FAKE(KX_GetPfmStatisCfg, Str<65>, In<KXSessionInfoRec>, IntOut)
PERNIX_FAKE(KX_SetPfmStatisCfg, Str<65>, In<KXSessionInfoRec>, Int)
PERNIX_FAKE(KX_GetPfmFileMaxCount, IntOut)

// summaries
PERNIX_FAKE(KX_PerformanceOutput, Str<65>, In<KXSessionInfoRec>, Str<1024>, In<StatisticalCommandRec>,
            In<StatisticalCommandRec>, In<StatisticalCommandRec>, In<StatisticalCommandRec>)
PERNIX_FAKE(KX_PerformanceOutputLU, Str<65>, In<KXSessionInfoRec>, Str<1024>, In<StatisticalCommandRec>,
            In<StatisticalCommandRec>, In<StatisticalCommandRec>, In<StatisticalCommandRec>, Int, In<uint8_t[4096]>, Int)
PERNIX_FAKE(KX_PerformanceOutputAll, Str<65>, LinkedIn<PerformanceOutputInfoRec>)
PERNIX_FAKE(KX_PerformanceOutputAllEx, Str<65>, In<KXSessionInfoRec>, LinkedIn<PerformanceOutputInfoExRec>)
PERNIX_FAKE(KX_PerformanceOutputSkip, Str<1024>, Int, Int, Val<KXTimeRec>)

// CSV extracts
PERNIX_FAKE(KX_PerformanceOutputCSV, Str<1024>, LinkedIn<PerformanceCSVInfoRec>)
PERNIX_FAKE(KX_GetPerformanceCSVNum, Str<1024>, LinkedIn<PerformanceCSVInfoRec>, IntOut)

// graphs and the management file
PERNIX_FAKE(KX_PerformanceOutputGraphInfo, Str<65>, In<KXSessionInfoRec>, LinkedIn<PerformanceOutputGraphInfoRec>,
            LinkedOut<PerformanceCollectGraphInfoRec>)
PERNIX_FAKE(KX_PerformanceDataOutput, Str<1024>, LinkedIn<PerformanceCollectGraphInfoRec>)
PERNIX_FAKE(KX_PerformanceDataInitialize, In<KXSessionInfoRec>, Str<1024>, In<PerformanceMngInfoRec>)
PERNIX_FAKE(KX_PerformanceInputMngFile, Str<1024>, Out<PerformanceMngInfoRec>)
