// Formatting (full and quick) and parity correction.  A job entered on an LU
// gets its start and finish from the clock and the LU's size when it is
// entered; every status read works its progress out from the clock, so
// nothing runs between calls.  Full formats run side by side; quick formats
// and parity corrections each wait in one queue, in the order entered.
#include <algorithm>
#include <cstring>
#include <string>
#include <vector>

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

constexpr const char* kQuickOptionKey = "storage.quick_format_option";

std::string lu_name(int n) { return "LU " + std::to_string(n); }

QuickFormatOptionRec quick_option(sim::Db& db) {
  QuickFormatOptionRec o{};
  o.valid_index = 1;
  if (!sim::load_setting(db, kQuickOptionKey, &o, sizeof o)) {
    o.valid_index = 1;
    o.change_index = 0;
    o.priority_mode = 0;
    o.format_mode = 0;
  }
  return o;
}

// Checks that the LU can take a job of that kind now and returns its size.
int64_t job_target(sim::Call& c, int lun, const char* kind) {
  if (lun < 0 || lun >= sim::kMaxLus) fail(kBadParameter, "LU number " + std::to_string(lun) + " is not 0-4095");
  auto s = c.db.sql("SELECT size, status, rg FROM lus WHERE number=?1");
  s.bind(lun);
  if (!s.step()) fail(kNoSuchObject, "no " + lu_name(lun));
  int64_t size = s.i64(0);
  int status = s.i(1), rg = s.i(2);
  if (status == sim::kLuInvalid) fail(kBusy, lu_name(lun) + " is invalid");
  if (sim::lu_formatting(c.db, c.now, lun)) fail(kBusy, lu_name(lun) + " is being formatted");
  if (sim::rg_spun_down(c.db, rg)) fail(kBusy, "the drives of " + lu_name(lun) + " are spun down");
  auto p = c.db.sql("SELECT 1 FROM jobs WHERE lun=?1 AND kind='parity' AND finish>?2");
  p.bind(lun).bind(c.now);
  if (p.step()) fail(kBusy, lu_name(lun) + " is under parity correction");
  if (std::strcmp(kind, "parity") == 0 && status == sim::kLuUnformatted)
    fail(kBusy, lu_name(lun) + " is not formatted");
  return size;
}

// Enters a job; queued kinds start when the last job of their kind finishes.
// Returns the seconds until it finishes.
int64_t enter_job(sim::Call& c, int lun, const char* kind, int mode, int64_t rate) {
  int64_t size = job_target(c, lun, kind);
  int64_t start = c.now;
  if (std::strcmp(kind, "format") != 0) {
    auto q = c.db.sql("SELECT max(finish) FROM jobs WHERE kind=?1 AND finish>?2");
    q.bind(kind).bind(c.now);
    if (q.step() && !q.is_null(0)) start = std::max(start, q.i64(0));
  }
  int64_t finish = start + std::max<int64_t>(1, (size + rate - 1) / rate);
  auto s = c.db.sql(
      "INSERT OR REPLACE INTO jobs(lun, kind, mode, seq, entered, start, finish) "
      "VALUES(?1, ?2, ?3, (SELECT coalesce(max(seq), 0) + 1 FROM jobs), ?4, ?5, ?6)");
  s.bind(lun).bind(kind).bind(mode).bind(c.now).bind(start).bind(finish).run();
  if (std::strcmp(kind, "parity") != 0) {
    auto u = c.db.sql("UPDATE lus SET status=?1, prior_status=?1 WHERE number=?2");
    u.bind(static_cast<int>(sim::kLuNormal)).bind(lun).run();
  }
  return finish - c.now;
}

int64_t quick_rate(sim::Db& db) {
  return quick_option(db).priority_mode == 1 ? 2 * sim::kQuickFormatRate : sim::kQuickFormatRate;
}

struct JobRow {
  int lun;
  int64_t start, finish, size;
};

std::vector<JobRow> jobs_of(sim::Db& db, const char* kind) {
  std::vector<JobRow> rows;
  auto s = db.sql(
      "SELECT j.lun, j.start, j.finish, l.size FROM jobs j JOIN lus l ON l.number=j.lun WHERE j.kind=?1 "
      "ORDER BY j.start, j.seq");
  s.bind(kind);
  while (s.step()) rows.push_back({s.i(0), s.i64(1), s.i64(2), s.i64(3)});
  return rows;
}

// Status, per cent and place in the queue (1 = next; 0 when not waiting) of
// each job of a queued kind, by LU number.
template <class Rec>
void fill_queue(sim::Db& db, int64_t now, const char* kind, Rec* lu, int count) {
  int waiting = 0;
  for (const auto& j : jobs_of(db, kind)) {
    if (j.lun < 0 || j.lun >= count) continue;
    auto st = sim::job_state(now, j.start, j.finish);
    Rec& r = lu[j.lun];
    if constexpr (requires { r.entry; }) r.entry = 1;
    r.status = st.status;
    r.percent = st.percent;
    r.waiting_number = st.status == sim::kJobWaiting ? ++waiting : 0;
  }
}

