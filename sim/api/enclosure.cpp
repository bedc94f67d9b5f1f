// Enclosure microcode (joined, downloaded, put in force one enclosure after
// another), the automatic download option, and the controllers' boot options
// with their file.
#include <ctime>
#include <map>
#include <string>

#include "firmware.h"
#include "sim/core/call.h"
#include "sim/core/text.h"
#include "sim/model/firmware.h"
#include "sim/model/model.h"
#include "sim/model/pools.h"

namespace {

using sim::Call;
using sim::fail;
using sim::in_text;
using sim::kBadParameter;
using sim::out_text;

constexpr size_t kPathCap = 1024;
constexpr const char* kEncOptionKey = "firmware.enc_download";
constexpr const char* kBootKey = "firmware.boot";

// Enclosure controller states in the status list.
enum { kEncAbsent = 0, kEncNormal = 1, kEncWaiting = 2, kEncReplacing = 3, kEncReplaced = 4 };
// The list's exec_status.
enum { kExecIdle = 0, kExecJoining = 1, kExecJoined = 2, kExecDownloaded = 3, kExecReplacing = 4, kExecDone = 5 };

void fill(ENCRevisionRec& r, const sim::EncRevision& e) {
  r.valid_index = 1;
  out_text(r.rev_main, e.main);
  out_text(r.rev_boot, e.boot);
  out_text(r.rev_ectl, e.ectl);
  out_text(r.rev_rtr, e.rtr);
  out_text(r.rev_ses, e.ses);
}

using sim::fill_time;

void concat(Call& c, const char* unit, const KXSessionInfoRec* session, const char* path, int value) {
  c.session(unit, session, sim::kRightFirmware);
  std::string p = in_text(path, kPathCap, "path");
  c.what = "enclosure microcode " + p;
  if (value != 0 && value != 1) fail(kBadParameter, "mode must be 0 (join) or 1 (check only)");
  sim::join_micro(c.db, c.now, sim::kEnclosureMicro, p, value == 1);
}

void unit_types(Call& c, ENCMicroInformationRec& r) {
  auto s = c.db.sql("SELECT kx_type, device_type FROM units WHERE name=?1");
  s.bind(c.where);
  bool found = s.step();
  r.kx_type = found ? s.i(0) : 1;
  r.device_type = found ? s.i(1) : 2;
}

// ---- boot options

BootOptionRec boot_defaults() {
  BootOptionRec b{};
  b.support_index = 1;
  b.valid_index = 1;
  out_text(b.vendor, "PERNIX");
  out_text(b.product, "SIM-ARRAY");
  out_text(b.rom_micro, "01");
  out_text(b.ram_micro, "01");
  return b;
}

using sim::range;

std::string boot_text(const char* field, size_t cap, const char* what, bool may_be_empty) {
  std::string s = in_text(field, cap, what);
  if (!may_be_empty && s.empty()) fail(kBadParameter, std::string(what) + " is empty");
  for (char ch : s)
    if (ch < 0x20 || ch > 0x7e) fail(kBadParameter, std::string(what) + " holds a character that is not printable");
  return s;
}

// The option checked and normalised (the bytes after each text are zero).
BootOptionRec checked(const BootOptionRec& in) {
  range(in.support_index, 0, 1, "support_index");
  range(in.valid_index, 0, 1, "valid_index");
  range(in.startup_attr, 0, 3, "startup_attr");
  range(in.data_share, 0, 1, "data_share");
  range(in.delay_time, 0, 3600, "delay_time");
  range(in.drvdetachmode, 0, 1, "drvdetachmode");
  BootOptionRec b = in;
  out_text(b.vendor, boot_text(in.vendor, sizeof in.vendor, "vendor", false));
  out_text(b.product, boot_text(in.product, sizeof in.product, "product", false));
  out_text(b.rom_micro, boot_text(in.rom_micro, sizeof in.rom_micro, "rom_micro", true));
  out_text(b.ram_micro, boot_text(in.ram_micro, sizeof in.ram_micro, "ram_micro", true));
  return b;
}

BootOptionRec load_boot(sim::Db& db) {
  return sim::setting_or(db, kBootKey, boot_defaults());
}

ENCDownloadOptionRec load_enc_option(sim::Db& db) {
  return sim::setting_or(db, kEncOptionKey, ENCDownloadOptionRec{});
}

constexpr size_t kBootFileLimit = 64 * 1024;

std::string render_boot(const BootOptionRec& b, const ENCDownloadOptionRec& e) {
  auto n = [](const char* k, int v) { return std::string(k) + "=" + std::to_string(v) + "\n"; };
  return std::string(sim::kBootHeader) + "\n" + n("support_index", b.support_index) +
         n("valid_index", b.valid_index) + n("startup_attr", b.startup_attr) + n("data_share", b.data_share) +
         n("delay_time", b.delay_time) + n("drvdetachmode", b.drvdetachmode) + "vendor=" + b.vendor + "\n" +
         "product=" + b.product + "\n" + "rom_micro=" + b.rom_micro + "\n" + "ram_micro=" + b.ram_micro +
         "\n" + n("enc_auto_download", e.auto_download_mode) + "end\n";
}

[[noreturn]] void bad_file(const std::string& why) { fail(sim::kBadFile, "boot option file: " + why); }

int file_int(const std::string& v, const std::string& key) {
  if (v.empty() || v.size() > 6 || v.find_first_not_of("0123456789") != std::string::npos)
    bad_file(key + " is not a number");
  return std::stoi(v);
}

void file_text(char* field, size_t cap, const std::string& v, const std::string& key) {
  if (v.size() >= cap) bad_file(key + " is longer than " + std::to_string(cap - 1) + " characters");
  out_text(field, cap, v);
}

std::pair<BootOptionRec, ENCDownloadOptionRec> parse_boot(const std::string& text) {
  std::map<std::string, std::string> kv;
  size_t pos = 0, line_no = 0;
  bool ended = false;
  while (pos < text.size()) {
    size_t nl = text.find('\n', pos);
    if (nl == std::string::npos) bad_file("the last line has no line end");
    std::string l = text.substr(pos, nl - pos);
    pos = nl + 1;
    ++line_no;
    if (ended) bad_file("text after end");
    if (line_no == 1) {
      if (l != sim::kBootHeader) bad_file("the first line is not '" + std::string(sim::kBootHeader) + "'");
      continue;
    }
    if (l == "end") {
      ended = true;
      continue;
    }
    size_t eq = l.find('=');
    if (eq == std::string::npos) bad_file("line " + std::to_string(line_no) + " is not name=value");
    if (!kv.emplace(l.substr(0, eq), l.substr(eq + 1)).second) bad_file(l.substr(0, eq) + " given twice");
  }
  if (!ended) bad_file("no end line");
  static const char* keys[] = {"support_index", "valid_index", "startup_attr", "data_share",
                               "delay_time",    "drvdetachmode", "vendor",     "product",
                               "rom_micro",     "ram_micro",   "enc_auto_download"};
  if (kv.size() != std::size(keys)) bad_file("unknown or missing fields");
  for (auto k : keys)
    if (!kv.count(k)) bad_file(std::string(k) + " missing");
  BootOptionRec b{};
  b.support_index = file_int(kv["support_index"], "support_index");
  b.valid_index = file_int(kv["valid_index"], "valid_index");
  b.startup_attr = file_int(kv["startup_attr"], "startup_attr");
  b.data_share = file_int(kv["data_share"], "data_share");
  b.delay_time = file_int(kv["delay_time"], "delay_time");
  b.drvdetachmode = file_int(kv["drvdetachmode"], "drvdetachmode");
  file_text(b.vendor, sizeof b.vendor, kv["vendor"], "vendor");
  file_text(b.product, sizeof b.product, kv["product"], "product");
  file_text(b.rom_micro, sizeof b.rom_micro, kv["rom_micro"], "rom_micro");
  file_text(b.ram_micro, sizeof b.ram_micro, kv["ram_micro"], "ram_micro");
  ENCDownloadOptionRec e{};
  e.auto_download_mode = file_int(kv["enc_auto_download"], "enc_auto_download");
  try {
    b = checked(b);
    range(e.auto_download_mode, 0, 1, "enc_auto_download");
  } catch (const sim::Error& err) {
    bad_file(err.what);
  }
  return {b, e};
}

}  // namespace

