// Performance snapshots, their collection setting, and the files made from
// them: summaries of two snapshots, graph rates, performance collections
// (a management file and a data file of graph samples) and CSV extracts.
// File formats are described in sim/README.md.
#include <sys/stat.h>

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <string>
#include <vector>

#include "include/perf.h"
#include "sim/core/call.h"
#include "sim/core/text.h"
#include "sim/model/model.h"
#include "sim/model/perf.h"

namespace {

using sim::fail;
using sim::kBadParameter;
using sim::kFileError;
namespace pf = sim::perf;

constexpr int kMaxSamples = 288;                // samples a collection holds (a day every 5 minutes)
constexpr char kDataMagic[8] = {'P', 'X', 'S', 'I', 'M', 'G', 'R', '1'};
constexpr const char* kMngMagic = "# pernix-sim performance collection 1";

using sim::range;

std::string fmt(double v) {
  char b[32];
  std::snprintf(b, sizeof b, "%.2f", v);
  return b;
}

// ---- files

struct Closer {
  void operator()(FILE* f) const { std::fclose(f); }
};

// A file written or read whole; every failure is kFileError naming the path.
class File {
 public:
  File(const std::string& path, const char* mode) : path_(path), f_(std::fopen(path.c_str(), mode)) {
    if (!f_) fail(kFileError, path + ": " + std::strerror(errno));
  }
  void put(const std::string& s) {
    if (std::fwrite(s.data(), 1, s.size(), f_.get()) != s.size()) fail(kFileError, path_ + ": write failed");
  }
  void write(const void* p, size_t n) {
    if (std::fwrite(p, 1, n, f_.get()) != n) fail(kFileError, path_ + ": write failed");
  }
  bool read(void* p, size_t n) { return std::fread(p, 1, n, f_.get()) == n; }
  void seek(long off) {
    if (std::fseek(f_.get(), off, SEEK_SET) != 0) fail(kFileError, path_ + ": seek failed");
  }
  long size() {
    if (std::fseek(f_.get(), 0, SEEK_END) != 0) fail(kFileError, path_ + ": seek failed");
    long n = std::ftell(f_.get());
    if (n < 0) fail(kFileError, path_ + ": size unknown");
    return n;
  }
  void close() {
    FILE* f = f_.release();
    if (std::fflush(f) != 0 || std::ferror(f)) {
      std::fclose(f);
      fail(kFileError, path_ + ": write failed");
    }
    if (std::fclose(f) != 0) fail(kFileError, path_ + ": write failed");
  }