// The latest full or quick format of an LU: status and per cent.
sim::JobState latest_format(sim::Db& db, int64_t now, int lun, bool* any) {
  auto s = db.sql("SELECT start, finish FROM jobs WHERE lun=?1 AND kind IN ('format','quick') ORDER BY seq DESC LIMIT 1");
  s.bind(lun);
  *any = s.step();
  return *any ? sim::job_state(now, s.i64(0), s.i64(1)) : sim::JobState{};
}

}  // namespace

extern "C" {

// a: the LU number; b: 0 full format, 1 quick format.
int KX_LogicalUnitFormat(const char* unit, int a, int b) {
  return sim::run(__func__, sim::kWrite, [&](sim::Call& c) {
    c.unit_login(unit);
    c.what = lu_name(a);
    c.require(sim::kRightStorage);
    if (b != 0 && b != 1) fail(kBadParameter, "format mode " + std::to_string(b) + " is not 0 or 1");
    if (b == 0)
      enter_job(c, a, "format", 0, sim::kFormatRate);
    else
      enter_job(c, a, "quick", 0, quick_rate(c.db));
  });
}

int KX_LogicalUnitFormatStatus(const char* unit, int lun, int* out) {
  return sim::run(__func__, sim::kRead, [&](sim::Call& c) {
    c.unit_login(unit);
    if (!out) fail(kBadParameter, "result: null");
    if (lun < 0 || lun >= sim::kMaxLus) fail(kBadParameter, "LU number " + std::to_string(lun) + " is not 0-4095");
    auto s = c.db.sql("SELECT status FROM lus WHERE number=?1");
    s.bind(lun);
    if (!s.step()) fail(kNoSuchObject, "no " + lu_name(lun));
    int status = s.i(0);
    bool any = false;
    auto st = latest_format(c.db, c.now, lun, &any);
    *out = any ? st.percent : (status == sim::kLuUnformatted ? 0 : 100);
  });
}

// a: the LU number; b: the controller (0 or 1) that formats it.  A full
// format starts at once; out: the seconds until it finishes.
int KX_LogicalUnitFormatImmediateCTL(const char* unit, int a, int b, int* out) {
  return sim::run(__func__, sim::kWrite, [&](sim::Call& c) {
    c.unit_login(unit);
    c.what = lu_name(a);
    c.require(sim::kRightStorage);
    if (!out) fail(kBadParameter, "result: null");
    if (b != 0 && b != 1) fail(kBadParameter, "controller " + std::to_string(b) + " is not 0 or 1");
    *out = static_cast<int>(std::min<int64_t>(enter_job(c, a, "format", b, sim::kFormatRate), INT32_MAX));
  });
}

int KX_LogicalUnitFormatStatusList(const char* unit, LuFormatStatusListRec* list) {
  return sim::run(__func__, sim::kRead, [&](sim::Call& c) {
    c.unit_login(unit);
    auto& out = sim::out(list, "format status list");
    auto s = c.db.sql(
        "SELECT lun, start, finish FROM jobs WHERE kind IN ('format','quick') AND lun<2048 ORDER BY seq");
    while (s.step()) {  // a later job overwrites an earlier one of the same LU
      auto st = sim::job_state(c.now, s.i64(1), s.i64(2));
      out.lu[s.i(0)].status = st.status;
      out.lu[s.i(0)].percent = st.percent;
    }
  });
}

int KX_EntryFormatList(const char* unit, const FormatListRec* list) {
  return sim::run(__func__, sim::kWrite, [&](sim::Call& c) {
    c.unit_login(unit);
    const FormatListRec& l = sim::in(list, "format list");
    c.what = "format list";
    c.require(sim::kRightStorage);
    int n = 0;
    for (int lun = 0; lun < 2048; ++lun)
      if (l.lu[lun]) {
        enter_job(c, lun, "format", 0, sim::kFormatRate);
        ++n;
      }
    if (n == 0) fail(kBadParameter, "no LU selected");
    c.what = "format list of " + std::to_string(n) + " LUs";
  });
}

int KX_GetFormatStatusList(const char* unit, FormatStatusListRec* list) {
  return sim::run(__func__, sim::kRead, [&](sim::Call& c) {
    c.unit_login(unit);
    auto& out = sim::out(list, "format status list");
    int64_t total = 0, done = 0, rest = 0;
    bool running = false;
    for (const auto& j : jobs_of(c.db, "format")) {
      auto st = sim::job_state(c.now, j.start, j.finish);
      total += j.size;
      done += st.status == sim::kJobDone ? j.size : j.size / 100 * st.percent;
      if (st.status != sim::kJobDone) {
        running = true;
        rest = std::max(rest, j.finish - c.now);
      }
      if (j.lun >= 2048) continue;
      FormatStatusRec& r = out.lu[j.lun];
      r.entry = 1;
      r.status = st.status;
      r.percent = st.percent;
    }
    out.mode = running ? 1 : 0;
    out.totalpercent = total > 0 ? static_cast<int32_t>(done * 100 / total) : 0;
    out.resttime = static_cast<int32_t>(std::min<int64_t>(rest, INT32_MAX));
  });
}

int KX_GetQuickFormatOption(const char* unit, const KXSessionInfoRec* session, QuickFormatOptionRec* option) {
  return sim::run(__func__, sim::kRead, [&](sim::Call& c) {
    c.session(unit, session);
    auto& out = sim::out(option, "quick format option");
    out = quick_option(c.db);
  });
}

int KX_SetQuickFormatOption(const char* unit, const KXSessionInfoRec* session, const QuickFormatOptionRec* option) {
  return sim::run(__func__, sim::kWrite, [&](sim::Call& c) {
    c.session(unit, session);
    const QuickFormatOptionRec& o = sim::in(option, "quick format option");
    c.what = "quick format option";
    c.require(sim::kRightStorage);
    if (o.valid_index != 0 && o.valid_index != 1) fail(kBadParameter, "valid_index is not 0 or 1");
    if (o.change_index != 0 && o.change_index != 1) fail(kBadParameter, "change_index is not 0 or 1");
    if (o.priority_mode != 0 && o.priority_mode != 1) fail(kBadParameter, "priority mode is not 0 or 1");
    if (o.format_mode != 0 && o.format_mode != 1) fail(kBadParameter, "format mode is not 0 or 1");
    sim::save_setting(c.db, kQuickOptionKey, &o, sizeof o);
  });
}

int KX_EntryQuickFormatList(const char* unit, const KXSessionInfoRec* session, const QuickFormatListRec* list) {
  return sim::run(__func__, sim::kWrite, [&](sim::Call& c) {
    c.session(unit, session);
    const QuickFormatListRec& l = sim::in(list, "quick format list");
    c.what = "quick format list";
    c.require(sim::kRightStorage);
    int64_t rate = quick_rate(c.db);
    int mode = quick_option(c.db).format_mode;
    int n = 0;
    for (int lun = 0; lun < 4096; ++lun)
      if (l.lu[lun]) {
        enter_job(c, lun, "quick", mode, rate);
        ++n;
      }
    if (n == 0) fail(kBadParameter, "no LU selected");
    c.what = "quick format list of " + std::to_string(n) + " LUs";
  });
}

int KX_GetQuickFormatStatusList(const char* unit, const KXSessionInfoRec* session, QuickFormatStatusListRec* list) {
  return sim::run(__func__, sim::kRead, [&](sim::Call& c) {
    c.session(unit, session);
    auto& out = sim::out(list, "quick format status list");
    auto o = quick_option(c.db);
    out.priority_mode = o.priority_mode;
    out.format_mode = o.format_mode;
    fill_queue(c.db, c.now, "quick", out.lu, 4096);
  });
}

int KX_EntryParityCorrectionList(const char* unit, const KXSessionInfoRec* session,
                                 const ParityCorrectionListRec* list) {
  return sim::run(__func__, sim::kWrite, [&](sim::Call& c) {
    c.session(unit, session);
    const ParityCorrectionListRec& l = sim::in(list, "parity correction list");
    c.what = "parity correction list";
    c.require(sim::kRightStorage);
    if (l.correction_mode != 0 && l.correction_mode != 1) fail(kBadParameter, "correction mode is not 0 or 1");
    if (l.lu_count < 1 || l.lu_count > 4096) fail(kBadParameter, "LU count " + std::to_string(l.lu_count) + " is not 1-4096");
    std::vector<bool> seen(4096);
    for (int k = 0; k < l.lu_count; ++k) {
      int lun = l.lu[k];
      if (lun < 0 || lun >= 4096) fail(kBadParameter, "LU number " + std::to_string(lun) + " is not 0-4095");
      if (seen[lun]) fail(kBadParameter, lu_name(lun) + " is listed twice");
      seen[lun] = true;
    }
    for (int k = 0; k < l.lu_count; ++k) enter_job(c, l.lu[k], "parity", l.correction_mode, sim::kParityRate);
    c.what = "parity correction of " + std::to_string(l.lu_count) + " LUs";
  });
}

int KX_GetParityCorrectionStatusList(const char* unit, const KXSessionInfoRec* session,
                                     ParityCorrectionStatusListRec* list) {
  return sim::run(__func__, sim::kRead, [&](sim::Call& c) {
    c.session(unit, session);
    auto& out = sim::out(list, "parity correction status list");
    fill_queue(c.db, c.now, "parity", out.lu, 4096);
  });
}

}  // extern "C"
