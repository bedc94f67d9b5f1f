// Host groups and LU mapping: the groups of each port, their connection
// options and the parameter catalogue they are chosen from, the mapping of
// host LU numbers to LUs, the mapping mode and the mapping guard.
//
// The ints a, b, c name controller (0, 1), port (0..3) and host group; d of
// KX_SetLuMappingList is the mode (0 replace, 1 add).  Slots of ports the
// array lacks and of host groups not made read back empty; a setter of a
// whole table refuses anything but empty there.
#include <algorithm>
#include <cstring>
#include <set>
#include <string>
#include <vector>

#include "host.h"
#include "sim/core/call.h"
#include "sim/core/text.h"
#include "sim/model/hosts.h"
#include "sim/model/model.h"
#include "sim/model/storage.h"

namespace {

using sim::fail;

std::string hg_name(int a, int b, int c) {
  return "host group " + std::to_string(a) + "/" + std::to_string(b) + "/" + std::to_string(c);
}

sim::HgOptions from_rec(const HGOptionInfoRec& r) {
  sim::HgOptions o;
  o.option = r.option;
  o.option2[0] = r.option2[0];
  o.option2[1] = r.option2[1];
  o.option3 = r.option3;
  o.platform = r.platform_id;
  o.altpath = r.alternate_path_id;
  o.failover = r.failover_id;
  o.special = r.special_mode_id;
  return o;
}

void to_rec(const sim::HgOptions& o, HGOptionInfoRec& r) {
  r.option = o.option;
  r.option2[0] = o.option2[0];
  r.option2[1] = o.option2[1];
  r.option3 = o.option3;
  r.platform_id = o.platform;
  r.alternate_path_id = o.altpath;
  r.failover_id = o.failover;
  r.special_mode_id = o.special;
}

bool zero(const void* p, size_t n) {
  auto b = static_cast<const uint8_t*>(p);
  for (size_t i = 0; i < n; ++i)
    if (b[i]) return false;
  return true;
}

void fill_index(HGOptionValidIndexRec& v) {
  v.option_valid_index = sim::kOptionMask;
  v.option2_valid_index[0] = v.option2_valid_index[1] = sim::kOptionMask;
  v.option3_valid_index = sim::kOptionMask;
}

// Merges the bits `mask` selects from `in` into `old`.
int32_t merge(int32_t old, int32_t in, int32_t mask) { return (old & ~mask) | (in & mask); }

// One byte per host group, 0 or 1; the selected groups.  Nothing selected is
// kBadParameter.
template <class List>
std::vector<std::array<int, 3>> selected(const List& l, const char* what) {
  std::vector<std::array<int, 3>> v;
  for (int a = 0; a < sim::kHostCtls; ++a)
    for (int b = 0; b < sim::kHostPorts; ++b)
      for (int c = 0; c < sim::kHostGroups; ++c) {
        uint8_t f = l.ctl[a].port[b].hg[c];
        if (f > 1) fail(sim::kBadParameter, std::string(what) + ": flag of " + hg_name(a, b, c) + " is not 0 or 1");
        if (f) v.push_back({a, b, c});
      }
  if (v.empty()) fail(sim::kBadParameter, std::string(what) + ": no host group selected");
  return v;
}

}  // namespace

