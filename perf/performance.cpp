// Performance snapshots and their output: summaries, CSV extracts, graph
// data and the management file of a collection.
#include "perf/kinds.h"
#include "session/records.h"

using namespace kx;
using namespace kx::perf;

// ---- snapshots

KX_NATIVE(jobjectArray, GetPerformance, jstring unit, jobject session) {
  auto fn = [](const char* u, const KXSessionInfoRec* s, StatisticalCommandRec* const* ctl) {
    return KX_GetPerformance(u, s, ctl[0], ctl[1]);
  };
  return call(env, fn, Unit(unit), Session(session), PerController(rec::StatisticalCommand));
}

KX_NATIVE(jobjectArray, GetPerformanceAll, jstring unit, jobject session, jint a) {
  auto fn = [](const char* u, const KXSessionInfoRec* s, int n, PerformanceAllRec* const* ctl) {
    return KX_GetPerformanceAll(u, s, n, ctl[0], ctl[1]);
  };
  return call(env, fn, Unit(unit), Session(session), a, PerController(rec::PerformanceAll));
}

KX_NATIVE(jint, GetPfmStatisCfg, jstring unit, jobject session) {
  return call(env, KX_GetPfmStatisCfg, Unit(unit), Session(session), IntOut{});
}

KX_NATIVE(void, SetPfmStatisCfg, jstring unit, jobject session, jint cfg) {
  call(env, KX_SetPfmStatisCfg, Unit(unit), Session(session), cfg);
}

KX_NATIVE(jint, GetPfmFileMaxCount) {
  return call(env, KX_GetPfmFileMaxCount, IntOut{});
}

// ---- summaries

KX_NATIVE(void, PerformanceOutput, jstring unit, jobject session, jstring path, jobject cmd1,
          jobject cmd2, jobject cmd3, jobject cmd4) {
  call(env, KX_PerformanceOutput, Unit(unit), Session(session), Path(path),
       In(cmd1, rec::StatisticalCommand), In(cmd2, rec::StatisticalCommand),
       In(cmd3, rec::StatisticalCommand), In(cmd4, rec::StatisticalCommand));
}

KX_NATIVE(void, PerformanceOutputLU, jstring unit, jobject session, jstring path, jobject cmd1,
          jobject cmd2, jobject cmd3, jobject cmd4, jint a, jbyteArray lu, jint b) {
  call(env, KX_PerformanceOutputLU, Unit(unit), Session(session), Path(path),
       In(cmd1, rec::StatisticalCommand), In(cmd2, rec::StatisticalCommand),
       In(cmd3, rec::StatisticalCommand), In(cmd4, rec::StatisticalCommand), a, LuFlags(lu), b);
}

KX_NATIVE(void, PerformanceOutputAll, jstring unit, jobject info) {
  call(env, KX_PerformanceOutputAll, Unit(unit), LinkedIn(info, rec::PerformanceOutputInfo));
}

KX_NATIVE(void, PerformanceOutputAllEx, jstring unit, jobject session, jobject info) {
  call(env, KX_PerformanceOutputAllEx, Unit(unit), Session(session),
       LinkedIn(info, rec::PerformanceOutputInfoEx));
}

KX_NATIVE(void, PerformanceOutputSkip, jstring path, jint a, jint b, jobject time) {
  call(env, KX_PerformanceOutputSkip, Path(path), a, b, ByValue(time, rec::KXTime));
}

// ---- CSV extracts

KX_NATIVE(void, PerformanceOutputCSV, jstring path, jobject info) {
  call(env, KX_PerformanceOutputCSV, ShortPath(path), LinkedIn(info, rec::PerformanceCSVInfo));
}

// The directory name is not wanted here: its pointer stays null.
KX_NATIVE(jint, GetPerformanceCSVNum, jstring path, jobject info) {
  return call(env, KX_GetPerformanceCSVNum, ShortPath(path), In(info, rec::PerformanceCSVInfo),
              IntOut{});
}

// ---- graph data

KX_NATIVE(jobject, PerformanceOutputGraphInfo, jstring unit, jobject session, jobject info) {
  return call(env, KX_PerformanceOutputGraphInfo, Unit(unit), Session(session),
              LinkedIn(info, rec::PerformanceOutputGraphInfo),
              LinkedOut(rec::PerformanceCollectGraphInfo));
}

KX_NATIVE(void, PerformanceDataOutput, jstring path, jobject graphs) {
  call(env, KX_PerformanceDataOutput, ShortPath(path), LinkedIn(graphs, rec::PerformanceCollectGraphInfo));
}

// ---- management file

KX_NATIVE(void, PerformanceDataInitialize, jobject session, jstring path, jobject info) {
  call(env, KX_PerformanceDataInitialize, Session(session), ShortPath(path),
       In(info, rec::PerformanceMngInfo));
}

KX_NATIVE(jobject, PerformanceInputMngFile, jstring path) {
  return call(env, KX_PerformanceInputMngFile, ShortPath(path), Out(rec::PerformanceMngInfo));
}