extern "C" {

int KX_ENCMicroFileConcat(const char* unit, const KXSessionInfoRec* session, const char* path) {
  return sim::run(__func__, sim::kWrite, [&](Call& c) { concat(c, unit, session, path, 0); });
}

int KX_ENCMicroFileConcatEx(const char* unit, const KXSessionInfoRec* session, const char* path, int value) {
  return sim::run(__func__, sim::kWrite, [&](Call& c) { concat(c, unit, session, path, value); });
}

int KX_CancelENCMicroFileConcat(void) {
  return sim::run(__func__, sim::kWrite, [&](Call& c) {
    c.what = "enclosure microcode image";
    sim::cancel_micro(c.db, c.now, sim::kEnclosureMicro);
  });
}

int KX_GetENCMicroDownloadCount(const char* unit, const KXSessionInfoRec* session, int* count) {
  return sim::run(__func__, sim::kRead, [&](Call& c) {
    c.session(unit, session);
    if (!count) fail(kBadParameter, "count: null");
    *count = 0;
    *count = sim::ready_image(c.db, c.now, sim::kEnclosureMicro).transfers(sim::kDefaultChunk);
  });
}

int KX_ENCMicroDownload(const char* unit, const KXSessionInfoRec* session, int a, int b, int* result) {
  return sim::run(__func__, sim::kWrite, [&](Call& c) {
    c.session(unit, session, sim::kRightFirmware);
    c.what = "enclosure microcode transfer " + std::to_string(a);
    if (!result) fail(kBadParameter, "result: null");
    *result = 0;
    *result = sim::take_transfer(c.db, c.now, sim::kEnclosureMicro, a, b, sim::kDefaultChunk, false);
  });
}

int KX_ENCMicroReplace(const char* unit, const KXSessionInfoRec* session, int value) {
  return sim::run(__func__, sim::kWrite, [&](Call& c) {
    c.session(unit, session, sim::kRightFirmware);
    c.what = "enclosure microcode";
    sim::begin_replace(c.db, c.now, sim::kEnclosureMicro, value);
  });
}

int KX_GetENCMicroInformation(ENCMicroInformationRec* info) {
  return sim::run(__func__, sim::kRead, [&](Call& c) {
    auto& r = sim::out(info, "information");
    auto img = sim::micro_image(c.db, sim::kEnclosureMicro);
    if (!img || !img->joined(c.now) || (img->replacing() && c.now >= img->replace_end)) return;
    r.kx_type = 1;
    r.device_type = 2;
    r.micro_type = 1;
    fill(r.read_rev.bas_rev, img->enc);
  });
}

int KX_GetENCMicroInformationEx(const char* unit, const KXSessionInfoRec* session, ENCMicroInformationRec* info) {
  return sim::run(__func__, sim::kRead, [&](Call& c) {
    c.session(unit, session);
    auto& r = sim::out(info, "information");
    unit_types(c, r);
    r.micro_type = 0;
    fill(r.read_rev.bas_rev, sim::enc_revision(c.db, c.now));
  });
}

int KX_GetENCStatusList(const char* unit, const KXSessionInfoRec* session, ENCStatusListRec* list) {
  return sim::run(__func__, sim::kRead, [&](Call& c) {
    c.session(unit, session);
    auto& r = sim::out(list, "list");
    auto img = sim::micro_image(c.db, sim::kEnclosureMicro);
    sim::EncRevision old = sim::enc_revision(c.db, c.now);
    fill_time(r.now_time, c.now);
    r.validCTU = 1;
    auto encs = sim::drive_enclosures(c.db);
    // Who is replaced when: the controller enclosure first, then the drive
    // enclosures in number order (mode 0), or all at once (mode 1).
    auto state = [&](int order, sim::EncRevision& rev) {
      rev = old;
      if (!img || !img->replacing()) return kEncNormal;
      int64_t from = img->replace_start, to = img->replace_end;
      if (img->replace_mode == 0) {
        from = img->replace_start + static_cast<int64_t>(order) * sim::kEncSeconds;
        to = from + sim::kEncSeconds;
      }
      if (c.now >= to) {
        rev = img->enc;
        return kEncReplaced;
      }
      return c.now >= from ? kEncReplacing : kEncWaiting;
    };
    for (int k = 0; k < 2; ++k) {
      sim::EncRevision rev;
      r.ctu.enc[k].status = state(0, rev);
      fill(r.ctu.enc[k].enc_rev, rev);
    }
    for (size_t i = 0; i < encs.size(); ++i) {
      int e = encs[i];
      if (e < 0 || e >= PERNIX_DRIVE_ENCLOSURES) continue;
      for (int k = 0; k < 2; ++k) {
        sim::EncRevision rev;
        r.unit[e].enc[k].status = state(static_cast<int>(i) + 1, rev);
        fill(r.unit[e].enc[k].enc_rev, rev);
      }
    }
    if (!img) return;
    fill(r.download_rev.bas_rev, img->enc);
    if (!img->joined(c.now))
      r.exec_status = kExecJoining;
    else if (img->replacing())
      r.exec_status = c.now >= img->replace_end ? kExecDone : kExecReplacing;
    else
      r.exec_status = img->downloaded() ? kExecDownloaded : kExecJoined;
    if (img->replacing()) {
      fill_time(r.start_time, img->replace_start);
      int64_t minutes = (img->replace_end - img->replace_start + 59) / 60;
      r.replacetime_min = static_cast<int32_t>(minutes);
      r.replacetime_max = static_cast<int32_t>(2 * minutes);
    }
  });
}

int KX_GetENCDownloadOption(const char* unit, const KXSessionInfoRec* session, ENCDownloadOptionRec* option) {
  return sim::run(__func__, sim::kRead, [&](Call& c) {
    c.session(unit, session);
    auto& r = sim::out(option, "option");
    r = load_enc_option(c.db);
  });
}

int KX_SetENCDownloadOption(const char* unit, const KXSessionInfoRec* session, const ENCDownloadOptionRec* option) {
  return sim::run(__func__, sim::kWrite, [&](Call& c) {
    c.session(unit, session, sim::kRightFirmware);
    c.what = "enclosure download option";
    const auto& o = sim::in(option, "option");
    range(o.auto_download_mode, 0, 1, "auto_download_mode");
    sim::save_setting(c.db, kEncOptionKey, &o, sizeof o);
  });
}

int KX_GetBootOption(const char* unit, const KXSessionInfoRec* session, BootOptionRec* option) {
  return sim::run(__func__, sim::kRead, [&](Call& c) {
    c.session(unit, session);
    auto& r = sim::out(option, "option");
    r = load_boot(c.db);
  });
}

int KX_SetBootOption(const char* unit, const KXSessionInfoRec* session, const BootOptionRec* option) {
  return sim::run(__func__, sim::kWrite, [&](Call& c) {
    c.session(unit, session, sim::kRightFirmware);
    c.what = "boot options";
    BootOptionRec b = checked(sim::in(option, "option"));
    sim::save_setting(c.db, kBootKey, &b, sizeof b);
  });
}

int KX_TestBootOption(const char* unit, const KXSessionInfoRec* session, const BootOptionRec* option) {
  return sim::run(__func__, sim::kRead, [&](Call& c) {
    c.session(unit, session);
    checked(sim::in(option, "option"));
  });
}

int KX_BootOptionExport(const char* unit, const KXSessionInfoRec* session, const char* path) {
  return sim::run(__func__, sim::kRead, [&](Call& c) {
    c.session(unit, session);
    std::string p = in_text(path, kPathCap, "path");
    sim::write_file(p, render_boot(load_boot(c.db), load_enc_option(c.db)));
  });
}

int KX_BootOptionImport(const char* unit, const KXSessionInfoRec* session, const char* path) {
  return sim::run(__func__, sim::kWrite, [&](Call& c) {
    c.session(unit, session, sim::kRightFirmware);
    std::string p = in_text(path, kPathCap, "path");
    c.what = "boot options from " + p;
    auto [b, e] = parse_boot(sim::read_file(p, kBootFileLimit));
    sim::save_setting(c.db, kBootKey, &b, sizeof b);
    sim::save_setting(c.db, kEncOptionKey, &e, sizeof e);
  });
}

}  // extern "C"
