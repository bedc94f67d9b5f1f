// Drives: identity, slot status, rebuild progress, the drive settings kept
// whole (restoration, SATA sweep/flash/SMART, SATA restoration, response
// diagnosis), drive mode (online, offline, failed) and spin-down/up by RAID
// group.  Drive positions are (enclosure, slot): a = enclosure, b = slot.
#include <algorithm>
#include <climits>
#include <cstdio>
#include <cstring>
#include <string>

#include "raid.h"
#include "sim/core/call.h"
#include "sim/core/text.h"
#include "sim/model/model.h"
#include "sim/model/storage.h"

namespace {

using sim::fail;
using sim::kBadParameter;
using sim::kBusy;
using sim::kNoSuchObject;

constexpr int kDriveSlots = 450;

std::string drive_name(int e, int s) { return "drive " + std::to_string(e) + "/" + std::to_string(s); }

sim::Drive need_drive(sim::Db& db, int e, int s) {
  if (e < 0 || e >= sim::kMaxEnclosures || s < 0 || s >= sim::kEnclosureSlots)
    fail(kBadParameter, "no drive position " + std::to_string(e) + "/" + std::to_string(s));
  auto d = sim::find_drive(db, e, s);
  if (!d) fail(kNoSuchObject, "no drive mounted at " + std::to_string(e) + "/" + std::to_string(s));
  return *d;
}

void fill_identity(DiskDriveInformationRec& r, const sim::Drive& d) {
  static const char* const kinds[] = {"SAS", "SATA", "SSD"};
  const char* kind = d.kind >= 0 && d.kind <= 2 ? kinds[d.kind] : "SAS";
  int64_t gb = d.blocks * sim::kBlockBytes / sim::kGB;
  char text[32];
  sim::out_text(r.vendor, "PERNIX");
  std::snprintf(text, sizeof text, "PX-%s%lldG", kind, static_cast<long long>(gb));
  sim::out_text(r.product, text);
  sim::out_text(r.revision, "A001");
  r.lastLBA = static_cast<int32_t>(std::min<int64_t>(d.blocks - 1, INT32_MAX));
  std::snprintf(text, sizeof text, "%lldGB", static_cast<long long>(gb));
  sim::out_text(r.drive_capacity, text);
  std::snprintf(text, sizeof text, "PXD%08d", 10000000 + d.enclosure * 100 + d.slot);
  sim::out_text(r.serial, text);
  r.unit_type = sim::kUnitType;
  r.unit_type_sub_code = sim::kUnitTypeSub;
  r.drive_rotation = d.kind == sim::kDriveSSD ? 0 : d.kind == sim::kDriveSATA ? 7200 : 10000;
}

// Drive states as DiskDrive reports them.
int state_code(const std::string& state, bool rebuilding) {
  if (state == "offline") return 1;
  if (state == "failed") return 2;
  if (state == "spun-down") return 3;
  return rebuilding ? 4 : 0;
}

void check_range(int v, int lo, int hi, const char* what) {
  if (v < lo || v > hi)
    fail(kBadParameter, std::string(what) + " " + std::to_string(v) + " is not " + std::to_string(lo) + "-" +
                            std::to_string(hi));
}

// Settings kept whole: each getter reads back the record its setter stored,
// or the default below.

constexpr const char* kRestorationKey = "storage.drive_restoration";
constexpr const char* kSataKey = "storage.sata_drive_information";
constexpr const char* kSataRestorationKey = "storage.sata_drive_restoration";
constexpr const char* kDiagKey = "storage.drive_response_diag";

DiskDriveRestorationRec restoration_default() {
  DiskDriveRestorationRec r{};
  r.mode = 0;
  r.restoration = 1;
  r.dynamic_sparing = 1;
  r.interval = 0;
  r.unit_size = 128;
  r.sparemode = 0;
  r.no_copyback_allunit = 0;
  return r;
}

SATADriveInformationRec sata_default() {
  SATADriveInformationRec r{};
  r.sweep_info = {1, 24, 0, 0, 1};
  r.flash_info = {0, 60, 1000};
  r.smart_info = {1, 16};
  return r;
}

DriveResponseDiagRec diag_default() { return {1, 0, 0, 30, 1, 10}; }

std::string rg_name(int n) { return "RAID group " + std::to_string(n); }

void need_rg(sim::Db& db, int rgnum) {
  if (rgnum < 0 || rgnum >= sim::kMaxRaidGroups) fail(kBadParameter, "RAID group number " + std::to_string(rgnum) + " is not 0-89");
  if (!sim::find_raid_group(db, rgnum)) fail(kNoSuchObject, "no " + rg_name(rgnum));
}

// How many of a group's drives may be out before its data is lost.
int tolerance(int level, int groups) {
  switch (level) {
    case 1: case 10: return 1;
    case 5: return groups;
    case 6: return 2 * groups;
    default: return 0;
  }
}

}  // namespace

