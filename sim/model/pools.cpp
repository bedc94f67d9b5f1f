// Pools, virtual volumes, unified LUs, the set-up wizard and LU cache settings.
//
//   pools(ctl, pool, threshold)          one pool per controller, pool 0
//   pool_lus(lun, ctl, pool, seq)        the LUs of a pool, seq in the order added
//   vvols(vvol, ctl, pool, blocks)       virtual volumes and the pool holding them
//   unite(lun, parent, pos)              members of unified LUs: the parent at
//                                        pos 0, its children at 1, 2, ... in chain order
//   lu_cache(lun, ...)                   the reserved and in-use cache partitions
//                                        and the prefetch tuning of the LUs that
//                                        had them set; an LU's current and pair
//                                        partitions are the lus table's own
// The wizard's parameters and the unit-wide cache settings are records kept
// whole in settings.
#include "sim/model/pools.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <climits>
#include <cstdlib>
#include <cstring>
#include <set>

#include "sim/model/model.h"

namespace sim {

void create_pools(Db& db, const Options&) {
  db.exec(R"(
    CREATE TABLE pools(ctl INT NOT NULL, pool INT NOT NULL, threshold INT NOT NULL,
      PRIMARY KEY(ctl, pool));
    CREATE TABLE pool_lus(lun INTEGER PRIMARY KEY, ctl INT NOT NULL, pool INT NOT NULL,
      seq INT NOT NULL);
    CREATE TABLE vvols(vvol INTEGER PRIMARY KEY, ctl INT NOT NULL, pool INT NOT NULL,
      blocks INT NOT NULL);
    CREATE TABLE unite(lun INTEGER PRIMARY KEY, parent INT NOT NULL, pos INT NOT NULL);
    CREATE INDEX unite_by_parent ON unite(parent, pos);
    CREATE TABLE lu_cache(lun INTEGER PRIMARY KEY,
      reserve INT NOT NULL DEFAULT 0, now INT NOT NULL DEFAULT 0,
      ms_read INT NOT NULL DEFAULT 0, ms_write INT NOT NULL DEFAULT 0,
      next_pre INT NOT NULL DEFAULT 0, pre_std INT NOT NULL DEFAULT 0,
      size_basis INT NOT NULL DEFAULT 256, size_fixation INT NOT NULL DEFAULT 0);
    INSERT INTO pools VALUES(0, 0, 80), (1, 0, 80);
    -- What is kept for an LU goes with it; a renumbered LU keeps it.
    CREATE TRIGGER lu_gone AFTER DELETE ON lus BEGIN
      DELETE FROM lu_cache WHERE lun=old.number;
    END;
    CREATE TRIGGER lu_renumbered AFTER UPDATE OF number ON lus BEGIN
      UPDATE lu_cache SET lun=new.number WHERE lun=old.number;
    END;
  )");
}

// ---- the LUs of the storage family

std::vector<uint8_t> existing_lus(Db& db) {
  std::vector<uint8_t> v(kMaxLus, 0);
  auto s = db.sql("SELECT number FROM lus");
  while (s.step()) {
    int lun = s.i(0);
    if (lun >= 0 && lun < kMaxLus) v[static_cast<size_t>(lun)] = 1;
  }
  return v;
}

std::vector<int64_t> lu_sizes(Db& db) {
  std::vector<int64_t> v(kMaxLus, 0);
  auto s = db.sql("SELECT number, size FROM lus");
  while (s.step()) {
    int lun = s.i(0);
    if (lun >= 0 && lun < kMaxLus) v[static_cast<size_t>(lun)] = s.i64(1);
  }
  return v;
}

int64_t lu_capacity(Db& db, int lun) {
  auto s = db.sql("SELECT size FROM lus WHERE number=?1");
  s.bind(lun);
  return s.step() ? s.i64(0) : 0;
}

void need_lu(Db& db, int lun, const char* what) {
  if (lun < 0 || lun >= kMaxLus || !lu_exists(db, lun))
    fail(kNoSuchObject, std::string(what) + ": LU " + std::to_string(lun) + " does not exist");
}

// ---- LU cache settings

std::vector<LuCache> lu_cache_all(Db& db) {
  std::vector<LuCache> v(kMaxLus);
  auto s = db.sql(
      "SELECT l.number, l.cachepart, l.pair_cachepart_valid, l.pair_cachepart, c.reserve, c.now, c.ms_read, "
      "c.ms_write, c.next_pre, c.pre_std, c.size_basis, c.size_fixation FROM lus l "
      "LEFT JOIN lu_cache c ON c.lun=l.number");
  while (s.step()) {
    int lun = s.i(0);
    if (lun < 0 || lun >= kMaxLus) continue;
    auto& c = v[static_cast<size_t>(lun)];
    c.exists = true;
    c.current = s.i(1);
    c.pair = s.i(2) ? s.i(3) : -1;
    if (s.is_null(4)) {
      c.reserve = c.now = c.current;  // nothing set: the partition the LU was made with
      continue;
    }
    c.reserve = s.i(4);
    c.now = s.i(5);
    c.prefetch = {s.i(6), s.i(7), s.i(8), s.i(9), s.i(10), s.i(11)};
  }
  return v;
}

void set_lu_partition(Db& db, int lun, int current, int reserve, int now, int pair) {
  auto u = db.sql(
      "UPDATE lus SET cachepart=?2, pair_cachepart_valid=?3, pair_cachepart=?4 WHERE number=?1");
  u.bind(lun).bind(current).bind(pair >= 0 ? 1 : 0).bind(pair >= 0 ? pair : 0).run();
  auto s = db.sql(
      "INSERT INTO lu_cache(lun, reserve, now) VALUES(?1, ?2, ?3) "
      "ON CONFLICT(lun) DO UPDATE SET reserve=excluded.reserve, now=excluded.now");
  s.bind(lun).bind(reserve).bind(now).run();
}

void set_lu_prefetch(Db& db, int lun, const LuPrefetch& p) {
  // A new row takes its partitions from the LU, as the getter reports them.
  auto s = db.sql(
      "INSERT INTO lu_cache(lun, reserve, now, ms_read, ms_write, next_pre, pre_std, size_basis, "
      "size_fixation) SELECT ?1, cachepart, cachepart, ?2, ?3, ?4, ?5, ?6, ?7 FROM lus WHERE number=?1 "
      "ON CONFLICT(lun) DO UPDATE SET ms_read=excluded.ms_read, "
      "ms_write=excluded.ms_write, next_pre=excluded.next_pre, pre_std=excluded.pre_std, "
      "size_basis=excluded.size_basis, size_fixation=excluded.size_fixation");
  s.bind(lun).bind(p.multi_stream_read).bind(p.multi_stream_write).bind(p.next_pre_mode).bind(p.pre_std)
      .bind(p.pre_size_basis).bind(p.pre_size_fixation).run();
}

// ---- files

namespace {

// A file descriptor closed once.
struct Fd {
  int fd;
  explicit Fd(int f) : fd(f) {}
  Fd(const Fd&) = delete;
  Fd& operator=(const Fd&) = delete;
  ~Fd() {
    if (fd >= 0) ::close(fd);
  }
};

[[noreturn]] void file_error(const std::string& path, const char* doing) {
  fail(kFileError, std::string(doing) + " " + path + ": " + std::strerror(errno));
}

}  // namespace

void write_file(const std::string& path, std::string_view data) {
  if (path.empty()) fail(kFileError, "no file named");
  std::string tmp = path + ".tmp" + std::to_string(static_cast<long>(getpid()));
  {
    Fd f(::open(tmp.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0644));
    if (f.fd < 0) file_error(tmp, "cannot create");
    size_t done = 0;
    while (done < data.size()) {
      ssize_t n = ::write(f.fd, data.data() + done, data.size() - done);
      if (n < 0 && errno == EINTR) continue;
      if (n <= 0) {
        int e = errno;
        ::unlink(tmp.c_str());
        errno = e;
        file_error(path, "cannot write");
      }
      done += static_cast<size_t>(n);
    }
  }
  if (::rename(tmp.c_str(), path.c_str()) != 0) {
    int e = errno;
    ::unlink(tmp.c_str());
    errno = e;
    file_error(path, "cannot replace");
  }
}

std::string read_file(const std::string& path, size_t limit) {
  if (path.empty()) fail(kFileError, "no file named");
  Fd f(::open(path.c_str(), O_RDONLY | O_CLOEXEC));
  if (f.fd < 0) file_error(path, "cannot open");
  struct stat st;
  if (::fstat(f.fd, &st) != 0) file_error(path, "cannot read");
  if (!S_ISREG(st.st_mode)) fail(kFileError, path + " is not a regular file");
  std::string data;
  char buf[65536];
  for (;;) {
    ssize_t n = ::read(f.fd, buf, sizeof buf);
    if (n < 0 && errno == EINTR) continue;
    if (n < 0) file_error(path, "cannot read");
    if (n == 0) break;
    data.append(buf, static_cast<size_t>(n));
    if (data.size() > limit) fail(kBadFile, path + " is longer than " + std::to_string(limit) + " bytes");
  }
  return data;
}

// ---- the RAID group and LU configuration file

namespace {

struct Field {
  const char* name;
  size_t offset;  // of an int64_t in the line's struct
  int64_t lo, hi;
};

#define F(T, m, lo, hi) Field{#m, offsetof(T, m), lo, hi}
constexpr int64_t kI32 = INT32_MAX;
constexpr int64_t kBig = int64_t{1} << 50;

using G = RaidLuFile::Group;
using D = RaidLuFile::Drive;
using L = RaidLuFile::Lu;
using S = RaidLuFile::Spare;

const Field kGroupFields[] = {
    F(G, number, 0, kMaxRaidGroups - 1), F(G, level, 0, 10), F(G, enclosure, -1, kMaxEnclosures - 1),
    F(G, slot, -1, kEnclosureSlots - 1), F(G, per_group, 1, kMaxDrives), F(G, groups, 1, kMaxDrives),
    F(G, minimum_gb, 0, kI32), F(G, last_lba_set, 0, 1), F(G, last_lba, 0, kI32), F(G, total, 0, kBig),
    F(G, rest, 0, kBig), F(G, largest_free, 0, kI32), F(G, rg_type, -kI32, kI32),
    F(G, unit_type, -kI32, kI32), F(G, unit_type_sub, -kI32, kI32),
};
const Field kDriveFields[] = {
    F(D, rg, 0, kMaxRaidGroups - 1), F(D, enclosure, 0, kMaxEnclosures - 1), F(D, slot, 0, kEnclosureSlots - 1),
    F(D, group, 0, kMaxDrives - 1), F(D, next_enclosure, -1, kMaxEnclosures - 1),
    F(D, next_slot, -1, kEnclosureSlots - 1),
};
const Field kLuFields[] = {
    F(L, number, 0, kMaxLus - 1), F(L, rg, 0, kMaxRaidGroups - 1), F(L, level, 0, 10),
    F(L, staging, -kI32, kI32), F(L, capacity, 1, kMaxLuBlocks), F(L, before, -1, kMaxLus - 1),
    F(L, cachepart, 0, 15), F(L, pair_cachepart_valid, 0, 1), F(L, pair_cachepart, 0, 15),
    F(L, current_cachepart, 0, 15), F(L, stripe, -kI32, kI32), F(L, use_type, -kI32, kI32),
    F(L, default_ctl, 0, 1), F(L, current_ctl, 0, 1), F(L, status, 0, 3), F(L, hostblock, -kI32, kI32),
    F(L, qf_status, 0, 3), F(L, correction_status, 0, 3), F(L, rg_last_lu, 0, 1),
    F(L, unit_type, -kI32, kI32), F(L, unit_type_sub, -kI32, kI32),
};
const Field kSpareFields[] = {
    F(S, enclosure, 0, kMaxEnclosures - 1), F(S, slot, 0, kEnclosureSlots - 1),
};
#undef F

template <class T, size_t N>
void render_line(std::string& out, const char* kind, const T& v, const Field (&fields)[N]) {
  out += kind;
  for (const auto& f : fields) {
    int64_t x;
    std::memcpy(&x, reinterpret_cast<const char*>(&v) + f.offset, sizeof x);
    out += ' ';
    out += f.name;
    out += '=';
    out += std::to_string(x);
  }
  out += '\n';
}

[[noreturn]] void bad_line(int line, const std::string& why) {
  fail(kBadFile, "line " + std::to_string(line) + ": " + why);
}

template <class T, size_t N>
T parse_line(const std::vector<std::string_view>& words, const Field (&fields)[N], int line) {
  T v{};
  bool seen[N] = {};
  for (size_t w = 1; w < words.size(); ++w) {
    auto eq = words[w].find('=');
    if (eq == std::string_view::npos) bad_line(line, "'" + std::string(words[w]) + "' is not name=value");
    auto name = words[w].substr(0, eq);
    std::string value(words[w].substr(eq + 1));
    size_t k = 0;
    while (k < N && name != fields[k].name) ++k;
    if (k == N) bad_line(line, "unknown field " + std::string(name));
    if (seen[k]) bad_line(line, "field " + std::string(name) + " twice");
    seen[k] = true;
    char* end = nullptr;
    errno = 0;
    long long x = std::strtoll(value.c_str(), &end, 10);
    if (value.empty() || *end != 0 || errno == ERANGE) bad_line(line, std::string(name) + " is not a number");
    if (x < fields[k].lo || x > fields[k].hi)
      bad_line(line, std::string(name) + " " + value + " is out of range");
    int64_t x64 = x;
    std::memcpy(reinterpret_cast<char*>(&v) + fields[k].offset, &x64, sizeof x64);
  }
  for (size_t k = 0; k < N; ++k)
    if (!seen[k]) bad_line(line, std::string("field ") + fields[k].name + " is missing");
  return v;
}

std::vector<std::string_view> words_of(std::string_view line) {
  std::vector<std::string_view> w;
  size_t i = 0;
  while (i < line.size()) {
    while (i < line.size() && (line[i] == ' ' || line[i] == '\t')) ++i;
    size_t j = i;
    while (j < line.size() && line[j] != ' ' && line[j] != '\t') ++j;
    if (j > i) w.push_back(line.substr(i, j - i));
    i = j;
  }
  return w;
}

int32_t i32(int64_t v) { return static_cast<int32_t>(v); }

}  // namespace

RaidLuFile raid_lu_snapshot(Db& db, int64_t now) {
  RaidLuFile f;
  for (const auto& g : raid_groups(db)) {
    bool set = g.drive_blocks < g.smallest_blocks;
    f.groups.push_back({g.number, g.level, g.first_enclosure, g.first_slot, g.per_group, g.groups, g.smallest_gb,
                        set ? 1 : 0, set ? std::min<int64_t>(g.drive_blocks - 1, kI32) : 0, g.capacity,
                        g.capacity - g.used, std::min<int64_t>(g.largest_free, kI32), g.rg_type, kUnitType,
                        kUnitTypeSub});
  }
  auto d = db.sql(
      "SELECT d.rg, d.enclosure, d.slot, d.rg_pos / g.per_group, lead(d.enclosure, 1, -1) OVER w, "
      "lead(d.slot, 1, -1) OVER w FROM drives d JOIN raid_groups g ON g.number=d.rg "
      "WINDOW w AS (PARTITION BY d.rg ORDER BY d.rg_pos) ORDER BY d.rg, d.rg_pos");
  while (d.step()) f.drives.push_back({d.i(0), d.i(1), d.i(2), d.i(3), d.i(4), d.i(5)});
  auto l = db.sql(
      "SELECT l.number, l.rg, g.level, l.staging, l.size, l.cachepart, l.pair_cachepart_valid, "
      "l.pair_cachepart, l.stripe, l.use_type, l.default_ctl, l.current_ctl, l.status, l.hostblock, "
      "q.start, q.finish, p.start, p.finish, f.finish, lag(l.number, 1, -1) OVER w, "
      "lead(l.number) OVER w IS NULL FROM lus l JOIN raid_groups g ON g.number=l.rg "
      "LEFT JOIN jobs q ON q.lun=l.number AND q.kind='quick' "
      "LEFT JOIN jobs p ON p.lun=l.number AND p.kind='parity' "
      "LEFT JOIN jobs f ON f.lun=l.number AND f.kind='format' "
      "WINDOW w AS (PARTITION BY l.rg ORDER BY l.start) ORDER BY l.number");
  auto job = [&](int col) { return l.is_null(col) ? int64_t{kJobNone} : job_state(now, l.i64(col), l.i64(col + 1)).status; };
  while (l.step()) {
    RaidLuFile::Lu u{};
    u.number = l.i(0);
    u.rg = l.i(1);
    u.level = l.i(2);
    u.staging = l.i(3);
    u.capacity = l.i64(4);
    u.cachepart = l.i(5);
    u.pair_cachepart_valid = l.i(6);
    u.pair_cachepart = l.i(7);
    u.current_cachepart = u.pair_cachepart_valid ? u.pair_cachepart : u.cachepart;
    u.stripe = l.i(8);
    u.use_type = l.i(9);
    u.default_ctl = l.i(10);
    u.current_ctl = l.i(11);
    u.status = l.i(12);
    u.hostblock = l.i(13);
    u.qf_status = job(14);
    u.correction_status = job(16);
    bool formatting = (!l.is_null(15) && l.i64(15) > now) || (!l.is_null(18) && l.i64(18) > now);
    if (formatting && u.status != kLuInvalid) u.status = kLuFormatting;
    u.before = l.i(19);
    u.rg_last_lu = l.i(20);
    u.unit_type = kUnitType;
    u.unit_type_sub = kUnitTypeSub;
    f.lus.push_back(u);
  }
  return f;
}

std::string render_raid_lu(const RaidLuFile& f) {
  std::string out = "# RAID groups and LUs of a simulated array\n";
  out += kRaidLuHeader;
  out += '\n';
  if (!f.unit.empty()) out += "unit " + f.unit + "\n";
  for (const auto& g : f.groups) render_line(out, "rg", g, kGroupFields);
  for (const auto& d : f.drives) render_line(out, "drive", d, kDriveFields);
  for (const auto& l : f.lus) render_line(out, "lu", l, kLuFields);
  for (const auto& s : f.spares) render_line(out, "spare", s, kSpareFields);
  out += "end\n";
  return out;
}

RaidLuFile parse_raid_lu(std::string_view text) {
  RaidLuFile f;
  bool header = false, ended = false;
  std::set<int64_t> groups, lus;
  std::set<std::pair<int64_t, int64_t>> drives;
  int line = 0;
  while (!text.empty()) {
    ++line;
    auto nl = text.find('\n');
    std::string_view one = text.substr(0, nl);
    text = nl == std::string_view::npos ? std::string_view() : text.substr(nl + 1);
    if (!one.empty() && one.back() == '\r') one.remove_suffix(1);
    if (one.find('\0') != std::string_view::npos) bad_line(line, "a NUL byte");
    auto words = words_of(one);
    if (words.empty() || words[0][0] == '#') continue;
    if (ended) bad_line(line, "text after end");
    if (!header) {
      if (one != kRaidLuHeader) bad_line(line, std::string("the file does not start with '") + kRaidLuHeader + "'");
      header = true;
      continue;
    }
    auto kind = words[0];
    if (kind == "end" && words.size() == 1) {
      ended = true;
    } else if (kind == "unit") {
      auto at = one.find("unit") + 4;
      f.unit = std::string(words.size() > 1 ? one.substr(one.find(words[1], at)) : std::string_view());
    } else if (kind == "rg") {
      auto g = parse_line<RaidLuFile::Group>(words, kGroupFields, line);
      if (!valid_level(static_cast<int>(g.level))) bad_line(line, "RAID level " + std::to_string(g.level));
      if (g.rest > g.total) bad_line(line, "more free blocks than the group holds");
      if (!groups.insert(g.number).second) bad_line(line, "RAID group " + std::to_string(g.number) + " twice");
      f.groups.push_back(g);
    } else if (kind == "drive") {
      auto d = parse_line<RaidLuFile::Drive>(words, kDriveFields, line);
      if (!drives.insert({d.enclosure, d.slot}).second) bad_line(line, "a drive twice");
      f.drives.push_back(d);
    } else if (kind == "lu") {
      auto l = parse_line<RaidLuFile::Lu>(words, kLuFields, line);
      if (!lus.insert(l.number).second) bad_line(line, "LU " + std::to_string(l.number) + " twice");
      f.lus.push_back(l);
    } else if (kind == "spare") {
      if (f.spares.size() == PERNIX_SPARE_DISKS) bad_line(line, "more than 30 spare drives");
      f.spares.push_back(parse_line<RaidLuFile::Spare>(words, kSpareFields, line));
    } else {
      bad_line(line, "unknown line '" + std::string(kind) + "'");
    }
  }
  if (!header) fail(kBadFile, "an empty file");
  if (!ended) fail(kBadFile, "the file ends before its end line");
  for (const auto& d : f.drives)
    if (!groups.count(d.rg)) fail(kBadFile, "a drive of RAID group " + std::to_string(d.rg) + ", which is not listed");
  for (const auto& l : f.lus)
    if (!groups.count(l.rg))
      fail(kBadFile, "LU " + std::to_string(l.number) + " of RAID group " + std::to_string(l.rg) + ", which is not listed");
  return f;
}

void raid_groups_of(const RaidLuFile& f, RaidGroupRec* out) {
  std::memset(out, 0, sizeof(RaidGroupRec) * PERNIX_RAID_GROUPS);
  for (int k = 0; k < PERNIX_RAID_GROUPS; ++k) out[k].rgnum = -1;
  for (const auto& g : f.groups) {
    RaidGroupRec& r = out[g.number];
    r.rgnum = i32(g.number);
    r.level = i32(g.level);
    r.port = i32(g.enclosure);
    r.row = i32(g.slot);
    r.width = i32(g.per_group);
    r.depth = i32(g.groups);
    r.minimum_capa = i32(g.minimum_gb);
    r.lastLBASet = i32(g.last_lba_set);
    r.lastLBA = i32(g.last_lba);
    r.rest_h = hi_word(g.rest);
    r.rest = lo_word(g.rest);
    r.lumaxcapa = i32(g.largest_free);
    r.unit_type = i32(g.unit_type);
    r.unit_type_sub_code = i32(g.unit_type_sub);
  }
}

void raid_group_information_of(const RaidLuFile& f, RaidGroupInformationRec& out) {
  std::memset(&out, 0, sizeof out);
  out.rg_count = static_cast<int32_t>(f.groups.size());
  for (size_t k = 0; k < f.groups.size() && k < PERNIX_RAID_GROUPS; ++k) {
    const auto& g = f.groups[k];
    RgDetailRec& d = out.rg[k];
    d.valid_index = 1;
    d.rgnum = i32(g.number);
    d.level = i32(g.level);
    d.start_unit_no = i32(g.enclosure);
    d.start_hdu_no = i32(g.slot);
    d.parity_hdu_count = i32(g.per_group);
    d.parity_count = i32(g.groups);
    d.minimum_capa = i32(g.minimum_gb);
    d.total_capa_h = hi_word(g.total);
    d.total_capa_l = lo_word(g.total);
    d.rest_capa_h = hi_word(g.rest);
    d.rest_capa_l = lo_word(g.rest);
    d.rg_type = i32(g.rg_type);
  }
  for (const auto& v : f.drives) {
    RgDriveInfoRec& d = out.rgdrv[v.enclosure][v.slot];
    d.valid_index = 1;
    d.next_unit_no = i32(v.next_enclosure);
    d.next_hdu_no = i32(v.next_slot);
    d.paritygroup_no = i32(v.group);
  }
}

void logical_units_of(const RaidLuFile& f, LogicalUnitRec* out) {
  std::memset(out, 0, sizeof(LogicalUnitRec) * PERNIX_LOGICAL_UNITS);
  for (int k = 0; k < PERNIX_LOGICAL_UNITS; ++k) out[k].luNumber = k;
  for (const auto& l : f.lus) {
    LogicalUnitRec& r = out[l.number];
    r.luNumber = i32(l.number);
    r.rgNumber = i32(l.rg);
    r.raid_level = i32(l.level);
    r.staging = i32(l.staging);
    r.capacity = i32(l.capacity);
    r.befor_lun = i32(l.before);
    r.cachepart_no = i32(l.cachepart);
    r.pair_cachepart_valid = i32(l.pair_cachepart_valid);
    r.pair_cachepart_no = i32(l.pair_cachepart);
    r.current_cachepart_no = i32(l.current_cachepart);
    r.stripe = i32(l.stripe);
    r.lu_use_type = i32(l.use_type);
    r.defaultCTL = i32(l.default_ctl);
    r.currentCTL = i32(l.current_ctl);
    r.status = i32(l.status);
    r.hostblock = i32(l.hostblock);
    r.lu_valid = 1;
    r.qf_status = i32(l.qf_status);
    r.correction_status = i32(l.correction_status);
    r.rg_last_lu = i32(l.rg_last_lu);
    r.unit_type = i32(l.unit_type);
    r.unit_type_sub_code = i32(l.unit_type_sub);
  }
}

}  // namespace sim
