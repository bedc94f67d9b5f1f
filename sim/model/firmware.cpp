// Controller and enclosure microcode.
//
// Tables:
//   micro_images(kind, revision, bytes, parts, boot_wait, ready, chunk, sent,
//                replace_mode, replace_start, replace_end)
//     The image of each kind (0 controller, 1 enclosure) joined from part
//     files: at most one a kind.  `revision` is the controller revision, or
//     the five enclosure texts joined by spaces.  Joining ends at `ready`; a
//     download fixes `chunk` with its first transfer and counts `sent`; a
//     replacement runs from replace_start to replace_end.
// meta: micro_revision (the controller microcode running), enc_revision (the
// enclosures', five texts joined by spaces).
#include "sim/model/firmware.h"

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <set>

#include "sim/model/model.h"
#include "sim/model/pools.h"
#include "sim/model/storage.h"

namespace sim {

namespace {

constexpr const char* kDefaultRevision = "0950/A";
const EncRevision kDefaultEnc{"A0950", "01", "01", "R0950", "S0950"};
constexpr int64_t kJoinRate = 1 << 20;  // bytes joined per second

[[noreturn]] void bad(const std::string& why) { fail(kBadFile, "microcode file: " + why); }

bool printable(std::string_view s) {
  return std::all_of(s.begin(), s.end(), [](char ch) { return ch > 0x20 && ch < 0x7f; });
}

void text_field(std::string_view v, size_t max, const char* what) {
  if (v.empty() || v.size() > max || !printable(v))
    bad(std::string(what) + " must be 1.." + std::to_string(max) + " printable characters");
}

int64_t number(std::string_view v, int64_t lo, int64_t hi, const char* what) {
  if (v.empty() || v.size() > 12) bad(std::string(what) + " is not a number");
  int64_t n = 0;
  for (char ch : v) {
    if (ch < '0' || ch > '9') bad(std::string(what) + " is not a number");
    n = n * 10 + (ch - '0');
  }
  if (n < lo || n > hi) bad(std::string(what) + " is out of range");
  return n;
}

std::string join_enc(const EncRevision& e) {
  return e.main + " " + e.boot + " " + e.ectl + " " + e.rtr + " " + e.ses;
}

EncRevision split_enc(const std::string& s) {
  EncRevision e;
  std::string* f[] = {&e.main, &e.boot, &e.ectl, &e.rtr, &e.ses};
  size_t k = 0;
  for (char ch : s) {
    if (ch == ' ') {
      if (++k >= 5) break;
    } else {
      *f[k] += ch;
    }
  }
  return e;
}

void merge_finished_enc(Db& db, int64_t now) {
  auto img = micro_image(db, kEnclosureMicro);
  if (img && img->replacing() && now >= img->replace_end) {
    set_meta(db, "enc_revision", join_enc(img->enc));
    db.sql("DELETE FROM micro_images WHERE kind=1").run();
  }
}

}  // namespace

void create_firmware(Db& db, const Options&) {
  db.exec(R"(
    CREATE TABLE micro_images(
      kind INT PRIMARY KEY, revision TEXT NOT NULL, bytes INT NOT NULL, parts INT NOT NULL,
      boot_wait INT NOT NULL, ready INT NOT NULL, chunk INT NOT NULL DEFAULT 0,
      sent INT NOT NULL DEFAULT 0, replace_mode INT NOT NULL DEFAULT -1,
      replace_start INT NOT NULL DEFAULT 0, replace_end INT NOT NULL DEFAULT 0);
  )");
  set_meta(db, "micro_revision", kDefaultRevision);
  set_meta(db, "enc_revision", join_enc(kDefaultEnc));
}

uint32_t micro_checksum(std::string_view data) {
  uint32_t h = 2166136261u;
  for (unsigned char ch : data) {
    h ^= ch;
    h *= 16777619u;
  }
  return h;
}

std::string render_micro(const MicroPart& p) {
  std::string s = std::string(kMicroHeader) + "\n";
  if (p.enclosure) {
    s += "kind enclosure\nmain " + p.enc.main + "\nboot " + p.enc.boot + "\nectl " + p.enc.ectl +
         "\nrtr " + p.enc.rtr + "\nses " + p.enc.ses + "\n";
  } else {
    s += "kind controller\nrevision " + p.revision + "\nboot-wait " + std::to_string(p.boot_wait) + "\n";
  }
  char sum[16];
  std::snprintf(sum, sizeof sum, "%08x", micro_checksum(p.payload));
  s += "piece " + std::to_string(p.part) + "/" + std::to_string(p.parts) + "\nlength " +
       std::to_string(p.payload.size()) + "\nchecksum " + sum + "\n\n";
  return s + p.payload;
}

MicroPart parse_micro(std::string_view text) {
  MicroPart p;
  size_t pos = 0;
  auto line = [&]() -> std::string_view {
    size_t nl = text.find('\n', pos);
    if (nl == std::string_view::npos) bad("the header does not end with an empty line");
    std::string_view l = text.substr(pos, nl - pos);
    pos = nl + 1;
    return l;
  };
  if (line() != kMicroHeader) bad(std::string("the first line is not '") + kMicroHeader + "'");
  std::set<std::string, std::less<>> seen;
  std::string kind, sum;
  int64_t length = -1;
  bool have_part = false;
  for (std::string_view l = line(); !l.empty(); l = line()) {
    size_t sp = l.find(' ');
    if (sp == std::string_view::npos) bad("line '" + std::string(l) + "' has no value");
    std::string key(l.substr(0, sp));
    std::string_view v = l.substr(sp + 1);
    if (!seen.insert(key).second) bad(key + " given twice");
    if (key == "kind") {
      if (v != "controller" && v != "enclosure") bad("kind must be controller or enclosure");
      kind = v;
    } else if (key == "revision") {
      text_field(v, 8, "revision");
      p.revision = v;
    } else if (key == "main" || key == "rtr") {
      text_field(v, 6, key.c_str());
      (key == "main" ? p.enc.main : p.enc.rtr) = v;
    } else if (key == "boot" || key == "ectl") {
      text_field(v, 2, key.c_str());
      (key == "boot" ? p.enc.boot : p.enc.ectl) = v;
    } else if (key == "ses") {
      text_field(v, 7, "ses");
      p.enc.ses = v;
    } else if (key == "boot-wait") {
      p.boot_wait = static_cast<int>(number(v, 1, 3600, "boot-wait"));
    } else if (key == "piece") {
      size_t slash = v.find('/');
      if (slash == std::string_view::npos) bad("piece must be k/n");
      p.parts = static_cast<int>(number(v.substr(slash + 1), 1, 64, "part count"));
      p.part = static_cast<int>(number(v.substr(0, slash), 1, p.parts, "part number"));
      have_part = true;
    } else if (key == "length") {
      length = number(v, 1, static_cast<int64_t>(kMicroFileLimit), "length");
    } else if (key == "checksum") {
      if (v.size() != 8 || v.find_first_not_of("0123456789abcdef") != std::string_view::npos)
        bad("checksum must be 8 lower-case hex digits");
      sum = v;
    } else {
      bad("unknown field " + key);
    }
  }
  if (kind.empty() || !have_part || length < 0 || sum.empty()) bad("kind, part, length or checksum missing");
  p.enclosure = kind == "enclosure";
  const char* own[] = {"revision", "boot-wait"};
  const char* enc[] = {"main", "boot", "ectl", "rtr", "ses"};
  if (p.enclosure) {
    for (auto k : own)
      if (seen.count(k)) bad(std::string(k) + " in an enclosure file");
    for (auto k : enc)
      if (!seen.count(k)) bad(std::string(k) + " missing");
  } else {
    for (auto k : enc)
      if (seen.count(k)) bad(std::string(k) + " in a controller file");
    if (!seen.count("revision")) bad("revision missing");
  }
  std::string_view payload = text.substr(pos);
  if (static_cast<int64_t>(payload.size()) != length)
    bad("the payload holds " + std::to_string(payload.size()) + " bytes, not " + std::to_string(length));
  char want[16];
  std::snprintf(want, sizeof want, "%08x", micro_checksum(payload));
  if (sum != want) bad("checksum mismatch");
  p.payload = payload;
  return p;
}

std::optional<MicroImage> micro_image(Db& db, MicroKind kind) {
  auto s = db.sql(
      "SELECT revision, bytes, parts, boot_wait, ready, chunk, sent, replace_mode, replace_start, "
      "replace_end FROM micro_images WHERE kind=?1");
  s.bind(static_cast<int>(kind));
  if (!s.step()) return std::nullopt;
  MicroImage m;
  if (kind == kEnclosureMicro)
    m.enc = split_enc(s.text(0));
  else
    m.revision = s.text(0);
  m.bytes = s.i64(1);
  m.parts = s.i(2);
  m.boot_wait = s.i(3);
  m.ready = s.i64(4);
  m.chunk = s.i64(5);
  m.sent = s.i(6);
  m.replace_mode = s.i(7);
  m.replace_start = s.i64(8);
  m.replace_end = s.i64(9);
  return m;
}

int join_micro(Db& db, int64_t now, MicroKind kind, const std::string& path, bool check_only) {
  namespace fs = std::filesystem;
  if (path.empty()) fail(kFileError, "no microcode file named");
  std::vector<std::string> files;
  std::error_code ec;
  if (fs::is_directory(path, ec)) {
    for (fs::directory_iterator it(path, ec), end; !ec && it != end; it.increment(ec)) {
      std::error_code e2;
      if (it->path().extension() == ".pxm" && it->is_regular_file(e2)) files.push_back(it->path().string());
    }
    if (ec) fail(kFileError, path + ": cannot list the folder");
    if (files.empty()) fail(kFileError, path + ": no microcode files (*.pxm) in the folder");
    std::sort(files.begin(), files.end());
  } else {
    files.push_back(path);
  }
  std::vector<MicroPart> parts;
  int64_t bytes = 0;
  for (const auto& f : files) {
    MicroPart p = parse_micro(read_file(f, kMicroFileLimit + 4096));
    if (p.enclosure != (kind == kEnclosureMicro))
      fail(kBadFile, f + ": an " + std::string(p.enclosure ? "enclosure" : "controller") + " microcode file");
    bytes += static_cast<int64_t>(p.payload.size());
    p.payload.clear();  // only its length counts from here on
    parts.push_back(std::move(p));
  }
  const MicroPart& first = parts.front();
  if (first.parts != static_cast<int>(parts.size()))
    fail(kBadFile, "the image has " + std::to_string(first.parts) + " parts, " + std::to_string(parts.size()) + " given");
  std::vector<bool> have(parts.size() + 1);
  for (const auto& p : parts) {
    if (p.parts != first.parts || p.revision != first.revision || !(p.enc == first.enc) ||
        p.boot_wait != first.boot_wait)
      fail(kBadFile, "the parts belong to different images");
    if (have[static_cast<size_t>(p.part)]) fail(kBadFile, "part " + std::to_string(p.part) + " given twice");
    have[static_cast<size_t>(p.part)] = true;
  }
  if (check_only) return static_cast<int>(parts.size());
  if (kind == kEnclosureMicro) merge_finished_enc(db, now);
  if (auto img = micro_image(db, kind); img && (img->sent > 0 || img->replacing()))
    fail(kBusy, "an image is being downloaded or put in force; cancel it first");
  auto s = db.sql(
      "INSERT OR REPLACE INTO micro_images(kind, revision, bytes, parts, boot_wait, ready) "
      "VALUES(?1,?2,?3,?4,?5,?6)");
  s.bind(static_cast<int>(kind))
      .bind(kind == kEnclosureMicro ? join_enc(first.enc) : first.revision)
      .bind(bytes)
      .bind(static_cast<int>(parts.size()))
      .bind(first.boot_wait)
      .bind(now + 5 + bytes / kJoinRate)
      .run();
  return static_cast<int>(parts.size());
}

void cancel_micro(Db& db, int64_t now, MicroKind kind) {
  if (kind == kEnclosureMicro) {
    merge_finished_enc(db, now);
    auto img = micro_image(db, kind);
    if (img && img->replacing()) fail(kBusy, "the enclosures are being replaced");
  }
  auto s = db.sql("DELETE FROM micro_images WHERE kind=?1");
  s.bind(static_cast<int>(kind)).run();
}

MicroImage ready_image(Db& db, int64_t now, MicroKind kind) {
  auto img = micro_image(db, kind);
  if (!img || (kind == kEnclosureMicro && img->replacing() && now >= img->replace_end))
    fail(kNoSuchObject, "no microcode image has been joined");
  if (!img->joined(now)) fail(kBusy, "the microcode image is still being joined");
  return *img;
}

int take_transfer(Db& db, int64_t now, MicroKind kind, int number, int count, int64_t chunk, bool force) {
  MicroImage img = ready_image(db, now, kind);
  if (img.replacing()) fail(kBusy, "the image is being put in force");
  if (img.chunk > 0 && img.chunk != chunk) fail(kBadParameter, "the transfer size changed within the download");
  int want = img.transfers(chunk);
  if (count != want)
    fail(kBadParameter, "the image takes " + std::to_string(want) + " transfers, not " + std::to_string(count));
  if (img.chunk > 0 && img.sent >= want) fail(kBusy, "the image has been downloaded whole");
  int next = img.chunk > 0 ? img.sent + 1 : 1;
  if (number != next)
    fail(kBadParameter, "transfer " + std::to_string(number) + " given, " + std::to_string(next) + " expected");
  if (number == 1 && !force) {
    bool same = kind == kEnclosureMicro ? img.enc == enc_revision(db, now) : img.revision == micro_revision(db);
    if (same) fail(kExists, "the array runs that revision already");
  }
  auto s = db.sql("UPDATE micro_images SET chunk=?2, sent=?3 WHERE kind=?1");
  s.bind(static_cast<int>(kind)).bind(chunk).bind(number).run();
  return want - number;
}

std::vector<int> drive_enclosures(Db& db) {
  std::set<int> e;
  for (const auto& d : drives(db)) e.insert(d.enclosure);
  return {e.begin(), e.end()};
}

int64_t begin_replace(Db& db, int64_t now, MicroKind kind, int mode) {
  if (mode != 0 && mode != 1) fail(kBadParameter, "replacement mode must be 0 or 1");
  MicroImage img = ready_image(db, now, kind);
  if (img.replacing()) fail(kBusy, "the image is being put in force already");
  if (!img.downloaded()) fail(kBusy, "the image has not been downloaded whole");
  int64_t secs;
  if (kind == kControllerMicro)
    secs = mode == 1 ? img.boot_wait : 2 * static_cast<int64_t>(img.boot_wait);
  else
    secs = mode == 1 ? kEncSeconds : kEncSeconds * (1 + static_cast<int64_t>(drive_enclosures(db).size()));
  auto s = db.sql("UPDATE micro_images SET replace_mode=?2, replace_start=?3, replace_end=?4 WHERE kind=?1");
  s.bind(static_cast<int>(kind)).bind(mode).bind(now).bind(now + secs).run();
  return secs;
}

void complete_replace(Db& db, int64_t now) {
  auto img = micro_image(db, kControllerMicro);
  if (!img) fail(kNoSuchObject, "no microcode image has been joined");
  if (!img->replacing()) fail(kBusy, "the microcode has not been replaced");
  if (now < img->replace_end)
    fail(kBusy, "the controllers restart for " + std::to_string(img->replace_end - now) + " s more");
  set_meta(db, "micro_revision", img->revision);
  db.sql("DELETE FROM micro_images WHERE kind=0").run();
}

std::string micro_revision(Db& db) { return meta(db, "micro_revision", kDefaultRevision); }

EncRevision enc_revision(Db& db, int64_t now) {
  auto img = micro_image(db, kEnclosureMicro);
  if (img && img->replacing() && now >= img->replace_end) return img->enc;
  auto m = meta(db, "enc_revision");
  return m.empty() ? kDefaultEnc : split_enc(m);
}

}  // namespace sim