extern "C" {

int KX_GetDriveInformation(const char* unit, const KXSessionInfoRec* session, int a, int b,
                           DiskDriveInformationRec* info) {
  return sim::run(__func__, sim::kRead, [&](sim::Call& c) {
    c.session(unit, session);
    auto& out = sim::out(info, "drive information");
    fill_identity(out, need_drive(c.db, a, b));
  });
}

int KX_GetDriveInformationAll(const char* unit, const KXSessionInfoRec* session, DiskDriveInformationRec* list) {
  return sim::run(__func__, sim::kRead, [&](sim::Call& c) {
    c.session(unit, session);
    if (!list) fail(kBadParameter, "drive list: null");
    std::memset(list, 0, sizeof(DiskDriveInformationRec) * kDriveSlots);
    for (const auto& d : sim::drives(c.db)) {
      int k = d.enclosure * sim::kEnclosureSlots + d.slot;
      if (k >= 0 && k < kDriveSlots) fill_identity(list[k], d);
    }
  });
}

int KX_GetDriveStatus(const char* unit, const KXSessionInfoRec* session, DiskDriveRec* list) {
  return sim::run(__func__, sim::kRead, [&](sim::Call& c) {
    c.session(unit, session);
    if (!list) fail(kBadParameter, "drive list: null");
    std::memset(list, 0, sizeof(DiskDriveRec) * kDriveSlots);
    for (int k = 0; k < kDriveSlots; ++k) {
      list[k].port_no = k / sim::kEnclosureSlots;
      list[k].row_no = k % sim::kEnclosureSlots;
      list[k].spare_of_disk_port = -1;
      list[k].spare_of_disk_row = -1;
    }
    auto s = c.db.sql("SELECT enclosure, slot, state, rg IS NOT NULL, coalesce(rebuild_end, 0) FROM drives");
    while (s.step()) {
      int k = s.i(0) * sim::kEnclosureSlots + s.i(1);
      if (k < 0 || k >= kDriveSlots) continue;
      DiskDriveRec& r = list[k];
      r.mount = 1;
      r.attribute = s.i(3) ? 1 : 0;
      r.drv_state = state_code(s.text(2), s.i64(4) > c.now);
    }
  });
}

int KX_DriveReconstructInformation(const char* unit, const KXSessionInfoRec* session, int a, int b,
                                   DriveReconstructInformationRec* info) {
  return sim::run(__func__, sim::kRead, [&](sim::Call& c) {
    c.session(unit, session);
    auto& out = sim::out(info, "rebuild information");
    need_drive(c.db, a, b);
    out.unit_no = a;
    out.hdu_no = b;
    auto s = c.db.sql("SELECT rebuild_start, rebuild_end FROM drives WHERE enclosure=?1 AND slot=?2 AND rebuild_end IS NOT NULL");
    s.bind(a).bind(b);
    if (!s.step()) return;
    auto st = sim::job_state(c.now, s.i64(0), s.i64(1));
    out.valid = 1;
    out.status_code = st.status == sim::kJobDone ? 2 : 1;
    out.progress_ratio = st.percent;
  });
}

int KX_GetDiskDriveRestoration(const char* unit, const KXSessionInfoRec* session, DiskDriveRestorationRec* rec) {
  return sim::run(__func__, sim::kRead, [&](sim::Call& c) {
    c.session(unit, session);
    auto& out = sim::out(rec, "drive restoration");
    out = sim::setting_or(c.db, kRestorationKey, restoration_default());
  });
}

int KX_SetDiskDriveRestoration(const char* unit, const KXSessionInfoRec* session, const DiskDriveRestorationRec* rec) {
  return sim::run(__func__, sim::kWrite, [&](sim::Call& c) {
    c.session(unit, session);
    const auto& r = sim::in(rec, "drive restoration");
    c.what = "drive restoration";
    c.require(sim::kRightStorage);
    check_range(r.mode, 0, 2, "restoration mode");
    check_range(r.restoration, 0, 3, "restoration priority");
    check_range(r.dynamic_sparing, 0, 1, "dynamic sparing");
    check_range(r.interval, 0, 65535, "interval");
    check_range(r.unit_size, 0, 65535, "unit size");
    check_range(r.sparemode, 0, 1, "spare mode");
    check_range(r.no_copyback_allunit, 0, 1, "no copy-back");
    sim::save_setting(c.db, kRestorationKey, &r, sizeof r);
  });
}

int KX_GetSATADriveInformation(const char* unit, const KXSessionInfoRec* session, SATADriveInformationRec* rec) {
  return sim::run(__func__, sim::kRead, [&](sim::Call& c) {
    c.session(unit, session);
    auto& out = sim::out(rec, "SATA drive settings");
    out = sim::setting_or(c.db, kSataKey, sata_default());
  });
}

int KX_SetSATADriveInformation(const char* unit, const KXSessionInfoRec* session, const SATADriveInformationRec* rec) {
  return sim::run(__func__, sim::kWrite, [&](sim::Call& c) {
    c.session(unit, session);
    const auto& r = sim::in(rec, "SATA drive settings");
    c.what = "SATA drive settings";
    c.require(sim::kRightStorage);
    check_range(r.sweep_info.sweep_valid, 0, 1, "sweep");
    check_range(r.sweep_info.interval_time, 0, 65535, "sweep interval");
    check_range(r.sweep_info.stop_time, 0, 65535, "sweep stop time");
    check_range(r.sweep_info.unload, 0, 1, "unload");
    check_range(r.sweep_info.onlineVerify, 0, 1, "online verify");
    check_range(r.flash_info.compare_mode, 0, 2, "flash compare mode");
    check_range(r.flash_info.drv_flash_time, 0, 65535, "flash time");
    check_range(r.flash_info.drv_flash_io_count, 0, INT32_MAX, "flash I/O count");
    check_range(r.smart_info.smart_valid, 0, 1, "SMART");
    check_range(r.smart_info.reassign_thres, 0, 65535, "reassign threshold");
    sim::save_setting(c.db, kSataKey, &r, sizeof r);
  });
}

int KX_GetSATADriveRestoration(const char* unit, const KXSessionInfoRec* session, SATADriveRestorationRec* rec) {
  return sim::run(__func__, sim::kRead, [&](sim::Call& c) {
    c.session(unit, session);
    auto& out = sim::out(rec, "SATA drive restoration");
    out = sim::setting_or(c.db, kSataRestorationKey, SATADriveRestorationRec{3});
  });
}

int KX_SetSATADriveRestoration(const char* unit, const KXSessionInfoRec* session, const SATADriveRestorationRec* rec) {
  return sim::run(__func__, sim::kWrite, [&](sim::Call& c) {
    c.session(unit, session);
    const auto& r = sim::in(rec, "SATA drive restoration");
    c.what = "SATA drive restoration";
    c.require(sim::kRightStorage);
    check_range(r.collect_copy_times, 0, 255, "copy-back retries");
    sim::save_setting(c.db, kSataRestorationKey, &r, sizeof r);
  });
}

int KX_GetDriveResponseDiag(const char* unit, const KXSessionInfoRec* session, DriveResponseDiagRec* rec) {
  return sim::run(__func__, sim::kRead, [&](sim::Call& c) {
    c.session(unit, session);
    auto& out = sim::out(rec, "drive response diagnosis");
    out = sim::setting_or(c.db, kDiagKey, diag_default());
  });
}

int KX_SetDriveResponseDiag(const char* unit, const KXSessionInfoRec* session, const DriveResponseDiagRec* rec) {
  return sim::run(__func__, sim::kWrite, [&](sim::Call& c) {
    c.session(unit, session);
    const auto& r = sim::in(rec, "drive response diagnosis");
    c.what = "drive response diagnosis";
    c.require(sim::kRightStorage);
    check_range(r.valid, 0, 1, "valid");
    check_range(r.set_mode, 0, 1, "set mode");
    check_range(r.mode, 0, 2, "diagnosis mode");
    check_range(r.threshold, 0, 65535, "threshold");
    check_range(r.sata_diag, 0, 1, "SATA diagnosis");
    check_range(r.autodiag_threshold, 0, 65535, "automatic diagnosis threshold");
    sim::save_setting(c.db, kDiagKey, &r, sizeof r);
  });
}

// a: enclosure, b: slot, c: 0 online, 1 offline, 2 failed.
int KX_SetDriveMode(const char* unit, const KXSessionInfoRec* session, int a, int b, int mode) {
  return sim::run(__func__, sim::kWrite, [&](sim::Call& c) {
    c.session(unit, session);
    c.what = drive_name(a, b);
    c.require(sim::kRightStorage);
    check_range(mode, 0, 2, "drive mode");
    auto d = need_drive(c.db, a, b);
    if (mode == 0) {
      if (d.state != "offline" && d.state != "failed") return;  // online already
      // A drive of a RAID group comes back through a rebuild.
      auto u = c.db.sql(
          "UPDATE drives SET state='normal', rebuild_start=CASE WHEN rg IS NULL THEN rebuild_start ELSE ?1 END, "
          "rebuild_end=CASE WHEN rg IS NULL THEN rebuild_end ELSE ?2 END WHERE enclosure=?3 AND slot=?4");
      int64_t secs = std::max<int64_t>(1, (d.blocks + sim::kRebuildRate - 1) / sim::kRebuildRate);
      u.bind(c.now).bind(c.now + secs).bind(a).bind(b).run();
      return;
    }
    const char* state = mode == 1 ? "offline" : "failed";
    if (d.state == state) return;
    if (mode == 1 && d.rg >= 0 && d.state != "offline" && d.state != "failed") {
      // Blocking one more drive than the group survives is refused.
      auto g = sim::find_raid_group(c.db, d.rg);
      auto n = c.db.sql("SELECT count(*) FROM drives WHERE rg=?1 AND state IN ('offline','failed')");
      n.bind(d.rg);
      n.step();
      if (n.i(0) + 1 > tolerance(g->level, g->groups))
        fail(kBusy, rg_name(d.rg) + " cannot lose " + drive_name(a, b));
    }
    auto u = c.db.sql("UPDATE drives SET state=?1 WHERE enclosure=?2 AND slot=?3");
    u.bind(state).bind(a).bind(b).run();
  });
}

int KX_GetSpinDownUpInformation(const char* unit, const KXSessionInfoRec* session, SpinDownUpInformationRec* rec) {
  return sim::run(__func__, sim::kRead, [&](sim::Call& c) {
    c.session(unit, session);
    auto& out = sim::out(rec, "spin-down information");
    out.option = 1;
    for (auto& r : out.rg) r.rgnum = -1;
    for (auto& l : out.lu) l.lun = -1;
    auto g = c.db.sql(
        "SELECT number, spin_downs, EXISTS(SELECT 1 FROM drives d WHERE d.rg=g.number AND d.state='spun-down') "
        "FROM raid_groups g ORDER BY number");
    int n = 0;
    while (g.step() && n < 90) {
      SpinDownUpRGInfoRec& r = out.rg[n++];
      r.rgnum = g.i(0);
      r.rg_power_saving_status = g.i(2);
      r.rg_power_saving = g.i(2);
      r.spin_down_count = g.i(1);
    }
    out.rg_count = n;
    auto l = c.db.sql(
        "SELECT l.number, EXISTS(SELECT 1 FROM drives d WHERE d.rg=l.rg AND d.state='spun-down') "
        "FROM lus l ORDER BY l.number");
    n = 0;
    while (l.step() && n < 4096) {
      SpinDownUpLuInfoRec& r = out.lu[n++];
      r.lun = l.i(0);
      r.lu_power_saving = l.i(1);
    }
    out.lu_count = n;
  });
}

int KX_SpinDownDriveByRG(const char* unit, const KXSessionInfoRec* session, int rgnum) {
  return sim::run(__func__, sim::kWrite, [&](sim::Call& c) {
    c.session(unit, session);
    c.what = rg_name(rgnum);
    c.require(sim::kRightStorage);
    need_rg(c.db, rgnum);
    if (sim::rg_spun_down(c.db, rgnum)) fail(kBusy, rg_name(rgnum) + " is spun down already");
    auto j = c.db.sql("SELECT j.lun FROM jobs j JOIN lus l ON l.number=j.lun WHERE l.rg=?1 AND j.finish>?2 LIMIT 1");
    j.bind(rgnum).bind(c.now);
    if (j.step()) fail(kBusy, "LU " + std::to_string(j.i(0)) + " of " + rg_name(rgnum) + " is being worked on");
    auto u = c.db.sql("UPDATE drives SET state='spun-down' WHERE rg=?1 AND state='normal'");
    u.bind(rgnum).run();
    auto n = c.db.sql("UPDATE raid_groups SET spin_downs=spin_downs+1 WHERE number=?1");
    n.bind(rgnum).run();
  });
}

int KX_SpinUpDriveByRG(const char* unit, const KXSessionInfoRec* session, int rgnum) {
  return sim::run(__func__, sim::kWrite, [&](sim::Call& c) {
    c.session(unit, session);
    c.what = rg_name(rgnum);
    c.require(sim::kRightStorage);
    need_rg(c.db, rgnum);
    if (!sim::rg_spun_down(c.db, rgnum)) fail(kBusy, rg_name(rgnum) + " is not spun down");
    auto u = c.db.sql("UPDATE drives SET state='normal' WHERE rg=?1 AND state='spun-down'");
    u.bind(rgnum).run();
  });
}

}  // extern "C"