 private:
  std::string path_;
  std::unique_ptr<FILE, Closer> f_;
};

bool is_dir(const std::string& p) {
  struct stat st {};
  return ::stat(p.c_str(), &st) == 0 && S_ISDIR(st.st_mode);
}

bool is_empty_or_missing(const std::string& p) {
  struct stat st {};
  return ::stat(p.c_str(), &st) != 0 || st.st_size == 0;
}

// A path in a buffer of PERNIX_PATH_SIZE bytes: present and not empty.
std::string path_arg(const char* p, const char* what) {
  std::string s = sim::in_text(p, PERNIX_PATH_SIZE, what);
  if (s.empty()) fail(kBadParameter, std::string(what) + ": empty");
  return s;
}

std::string existing_dir(const char* p, const char* what) {
  std::string d = path_arg(p, what);
  if (!is_dir(d)) fail(kFileError, d + ": no such folder");
  return d;
}

std::string parent_of(const std::string& file) {
  auto slash = file.rfind('/');
  if (slash == std::string::npos) return ".";
  return slash == 0 ? "/" : file.substr(0, slash);
}

// ---- collections: named by 1 to 3 characters, kept in one folder

std::string collection_folder(sim::Db& db) {
  if (const char* env = std::getenv("PERNIX_SIM_PERF_DIR"); env && *env) {
    if (!is_dir(env)) fail(kFileError, std::string(env) + ": no such folder");
    return env;
  }
  std::string dir = parent_of(db.path()) + "/perf";
  if (!is_dir(dir) && ::mkdir(dir.c_str(), 0777) != 0 && errno != EEXIST)
    fail(kFileError, dir + ": " + std::strerror(errno));
  return dir;
}

std::string collection_name(const char* p) {
  std::string n = sim::in_text(p, PERNIX_PATH_SIZE, "collection name");
  if (n.empty() || n.size() > 3) fail(kBadParameter, "a collection name has 1 to 3 characters");
  for (char ch : n)
    if (!(std::isalnum(static_cast<unsigned char>(ch)) || ch == '_' || ch == '-'))
      fail(kBadParameter, "collection name '" + n + "': only letters, digits, '_' and '-'");
  return n;
}

struct Collection {
  std::string mng, data;
};

Collection collection(sim::Db& db, const char* p) {
  std::string base = collection_folder(db) + "/" + collection_name(p);
  return {base + ".mng", base + ".dat"};
}

constexpr long kSampleBytes = 2 * static_cast<long>(sizeof(PerformanceCollectGraphRec));

// The number of samples in a collection's data file.
long samples_in(File& f, const std::string& path) {
  long size = f.size();
  char magic[sizeof kDataMagic];
  f.seek(0);
  if (size < static_cast<long>(sizeof magic) || !f.read(magic, sizeof magic) ||
      std::memcmp(magic, kDataMagic, sizeof magic) != 0)
    fail(sim::kBadFile, path + ": not a performance data file");
  if ((size - static_cast<long>(sizeof magic)) % kSampleBytes != 0)
    fail(sim::kBadFile, path + ": a sample is cut short");
  return (size - static_cast<long>(sizeof magic)) / kSampleBytes;
}

void read_sample(File& f, long sample, int ctl, PerformanceCollectGraphRec& g) {
  f.seek(static_cast<long>(sizeof kDataMagic) + sample * kSampleBytes + ctl * static_cast<long>(sizeof g));
  if (!f.read(&g, sizeof g)) fail(sim::kBadFile, "a sample cannot be read");
}

bool zero_time(const PerformanceTimeRec& t) {
  return !t.year && !t.month && !t.day && !t.hour && !t.minute && !t.second;
}

int64_t perf_time(const PerformanceTimeRec& t, const char* what) {
  range(t.year, 1970, 9999, std::string(what) + ".year");
  range(t.month, 1, 12, std::string(what) + ".month");
  range(t.day, 1, 31, std::string(what) + ".day");
  range(t.hour, 0, 23, std::string(what) + ".hour");
  range(t.minute, 0, 59, std::string(what) + ".minute");
  range(t.second, 0, 59, std::string(what) + ".second");
  KXTimeRec k{};
  k.tm_year = t.year - 1900;
  k.tm_mon = t.month - 1;
  k.tm_mday = t.day;
  k.tm_hour = t.hour;
  k.tm_min = t.minute;
  k.tm_sec = t.second;
  return pf::from_kx_time(k);
}

// The samples (0-based) a CSV request covers.
std::vector<long> selected_samples(File& f, const std::string& path, const PerformanceCSVInfoRec& info) {
  if (info.fromDataNum < 0 || info.toDataNum < 0) fail(kBadParameter, "a sample number is negative");
  bool from_set = !zero_time(info.fromtime), to_set = !zero_time(info.totime);
  int64_t from = from_set ? perf_time(info.fromtime, "fromtime") : 0;
  int64_t to = to_set ? perf_time(info.totime, "totime") : 0;
  long n = samples_in(f, path);
  long first = info.fromDataNum > 0 ? info.fromDataNum : 1;
  long last = info.toDataNum > 0 ? std::min<long>(info.toDataNum, n) : n;
  std::vector<long> out;
  if (!from_set && !to_set) {
    for (long i = first; i <= last; ++i) out.push_back(i - 1);
    return out;
  }
  auto g = std::make_unique<PerformanceCollectGraphRec>();
  for (long i = first; i <= last; ++i) {
    read_sample(f, i - 1, 0, *g);
    int64_t t = pf::from_kx_time(g->mtime[1]);
    if ((!from_set || t >= from) && (!to_set || t <= to)) out.push_back(i - 1);
  }
  return out;
}

// ---- rows shared by the summaries and the CSV extracts

const char* kRateHeader = "iorate,readrate,writerate,readhit,writehit,transrate,readtransrate,writetransrate,onverirate";

std::string rates(const PerformanceCollectGraphBaseRec& b) {
  return std::to_string(b.iorate) + "," + std::to_string(b.readrate) + "," + std::to_string(b.writerate) + "," +
         fmt(b.readhit) + "," + fmt(b.writehit) + "," + std::to_string(b.transrate) + "," +
         std::to_string(b.readtransrate) + "," + std::to_string(b.writetransrate) + "," +
         std::to_string(b.onverirate);
}

std::string drive_name(int e, int s) { return std::to_string(e) + "-" + std::to_string(s); }

// ---- summaries of snapshot pairs (KX_PerformanceOutputAll / ...Ex)

struct Selection {
  const uint8_t *port, *rg, *lu, *cache, *backend, *drive, *processor, *drive_opr_rate;
};

template <class R>
Selection selection_of(const R& r) {
  return {r.port, r.rg, r.lu, &r.cache, r.backend, &r.drive[0][0], &r.processor, &r.drive_opr_rate[0][0]};
}

const char* kSummaryHeader =
    "no,ctl,from,to,object,index,iorate,readrate,writerate,readhit,writehit,transrate,readtransrate,"
    "writetransrate,onverirate,rate\n";

void summary_rows(std::string& out, int no, int ctl, const PerformanceCollectGraphRec& g, const Selection& s) {
  std::string head = std::to_string(no) + "," + std::to_string(ctl) + "," +
                     pf::iso_time(pf::from_kx_time(g.mtime[0])) + "," + pf::iso_time(pf::from_kx_time(g.mtime[1])) + ",";
  auto base = [&](const char* kind, const std::string& index, const PerformanceCollectGraphBaseRec& b) {
    out += head + kind + "," + index + "," + rates(b) + ",\n";
  };
  auto one = [&](const char* kind, const std::string& index, double rate) {
    out += head + kind + "," + index + ",,,,,,,,,," + fmt(rate) + "\n";
  };
  for (int p = 0; p < pf::kPorts; ++p)
    if (s.port[p] && g.port[p].base.valid) base("port", std::to_string(p), g.port[p].base);
  for (int r = 0; r < pf::kRaidGroups; ++r)
    if (s.rg[r] && g.rg[r].base.valid) base("rg", std::to_string(r), g.rg[r].base);
  for (int n = 0; n < pf::kLus; ++n)
    if (s.lu[n] && g.lu[n].base.valid) base("lu", std::to_string(n), g.lu[n].base);
  if (*s.cache && g.cache.valid) one("cache", "", g.cache.cachewritependingrate);
  for (int b = 0; b < pf::kBackends; ++b)
    if (s.backend[b] && g.backend[b].base.valid) base("backend", std::to_string(b), g.backend[b].base);
  for (int e = 0; e < pf::kEnclosures; ++e)
    for (int d = 0; d < pf::kSlots; ++d)
      if (s.drive[e * pf::kSlots + d] && g.drive[e][d].base.valid) base("drive", drive_name(e, d), g.drive[e][d].base);
  if (*s.processor && g.processor.valid) one("processor", "", g.processor.used_rate);
  for (int e = 0; e < pf::kEnclosures; ++e)
    for (int d = 0; d < pf::kSlots; ++d)
      if (s.drive_opr_rate[e * pf::kSlots + d] && g.driveopr[e][d].valid)
        one("drive_opr_rate", drive_name(e, d), g.driveopr[e][d].operate_rate);
}

template <class R>
void output_all(sim::Call& c, const R& info, const Selection sel[2]) {
  std::string file = path_arg(info.filename, "filename");
  range(info.mode, 0, 1, "mode");
  range(info.file_fmt_mode, 0, 0, "file_fmt_mode");
  if (info.count < 0) fail(kBadParameter, "count is negative");
  if (!info.ctl[0] && !info.ctl[1]) fail(kBadParameter, "no controller selected");
  const PerformanceAllRec* pre[2] = {info.preinfo0, info.preinfo1};
  const PerformanceAllRec* after[2] = {info.afterinfo0, info.afterinfo1};
  if (!is_dir(parent_of(file))) fail(kFileError, parent_of(file) + ": no such folder");
  std::string text;
  auto g = std::make_unique<PerformanceCollectGraphRec>();
  for (int ctl = 0; ctl < 2; ++ctl) {
    if (!info.ctl[ctl]) continue;
    if (!pre[ctl] || !after[ctl]) fail(kBadParameter, "snapshots of controller " + std::to_string(ctl) + ": null");
    pf::graph(*pre[ctl], *after[ctl], *g);
    summary_rows(text, info.count, ctl, *g, sel[ctl]);
  }
  bool header = info.mode == 0 || is_empty_or_missing(file);
  File f(file, info.mode == 0 ? "w" : "a");
  if (header) f.put(kSummaryHeader);
  f.put(text);
  f.close();
  c.what = file;
}

// ---- summaries of StatisticalCommand pairs

void command_summary(sim::Call& c, const char* path, const StatisticalCommandRec* const cmd[4], const uint8_t* lu,
                     bool append, bool idle_too) {
  std::string dir = existing_dir(path, "path");
  for (int i = 0; i < 4; ++i)
    if (!cmd[i]) fail(kBadParameter, "snapshot " + std::to_string(i + 1) + ": null");
  std::vector<int> lus;
  {
    auto s = c.db.sql("SELECT number FROM lus ORDER BY number");
    while (s.step())
      if (s.i(0) >= 0 && s.i(0) < pf::kLus && (!lu || lu[s.i(0)])) lus.push_back(s.i(0));
  }
  std::string text;
  for (int ctl = 0; ctl < 2; ++ctl) {
    const auto &a = *cmd[2 * ctl], &b = *cmd[2 * ctl + 1];
    int64_t t0 = pf::from_kx_time(a.mtime), t1 = pf::from_kx_time(b.mtime);
    if (t1 < t0) fail(kBadParameter, "controller " + std::to_string(ctl) + ": the second snapshot is older");
    double secs = static_cast<double>(t1 - t0);
    for (int n : lus) {
      const auto &x = a.lu[n], &y = b.lu[n];
      uint32_t r = static_cast<uint32_t>(y.read_count) - static_cast<uint32_t>(x.read_count);
      uint32_t w = static_cast<uint32_t>(y.write_count) - static_cast<uint32_t>(x.write_count);
      uint32_t rc = static_cast<uint32_t>(y.read_cache) - static_cast<uint32_t>(x.read_cache);
      uint32_t wc = static_cast<uint32_t>(y.write_cache) - static_cast<uint32_t>(x.write_cache);
      bool seen = x.read_count || x.write_count || y.read_count || y.write_count;
      if (!seen && !idle_too) continue;
      text += std::to_string(ctl) + "," + std::to_string(n) + "," + pf::iso_time(t0) + "," + pf::iso_time(t1) + "," +
              std::to_string(t1 - t0) + "," + std::to_string(r) + "," + std::to_string(w) + "," + std::to_string(rc) +
              "," + std::to_string(wc) + "," + fmt(secs > 0 ? r / secs : 0) + "," + fmt(secs > 0 ? w / secs : 0) +
              "," + fmt(r ? rc * 100.0 / r : 0) + "," + fmt(w ? wc * 100.0 / w : 0) + "\n";
    }
  }
  std::string file = dir + "/summary.csv";
  bool header = !append || is_empty_or_missing(file);
  File f(file, append ? "a" : "w");
  if (header)
    f.put("ctl,lu,from,to,seconds,read_count,write_count,read_cache,write_cache,read_iops,write_iops,read_hit,"
          "write_hit\n");
  f.put(text);
  f.close();
}

// ---- the management file

struct MngField {
  const char* key;
  int32_t PerformanceMngInfoRec::*field;
};

constexpr MngField kMngInts[] = {
    {"kx_type", &PerformanceMngInfoRec::kx_type},
    {"device_type", &PerformanceMngInfoRec::device_type},
    {"portMaxCount", &PerformanceMngInfoRec::portMaxCount},
    {"rgMaxCount", &PerformanceMngInfoRec::rgMaxCount},
    {"luMaxCount", &PerformanceMngInfoRec::luMaxCount},
    {"cacheMaxCount", &PerformanceMngInfoRec::cacheMaxCount},
    {"processorMaxCount", &PerformanceMngInfoRec::processorMaxCount},
    {"hdd_hdu_count", &PerformanceMngInfoRec::hdd_hdu_count},
    {"hdd_unit_count", &PerformanceMngInfoRec::hdd_unit_count},
    {"backendMaxCount", &PerformanceMngInfoRec::backendMaxCount},
    {"cachepartitionMaxCount", &PerformanceMngInfoRec::cachepartitionMaxCount},
    {"ctlcond", &PerformanceMngInfoRec::ctlcond},
    {"ctl0", &PerformanceMngInfoRec::ctl0},
    {"ctl1", &PerformanceMngInfoRec::ctl1},
    {"intervaltime", &PerformanceMngInfoRec::intervaltime},
    {"cfg", &PerformanceMngInfoRec::cfg},
};

std::string time_text(const PerformanceTimeRec& t) {
  char b[80];
  std::snprintf(b, sizeof b, "%d,%d,%d,%d,%d,%d", t.year, t.month, t.day, t.hour, t.minute, t.second);
  return b;
}

void check_text(const std::string& s, const char* what) {
  for (char ch : s)
    if (static_cast<unsigned char>(ch) < 0x20 || ch == 0x7f)
      fail(kBadParameter, std::string(what) + ": control characters");
}

bool parse_int(const std::string& s, int32_t& v) {
  if (s.empty()) return false;
  char* end = nullptr;
  errno = 0;
  long long x = std::strtoll(s.c_str(), &end, 10);
  if (errno || *end || x < INT32_MIN || x > INT32_MAX) return false;
  v = static_cast<int32_t>(x);
  return true;
}

bool parse_time(const std::string& s, PerformanceTimeRec& t) {
  int32_t* f[6] = {&t.year, &t.month, &t.day, &t.hour, &t.minute, &t.second};
  size_t pos = 0;
  for (int i = 0; i < 6; ++i) {
    size_t end = s.find(',', pos);
    if ((i < 5) != (end != std::string::npos)) return false;
    if (!parse_int(s.substr(pos, end == std::string::npos ? std::string::npos : end - pos), *f[i])) return false;
    pos = end + 1;
  }
  return true;
}

template <size_t N>
bool parse_text(const std::string& v, char (&field)[N]) {
  if (v.size() >= N) return false;
  sim::out_text(field, v);
  return true;
}

PerformanceMngInfoRec read_mng(const std::string& path) {
  std::string text;
  {
    File f(path, "r");
    long n = f.size();
    if (n > 65536) fail(sim::kBadFile, path + ": too large for a management file");
    text.resize(static_cast<size_t>(n));
    f.seek(0);
    if (n && !f.read(text.data(), text.size())) fail(kFileError, path + ": read failed");
  }
  PerformanceMngInfoRec r{};
  size_t pos = 0;
  bool first = true;
  int seen = 0;
  constexpr int kKeys = 4 + static_cast<int>(std::size(kMngInts)) + 3;
  while (pos < text.size()) {
    size_t nl = text.find('\n', pos);
    std::string line = text.substr(pos, nl == std::string::npos ? std::string::npos : nl - pos);
    pos = nl == std::string::npos ? text.size() : nl + 1;
    if (first) {
      if (line != kMngMagic) fail(sim::kBadFile, path + ": not a management file");
      first = false;
      continue;
    }
    auto eq = line.find('=');
    if (eq == std::string::npos) fail(sim::kBadFile, path + ": a line without '='");
    std::string k = line.substr(0, eq), v = line.substr(eq + 1);
    bool ok = false;
    if (k == "dampver") ok = parse_text(v, r.dampver);
    else if (k == "unitname") ok = parse_text(v, r.unitname);
    else if (k == "microver") ok = parse_text(v, r.microver);
    else if (k == "serialno") ok = parse_text(v, r.serialno);
    else if (k == "structver") ok = parse_text(v, r.structver);
    else if (k == "fromtime") ok = parse_time(v, r.fromtime);
    else if (k == "totime") ok = parse_time(v, r.totime);
    else
      for (const auto& m : kMngInts)
        if (k == m.key) ok = parse_int(v, r.*(m.field));
    if (!ok) fail(sim::kBadFile, path + ": bad line '" + k + "'");
    ++seen;
  }
  if (first || seen != kKeys) fail(sim::kBadFile, path + ": keys missing or repeated");
  return r;
}

}  // namespace