extern "C" {

int KX_GetHGList(const char* unit, const KXSessionInfoRec* session, HGListRec* list) {
  return sim::run(__func__, sim::kRead, [&](sim::Call& c) {
    c.session(unit, session);
    auto& l = sim::out(list, "host-group list");
    l.lun_manage = static_cast<uint8_t>(sim::mapping_mode(c.db));
    for (int a = 0; a < sim::kHostCtls; ++a)
      for (int b = 0; b < sim::kHostPorts; ++b)
        if (sim::port_exists(c.db, a, b)) l.ctl[a].port[b].security = static_cast<uint8_t>(sim::fc_port(c.db, a, b).security);
    for (const auto& g : sim::host_groups(c.db)) {
      if (g.number >= sim::kHostGroups) continue;
      auto& h = l.ctl[g.ctl].port[g.port].hg[g.number];
      h.valid = 1;
      sim::out_text(h.hgname, g.name);
    }
  });
}

int KX_CreateHG(const char* unit, const KXSessionInfoRec* session, int a, int b, int c_,
                const HGConfigRec* config) {
  return sim::run(__func__, sim::kWrite, [&](sim::Call& c) {
    c.what = hg_name(a, b, c_);
    c.session(unit, session, sim::kRightHosts);
    std::string name = sim::in_text(sim::in(config, "host-group config").hgname, "host-group name");
    int n = sim::create_hg(c.db, a, b, c_, name);
    c.what = hg_name(a, b, n) + " " + name;
  });
}

int KX_ChangeHG(const char* unit, const KXSessionInfoRec* session, int a, int b, int c_,
                const HGConfigRec* config) {
  return sim::run(__func__, sim::kWrite, [&](sim::Call& c) {
    c.what = hg_name(a, b, c_);
    c.session(unit, session, sim::kRightHosts);
    std::string name = sim::in_text(sim::in(config, "host-group config").hgname, "host-group name");
    sim::rename_hg(c.db, a, b, c_, name);
    c.what += " " + name;
  });
}

int KX_DeleteHGList(const char* unit, const KXSessionInfoRec* session, const DeleteHGListRec* list) {
  return sim::run(__func__, sim::kWrite, [&](sim::Call& c) {
    c.what = "host groups";
    c.session(unit, session, sim::kRightHosts);
    auto v = selected(sim::in(list, "host groups to delete"), "delete list");
    c.what = std::to_string(v.size()) + " host group(s)";
    for (const auto& g : v) sim::delete_hg(c.db, g[0], g[1], g[2]);
  });
}

int KX_InitHGList(const char* unit, const KXSessionInfoRec* session, const InitHGListRec* list) {
  return sim::run(__func__, sim::kWrite, [&](sim::Call& c) {
    c.what = "host groups";
    c.session(unit, session, sim::kRightHosts);
    auto v = selected(sim::in(list, "host groups to initialise"), "initialise list");
    c.what = std::to_string(v.size()) + " host group(s)";
    for (const auto& g : v) sim::init_hg(c.db, g[0], g[1], g[2]);
  });
}

int KX_GetHGOption(const char* unit, const KXSessionInfoRec* session, int a, int b, int c_,
                   HGOptionInfoRec* info) {
  return sim::run(__func__, sim::kRead, [&](sim::Call& c) {
    c.session(unit, session);
    auto g = sim::need_hg(c.db, a, b, c_);
    to_rec(g.opt, sim::out(info, "host-group options"));
  });
}

int KX_SetHGOption(const char* unit, const KXSessionInfoRec* session, int a, int b, int c_,
                   const HGOptionInfoRec* info) {
  return sim::run(__func__, sim::kWrite, [&](sim::Call& c) {
    c.what = "options of " + hg_name(a, b, c_);
    c.session(unit, session, sim::kRightHosts);
    sim::need_hg(c.db, a, b, c_);
    auto o = from_rec(sim::in(info, "host-group options"));
    sim::check_hg_options(o);
    sim::set_hg_options(c.db, a, b, c_, o);
  });
}

int KX_GetHGOptionAll(const char* unit, const KXSessionInfoRec* session, HGOptionRec* option) {
  return sim::run(__func__, sim::kRead, [&](sim::Call& c) {
    c.session(unit, session);
    auto& r = sim::out(option, "host-group options");
    fill_index(r.support_index);
    fill_index(r.valid_index);
    r.HostGroupValid = 1;
    for (int a = 0; a < sim::kHostCtls; ++a)
      for (int b = 0; b < sim::kHostPorts; ++b) {
        if (!sim::port_exists(c.db, a, b)) continue;
        auto& p = r.ctl[a].port[b];
        p.security = static_cast<uint8_t>(sim::fc_port(c.db, a, b).security);
        p.hg_tg_max_count = sim::kHostGroups;
      }
    for (const auto& g : sim::host_groups(c.db)) to_rec(g.opt, r.ctl[g.ctl].port[g.port].hg[g.number]);
  });
}

int KX_SetHGOptionAll(const char* unit, const KXSessionInfoRec* session, const HGOptionRec* option) {
  return sim::run(__func__, sim::kWrite, [&](sim::Call& c) {
    c.what = "options of every host group";
    c.session(unit, session, sim::kRightHosts);
    const auto& r = sim::in(option, "host-group options");
    const auto& m = r.valid_index;
    for (int32_t v : {m.option_valid_index, m.option2_valid_index[0], m.option2_valid_index[1], m.option3_valid_index})
      if (v & ~sim::kOptionMask) fail(sim::kBadParameter, "valid_index selects bits outside 0..7");
    // Check everything first: all or nothing.
    std::vector<std::pair<sim::HostGroup, sim::HgOptions>> todo;
    for (int a = 0; a < sim::kHostCtls; ++a)
      for (int b = 0; b < sim::kHostPorts; ++b) {
        const auto& p = r.ctl[a].port[b];
        bool exists = sim::port_exists(c.db, a, b);
        if (p.security > 1) fail(sim::kBadParameter, "security of port " + std::to_string(a) + "/" + std::to_string(b) + " is not 0 or 1");
        for (int h = 0; h < sim::kHostGroupSlots; ++h) {
          const auto& in = p.hg[h];
          auto g = exists && h < sim::kHostGroups ? sim::find_hg(c.db, a, b, h) : std::nullopt;
          if (!g) {
            if (!zero(&in, sizeof in)) fail(sim::kNoSuchObject, "options given for " + hg_name(a, b, h) + ", which is not made");
            continue;
          }
          sim::HgOptions o = from_rec(in);
          o.option = merge(g->opt.option, in.option, m.option_valid_index);
          o.option2[0] = merge(g->opt.option2[0], in.option2[0], m.option2_valid_index[0]);
          o.option2[1] = merge(g->opt.option2[1], in.option2[1], m.option2_valid_index[1]);
          o.option3 = merge(g->opt.option3, in.option3, m.option3_valid_index);
          sim::check_hg_options(o);
          todo.emplace_back(*g, o);
        }
      }
    for (int a = 0; a < sim::kHostCtls; ++a)
      for (int b = 0; b < sim::kHostPorts; ++b) {
        if (!sim::port_exists(c.db, a, b)) continue;
        auto fp = sim::fc_port(c.db, a, b);
        fp.security = r.ctl[a].port[b].security;
        sim::set_fc_port(c.db, a, b, fp);
      }
    for (const auto& [g, o] : todo) sim::set_hg_options(c.db, g.ctl, g.port, g.number, o);
  });
}

int KX_GetHGParameterID(const char* unit, const KXSessionInfoRec* session, int a, HGParameterIDRec* ids) {
  return sim::run(__func__, sim::kRead, [&](sim::Call& c) {
    c.session(unit, session);
    if (a != -1 && !std::any_of(sim::platforms().begin(), sim::platforms().end(),
                                [&](const sim::CatalogueEntry& e) { return e.id == a; }))
      fail(sim::kNoSuchObject, "no platform " + std::to_string(a));
    auto& r = sim::out(ids, "host-group parameter ids");
    int n = 0;
    for (const auto& e : sim::platforms()) {
      if (a != -1 && e.id != a) continue;
      r.platform[n].platform_id = e.id;
      sim::out_text(r.platform[n++].platform_name, e.name);
    }
    r.plat_id_count = n;
    n = 0;
    for (const auto& e : sim::alternate_paths()) {
      if (a != -1 && !sim::platform_admits(a, e.id)) continue;
      r.alternatepath[n].alternate_path_id = e.id;
      sim::out_text(r.alternatepath[n++].alternate_path_name, e.name);
    }
    r.altpath_id_count = n;
    n = 0;
    for (const auto& e : sim::failovers()) {
      r.failover[n].failover_id = e.id;
      sim::out_text(r.failover[n++].failover_name, e.name);
    }
    r.fail_id_count = n;
    n = 0;
    for (const auto& e : sim::special_modes()) {
      r.specialmode[n].specialmode_id = e.id;
      sim::out_text(r.specialmode[n++].specialmode_name, e.name);
    }
    r.special_id_count = n;
  });
}

int KX_GetHGParameterList(const char* unit, const KXSessionInfoRec* session, HGParameterListRec* list) {
  return sim::run(__func__, sim::kRead, [&](sim::Call& c) {
    c.session(unit, session);
    auto& r = sim::out(list, "host-group parameter list");
    int np = 0;
    for (const auto& p : sim::platforms()) {
      auto& pi = r.platinfo[np++];
      pi.platform_id = p.id;
      int na = 0;
      for (const auto& ap : sim::alternate_paths()) {
        if (!sim::platform_admits(p.id, ap.id)) continue;
        auto& ai = pi.altpathinfo[na++];
        ai.alternate_path_id = ap.id;
        int nf = 0;
        for (const auto& f : sim::failovers()) {
          auto& fi = ai.failinfo[nf++];
          fi.failover_id = f.id;
          to_rec(sim::combination_options(p.id, ap.id, f.id), fi.hgoptinfo);
        }
        ai.failover_count = nf;
      }
      pi.alternate_path_count = na;
    }
    r.platform_count = np;
    int ns = 0;
    for (const auto& s : sim::special_modes()) {
      auto& si = r.specialinfo[ns++];
      si.specialmode_id = s.id;
      to_rec(sim::special_mode_options(s.id), si.hgoptinfo);
    }
    r.special_mode_count = ns;
  });
}

int KX_GetLuMappingListAll(const char* unit, const KXSessionInfoRec* session, LuMappingRec* map) {
  return sim::run(__func__, sim::kRead, [&](sim::Call& c) {
    c.session(unit, session);
    auto& r = sim::out(map, "LU mapping");
    r.HostGroupValid = 1;
    r.ctrl_flag = 3;
    r.mapping_mode = sim::mapping_mode(c.db);
    for (int a = 0; a < sim::kHostCtls; ++a)
      for (int b = 0; b < sim::kHostPorts; ++b) {
        auto& p = r.ctl[a].port[b];
        for (auto& h : p.hg) std::fill(std::begin(h.lu), std::end(h.lu), -1);
        if (!sim::port_exists(c.db, a, b)) continue;
        p.security = static_cast<uint8_t>(sim::fc_port(c.db, a, b).security);
        p.hg_tg_max_count = sim::kHostGroups;
      }
    auto s = c.db.sql("SELECT ctl, port, hg, hlun, lun FROM hg_map");
    while (s.step()) {
      int a = s.i(0), b = s.i(1), h = s.i(2), hl = s.i(3);
      if (a < 0 || a >= sim::kHostCtls || b < 0 || b >= sim::kHostPorts || h < 0 || h >= sim::kHostGroupSlots ||
          hl < 0 || hl >= sim::kHostLuns)
        continue;
      r.ctl[a].port[b].hg[h].lu[hl] = s.i(4);
    }
  });
}

int KX_SetLuMappingListAll(const char* unit, const KXSessionInfoRec* session, const LuMappingRec* map) {
  return sim::run(__func__, sim::kWrite, [&](sim::Call& c) {
    c.what = "LU mapping of every host group";
    c.session(unit, session, sim::kRightHosts);
    const auto& r = sim::in(map, "LU mapping");
    auto empty = [](const LuMappingHGInfoRec& h) {
      bool none = true, zeros = true;
      for (int v : h.lu) {
        none = none && v == -1;
        zeros = zeros && v == 0;
      }
      return none || zeros;
    };
    std::set<std::array<int, 3>> made;
    for (const auto& g : sim::host_groups(c.db)) made.insert({g.ctl, g.port, g.number});
    std::vector<std::pair<std::array<int, 3>, std::array<int, sim::kHostLuns>>> todo;
    for (int a = 0; a < sim::kHostCtls; ++a)
      for (int b = 0; b < sim::kHostPorts; ++b) {
        const auto& p = r.ctl[a].port[b];
        bool exists = sim::port_exists(c.db, a, b);
        if (p.security > 1) fail(sim::kBadParameter, "security of port " + std::to_string(a) + "/" + std::to_string(b) + " is not 0 or 1");
        for (int h = 0; h < sim::kHostGroupSlots; ++h) {
          if (!exists || !made.count({a, b, h})) {
            if (!empty(p.hg[h])) fail(sim::kNoSuchObject, "mapping given for " + hg_name(a, b, h) + ", which is not made");
            continue;
          }
          std::array<int, sim::kHostLuns> lu;
          std::copy(std::begin(p.hg[h].lu), std::end(p.hg[h].lu), lu.begin());
          todo.push_back({{a, b, h}, lu});
        }
      }
    // Unmap first, so an LU may move between groups in one call.
    std::array<int, sim::kHostLuns> none;
    none.fill(-1);
    for (const auto& [g, lu] : todo) {
      auto old = sim::hg_mapping(c.db, g[0], g[1], g[2]);
      std::array<int, sim::kHostLuns> kept = old;
      for (int h = 0; h < sim::kHostLuns; ++h)
        if (old[static_cast<size_t>(h)] != lu[static_cast<size_t>(h)]) kept[static_cast<size_t>(h)] = -1;
      sim::set_hg_mapping(c.db, g[0], g[1], g[2], kept);
    }
    for (const auto& [g, lu] : todo) sim::set_hg_mapping(c.db, g[0], g[1], g[2], lu);
    for (int a = 0; a < sim::kHostCtls; ++a)
      for (int b = 0; b < sim::kHostPorts; ++b) {
        if (!sim::port_exists(c.db, a, b)) continue;
        auto fp = sim::fc_port(c.db, a, b);
        fp.security = r.ctl[a].port[b].security;
        sim::set_fc_port(c.db, a, b, fp);
      }
  });
}

int KX_GetLuMappingList(const char* unit, const KXSessionInfoRec* session, int a, int b, int c_, int* count,
                        LuMappingHGInfoRec* lu) {
  return sim::run(__func__, sim::kRead, [&](sim::Call& c) {
    c.session(unit, session);
    sim::need_hg(c.db, a, b, c_);
    if (!count) fail(sim::kBadParameter, "count: null");
    auto& r = sim::out(lu, "LU mapping of a host group");
    auto m = sim::hg_mapping(c.db, a, b, c_);
    int n = 0;
    for (int h = 0; h < sim::kHostLuns; ++h) {
      r.lu[h] = m[static_cast<size_t>(h)];
      if (r.lu[h] >= 0) ++n;
    }
    *count = n;
  });
}

int KX_SetLuMappingList(const char* unit, const KXSessionInfoRec* session, int a, int b, int c_, int d,
                        const LuMappingHGInfoRec* lu) {
  return sim::run(__func__, sim::kWrite, [&](sim::Call& c) {
    c.what = "LU mapping of " + hg_name(a, b, c_);
    c.session(unit, session, sim::kRightHosts);
    sim::need_hg(c.db, a, b, c_);
    if (d != 0 && d != 1) fail(sim::kBadParameter, "mode " + std::to_string(d) + " is not 0 (replace) or 1 (add)");
    const auto& in = sim::in(lu, "LU mapping");
    std::array<int, sim::kHostLuns> next;
    std::copy(std::begin(in.lu), std::end(in.lu), next.begin());
    if (d == 1) {
      auto old = sim::hg_mapping(c.db, a, b, c_);
      for (int h = 0; h < sim::kHostLuns; ++h) {
        int add = next[static_cast<size_t>(h)], was = old[static_cast<size_t>(h)];
        if (add == -1) {
          next[static_cast<size_t>(h)] = was;
        } else if (was != -1) {
          fail(sim::kExists, "host LU " + std::to_string(h) + " of " + hg_name(a, b, c_) + " is mapped to LU " + std::to_string(was));
        }
      }
    }
    sim::set_hg_mapping(c.db, a, b, c_, next);
  });
}

int KX_ChangeMappingMode(const char* unit, const KXSessionInfoRec* session, int mode) {
  return sim::run(__func__, sim::kWrite, [&](sim::Call& c) {
    c.what = "mapping mode " + std::to_string(mode);
    c.session(unit, session, sim::kRightHosts);
    sim::set_mapping_mode(c.db, mode);
  });
}

int KX_GetMappingGuardList(const char* unit, const KXSessionInfoRec* session, MappingGuardListRec* guard) {
  return sim::run(__func__, sim::kRead, [&](sim::Call& c) {
    c.session(unit, session);
    auto& r = sim::out(guard, "mapping guard");
    auto g = sim::mapping_guard(c.db);
    std::memcpy(r.lumap_guard, g.data(), sizeof r.lumap_guard);
  });
}

int KX_SetMappingGuardList(const char* unit, const KXSessionInfoRec* session, const MappingGuardListRec* guard) {
  return sim::run(__func__, sim::kWrite, [&](sim::Call& c) {
    c.what = "mapping guard";
    c.session(unit, session, sim::kRightHosts);
    const auto& r = sim::in(guard, "mapping guard");
    sim::set_mapping_guard(c.db, std::vector<uint8_t>(std::begin(r.lumap_guard), std::end(r.lumap_guard)));
  });
}

}  // extern "C"
