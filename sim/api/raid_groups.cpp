// RAID groups: the older list, add and expand (acting for the unit login) and
// the newer session calls.  Capacities are blocks of 512 bytes; sim/README.md
// says what each field means here.
#include <algorithm>
#include <climits>
#include <cstring>
#include <string>

#include "raid.h"
#include "sim/core/call.h"
#include "sim/core/text.h"
#include "sim/model/storage.h"

namespace {

using sim::fail;
using sim::kBadParameter;

int32_t clamp_int(int64_t v) { return static_cast<int32_t>(std::min<int64_t>(v, INT32_MAX)); }

std::string rg_name(int n) { return "RAID group " + std::to_string(n); }

void fill_detail(RgDetailRec& d, const sim::RaidGroup& g) {
  d.valid_index = 1;
  d.rgnum = g.number;
  d.level = g.level;
  d.start_unit_no = g.first_enclosure;
  d.start_hdu_no = g.first_slot;
  d.parity_hdu_count = g.per_group;
  d.parity_count = g.groups;
  d.minimum_capa = g.smallest_gb;
  d.total_capa_h = sim::hi_word(g.capacity);
  d.total_capa_l = sim::lo_word(g.capacity);
  d.rest_capa_h = sim::hi_word(g.capacity - g.used);
  d.rest_capa_l = sim::lo_word(g.capacity - g.used);
  d.rg_type = g.rg_type;
}

// The drives of the older record: `width` consecutive slots from `row` in
// each of `depth` enclosures from `port`.
std::vector<std::pair<int, int>> block_of_drives(const RaidGroupRec& r) {
  if (r.width < 1 || r.depth < 1 || r.width > sim::kEnclosureSlots || r.depth > sim::kMaxEnclosures)
    fail(kBadParameter, "width must be 1-15 and depth 1-30");
  if (r.port < 0 || r.port >= sim::kMaxEnclosures || r.row < 0 || r.row >= sim::kEnclosureSlots)
    fail(kBadParameter, "the first drive's enclosure must be 0-29 and its slot 0-14");
  std::vector<std::pair<int, int>> drives;
  for (int e = 0; e < r.depth; ++e)
    for (int s = 0; s < r.width; ++s) drives.push_back({r.port + e, r.row + s});
  return drives;
}

sim::RgSpec spec_of(const CreateRaidGroupRec& c) {
  sim::RgSpec want;
  if (c.create_mode != 0 && c.create_mode != 1) fail(kBadParameter, "create mode is not 0 or 1");
  want.automatic = c.create_mode == 1;
  want.number = c.rgnum;
  want.level = c.level;
  want.per_group = c.parity_hdu_count;
  want.groups = c.parity_count == 0 ? 1 : c.parity_count;
  if (sim::data_drives(want.level, want.per_group, want.groups) < 0) {
    if (!sim::valid_level(want.level)) fail(kBadParameter, "RAID level " + std::to_string(want.level) + " is not 0, 1, 5, 6 or 10");
    fail(kBadParameter, "RAID" + std::to_string(want.level) + " cannot be made of " + std::to_string(want.groups) +
                            " x " + std::to_string(want.per_group) + " drives");
  }
  want.kind = c.drive_type;
  want.gb = c.drive_capa;
  if (!want.automatic) {
    int total = want.per_group * want.groups;  // at most 450: checked above
    for (int k = 0; k < total; ++k) want.drives.push_back({c.rgdrv[k].unit_no, c.rgdrv[k].hdu_no});
  }
  return want;
}

}  // namespace