extern "C" {

int KX_GetPfmStatisCfg(const char* unit, const KXSessionInfoRec* session, int* cfg) {
  return sim::run(__func__, sim::kRead, [&](sim::Call& c) {
    c.session(unit, session);
    if (!cfg) fail(kBadParameter, "cfg: null");
    *cfg = pf::collection_cfg(c.db);
  });
}

int KX_SetPfmStatisCfg(const char* unit, const KXSessionInfoRec* session, int cfg) {
  return sim::run(__func__, sim::kWrite, [&](sim::Call& c) {
    c.what = "performance collection setting " + std::to_string(cfg);
    c.session(unit, session, sim::kRightPerformance);
    range(cfg, 0, pf::kCfgAll, "cfg");
    pf::set_collection_cfg(c.db, cfg);
  });
}

int KX_GetPerformance(const char* unit, const KXSessionInfoRec* session, StatisticalCommandRec* ctl0,
                      StatisticalCommandRec* ctl1) {
  return sim::run(__func__, sim::kRead, [&](sim::Call& c) {
    c.session(unit, session);
    if (!ctl0 || !ctl1) fail(kBadParameter, "snapshot: null");
    auto& a = sim::out(ctl0, "controller 0");
    auto& b = sim::out(ctl1, "controller 1");
    pf::Workload w(c.db, c.now);
    w.command(0, a);
    w.command(1, b);
  });
}

int KX_GetPerformanceAll(const char* unit, const KXSessionInfoRec* session, int a, PerformanceAllRec* ctl0,
                         PerformanceAllRec* ctl1) {
  return sim::run(__func__, sim::kRead, [&](sim::Call& c) {
    c.session(unit, session);
    range(a, 0, 1, "collection mode");
    if (!ctl0 || !ctl1) fail(kBadParameter, "snapshot: null");
    auto& r0 = sim::out(ctl0, "controller 0");
    auto& r1 = sim::out(ctl1, "controller 1");
    int cfg = pf::collection_cfg(c.db);
    pf::Workload w(c.db, c.now);
    w.all(0, cfg, a == 0, r0);
    w.all(1, cfg, a == 0, r1);
  });
}

int KX_PerformanceOutput(const char* unit, const KXSessionInfoRec* session, const char* path,
                         const StatisticalCommandRec* cmd1, const StatisticalCommandRec* cmd2,
                         const StatisticalCommandRec* cmd3, const StatisticalCommandRec* cmd4) {
  return sim::run(__func__, sim::kRead, [&](sim::Call& c) {
    c.session(unit, session);
    const StatisticalCommandRec* cmd[4] = {cmd1, cmd2, cmd3, cmd4};
    command_summary(c, path, cmd, nullptr, false, false);
  });
}

int KX_PerformanceOutputLU(const char* unit, const KXSessionInfoRec* session, const char* path,
                           const StatisticalCommandRec* cmd1, const StatisticalCommandRec* cmd2,
                           const StatisticalCommandRec* cmd3, const StatisticalCommandRec* cmd4, int a,
                           const uint8_t* lu, int b) {
  return sim::run(__func__, sim::kRead, [&](sim::Call& c) {
    c.session(unit, session);
    range(a, 0, 1, "append");
    range(b, 0, 1, "idle LUs");
    if (!lu) fail(kBadParameter, "LU flags: null");
    const StatisticalCommandRec* cmd[4] = {cmd1, cmd2, cmd3, cmd4};
    command_summary(c, path, cmd, lu, a == 1, b == 1);
  });
}

int KX_PerformanceOutputAll(const char* unit, const PerformanceOutputInfoRec* info) {
  return sim::run(__func__, sim::kRead, [&](sim::Call& c) {
    c.unit_login(unit);
    const auto& r = sim::in(info, "output information");
    Selection s = selection_of(r);
    Selection both[2] = {s, s};
    output_all(c, r, both);
  });
}

int KX_PerformanceOutputAllEx(const char* unit, const KXSessionInfoRec* session,
                              const PerformanceOutputInfoExRec* info) {
  return sim::run(__func__, sim::kRead, [&](sim::Call& c) {
    c.session(unit, session);
    const auto& r = sim::in(info, "output information");
    Selection both[2] = {selection_of(r.specifyinfo[0]), selection_of(r.specifyinfo[1])};
    output_all(c, r, both);
  });
}

int KX_PerformanceOutputSkip(const char* path, int a, int b, KXTimeRec time) {
  return sim::run(__func__, sim::kRead, [&](sim::Call&) {
    std::string file = path_arg(path, "path");
    if (a < 0) fail(kBadParameter, "sample number is negative");
    range(b, 0, 1, "controller");
    range(time.tm_mon, 0, 11, "tm_mon");
    range(time.tm_mday, 1, 31, "tm_mday");
    range(time.tm_hour, 0, 23, "tm_hour");
    range(time.tm_min, 0, 59, "tm_min");
    range(time.tm_sec, 0, 60, "tm_sec");
    range(time.tm_year, 70, 8099, "tm_year");
    if (!is_dir(parent_of(file))) fail(kFileError, parent_of(file) + ": no such folder");
    std::string t = pf::iso_time(pf::from_kx_time(time));
    bool header = is_empty_or_missing(file);
    File f(file, "a");
    if (header) f.put(kSummaryHeader);
    f.put(std::to_string(a) + "," + std::to_string(b) + "," + t + "," + t + ",skip,,,,,,,,,,,\n");
    f.close();
  });
}

int KX_PerformanceOutputGraphInfo(const char* unit, const KXSessionInfoRec* session,
                                  const PerformanceOutputGraphInfoRec* input, PerformanceCollectGraphInfoRec* graphs) {
  return sim::run(__func__, sim::kRead, [&](sim::Call& c) {
    c.session(unit, session);
    const auto& in = sim::in(input, "snapshots");
    if (!in.preinfo0 || !in.afterinfo0 || !in.preinfo1 || !in.afterinfo1) fail(kBadParameter, "a snapshot is null");
    if (!graphs || !graphs->graphinfo[0] || !graphs->graphinfo[1]) fail(kBadParameter, "graph record: null");
    pf::graph(*in.preinfo0, *in.afterinfo0, *graphs->graphinfo[0]);
    pf::graph(*in.preinfo1, *in.afterinfo1, *graphs->graphinfo[1]);
  });
}

int KX_PerformanceDataInitialize(const KXSessionInfoRec* session, const char* path, const PerformanceMngInfoRec* info) {
  return sim::run(__func__, sim::kWrite, [&](sim::Call& c) {
    const auto& r = sim::in(info, "management information");
    c.what = "performance collection";
    c.session(r.unitname, session);
    Collection col = collection(c.db, path);
    c.what = "performance collection " + collection_name(path);
    c.require(sim::kRightPerformance);
    std::string strings[5] = {sim::in_text(r.dampver, "dampver"), sim::in_text(r.unitname, "unitname"),
                              sim::in_text(r.microver, "microver"), sim::in_text(r.serialno, "serialno"),
                              sim::in_text(r.structver, "structver")};
    for (const auto& s : strings) check_text(s, "management information");
    range(r.intervaltime, 1, 1440, "intervaltime");
    range(r.cfg, 0, pf::kCfgAll, "cfg");
    range(r.ctl0, 0, 1, "ctl0");
    range(r.ctl1, 0, 1, "ctl1");
    if (!zero_time(r.fromtime)) perf_time(r.fromtime, "fromtime");
    if (!zero_time(r.totime)) perf_time(r.totime, "totime");
    std::string text = std::string(kMngMagic) + "\n";
    text += "dampver=" + strings[0] + "\nunitname=" + strings[1] + "\nmicrover=" + strings[2] +
            "\nserialno=" + strings[3] + "\n";
    for (const auto& m : kMngInts) text += std::string(m.key) + "=" + std::to_string(r.*(m.field)) + "\n";
    text += "structver=" + strings[4] + "\nfromtime=" + time_text(r.fromtime) + "\ntotime=" + time_text(r.totime) + "\n";
    File m(col.mng, "w");
    m.put(text);
    m.close();
    File d(col.data, "w");
    d.write(kDataMagic, sizeof kDataMagic);
    d.close();
  });
}

int KX_PerformanceInputMngFile(const char* path, PerformanceMngInfoRec* info) {
  return sim::run(__func__, sim::kRead, [&](sim::Call& c) {
    Collection col = collection(c.db, path);
    if (!info) fail(kBadParameter, "management information: null");
    PerformanceMngInfoRec r = read_mng(col.mng);
    sim::out(info, "management information") = r;
  });
}

int KX_PerformanceDataOutput(const char* path, const PerformanceCollectGraphInfoRec* graphs) {
  return sim::run(__func__, sim::kRead, [&](sim::Call& c) {
    Collection col = collection(c.db, path);
    if (!graphs || !graphs->graphinfo[0] || !graphs->graphinfo[1]) fail(kBadParameter, "graph record: null");
    read_mng(col.mng);
    long n;
    {
      File f(col.data, "rb");
      n = samples_in(f, col.data);
    }
    if (n >= kMaxSamples) fail(sim::kCapacity, col.data + ": holds " + std::to_string(kMaxSamples) + " samples");
    File f(col.data, "ab");
    f.write(graphs->graphinfo[0], sizeof(PerformanceCollectGraphRec));
    f.write(graphs->graphinfo[1], sizeof(PerformanceCollectGraphRec));
    f.close();
  });
}

int KX_GetPerformanceCSVNum(const char* path, const PerformanceCSVInfoRec* info, int* count) {
  return sim::run(__func__, sim::kRead, [&](sim::Call& c) {
    Collection col = collection(c.db, path);
    const auto& r = sim::in(info, "CSV information");
    if (!count) fail(kBadParameter, "count: null");
    File f(col.data, "rb");
    *count = static_cast<int>(selected_samples(f, col.data, r).size());
  });
}

int KX_PerformanceOutputCSV(const char* path, const PerformanceCSVInfoRec* info) {
  return sim::run(__func__, sim::kRead, [&](sim::Call& c) {
    Collection col = collection(c.db, path);
    const auto& r = sim::in(info, "CSV information");
    std::string dir = existing_dir(r.dirname, "dirname");
    bool any = false;
    for (const auto& o : r.opt)
      for (const int32_t* p = &o.port; p <= &o.vu_lu; ++p) any = any || *p;
    if (!any) fail(kBadParameter, "nothing selected");
    File data(col.data, "rb");
    std::vector<long> samples = selected_samples(data, col.data, r);

    struct Out {
      const char* name;
      std::string header;
      std::string text;
    };
    auto g = std::make_unique<PerformanceCollectGraphRec>();
    for (int ctl = 0; ctl < 2; ++ctl) {
      const auto& o = r.opt[ctl];
      std::string rate_cols = kRateHeader;
      std::vector<std::pair<int32_t, Out>> outs = {
          {o.port, {"port", "no,time,port," + rate_cols, {}}},
          {o.rg, {"rg", "no,time,rg," + rate_cols, {}}},
          {o.lu, {"lu", "no,time,lu," + rate_cols, {}}},
          {o.cache, {"cache", "no,time,cachewritependingrate", {}}},
          {o.cache2,
           {"cache2", "no,time,cachecleanusagerate,cachemiddleusagerate,cachephysicalusagerate,cachetotalusagerate", {}}},
          {o.backend, {"backend", "no,time,backend," + rate_cols, {}}},
          {o.drive, {"drive", "no,time,drive," + rate_cols, {}}},
          {o.processor, {"processor", "no,time,used_rate", {}}},
          {o.drive_opr_rate, {"drive_opr_rate", "no,time,drive,operate_rate,tag_count", {}}},
          {o.luex, {"luex", "no,time,lu,tag_count", {}}},
          {o.cachepartition,
           {"cachepartition",
            "no,time,partition,writependingrate,cleanusagerate,middleusagerate,physicalusagerate,totalusagerate", {}}},
          {o.vu_port, {"vu_port", "no,time,port,kind,command_iorate,command_transrate,command_time,command_max_time", {}}},
          {o.vu_lu, {"vu_lu", "no,time,lu,command_iorate,command_transrate,command_time,command_max_time", {}}},
      };
      for (long s : samples) {
        read_sample(data, s, ctl, *g);
        std::string head = std::to_string(s + 1) + "," + pf::iso_time(pf::from_kx_time(g->mtime[1])) + ",";
        auto row = [&](int k, const std::string& rest) {
          if (outs[k].first) outs[k].second.text += head + rest + "\n";
        };
        auto vu = [&](const PerformanceCollectGraphVUBaseRec& v) {
          return std::to_string(v.command_iorate) + "," + std::to_string(v.command_transrate) + "," +
                 std::to_string(pf::join(v.command_time_h, v.command_time_l)) + "," +
                 std::to_string(pf::join(v.command_max_time_h, v.command_max_time_l));
        };
        for (int p = 0; p < pf::kPorts; ++p)
          if (g->port[p].base.valid) row(0, std::to_string(p) + "," + rates(g->port[p].base));
        for (int x = 0; x < pf::kRaidGroups; ++x)
          if (g->rg[x].base.valid) row(1, std::to_string(x) + "," + rates(g->rg[x].base));
        for (int n = 0; n < pf::kLus; ++n)
          if (g->lu[n].base.valid) row(2, std::to_string(n) + "," + rates(g->lu[n].base));
        if (g->cache.valid) row(3, fmt(g->cache.cachewritependingrate));
        if (g->cache2.valid)
          row(4, fmt(g->cache2.cachecleanusagerate) + "," + fmt(g->cache2.cachemiddleusagegrate) + "," +
                     fmt(g->cache2.cachephysicalusagerate) + "," + fmt(g->cache2.cachetotalusagerate));
        for (int x = 0; x < pf::kBackends; ++x)
          if (g->backend[x].base.valid) row(5, std::to_string(x) + "," + rates(g->backend[x].base));
        for (int e = 0; e < pf::kEnclosures; ++e)
          for (int d = 0; d < pf::kSlots; ++d) {
            if (g->drive[e][d].base.valid) row(6, drive_name(e, d) + "," + rates(g->drive[e][d].base));
            if (g->driveopr[e][d].valid)
              row(8, drive_name(e, d) + "," + fmt(g->driveopr[e][d].operate_rate) + "," +
                         std::to_string(g->driveopr[e][d].tag_count));
          }
        if (g->processor.valid) row(7, fmt(g->processor.used_rate));
        for (int n = 0; n < pf::kLus; ++n) {
          if (g->luex[n].valid) row(9, std::to_string(n) + "," + std::to_string(g->luex[n].tag_count));
          if (g->vu_lu[n].data_transfer.valid) row(12, std::to_string(n) + "," + vu(g->vu_lu[n].data_transfer));
        }
        for (int p = 0; p < pf::kCachePartitions; ++p) {
          const auto& cp = g->cachepartition[p];
          if (cp.valid)
            row(10, std::to_string(p) + "," + fmt(cp.cachewritependingrate) + "," + fmt(cp.cachecleanusagerate) + "," +
                        fmt(cp.cachemiddleusagegrate) + "," + fmt(cp.cachephysicalusagerate) + "," +
                        fmt(cp.cachetotalusagerate));
        }
        for (int p = 0; p < pf::kPorts; ++p) {
          if (g->vu_port[p].control.valid) row(11, std::to_string(p) + ",control," + vu(g->vu_port[p].control));
          if (g->vu_port[p].data_transfer.valid)
            row(11, std::to_string(p) + ",data_transfer," + vu(g->vu_port[p].data_transfer));
        }
      }
      for (auto& [on, out] : outs) {
        if (!on) continue;
        File f(dir + "/ctl" + std::to_string(ctl) + "_" + out.name + ".csv", "w");
        f.put(out.header + "\n");
        f.put(out.text);
        f.close();
      }
    }
  });
}

int KX_GetPfmFileMaxCount(int* count) {
  return sim::run(__func__, sim::kRead, [&](sim::Call&) {
    if (!count) fail(kBadParameter, "count: null");
    *count = kMaxSamples;
  });
}

}  // extern "C"
