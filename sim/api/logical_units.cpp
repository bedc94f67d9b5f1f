// Logical units: the list and single reads, creation, deletion, expansion,
// invalidation and restoration, renumbering, controller and staging changes,
// and the block-to-byte conversion.  Sizes are blocks of 512 bytes.
#include <algorithm>
#include <climits>
#include <cstring>
#include <iterator>
#include <string>
#include <string_view>

#include "raid.h"
#include "sim/core/call.h"
#include "sim/core/text.h"
#include "sim/model/storage.h"

namespace {

using sim::fail;
using sim::kBadParameter;
using sim::kNoSuchObject;

std::string lu_name(int n) { return "LU " + std::to_string(n); }

void check_lun(int lun) {
  if (lun < 0 || lun >= sim::kMaxLus) fail(kBadParameter, "LU number " + std::to_string(lun) + " is not 0-4095");
}

void need_lu(sim::Db& db, int lun) {
  check_lun(lun);
  if (!sim::lu_exists(db, lun)) fail(kNoSuchObject, "no " + lu_name(lun));
}

void not_held(sim::Db& db, int lun) {
  auto h = db.sql("SELECT holder FROM lu_holds WHERE lun=?1 LIMIT 1");
  h.bind(lun);
  if (h.step()) fail(sim::kBusy, lu_name(lun) + " is in use by " + h.text(0));
}

// The columns every LU read fills its record from; the two neighbours (the
// LU before it in its group, and whether one follows) come from the query.
#define LU_COLUMNS                                                                                      \
  "l.number, l.rg, g.level, l.staging, l.size, l.cachepart, l.pair_cachepart_valid, l.pair_cachepart, " \
  "l.stripe, l.use_type, l.default_ctl, l.current_ctl, l.status, l.hostblock, "                       \
  "q.start, q.finish, p.start, p.finish, f.finish, "
#define LU_JOINS                                                                           \
  " FROM lus l JOIN raid_groups g ON g.number=l.rg "                                       \
  "LEFT JOIN jobs q ON q.lun=l.number AND q.kind='quick' "                                 \
  "LEFT JOIN jobs p ON p.lun=l.number AND p.kind='parity' "                                \
  "LEFT JOIN jobs f ON f.lun=l.number AND f.kind='format' "

constexpr const char* kOneLu =
    "SELECT " LU_COLUMNS
    "coalesce((SELECT x.number FROM lus x WHERE x.rg=l.rg AND x.start<l.start ORDER BY x.start DESC LIMIT 1), -1), "
    "NOT EXISTS(SELECT 1 FROM lus x WHERE x.rg=l.rg AND x.start>l.start)" LU_JOINS "WHERE l.number=?1";

// The whole list reads the LUs alone, in address order within each group (the
// neighbours are filled in while the rows go by), and the groups' levels and
// the jobs apart: joined per row they cost more than the rest of the read at
// 4096 LUs (a window function for the neighbours costs ten times the read).
constexpr const char* kAllLus =
    "SELECT number, rg, 0, staging, size, cachepart, pair_cachepart_valid, pair_cachepart, stripe, use_type, "
    "default_ctl, current_ctl, status, hostblock FROM lus ORDER BY rg, start";
constexpr const char* kAllLevels = "SELECT number, level FROM raid_groups";
constexpr const char* kAllJobs =
    "SELECT lun, kind, start, finish FROM jobs WHERE kind IN ('quick', 'parity', 'format')";

// Columns 0-13 of both reads.
void fill_lu_fields(LogicalUnitRec& r, const sim::Stmt& s) {
  r.luNumber = s.i(0);
  r.rgNumber = s.i(1);
  r.raid_level = s.i(2);
  r.staging = s.i(3);
  r.capacity = static_cast<int32_t>(s.i64(4));
  r.cachepart_no = s.i(5);
  r.pair_cachepart_valid = s.i(6);
  r.pair_cachepart_no = s.i(7);
  r.current_cachepart_no = r.pair_cachepart_valid ? r.pair_cachepart_no : r.cachepart_no;
  r.stripe = s.i(8);
  r.lu_use_type = s.i(9);
  r.defaultCTL = s.i(10);
  r.currentCTL = s.i(11);
  r.status = s.i(12);
  r.hostblock = s.i(13);
  r.qf_status = sim::kJobNone;
  r.correction_status = sim::kJobNone;
  r.lu_valid = 1;
  r.unit_type = sim::kUnitType;
  r.unit_type_sub_code = sim::kUnitTypeSub;
}

// One job of the LU: a quick format or parity correction shows in its status
// field, and an LU is formatting while a quick or full format runs.
void apply_job(LogicalUnitRec& r, std::string_view kind, int64_t start, int64_t finish, int64_t now) {
  if (kind == "quick") r.qf_status = sim::job_state(now, start, finish).status;
  if (kind == "parity") r.correction_status = sim::job_state(now, start, finish).status;
  if ((kind == "quick" || kind == "format") && finish > now && r.status != sim::kLuInvalid)
    r.status = sim::kLuFormatting;
}

void fill_lu(LogicalUnitRec& r, const sim::Stmt& s, int64_t now) {
  fill_lu_fields(r, s);
  if (!s.is_null(14)) apply_job(r, "quick", s.i64(14), s.i64(15), now);
  if (!s.is_null(16)) apply_job(r, "parity", s.i64(16), s.i64(17), now);
  if (!s.is_null(18)) apply_job(r, "format", 0, s.i64(18), now);
  r.befor_lun = s.i(19);
  r.rg_last_lu = s.i(20);
}

}  // namespace

