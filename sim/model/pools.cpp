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

#include <cerrno>
#include <cstring>

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

}  // namespace sim
