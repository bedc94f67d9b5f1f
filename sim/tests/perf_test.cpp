// Statistics and performance, called straight into the library: counters that
// agree across tables and rise with the clock, the collection setting, graph
// rates, and every file the output calls write, read back.
#include <sys/stat.h>

#include <algorithm>
#include <cmath>
#include <memory>
#include <string>
#include <vector>

#include "perf.h"
#include "session_support.h"

namespace {

using namespace t;

constexpr int kNoLus = 8;  // the default array's LUs 0..7, LU n on controller n % 2

// Controllers' snapshots taken in one call, so they share one instant.
struct Snap {
  std::unique_ptr<PerformanceAllRec> c[2] = {std::make_unique<PerformanceAllRec>(),
                                             std::make_unique<PerformanceAllRec>()};
};

int snap(const KXSessionInfoRec& s, Snap& out, int mode = 0) {
  return KX_GetPerformanceAll(kUnit, &s, mode, out.c[0].get(), out.c[1].get());
}

// Moves the clock on; a session would not outlive a long step, so log in anew.
void later(KXSessionInfoRec& s, long seconds) {
  step_clock(seconds);
  s = admin();
}

uint32_t u(int32_t v) { return static_cast<uint32_t>(v); }

std::vector<std::string> lines(const std::string& text) {
  std::vector<std::string> out;
  size_t pos = 0;
  while (pos < text.size()) {
    size_t nl = text.find('\n', pos);
    if (nl == std::string::npos) nl = text.size();
    out.push_back(text.substr(pos, nl - pos));
    pos = nl + 1;
  }
  return out;
}

size_t fields(const std::string& line) { return static_cast<size_t>(std::count(line.begin(), line.end(), ',')) + 1; }

// Every line of a CSV file has the header's number of fields.
bool sound_csv(const std::string& text) {
  auto ls = lines(text);
  if (ls.empty()) return false;
  for (const auto& l : ls)
    if (fields(l) != fields(ls[0])) return false;
  return true;
}

void counters_agree_and_rise() {
  fresh_db("counters");
  auto s = admin();
  later(s, 3600);
  Snap a;
  CHECK_EQ(snap(s, a), 0);
  for (int c = 0; c < 2; ++c) {
    const auto& r = *a.c[c];
    CHECK_EQ(r.valid, 1);
    uint64_t lus = 0, ports = 0, rgs = 0, reads = 0, hits = 0;
    for (int n = 0; n < 4096; ++n) {
      lus += u(r.lu[n].read_count);
      // An LU counts on the controller that owns it only; missing LUs nowhere.
      bool mine = n < kNoLus && n % 2 == c;
      CHECK_EQ(r.lu[n].valid, n < kNoLus ? 1 : 0);
      CHECK(mine ? r.lu[n].read_count > 0 && r.lu[n].write_count > 0 : r.lu[n].read_count == 0);
      CHECK(u(r.lu[n].read_cache) <= u(r.lu[n].read_count));
      reads += u(r.lu[n].read_count);
      hits += u(r.lu[n].read_cache);
    }
    for (int p = 0; p < 4; ++p) ports += u(r.port[p].read_count);
    for (int g = 0; g < 90; ++g) rgs += u(r.rg[g].read_count);
    CHECK_EQ(lus, ports);
    CHECK_EQ(lus, rgs);
    CHECK(hits > reads / 2);
    CHECK_EQ(r.rg[0].valid, 1);
    CHECK_EQ(r.rg[2].valid, 0);
    // Group 0 (drives 0/0..0/4) holds the even LUs of controller 0, group 1
    // (0/5..0/9) the odd ones of controller 1: their drives take the misses.
    CHECK(r.drive[0][5 * c].drive_info.read_count > 0);
    CHECK_EQ(r.drive[0][5 * (1 - c)].drive_info.read_count, 0);
    CHECK_EQ(r.drive[3][14].drive_info.read_count, 0);
    CHECK(r.lu_ex[c].read_hit.command_count == r.lu[c].read_cache);
  }

  // The statistics block and the command snapshot count the same commands.
  auto st = std::make_unique<StatisticalInformationRec>();
  auto k0 = std::make_unique<StatisticalCommandRec>();
  auto k1 = std::make_unique<StatisticalCommandRec>();
  for (int tries = 0; tries < 3; ++tries) {
    CHECK_EQ(KX_GetStatisticalInformation(kUnit, &s, 1, st.get()), 0);
    CHECK_EQ(KX_GetPerformance(kUnit, &s, k0.get(), k1.get()), 0);
    if (std::memcmp(&st->h_command[1].lu[1], &k1->lu[1], 8) == 0) break;  // the two calls fell in one second
  }
  CHECK_EQ(st->h_command[1].lu[1].read_count, k1->lu[1].read_count);
  CHECK_EQ(st->h_command[0].lu[1].read_count, 0);
  CHECK_EQ(st->h_command_unite[0].lu[1].read_count, k1->lu[1].read_count);
  const auto& cs = st->com_status[0].lu[2];
  CHECK_EQ(u(cs.r_cache) + u(cs.rd_miss), u(st->h_command[0].lu[2].read_count));
  CHECK_EQ(u(cs.w_cache) + u(cs.w_through), u(st->h_command[0].lu[2].write_count));
  uint64_t parts = 0;
  for (const auto& p : st->cache[0].cachepartition) parts += u(p.wrt_inhcnt);
  CHECK_EQ(parts, u(st->cache[0].wrt_inhcnt));
  uint64_t jobs = 0;
  for (auto& row : st->writeafter[0].raid5_stripe_job)
    for (int v : row) jobs += u(v);
  CHECK(jobs > 0);
  CHECK_EQ(jobs, u(st->writeafter[0].raid5_stripe_cnt));
  CHECK(st->controller[0].total_time >= 3600);

  // The unite tables are filled on request only; other selectors are refused.
  CHECK_EQ(KX_GetStatisticalInformation(kUnit, &s, 0, st.get()), 0);
  CHECK_EQ(st->h_command_unite[0].lu[1].read_count, 0);
  CHECK_EQ(KX_GetStatisticalInformation(kUnit, &s, 2, st.get()), kBadParameter);
  CHECK_EQ(KX_GetStatisticalInformation(kUnit, &s, 0, nullptr), kBadParameter);

  // A failed drive shows its error.
  sql("UPDATE drives SET state='failed' WHERE enclosure=0 AND slot=3");
  CHECK_EQ(KX_GetStatisticalInformation(kUnit, &s, 0, st.get()), 0);
  CHECK_EQ(st->drive[0].drive[0][3].d_had_urec, 1);
  CHECK_EQ(st->drive[0].drive[0][2].d_had_urec, 0);
  sql("UPDATE drives SET state='normal' WHERE enclosure=0 AND slot=3");

  // Ten minutes on, every LU has counted more; the graph shows the rates.
  Snap b;
  later(s, 600);
  CHECK_EQ(snap(s, b), 0);
  for (int n = 0; n < kNoLus; ++n) {
    int c = n % 2;
    CHECK(u(b.c[c]->lu[n].read_count) > u(a.c[c]->lu[n].read_count));
    CHECK(u(b.c[c]->lu[n].write_count) > u(a.c[c]->lu[n].write_count));
  }
  auto g0 = std::make_unique<PerformanceCollectGraphRec>();
  auto g1 = std::make_unique<PerformanceCollectGraphRec>();
  PerformanceOutputGraphInfoRec in{a.c[0].get(), b.c[0].get(), a.c[1].get(), b.c[1].get()};
  PerformanceCollectGraphInfoRec out{};
  out.graphinfo[0] = g0.get();
  out.graphinfo[1] = g1.get();
  CHECK_EQ(KX_PerformanceOutputGraphInfo(kUnit, &s, &in, &out), 0);
  const auto& lg = g1->lu[3].base;
  double secs = 600;
  CHECK_EQ(lg.valid, 1);
  CHECK(std::abs(lg.readrate - (u(b.c[1]->lu[3].read_count) - u(a.c[1]->lu[3].read_count)) / secs) <= 1);
  CHECK(lg.readhit >= 55 && lg.readhit <= 100);
  CHECK(lg.iorate >= lg.readrate + lg.writerate - 1);
  CHECK_EQ(g0->lu[100].base.valid, 0);
  CHECK(g0->processor.valid == 1 && g0->processor.used_rate > 0 && g0->processor.used_rate < 100);
  CHECK(g0->driveopr[0][0].valid == 1 && g0->driveopr[0][0].operate_rate > 0);
  CHECK(g0->cache2.cachetotalusagerate > 0);
  out.graphinfo[1] = nullptr;
  CHECK_EQ(KX_PerformanceOutputGraphInfo(kUnit, &s, &in, &out), kBadParameter);

  // Counters wrap at 32 bits like the array's; a difference across the
  // wrap is still right.
  Snap c, d;
  later(s, 400L * 86400);
  CHECK_EQ(snap(s, c), 0);
  later(s, 60);
  CHECK_EQ(snap(s, d), 0);
  out.graphinfo[1] = g1.get();
  PerformanceOutputGraphInfoRec in2{c.c[0].get(), d.c[0].get(), c.c[1].get(), d.c[1].get()};
  CHECK_EQ(KX_PerformanceOutputGraphInfo(kUnit, &s, &in2, &out), 0);
  for (int p = 0; p < 4; ++p) CHECK(g0->port[p].base.readrate > 0 && g0->port[p].base.readrate < 2000);
  CHECK(g0->drive[0][0].base.iorate > 0 && g0->drive[0][0].base.iorate < 20000);
}

void collection_setting() {
  fresh_db("setting");
  auto s = admin();
  int cfg = -1;
  CHECK_EQ(KX_GetPfmStatisCfg(kUnit, &s, &cfg), 0);
  CHECK_EQ(cfg, 7);
  CHECK_EQ(KX_SetPfmStatisCfg(kUnit, &s, 1), 0);
  CHECK_EQ(KX_GetPfmStatisCfg(kUnit, &s, &cfg), 0);
  CHECK_EQ(cfg, 1);
  CHECK_EQ(KX_SetPfmStatisCfg(kUnit, &s, 8), kBadParameter);
  CHECK_EQ(KX_SetPfmStatisCfg(kUnit, &s, -1), kBadParameter);
  CHECK_EQ(KX_GetPfmStatisCfg(kUnit, &s, &cfg), 0);
  CHECK_EQ(cfg, 1);
  // What is not collected comes back invalid.
  Snap a;
  CHECK_EQ(snap(s, a), 0);
  CHECK_EQ(a.c[0]->lu[0].valid, 1);
  CHECK_EQ(a.c[0]->lu_ex[0].valid, 0);
  CHECK_EQ(a.c[0]->vu_lu[0].valid, 0);
  CHECK_EQ(KX_SetPfmStatisCfg(kUnit, &s, 0), 0);
  CHECK_EQ(snap(s, a), 0);
  CHECK_EQ(a.c[0]->lu[0].valid, 0);
  CHECK_EQ(a.c[0]->port[0].valid, 0);
  CHECK_EQ(KX_SetPfmStatisCfg(kUnit, &s, 7), 0);
  CHECK_EQ(snap(s, a, 1), 0);  // the light collection leaves out the extended blocks
  CHECK_EQ(a.c[0]->lu[0].valid, 1);
  CHECK_EQ(a.c[0]->lu_ex[0].valid, 0);
  CHECK_EQ(snap(s, a, 2), kBadParameter);
  CHECK_EQ(KX_GetPerformanceAll(kUnit, &s, 0, a.c[0].get(), nullptr), kBadParameter);
  // A monitor may read but not change the setting.
  CHECK_EQ(create_account(s, "watcher", "watcher-pw-1", 2), 0);
  KXSessionInfoRec m{};
  CHECK_EQ(login("watcher", "watcher-pw-1", &m), 0);
  CHECK_EQ(KX_GetPfmStatisCfg(kUnit, &m, &cfg), 0);
  CHECK_EQ(KX_SetPfmStatisCfg(kUnit, &m, 3), kPermission);
  CHECK_EQ(KX_GetPfmStatisCfg(kUnit, &s, &cfg), 0);
  CHECK_EQ(cfg, 7);
  int max = 0;
  CHECK_EQ(KX_GetPfmFileMaxCount(&max), 0);
  CHECK_EQ(max, 288);
  CHECK_EQ(KX_GetPfmFileMaxCount(nullptr), kBadParameter);
}

PerformanceMngInfoRec mng_info() {
  PerformanceMngInfoRec m{};
  put(m.dampver, "1.0");
  put(m.unitname, kUnit);
  put(m.microver, "0890/A");
  put(m.serialno, "93000001");
  m.kx_type = 1;
  m.portMaxCount = 4;
  m.rgMaxCount = 90;
  m.luMaxCount = 4096;
  m.intervaltime = 5;
  m.cfg = 7;
  m.ctl0 = m.ctl1 = 1;
  put(m.structver, "S1");
  m.fromtime = {2026, 1, 31, 12, 0, 0};
  m.totime = {2026, 2, 1, 12, 0, 0};
  return m;
}

void collections_and_csv() {
  fresh_db("collect");
  auto s = admin();
  std::string perf_dir = dir().path + "/perf";
  std::string out_dir = dir().path + "/csv";
  mkdir(out_dir.c_str(), 0755);

  auto m = mng_info();
  CHECK_EQ(KX_PerformanceDataInitialize(&s, "pf", &m), 0);
  PerformanceMngInfoRec back{};
  CHECK_EQ(KX_PerformanceInputMngFile("pf", &back), 0);
  CHECK(std::memcmp(&back, &m, sizeof m) == 0);
  CHECK_EQ(KX_PerformanceInputMngFile("zz", &back), kFileError);
  CHECK_EQ(KX_PerformanceDataInitialize(&s, "/tm", &m), kBadParameter);
  CHECK_EQ(KX_PerformanceDataInitialize(&s, "long", &m), kBadParameter);
  auto bad = m;
  bad.intervaltime = 0;
  CHECK_EQ(KX_PerformanceDataInitialize(&s, "pf", &bad), kBadParameter);

  // Three samples, each the rates over the last five minutes.
  auto g0 = std::make_unique<PerformanceCollectGraphRec>();
  auto g1 = std::make_unique<PerformanceCollectGraphRec>();
  PerformanceCollectGraphInfoRec graphs{};
  graphs.graphinfo[0] = g0.get();
  graphs.graphinfo[1] = g1.get();
  Snap pre, after;
  CHECK_EQ(snap(s, pre), 0);
  std::vector<int32_t> lu0_rates;
  for (int i = 0; i < 3; ++i) {
    later(s, 300);
    CHECK_EQ(snap(s, after), 0);
    PerformanceOutputGraphInfoRec in{pre.c[0].get(), after.c[0].get(), pre.c[1].get(), after.c[1].get()};
    CHECK_EQ(KX_PerformanceOutputGraphInfo(kUnit, &s, &in, &graphs), 0);
    lu0_rates.push_back(g0->lu[0].base.iorate);
    CHECK_EQ(KX_PerformanceDataOutput("pf", &graphs), 0);
    std::swap(pre, after);
  }
  CHECK_EQ(KX_PerformanceDataOutput("no", &graphs), kFileError);  // never initialised

  PerformanceCSVInfoRec info{};
  int n = -1;
  CHECK_EQ(KX_GetPerformanceCSVNum("pf", &info, &n), 0);
  CHECK_EQ(n, 3);
  info.fromDataNum = 2;
  CHECK_EQ(KX_GetPerformanceCSVNum("pf", &info, &n), 0);
  CHECK_EQ(n, 2);
  info.fromDataNum = 0;
  info.fromtime = {2000, 1, 1, 0, 0, 0};
  info.totime = {2001, 1, 1, 0, 0, 0};
  CHECK_EQ(KX_GetPerformanceCSVNum("pf", &info, &n), 0);
  CHECK_EQ(n, 0);
  info.totime = {2001, 13, 1, 0, 0, 0};
  CHECK_EQ(KX_GetPerformanceCSVNum("pf", &info, &n), kBadParameter);
  info.fromtime = info.totime = {};

  // The CSV holds what the graph calls returned, one row a sample and LU.
  std::string dirname = out_dir;
  info.dirname = dirname.data();
  info.opt[0].lu = 1;
  info.opt[0].processor = 1;
  info.opt[1].vu_port = 1;
  CHECK_EQ(KX_PerformanceOutputCSV("pf", &info), 0);
  std::string lu_csv = read_file(out_dir + "/ctl0_lu.csv");
  CHECK(sound_csv(lu_csv));
  auto ls = lines(lu_csv);
  CHECK_EQ(ls.size(), 1u + 3u * kNoLus);  // a header, then every LU valid on controller 0
  CHECK(ls[0].rfind("no,time,lu,iorate,", 0) == 0);
  CHECK(ls.size() > 1 && ls[1].rfind("1,", 0) == 0);
  // The third sample's LU 0 row carries the third graph's rate.
  std::string want = "3,";
  bool found = false;
  for (const auto& l : ls)
    if (l.rfind(want, 0) == 0 && l.find("Z,0," + std::to_string(lu0_rates[2]) + ",") != std::string::npos) found = true;
  CHECK(found);
  CHECK(sound_csv(read_file(out_dir + "/ctl0_processor.csv")));
  CHECK_EQ(lines(read_file(out_dir + "/ctl0_processor.csv")).size(), 4u);
  CHECK(sound_csv(read_file(out_dir + "/ctl1_vu_port.csv")));
  struct stat st {};
  CHECK(stat((out_dir + "/ctl1_lu.csv").c_str(), &st) != 0);  // not asked for

  std::string missing = out_dir + "/missing";
  info.dirname = missing.data();
  CHECK_EQ(KX_PerformanceOutputCSV("pf", &info), kFileError);
  info.dirname = dirname.data();
  PerformanceCSVInfoRec none{};
  none.dirname = dirname.data();
  CHECK_EQ(KX_PerformanceOutputCSV("pf", &none), kBadParameter);

  // A damaged management file or data file is refused and left as it is.
  std::string mng_path = perf_dir + "/pf.mng";
  std::string text = read_file(mng_path);
  {
    std::ofstream f(mng_path);
    f << text.substr(0, text.find("cfg=")) << "cfg=seven\n";
  }
  CHECK_EQ(KX_PerformanceInputMngFile("pf", &back), kBadFile);
  CHECK_EQ(KX_PerformanceDataOutput("pf", &graphs), kBadFile);
  {
    std::ofstream f(mng_path);
    f << text;
  }
  CHECK_EQ(truncate((perf_dir + "/pf.dat").c_str(), 8 + 1000), 0);
  CHECK_EQ(KX_GetPerformanceCSVNum("pf", &info, &n), kBadFile);
  CHECK_EQ(KX_PerformanceDataOutput("pf", &graphs), kBadFile);
  // Initialising again starts an empty collection.
  CHECK_EQ(KX_PerformanceDataInitialize(&s, "pf", &m), 0);
  CHECK_EQ(KX_GetPerformanceCSVNum("pf", &info, &n), 0);
  CHECK_EQ(n, 0);
}

void summaries() {
  fresh_db("summary");
  auto s = admin();
  std::string out_dir = dir().path + "/summary";
  mkdir(out_dir.c_str(), 0755);
  auto p0 = std::make_unique<StatisticalCommandRec>();
  auto p1 = std::make_unique<StatisticalCommandRec>();
  auto a0 = std::make_unique<StatisticalCommandRec>();
  auto a1 = std::make_unique<StatisticalCommandRec>();
  CHECK_EQ(KX_GetPerformance(kUnit, &s, p0.get(), p1.get()), 0);
  later(s, 120);
  CHECK_EQ(KX_GetPerformance(kUnit, &s, a0.get(), a1.get()), 0);
  CHECK_EQ(KX_PerformanceOutput(kUnit, &s, out_dir.c_str(), p0.get(), a0.get(), p1.get(), a1.get()), 0);
  std::string text = read_file(out_dir + "/summary.csv");
  CHECK(sound_csv(text));
  auto ls = lines(text);
  CHECK_EQ(ls.size(), 1u + kNoLus);  // each LU once, on its own controller
  uint32_t d = u(a1->lu[1].read_count) - u(p1->lu[1].read_count);
  bool found = false;
  for (const auto& l : ls)
    if (l.rfind("1,1,", 0) == 0 && l.find(",120," + std::to_string(d) + ",") != std::string::npos) found = true;
  CHECK(found);
  CHECK_EQ(KX_PerformanceOutput(kUnit, &s, (out_dir + "/nope").c_str(), p0.get(), a0.get(), p1.get(), a1.get()),
           kFileError);
  CHECK_EQ(KX_PerformanceOutput(kUnit, &s, out_dir.c_str(), p0.get(), nullptr, p1.get(), a1.get()), kBadParameter);

  // Only the LUs flagged; appending keeps the first lines and one header.
  uint8_t flags[4096] = {};
  flags[2] = flags[3] = flags[500] = 1;
  CHECK_EQ(KX_PerformanceOutputLU(kUnit, &s, out_dir.c_str(), p0.get(), a0.get(), p1.get(), a1.get(), 1, flags, 0), 0);
  ls = lines(read_file(out_dir + "/summary.csv"));
  CHECK_EQ(ls.size(), 1u + kNoLus + 2u);
  CHECK_EQ(KX_PerformanceOutputLU(kUnit, &s, out_dir.c_str(), p0.get(), a0.get(), p1.get(), a1.get(), 2, flags, 0),
           kBadParameter);

  // The full summary: selected objects of the selected controllers.
  Snap pre, after;
  CHECK_EQ(snap(s, pre), 0);
  later(s, 60);
  CHECK_EQ(snap(s, after), 0);
  auto ex = std::make_unique<PerformanceOutputInfoExRec>();
  std::string file = out_dir + "/all.csv";
  ex->ctl[0] = 1;
  ex->preinfo0 = pre.c[0].get();
  ex->afterinfo0 = after.c[0].get();
  ex->specifyinfo[0].lu[0] = ex->specifyinfo[0].lu[1] = 1;  // LU 1 belongs to controller 1
  ex->specifyinfo[0].port[0] = 1;
  ex->specifyinfo[0].processor = 1;
  ex->filename = file.data();
  ex->count = 7;
  CHECK_EQ(KX_PerformanceOutputAllEx(kUnit, &s, ex.get()), 0);
  text = read_file(file);
  CHECK(sound_csv(text));
  ls = lines(text);
  CHECK_EQ(ls.size(), 5u);  // header, port 0, LU 0 and 1 (valid, idle), processor
  CHECK(ls.size() > 1 && ls[1].rfind("7,0,", 0) == 0);
  ex->ctl[1] = 1;  // controller 1 asked for without its snapshots
  CHECK_EQ(KX_PerformanceOutputAllEx(kUnit, &s, ex.get()), kBadParameter);
  ex->ctl[1] = 0;
  ex->mode = 1;
  CHECK_EQ(KX_PerformanceOutputAllEx(kUnit, &s, ex.get()), 0);
  CHECK_EQ(lines(read_file(file)).size(), 9u);

  // A gap in a collection, appended to the same file.
  KXTimeRec when{};
  when.tm_year = 126;
  when.tm_mday = 2;
  CHECK_EQ(KX_PerformanceOutputSkip(file.c_str(), 8, 0, when), 0);
  ls = lines(read_file(file));
  CHECK(sound_csv(read_file(file)));
  CHECK(!ls.empty() && ls.back().rfind("8,0,2026-01-02T00:00:00Z,2026-01-02T00:00:00Z,skip", 0) == 0);
  CHECK_EQ(KX_PerformanceOutputSkip((out_dir + "/no/x.csv").c_str(), 8, 0, when), kFileError);

  // The older call acts for the unit's login.
  auto info = std::make_unique<PerformanceOutputInfoRec>();
  info->ctl[1] = 1;
  info->preinfo1 = pre.c[1].get();
  info->afterinfo1 = after.c[1].get();
  info->cache = 1;
  info->filename = file.data();
  CHECK_EQ(KX_PerformanceOutputAll(kUnit, info.get()), kNotLoggedIn);
  CHECK_EQ(unit_login(kAdmin, kAdminPassword), 0);
  CHECK_EQ(KX_PerformanceOutputAll(kUnit, info.get()), 0);
  ls = lines(read_file(file));
  CHECK_EQ(ls.size(), 2u);
  CHECK(ls.size() == 2 && ls[1].find(",cache,") != std::string::npos);
}

}  // namespace

int main() {
  setenv("PERNIX_SIM_PERF_DIR", "", 1);
  counters_agree_and_rise();
  collection_setting();
  collections_and_csv();
  summaries();
  return finish("perf_test");
}