extern "C" {

int KX_GetLogicalUnit(const char* unit, const KXSessionInfoRec* session, LogicalUnitRec* list) {
  return sim::run(__func__, sim::kRead, [&](sim::Call& c) {
    c.session(unit, session);
    if (!list) fail(kBadParameter, "LU list: null");
    std::memset(list, 0, sizeof(LogicalUnitRec) * PERNIX_LOGICAL_UNITS);
    for (int k = 0; k < PERNIX_LOGICAL_UNITS; ++k) list[k].luNumber = k;
    int levels[sim::kMaxRaidGroups];
    std::fill(std::begin(levels), std::end(levels), -1);  // no such group
    {
      auto g = c.db.sql(kAllLevels);
      while (g.step())
        if (int n = g.i(0); n >= 0 && n < sim::kMaxRaidGroups) levels[n] = g.i(1);
    }
    {
      auto s = c.db.sql(kAllLus);
      LogicalUnitRec* prev = nullptr;
      while (s.step()) {
        int n = s.i(0), rg = s.i(1);
        if (n < 0 || n >= PERNIX_LOGICAL_UNITS || rg < 0 || rg >= sim::kMaxRaidGroups || levels[rg] < 0) continue;
        LogicalUnitRec& r = list[n];
        fill_lu_fields(r, s);
        r.raid_level = levels[rg];
        r.befor_lun = -1;
        r.rg_last_lu = 1;
        if (prev && prev->rgNumber == r.rgNumber) {
          r.befor_lun = prev->luNumber;
          prev->rg_last_lu = 0;
        }
        prev = &r;
      }
    }
    auto j = c.db.sql(kAllJobs);
    while (j.step()) {
      int n = j.i(0);
      if (n < 0 || n >= PERNIX_LOGICAL_UNITS || !list[n].lu_valid) continue;
      apply_job(list[n], j.text(1), j.i64(2), j.i64(3), c.now);
    }
  });
}

int KX_GetLogicalUnit1(const char* unit, const KXSessionInfoRec* session, int lun, LogicalUnitRec* lu) {
  return sim::run(__func__, sim::kRead, [&](sim::Call& c) {
    c.session(unit, session);
    auto& out = sim::out(lu, "LU");
    check_lun(lun);
    auto s = c.db.sql(kOneLu);
    s.bind(lun);
    if (!s.step()) fail(kNoSuchObject, "no " + lu_name(lun));
    fill_lu(out, s, c.now);
  });
}

int KX_GetLastLogicalUnit(const char* unit, int* lun) {
  return sim::run(__func__, sim::kRead, [&](sim::Call& c) {
    c.unit_login(unit);
    if (!lun) fail(kBadParameter, "LU number: null");
    auto s = c.db.sql("SELECT coalesce(max(number), -1) FROM lus");
    s.step();
    *lun = s.i(0);
  });
}

int KX_LogicalUnitAdd(const char* unit, const KXSessionInfoRec* session, const LogicalUnitRec* lu) {
  return sim::run(__func__, sim::kWrite, [&](sim::Call& c) {
    c.session(unit, session);
    const LogicalUnitRec& r = sim::in(lu, "LU");
    c.what = lu_name(r.luNumber);
    c.require(sim::kRightStorage);
    sim::LuSpec want;
    want.number = r.luNumber;
    want.rg = r.rgNumber;
    want.blocks = r.capacity;
    want.staging = r.staging;
    want.stripe = r.stripe;
    want.hostblock = r.hostblock;
    want.use_type = r.lu_use_type;
    want.ctl = r.defaultCTL;
    want.cachepart = r.cachepart_no;
    want.pair_cachepart_valid = r.pair_cachepart_valid;
    want.pair_cachepart = r.pair_cachepart_no;
    want.status = sim::kLuUnformatted;
    c.what = lu_name(sim::create_lu(c.db, want));
  });
}

int KX_LogicalUnitDelete(const char* unit) {
  return sim::run(__func__, sim::kWrite, [&](sim::Call& c) {
    c.unit_login(unit);
    auto s = c.db.sql("SELECT max(number) FROM lus");
    if (!s.step() || s.is_null(0)) fail(kNoSuchObject, "no LU to delete");
    int lun = s.i(0);
    c.what = lu_name(lun);
    c.require(sim::kRightStorage);
    sim::delete_lu(c.db, lun);
  });
}

int KX_LogicalUnitDeleteAll(const char* unit) {
  return sim::run(__func__, sim::kWrite, [&](sim::Call& c) {
    c.unit_login(unit);
    c.what = "every LU";
    c.require(sim::kRightStorage);
    std::vector<int> all;
    {
      auto s = c.db.sql("SELECT number FROM lus ORDER BY number");
      while (s.step()) all.push_back(s.i(0));
    }
    // A held LU refuses, and the transaction takes back the ones before it.
    for (int lun : all) sim::delete_lu(c.db, lun);
  });
}

int KX_LogicalUnitDeleteByLUN(const char* unit, const KXSessionInfoRec* session, int lun) {
  return sim::run(__func__, sim::kWrite, [&](sim::Call& c) {
    c.session(unit, session);
    c.what = lu_name(lun);
    c.require(sim::kRightStorage);
    check_lun(lun);
    sim::delete_lu(c.db, lun);
  });
}

int KX_LogicalUnitExpand(const char* unit, int a, int b) {
  return sim::run(__func__, sim::kWrite, [&](sim::Call& c) {
    c.unit_login(unit);
    c.what = lu_name(a);
    c.require(sim::kRightStorage);
    check_lun(a);
    sim::expand_lu(c.db, a, b);
  });
}

int KX_LogicalUnitChangeStaging(const char* unit, const KXSessionInfoRec* session, int a, int b) {
  return sim::run(__func__, sim::kWrite, [&](sim::Call& c) {
    c.session(unit, session);
    c.what = lu_name(a);
    c.require(sim::kRightStorage);
    need_lu(c.db, a);
    if (b < 0 || b > 2) fail(kBadParameter, "staging mode " + std::to_string(b) + " is not 0-2");
    auto u = c.db.sql("UPDATE lus SET staging=?1 WHERE number=?2");
    u.bind(b).bind(a).run();
  });
}

int KX_LogicalUnitChangeCtl(const char* unit, const KXSessionInfoRec* session, int a) {
  return sim::run(__func__, sim::kWrite, [&](sim::Call& c) {
    c.session(unit, session);
    c.what = lu_name(a);
    c.require(sim::kRightStorage);
    need_lu(c.db, a);
    auto u = c.db.sql("UPDATE lus SET default_ctl=1-default_ctl, current_ctl=1-default_ctl WHERE number=?1");
    u.bind(a).run();
  });
}

int KX_LogicalUnitInvalid(const char* unit, int lun) {
  return sim::run(__func__, sim::kWrite, [&](sim::Call& c) {
    c.unit_login(unit);
    c.what = lu_name(lun);
    c.require(sim::kRightStorage);
    need_lu(c.db, lun);
    not_held(c.db, lun);
    auto s = c.db.sql("SELECT status FROM lus WHERE number=?1");
    s.bind(lun);
    s.step();
    if (s.i(0) == sim::kLuInvalid) fail(sim::kBusy, lu_name(lun) + " is invalid already");
    if (sim::lu_formatting(c.db, c.now, lun)) fail(sim::kBusy, lu_name(lun) + " is being formatted");
    auto u = c.db.sql("UPDATE lus SET prior_status=status, status=?1 WHERE number=?2");
    u.bind(static_cast<int>(sim::kLuInvalid)).bind(lun).run();
  });
}

int KX_LogicalUnitRestore(const char* unit, int lun) {
  return sim::run(__func__, sim::kWrite, [&](sim::Call& c) {
    c.unit_login(unit);
    c.what = lu_name(lun);
    c.require(sim::kRightStorage);
    need_lu(c.db, lun);
    auto s = c.db.sql("SELECT status FROM lus WHERE number=?1");
    s.bind(lun);
    s.step();
    if (s.i(0) != sim::kLuInvalid) fail(sim::kBusy, lu_name(lun) + " is not invalid");
    auto u = c.db.sql("UPDATE lus SET status=prior_status WHERE number=?1");
    u.bind(lun).run();
  });
}

int KX_LogicalUnitRealloc(const char* unit, const LUReallocInfoRec* info) {
  return sim::run(__func__, sim::kWrite, [&](sim::Call& c) {
    c.unit_login(unit);
    const LUReallocInfoRec& r = sim::in(info, "re-allocation");
    c.what = lu_name(r.lun);
    c.require(sim::kRightStorage);
    need_lu(c.db, r.lun);
    not_held(c.db, r.lun);
    if (sim::lu_formatting(c.db, c.now, r.lun)) fail(sim::kBusy, lu_name(r.lun) + " is being formatted");
    int target = r.newlun == -1 ? r.lun : r.newlun;
    check_lun(target);
    if (target != r.lun && sim::lu_exists(c.db, target)) fail(sim::kExists, lu_name(target) + " exists");
    if (r.lusize < 0) fail(kBadParameter, "negative LU size");
    if (r.lusize > 0) {
      auto s = c.db.sql("SELECT size FROM lus WHERE number=?1");
      s.bind(r.lun);
      s.step();
      int64_t size = s.i64(0);
      if (r.lusize > size) {
        sim::expand_lu(c.db, r.lun, r.lusize - size);
      } else if (r.lusize < size) {
        auto u = c.db.sql("UPDATE lus SET size=?1 WHERE number=?2");
        u.bind(static_cast<int64_t>(r.lusize)).bind(r.lun).run();
      }
    }
    if (target != r.lun) {
      auto u = c.db.sql("UPDATE lus SET number=?1 WHERE number=?2");
      u.bind(target).bind(r.lun).run();
      auto j = c.db.sql("UPDATE jobs SET lun=?1 WHERE lun=?2");
      j.bind(target).bind(r.lun).run();
      c.what = lu_name(r.lun) + " to " + lu_name(target);
    }
  });
}

// a, b: a block count as high and low words; c: the block size in bytes (0
// for 512).  r0, r1: the byte count as high and low words; r2: whole
// megabytes (10^6 bytes), at most 2147483647.
int KX_BlockToByte(int a, int b, int c, int* r0, int* r1, int* r2) {
  return sim::run(__func__, sim::kRead, [&](sim::Call&) {
    if (!r0 || !r1 || !r2) fail(kBadParameter, "result: null");
    if (a < 0) fail(kBadParameter, "negative block count");
    int64_t size = c == 0 ? sim::kBlockBytes : c;
    if (size != 512 && size != 520 && size != 4096) fail(kBadParameter, "block size is not 512, 520 or 4096");
    uint64_t blocks = (static_cast<uint64_t>(static_cast<uint32_t>(a)) << 32) | static_cast<uint32_t>(b);
    // 2^63 / 4096 blocks still fit in 64 bits of bytes.
    if (blocks > (UINT64_C(1) << 51)) fail(kBadParameter, "block count too large");
    uint64_t bytes = blocks * static_cast<uint64_t>(size);
    *r0 = sim::hi_word(static_cast<int64_t>(bytes));
    *r1 = sim::lo_word(static_cast<int64_t>(bytes));
    *r2 = static_cast<int32_t>(std::min<uint64_t>(bytes / 1000000, INT32_MAX));
  });
}

}  // extern "C"