extern "C" {

int KX_GetRaidGroups(const char* unit, RaidGroupRec* groups) {
  return sim::run(__func__, sim::kRead, [&](sim::Call& c) {
    c.unit_login(unit);
    if (!groups) fail(kBadParameter, "groups: null");
    std::memset(groups, 0, sizeof(RaidGroupRec) * PERNIX_RAID_GROUPS);
    for (int k = 0; k < PERNIX_RAID_GROUPS; ++k) groups[k].rgnum = -1;
    for (const auto& g : sim::raid_groups(c.db)) {
      RaidGroupRec& r = groups[g.number];
      r.rgnum = g.number;
      r.level = g.level;
      r.port = g.first_enclosure;
      r.row = g.first_slot;
      r.width = g.per_group;
      r.depth = g.groups;
      r.minimum_capa = g.smallest_gb;
      r.lastLBASet = g.drive_blocks < g.smallest_blocks ? 1 : 0;
      r.lastLBA = r.lastLBASet ? clamp_int(g.drive_blocks - 1) : 0;
      r.rest_h = sim::hi_word(g.capacity - g.used);
      r.rest = sim::lo_word(g.capacity - g.used);
      r.lumaxcapa = clamp_int(g.largest_free);
      r.unit_type = sim::kUnitType;
      r.unit_type_sub_code = sim::kUnitTypeSub;
    }
  });
}

int KX_RaidGroupAdd(const char* unit, const RaidGroupRec* rg) {
  return sim::run(__func__, sim::kWrite, [&](sim::Call& c) {
    c.unit_login(unit);
    const RaidGroupRec& r = sim::in(rg, "RAID group");
    c.what = rg_name(r.rgnum);
    c.require(sim::kRightStorage);
    sim::RgSpec want;
    want.number = r.rgnum;
    want.level = r.level;
    want.drives = block_of_drives(r);
    want.per_group = r.width;
    want.groups = r.depth;
    if (r.lastLBASet) {
      if (r.lastLBA < 0) fail(kBadParameter, "negative last LBA");
      want.last_lba = r.lastLBA;
    }
    auto g = sim::create_raid_group(c.db, want);
    c.what = rg_name(g.number);
  });
}

int KX_RaidGroupExpand(const char* unit, const RaidGroupRec* rg) {
  return sim::run(__func__, sim::kWrite, [&](sim::Call& c) {
    c.unit_login(unit);
    const RaidGroupRec& r = sim::in(rg, "RAID group");
    c.what = rg_name(r.rgnum);
    c.require(sim::kRightStorage);
    sim::expand_raid_group(c.db, r.rgnum, block_of_drives(r));
  });
}

int KX_RaidGroupDelete(const char* unit, const KXSessionInfoRec* session, int rgnum) {
  return sim::run(__func__, sim::kWrite, [&](sim::Call& c) {
    c.session(unit, session);
    c.what = rg_name(rgnum);
    c.require(sim::kRightStorage);
    sim::delete_raid_group(c.db, rgnum);
  });
}

int KX_RaidGroupAllDelete(const char* unit, const KXSessionInfoRec* session) {
  return sim::run(__func__, sim::kWrite, [&](sim::Call& c) {
    c.session(unit, session);
    c.what = "every RAID group";
    c.require(sim::kRightStorage);
    // All or nothing: a group that holds LUs refuses and the transaction
    // takes back the groups deleted before it.
    for (const auto& g : sim::raid_groups(c.db)) sim::delete_raid_group(c.db, g.number);
  });
}

int KX_CreateRaidGroup(const char* unit, const KXSessionInfoRec* session, const CreateRaidGroupRec* create) {
  return sim::run(__func__, sim::kWrite, [&](sim::Call& c) {
    c.session(unit, session);
    const CreateRaidGroupRec& r = sim::in(create, "RAID group to create");
    c.what = rg_name(r.rgnum);
    c.require(sim::kRightStorage);
    auto g = sim::create_raid_group(c.db, spec_of(r));
    c.what = rg_name(g.number);
  });
}

int KX_GetRaidGroupInformation(const char* unit, const KXSessionInfoRec* session, RaidGroupInformationRec* info) {
  return sim::run(__func__, sim::kRead, [&](sim::Call& c) {
    c.session(unit, session);
    auto& out = sim::out(info, "RAID group information");
    auto all = sim::raid_groups(c.db);
    out.rg_count = static_cast<int32_t>(all.size());
    for (size_t k = 0; k < all.size() && k < PERNIX_RAID_GROUPS; ++k) fill_detail(out.rg[k], all[k]);
    // Each drive of a group names the next one of its chain; the last names -1/-1.
    auto s = c.db.sql(
        "SELECT d.enclosure, d.slot, d.rg_pos / g.per_group, "
        "lead(d.enclosure, 1, -1) OVER w, lead(d.slot, 1, -1) OVER w "
        "FROM drives d JOIN raid_groups g ON g.number=d.rg WINDOW w AS (PARTITION BY d.rg ORDER BY d.rg_pos)");
    while (s.step()) {
      int e = s.i(0), sl = s.i(1);
      if (e < 0 || e >= PERNIX_RG_DRIVE_ROWS || sl < 0 || sl >= PERNIX_RG_DRIVE_COLUMNS) continue;
      RgDriveInfoRec& d = out.rgdrv[e][sl];
      d.valid_index = 1;
      d.paritygroup_no = s.i(2);
      d.next_unit_no = s.i(3);
      d.next_hdu_no = s.i(4);
    }
  });
}

int KX_GetRGAreaInformation(const char* unit, const KXSessionInfoRec* session, int rgnum, RGAreaInformationRec* area) {
  return sim::run(__func__, sim::kRead, [&](sim::Call& c) {
    c.session(unit, session);
    auto& out = sim::out(area, "area information");
    auto areas = sim::rg_areas(c.db, rgnum);
    out.rgnum = rgnum;
    int64_t largest = 0;
    int n = 0;
    for (const auto& a : areas) {
      if (a.lun < 0) largest = std::max(largest, a.size);
      if (n >= PERNIX_RG_AREAS) continue;  // 4096 LUs leave at most 4097 gaps: never reached
      AreaInfoRec& r = out.area[n++];
      r.areakind = a.lun < 0 ? 0 : 1;
      r.lun = a.lun;
      r.befor_lun = a.before;
      r.area_capa_h = sim::hi_word(a.size);
      r.area_capa_l = sim::lo_word(a.size);
    }
    out.area_count = n;
    out.lumaxcapa = clamp_int(largest);
  });
}

int KX_GetRaidGroupCreationCapacity(const char* unit, const KXSessionInfoRec* session,
                                    const CreateRaidGroupRec* create, RgDetailRec* detail) {
  return sim::run(__func__, sim::kRead, [&](sim::Call& c) {
    c.session(unit, session);
    const CreateRaidGroupRec& r = sim::in(create, "RAID group to plan");
    auto& out = sim::out(detail, "detail");
    fill_detail(out, sim::plan_raid_group(c.db, spec_of(r)));
  });
}

}  // extern "C"
