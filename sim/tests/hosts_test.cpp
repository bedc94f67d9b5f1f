// Host groups, LU mapping, Fibre Channel ports, WWN tables, port options,
// target IDs, the two file imports and the LU guard, called straight into
// the library.
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <fstream>
#include <memory>
#include <string>
#include <vector>

#include "account.h"
#include "host.h"
#include "raid.h"
#include "session_support.h"

using namespace t;

namespace {

KXSessionInfoRec S;

void fresh(const char* name) {
  fresh_db(name);
  S = admin();
  if (unit_login(kAdmin, kAdminPassword) != 0) std::abort();
}

template <class T>
std::unique_ptr<T> rec() {
  return std::make_unique<T>();  // value-initialised: zero
}

int create(int a, int b, int c, const char* name) {
  HGConfigRec cfg{};
  put(cfg.hgname, name);
  return KX_CreateHG(kUnit, &S, a, b, c, &cfg);
}

std::unique_ptr<HGListRec> hg_list() {
  auto l = rec<HGListRec>();
  CHECK_EQ(KX_GetHGList(kUnit, &S, l.get()), 0);
  return l;
}

int map_one(int a, int b, int c, int hlun, int lun, int mode = 1) {
  LuMappingHGInfoRec m;
  std::fill(std::begin(m.lu), std::end(m.lu), -1);
  m.lu[hlun] = lun;
  return KX_SetLuMappingList(kUnit, &S, a, b, c, mode, &m);
}

int mapped_count(int a, int b, int c, LuMappingHGInfoRec* out = nullptr) {
  LuMappingHGInfoRec m{};
  int n = -5;
  CHECK_EQ(KX_GetLuMappingList(kUnit, &S, a, b, c, &n, &m), 0);
  if (out) *out = m;
  return n;
}

void write(const std::string& path, const std::string& text) {
  std::ofstream f(path, std::ios::binary);
  f << text;
}

std::string file(const char* name) { return dir().path + "/" + name; }

// ---- host groups

void host_group_cases() {
  fresh("groups");
  auto l = hg_list();
  for (int a = 0; a < 2; ++a)
    for (int b = 0; b < 4; ++b) {
      CHECK_EQ(int(l->ctl[a].port[b].hg[0].valid), 1);
      CHECK_EQ(std::string(l->ctl[a].port[b].hg[0].hgname), std::string("default"));
      CHECK_EQ(int(l->ctl[a].port[b].hg[1].valid), 0);
    }
  CHECK_EQ(int(l->lun_manage), 1);

  CHECK_EQ(create(0, 1, -1, "web"), 0);  // the lowest free number: 1
  CHECK_EQ(create(0, 1, 5, "db"), 0);
  CHECK_EQ(create(0, 1, 5, "other"), kExists);   // number taken
  CHECK_EQ(create(0, 1, 7, "web"), kExists);     // name taken on that port
  CHECK_EQ(create(0, 2, 7, "web"), 0);           // another port may use it
  CHECK_EQ(create(0, 1, 128, "x"), kBadParameter);
  CHECK_EQ(create(2, 0, 1, "x"), kBadParameter);
  CHECK_EQ(create(0, 1, 9, ""), kBadParameter);
  HGConfigRec full;
  std::memset(full.hgname, 'a', sizeof full.hgname);  // no NUL within the field
  CHECK_EQ(KX_CreateHG(kUnit, &S, 0, 1, 9, &full), kBadParameter);
  l = hg_list();
  CHECK_EQ(std::string(l->ctl[0].port[1].hg[1].hgname), std::string("web"));
  CHECK_EQ(std::string(l->ctl[0].port[1].hg[5].hgname), std::string("db"));
  CHECK_EQ(int(l->ctl[0].port[1].hg[9].valid), 0);

  HGConfigRec cfg{};
  put(cfg.hgname, "database");
  CHECK_EQ(KX_ChangeHG(kUnit, &S, 0, 1, 5, &cfg), 0);
  CHECK_EQ(KX_ChangeHG(kUnit, &S, 0, 1, 6, &cfg), kNoSuchObject);
  put(cfg.hgname, "web");
  CHECK_EQ(KX_ChangeHG(kUnit, &S, 0, 1, 5, &cfg), kExists);
  CHECK_EQ(std::string(hg_list()->ctl[0].port[1].hg[5].hgname), std::string("database"));

  // Deleting is all or nothing; group 0 stays; nothing selected is refused.
  DeleteHGListRec del{};
  CHECK_EQ(KX_DeleteHGList(kUnit, &S, &del), kBadParameter);
  del.ctl[0].port[1].hg[1] = 1;
  del.ctl[0].port[1].hg[6] = 1;  // not made
  CHECK_EQ(KX_DeleteHGList(kUnit, &S, &del), kNoSuchObject);
  CHECK_EQ(int(hg_list()->ctl[0].port[1].hg[1].valid), 1);
  del.ctl[0].port[1].hg[6] = 0;
  del.ctl[0].port[1].hg[0] = 1;
  CHECK_EQ(KX_DeleteHGList(kUnit, &S, &del), kBusy);
  del.ctl[0].port[1].hg[0] = 0;
  del.ctl[0].port[1].hg[5] = 2;
  CHECK_EQ(KX_DeleteHGList(kUnit, &S, &del), kBadParameter);
  del.ctl[0].port[1].hg[5] = 1;
  CHECK_EQ(KX_DeleteHGList(kUnit, &S, &del), 0);
  l = hg_list();
  CHECK_EQ(int(l->ctl[0].port[1].hg[1].valid), 0);
  CHECK_EQ(int(l->ctl[0].port[1].hg[5].valid), 0);

  // A monitor reads but does not change.
  CHECK_EQ(create_account(S, "watcher", "watcher-pw-1", 2), 0);
  KXSessionInfoRec m{};
  CHECK_EQ(login("watcher", "watcher-pw-1", &m), 0);
  HGConfigRec w{};
  put(w.hgname, "nope");
  CHECK_EQ(KX_CreateHG(kUnit, &m, 0, 0, 3, &w), kPermission);
  auto l2 = rec<HGListRec>();
  CHECK_EQ(KX_GetHGList(kUnit, &m, l2.get()), 0);
}

void absent_port_cases() {
  setenv("PERNIX_SIM_PORTS", "2", 1);
  fresh("two-ports");
  unsetenv("PERNIX_SIM_PORTS");
  CHECK_EQ(create(1, 2, 1, "x"), kNoSuchObject);
  auto l = hg_list();
  CHECK_EQ(int(l->ctl[1].port[1].hg[0].valid), 1);
  CHECK_EQ(int(l->ctl[1].port[2].hg[0].valid), 0);
  auto f = std::make_unique<FibreInformationRec[]>(2);
  CHECK_EQ(KX_GetFibreInformation(kUnit, &S, &f[0], &f[1]), 0);
  CHECK_EQ(f[0].port_valid, 3);
  // Options for a group on a missing port are refused; empty slots are fine.
  auto o = rec<HGOptionRec>();
  CHECK_EQ(KX_GetHGOptionAll(kUnit, &S, o.get()), 0);
  CHECK_EQ(KX_SetHGOptionAll(kUnit, &S, o.get()), 0);
  o->ctl[0].port[3].hg[0].platform_id = 1;
  CHECK_EQ(KX_SetHGOptionAll(kUnit, &S, o.get()), kNoSuchObject);
}

// ---- options and the catalogue

void option_cases() {
  fresh("options");
  CHECK_EQ(create(1, 0, 2, "linux"), 0);
  HGOptionInfoRec o{};
  CHECK_EQ(KX_GetHGOption(kUnit, &S, 1, 0, 2, &o), 0);
  CHECK_EQ(o.platform_id, 0);
  o.platform_id = 1;
  o.alternate_path_id = 3;
  o.failover_id = 1;
  o.special_mode_id = 2;
  o.option = 0x81;
  o.option3 = 0x02;
  CHECK_EQ(KX_SetHGOption(kUnit, &S, 1, 0, 2, &o), 0);
  HGOptionInfoRec back{};
  CHECK_EQ(KX_GetHGOption(kUnit, &S, 1, 0, 2, &back), 0);
  CHECK(std::memcmp(&o, &back, sizeof o) == 0);

  HGOptionInfoRec bad = o;
  bad.platform_id = 2;  // Windows does not take the volume manager's paths
  CHECK_EQ(KX_SetHGOption(kUnit, &S, 1, 0, 2, &bad), kBadParameter);
  bad = o;
  bad.special_mode_id = 99;
  CHECK_EQ(KX_SetHGOption(kUnit, &S, 1, 0, 2, &bad), kBadParameter);
  bad = o;
  bad.option2[1] = 0x100;
  CHECK_EQ(KX_SetHGOption(kUnit, &S, 1, 0, 2, &bad), kBadParameter);
  CHECK_EQ(KX_SetHGOption(kUnit, &S, 1, 0, 3, &o), kNoSuchObject);

  auto ids = rec<HGParameterIDRec>();
  CHECK_EQ(KX_GetHGParameterID(kUnit, &S, -1, ids.get()), 0);
  CHECK_EQ(ids->plat_id_count, 7);
  CHECK_EQ(ids->altpath_id_count, 4);
  CHECK_EQ(ids->fail_id_count, 3);
  CHECK_EQ(ids->special_id_count, 5);
  CHECK_EQ(std::string(ids->platform[1].platform_name), std::string("Linux"));
  CHECK_EQ(KX_GetHGParameterID(kUnit, &S, 2, ids.get()), 0);
  CHECK_EQ(ids->plat_id_count, 1);
  CHECK_EQ(ids->platform[0].platform_id, 2);
  CHECK_EQ(ids->altpath_id_count, 3);
  CHECK_EQ(KX_GetHGParameterID(kUnit, &S, 42, ids.get()), kNoSuchObject);

  // Every combination the list offers is accepted by the setter, and its ids
  // are those of the entry.
  auto list = rec<HGParameterListRec>();
  CHECK_EQ(KX_GetHGParameterList(kUnit, &S, list.get()), 0);
  CHECK_EQ(list->platform_count, 7);
  int combos = 0;
  for (int p = 0; p < list->platform_count; ++p) {
    const auto& pi = list->platinfo[p];
    for (int a = 0; a < pi.alternate_path_count; ++a)
      for (int f = 0; f < pi.altpathinfo[a].failover_count; ++f) {
        const auto& fi = pi.altpathinfo[a].failinfo[f];
        CHECK_EQ(fi.hgoptinfo.platform_id, pi.platform_id);
        CHECK_EQ(fi.hgoptinfo.alternate_path_id, pi.altpathinfo[a].alternate_path_id);
        CHECK_EQ(KX_SetHGOption(kUnit, &S, 1, 0, 2, &fi.hgoptinfo), 0);
        ++combos;
      }
  }
  CHECK_EQ(combos, (7 * 3 + 4) * 3);  // DMP on the four UNIX platforms only

  // The whole table: valid_index selects the bits that change.
  auto all = rec<HGOptionRec>();
  CHECK_EQ(KX_GetHGOptionAll(kUnit, &S, all.get()), 0);
  CHECK_EQ(all->HostGroupValid, 1);
  CHECK_EQ(all->ctl[1].port[0].hg_tg_max_count, 128);
  auto before = *all;
  CHECK_EQ(KX_SetHGOptionAll(kUnit, &S, all.get()), 0);
  auto again = rec<HGOptionRec>();
  CHECK_EQ(KX_GetHGOptionAll(kUnit, &S, again.get()), 0);
  CHECK(std::memcmp(&before, again.get(), sizeof before) == 0);
  all->valid_index = HGOptionValidIndexRec{0x01, {0, 0}, 0};
  all->ctl[0].port[0].hg[0].option = 0xff;
  all->ctl[0].port[0].hg[0].option3 = 0xff;  // not selected: unchanged
  CHECK_EQ(KX_SetHGOptionAll(kUnit, &S, all.get()), 0);
  CHECK_EQ(KX_GetHGOption(kUnit, &S, 0, 0, 0, &back), 0);
  CHECK_EQ(back.option, 0x01);
  CHECK_EQ(back.option3, 0);
  all->ctl[0].port[1].hg[3].platform_id = 1;  // group 3 is not made
  CHECK_EQ(KX_SetHGOptionAll(kUnit, &S, all.get()), kNoSuchObject);

  // Initialising a group resets its options and keeps its name.
  InitHGListRec init{};
  init.ctl[1].port[0].hg[2] = 1;
  CHECK_EQ(KX_InitHGList(kUnit, &S, &init), 0);
  CHECK_EQ(KX_GetHGOption(kUnit, &S, 1, 0, 2, &back), 0);
  CHECK_EQ(back.platform_id, 0);
  CHECK_EQ(back.option, 0);
  CHECK_EQ(std::string(hg_list()->ctl[1].port[0].hg[2].hgname), std::string("linux"));
}

// ---- LU mapping and the guard

void mapping_cases() {
  fresh("mapping");
  CHECK_EQ(create(0, 0, 1, "app"), 0);
  CHECK_EQ(map_one(0, 0, 1, 0, 0), 0);
  CHECK_EQ(map_one(0, 0, 1, 5, 3), 0);
  LuMappingHGInfoRec m{};
  CHECK_EQ(mapped_count(0, 0, 1, &m), 2);
  CHECK_EQ(m.lu[0], 0);
  CHECK_EQ(m.lu[5], 3);
  CHECK_EQ(m.lu[1], -1);
  CHECK_EQ(mapped_count(0, 0, 0), 0);

  CHECK_EQ(map_one(0, 0, 1, 7, 100), kNoSuchObject);  // no LU 100
  CHECK_EQ(map_one(0, 0, 1, 7, 3), kExists);          // LU 3 is there already
  CHECK_EQ(map_one(0, 0, 1, 5, 4), kExists);          // host LU 5 is taken
  CHECK_EQ(map_one(0, 0, 1, 7, 4, 2), kBadParameter);
  CHECK_EQ(map_one(0, 0, 2, 7, 4), kNoSuchObject);    // no group 2
  CHECK_EQ(mapped_count(0, 0, 1), 2);

  // One LU in several groups (two paths) is fine; a mapped LU stays.
  CHECK_EQ(map_one(1, 0, 0, 0, 3), 0);
  CHECK_EQ(KX_LogicalUnitDeleteByLUN(kUnit, &S, 3), kBusy);
  LuMappingHGInfoRec none;
  std::fill(std::begin(none.lu), std::end(none.lu), -1);
  CHECK_EQ(KX_SetLuMappingList(kUnit, &S, 1, 0, 0, 0, &none), 0);
  CHECK_EQ(KX_LogicalUnitDeleteByLUN(kUnit, &S, 3), kBusy);  // still in group 0/0/1

  // The guard fixes the mapping of its LUs.
  MappingGuardListRec g{};
  g.lumap_guard[0] = 1;
  CHECK_EQ(KX_SetMappingGuardList(kUnit, &S, &g), 0);
  MappingGuardListRec gb{};
  CHECK_EQ(KX_GetMappingGuardList(kUnit, &S, &gb), 0);
  CHECK(std::memcmp(&g, &gb, sizeof g) == 0);
  CHECK_EQ(KX_SetLuMappingList(kUnit, &S, 0, 0, 1, 0, &none), kBusy);
  CHECK_EQ(map_one(0, 0, 0, 9, 0), kBusy);
  DeleteHGListRec del{};
  del.ctl[0].port[0].hg[1] = 1;
  CHECK_EQ(KX_DeleteHGList(kUnit, &S, &del), kBusy);
  g.lumap_guard[4000] = 1;  // not made
  CHECK_EQ(KX_SetMappingGuardList(kUnit, &S, &g), kNoSuchObject);
  g.lumap_guard[4000] = 0;
  g.lumap_guard[1] = 2;
  CHECK_EQ(KX_SetMappingGuardList(kUnit, &S, &g), kBadParameter);
  std::memset(&g, 0, sizeof g);
  CHECK_EQ(KX_SetMappingGuardList(kUnit, &S, &g), 0);

  // Deleting the group releases its LUs.
  CHECK_EQ(KX_DeleteHGList(kUnit, &S, &del), 0);
  CHECK_EQ(KX_LogicalUnitDeleteByLUN(kUnit, &S, 3), 0);

  // The whole table: read back as set; an LU moves between groups in one call.
  CHECK_EQ(create(0, 0, 1, "a"), 0);
  CHECK_EQ(create(0, 0, 2, "b"), 0);
  CHECK_EQ(map_one(0, 0, 1, 0, 5), 0);
  auto all = rec<LuMappingRec>();
  CHECK_EQ(KX_GetLuMappingListAll(kUnit, &S, all.get()), 0);
  CHECK_EQ(all->mapping_mode, 1);
  CHECK_EQ(all->ctl[0].port[0].hg[1].lu[0], 5);
  CHECK_EQ(all->ctl[0].port[0].hg[9].lu[0], -1);
  all->ctl[0].port[0].hg[1].lu[0] = -1;
  all->ctl[0].port[0].hg[2].lu[3] = 5;
  all->ctl[1].port[3].hg[0].lu[255] = 6;
  CHECK_EQ(KX_SetLuMappingListAll(kUnit, &S, all.get()), 0);
  auto back = rec<LuMappingRec>();
  CHECK_EQ(KX_GetLuMappingListAll(kUnit, &S, back.get()), 0);
  CHECK(std::memcmp(all.get(), back.get(), sizeof(LuMappingRec)) == 0);
  all->ctl[0].port[0].hg[7].lu[0] = 1;  // group 7 is not made
  CHECK_EQ(KX_SetLuMappingListAll(kUnit, &S, all.get()), kNoSuchObject);
  all->ctl[0].port[0].hg[7].lu[0] = -1;
  all->ctl[0].port[0].hg[2].lu[4] = 5;  // twice in one group
  CHECK_EQ(KX_SetLuMappingListAll(kUnit, &S, all.get()), kExists);
  CHECK_EQ(KX_GetLuMappingListAll(kUnit, &S, all.get()), 0);
  CHECK(std::memcmp(all.get(), back.get(), sizeof(LuMappingRec)) == 0);

  CHECK_EQ(KX_ChangeMappingMode(kUnit, &S, 0), 0);
  CHECK_EQ(KX_ChangeMappingMode(kUnit, &S, 2), kBadParameter);
  CHECK_EQ(int(hg_list()->lun_manage), 0);
  CHECK_EQ(KX_GetLuMappingListAll(kUnit, &S, all.get()), 0);
  CHECK_EQ(all->mapping_mode, 0);
  CHECK_EQ(KX_GetLuMappingList(kUnit, &S, 0, 0, 2, nullptr, &none), kBadParameter);
}

// ---- Fibre Channel

void fibre_cases() {
  fresh("fibre");
  auto f = std::make_unique<FibreInformationRec[]>(2);
  CHECK_EQ(KX_GetFibreInformation(kUnit, &S, &f[0], &f[1]), 0);
  CHECK_EQ(f[0].port_valid, 15);
  CHECK_EQ(f[1].port[2].refer_speed, 8);  // automatic, a host logged in
  CHECK_EQ(f[1].topology_ref[2], 1);
  CHECK_EQ(std::string(f[1].port[2].port_name).size(), 16u);
  CHECK(std::string(f[0].port[0].port_name) != std::string(f[1].port[0].port_name));
  CHECK_EQ(f[0].security[0].permission_count, 0);

  f[0].port[1].set_speed = 4;
  f[0].topology[1] = 2;
  f[1].security[3].access_guard = 1;
  f[1].security[3].security_chk_lv = 2;
  f[1].security[3].permission_count = 2;
  auto& p0 = f[1].security[3].permission[0];
  put(p0.port_name, "10000000c9a1b2c3");
  put(p0.node_name, "20000000C9A1B2C3");
  put(p0.n_port_id, "010203");
  p0.lun_security_bitmap[0] = 0x0f;
  auto& p1 = f[1].security[3].permission[1];
  put(p1.port_name, "10000000C9A1B2C4");
  p1.lun_security_bitmap[255] = 0x80;
  CHECK_EQ(KX_SetFibreInformation(kUnit, &S, &f[0], &f[1]), 0);
  auto g = std::make_unique<FibreInformationRec[]>(2);
  CHECK_EQ(KX_GetFibreInformation(kUnit, &S, &g[0], &g[1]), 0);
  CHECK_EQ(g[0].port[1].set_speed, 4);
  CHECK_EQ(g[0].port[1].refer_speed, 4);
  CHECK_EQ(g[0].topology[1], 2);
  CHECK_EQ(g[1].security[3].permission_count, 2);
  CHECK_EQ(std::string(g[1].security[3].permission[0].port_name), std::string("10000000C9A1B2C3"));
  // get, set, get: the same bytes
  CHECK_EQ(KX_SetFibreInformation(kUnit, &S, &g[0], &g[1]), 0);
  auto h = std::make_unique<FibreInformationRec[]>(2);
  CHECK_EQ(KX_GetFibreInformation(kUnit, &S, &h[0], &h[1]), 0);
  CHECK(std::memcmp(g.get(), h.get(), 2 * sizeof(FibreInformationRec)) == 0);

  // Refusals change nothing.
  auto bad = std::make_unique<FibreInformationRec[]>(2);
  std::memcpy(bad.get(), g.get(), 2 * sizeof(FibreInformationRec));
  bad[0].topology[0] = 1;
  bad[1].port[0].set_speed = 3;
  CHECK_EQ(KX_SetFibreInformation(kUnit, &S, &bad[0], &bad[1]), kBadParameter);
  bad[1].port[0].set_speed = 0;
  bad[1].security[3].permission_count = 129;
  CHECK_EQ(KX_SetFibreInformation(kUnit, &S, &bad[0], &bad[1]), kBadParameter);
  bad[1].security[3].permission_count = 2;
  put(bad[1].security[3].permission[1].port_name, "10000000C9A1B2C3");
  CHECK_EQ(KX_SetFibreInformation(kUnit, &S, &bad[0], &bad[1]), kExists);
  std::memset(bad[1].security[3].permission[1].port_name, '1', 17);
  CHECK_EQ(KX_SetFibreInformation(kUnit, &S, &bad[0], &bad[1]), kBadParameter);
  bad[1].lun_security = 1;
  CHECK_EQ(KX_SetFibreInformation(kUnit, &S, &bad[0], &bad[1]), kBadParameter);
  CHECK_EQ(KX_GetFibreInformation(kUnit, &S, &h[0], &h[1]), 0);
  CHECK(std::memcmp(g.get(), h.get(), 2 * sizeof(FibreInformationRec)) == 0);

  // The older table shows the same permissions; writing it back keeps the
  // N_Port IDs it has no room for.
  auto w = rec<WWNInformationRec>();
  CHECK_EQ(KX_GetWWNInformation(kUnit, w.get()), 0);
  CHECK_EQ(w->ctl[1].port[3].permission_count, 2);
  CHECK_EQ(w->ctl[1].port[3].lun_security, 1);
  CHECK_EQ(int(w->ctl[1].port[3].permission[0].lun_security_bitmap[0]), 0x0f);
  w->ctl[0].port[0].permission_count = 1;
  put(w->ctl[0].port[0].permission[0].port_name, "10000000C0000001");  // a seeded host
  CHECK_EQ(KX_SetWWNInformation(kUnit, w.get()), 0);
  CHECK_EQ(KX_GetFibreInformation(kUnit, &S, &h[0], &h[1]), 0);
  CHECK_EQ(std::string(h[1].security[3].permission[0].n_port_id), std::string("010203"));
  CHECK_EQ(std::string(h[0].security[0].permission[0].n_port_id), std::string("010101"));
  w->ctl[0].port[0].security_chk_lv = 3;
  CHECK_EQ(KX_SetWWNInformation(kUnit, w.get()), kBadParameter);
  CHECK_EQ(KX_ResetLogin(kUnit, 0), 0);
  CHECK_EQ(KX_GetWWNInformation(kUnit, w.get()), kNotLoggedIn);
}

void wwn_hg_cases() {
  fresh("wwn-hg");
  CHECK_EQ(create(0, 2, 1, "cluster"), 0);
  auto w = rec<WWNHGInformationRec>();
  CHECK_EQ(KX_GetWWNHGInformation(kUnit, &S, w.get()), 0);
  auto& port = w->ctl[0].port[2];
  CHECK_EQ(port.wwn_count, 2);  // the hosts logged in, not assigned
  CHECK_EQ(port.wwn[0].hg_number, -1);
  CHECK_EQ(int(port.wwn[0].hostflag), 1);
  std::string host = port.wwn[1].port_name;

  port.wwn[1].hg_number = 1;
  put(port.wwn[1].wname, "node-b");
  port.wwn[2] = port.wwn[1];
  put(port.wwn[2].port_name, "10000000AABBCCDD");  // not logged in
  put(port.wwn[2].wname, "spare");
  port.wwn_count = 3;
  port.security = 1;
  CHECK_EQ(KX_SetWWNHGInformation(kUnit, &S, w.get()), 0);
  auto back = rec<WWNHGInformationRec>();
  CHECK_EQ(KX_GetWWNHGInformation(kUnit, &S, back.get()), 0);
  auto& bp = back->ctl[0].port[2];
  CHECK_EQ(bp.wwn_count, 3);
  CHECK_EQ(std::string(bp.wwn[0].port_name), host);  // assigned ones first
  CHECK_EQ(bp.wwn[0].hg_number, 1);
  CHECK_EQ(std::string(bp.wwn[0].wname), std::string("node-b"));
  CHECK_EQ(int(bp.wwn[1].hostflag), 0);
  CHECK_EQ(bp.wwn[2].hg_number, -1);
  CHECK_EQ(int(bp.security), 1);
  CHECK_EQ(int(hg_list()->ctl[0].port[2].security), 1);
  CHECK_EQ(KX_SetWWNHGInformation(kUnit, &S, back.get()), 0);
  auto again = rec<WWNHGInformationRec>();
  CHECK_EQ(KX_GetWWNHGInformation(kUnit, &S, again.get()), 0);
  CHECK(std::memcmp(back.get(), again.get(), sizeof(WWNHGInformationRec)) == 0);

  back->ctl[0].port[2].wwn[1].hg_number = 4;  // no such group
  CHECK_EQ(KX_SetWWNHGInformation(kUnit, &S, back.get()), kNoSuchObject);
  back->ctl[0].port[2].wwn[1] = back->ctl[0].port[2].wwn[0];
  CHECK_EQ(KX_SetWWNHGInformation(kUnit, &S, back.get()), kExists);
  back->ctl[0].port[2].wwn_count = -1;
  CHECK_EQ(KX_SetWWNHGInformation(kUnit, &S, back.get()), kBadParameter);

  // Deleting the group drops its assignments.
  DeleteHGListRec del{};
  del.ctl[0].port[2].hg[1] = 1;
  CHECK_EQ(KX_DeleteHGList(kUnit, &S, &del), 0);
  CHECK_EQ(KX_GetWWNHGInformation(kUnit, &S, back.get()), 0);
  CHECK_EQ(back->ctl[0].port[2].wwn_count, 2);

  PortOptionRec o{};
  CHECK_EQ(KX_GetPortOption(kUnit, &S, &o), 0);
  CHECK_EQ(o.support_index.lip_mode_valid_index, 1);
  o.ctl[1].lip_mode[2] = 2;
  o.ctl[0].port_common_opt[3] = 0x21;
  CHECK_EQ(KX_SetPortOption(kUnit, &S, &o), 0);
  PortOptionRec ob{};
  CHECK_EQ(KX_GetPortOption(kUnit, &S, &ob), 0);
  CHECK(std::memcmp(&o, &ob, sizeof o) == 0);
  o.valid_index.lip_mode_valid_index = 0;
  o.ctl[1].lip_mode[2] = 0;  // not selected: kept
  o.ctl[0].port_common_opt[3] = 0x100;
  CHECK_EQ(KX_SetPortOption(kUnit, &S, &o), kBadParameter);
  o.ctl[0].port_common_opt[3] = 0;
  CHECK_EQ(KX_SetPortOption(kUnit, &S, &o), 0);
  CHECK_EQ(KX_GetPortOption(kUnit, &S, &ob), 0);
  CHECK_EQ(ob.ctl[1].lip_mode[2], 2);
  CHECK_EQ(ob.ctl[0].port_common_opt[3], 0);
}

// ---- target IDs and the imports

void target_cases() {
  fresh("targets");
  auto t = std::make_unique<TargetIdRec[]>(2);
  CHECK_EQ(KX_GetTargetId(kUnit, -1, &t[0], &t[1]), 0);
  CHECK_EQ(t[0].ctrl_flag, 1);
  CHECK_EQ(int(t[1].target_config[3].multi[0]), 255);

  TargetIdRec in = t[0];
  in.target_id_mode = 1;
  in.target_config[1].single = 9;
  in.target_config[1].multi[0] = 3;
  in.target_config[1].mapping[0].lun[7] = 1;
  in.target_config[2].single = 11;  // not selected
  CHECK_EQ(KX_SetTargetId(kUnit, 0, &in, 1), 0);
  CHECK_EQ(KX_GetTargetId(kUnit, -1, &t[0], &t[1]), 0);
  CHECK_EQ(t[0].target_id_mode, 1);
  CHECK_EQ(int(t[0].target_config[1].single), 9);
  CHECK_EQ(int(t[0].target_config[1].mapping[0].lun[7]), 1);
  CHECK_EQ(int(t[0].target_config[2].single), 0);
  CHECK_EQ(t[1].target_id_mode, 0);
  CHECK_EQ(KX_GetTargetId(kUnit, 1, &t[0], &t[1]), 0);  // one port only
  CHECK_EQ(int(t[0].target_config[1].single), 9);
  CHECK_EQ(int(t[0].target_config[0].multi[0]), 0);

  in.target_config[1].mapping[0].lun[100] = 1;  // no LU 100
  CHECK_EQ(KX_SetTargetId(kUnit, 0, &in, 1), kNoSuchObject);
  in.target_config[1].mapping[0].lun[100] = 0;
  in.target_config[1].single = -1;
  CHECK_EQ(KX_SetTargetId(kUnit, 0, &in, 1), kBadParameter);
  CHECK_EQ(KX_SetTargetId(kUnit, 2, &in, 1), kBadParameter);
  CHECK_EQ(KX_SetTargetId(kUnit, 0, &in, 4), kBadParameter);

  std::string good = file("targets.txt");
  write(good,
        "# two controllers\n"
        "pernix-sim target-id 1\n"
        "controller ctl=0 mode=1\n"
        "port ctl=0 port=0 single=5 multi=1,2,255\n"
        "target ctl=0 port=0 target=1 luns=0-2,6\n"
        "controller ctl=1 mode=0\n"
        "port ctl=1 port=3 single=127\n"
        "end\n");
  CHECK_EQ(KX_TargetIdImport(kUnit, good.c_str(), &t[0], &t[1]), 0);
  CHECK_EQ(t[0].target_id_mode, 1);
  CHECK_EQ(int(t[0].target_config[0].single), 5);
  CHECK_EQ(int(t[0].target_config[0].multi[1]), 2);
  CHECK_EQ(int(t[0].target_config[0].multi[3]), 255);
  CHECK_EQ(int(t[0].target_config[0].mapping[1].lun[2]), 1);
  CHECK_EQ(int(t[0].target_config[0].mapping[1].lun[3]), 0);
  CHECK_EQ(int(t[0].target_config[0].mapping[1].lun[6]), 1);
  CHECK_EQ(int(t[1].target_config[3].single), 127);
  auto m = std::make_unique<TargetIdRec[]>(2);
  CHECK_EQ(KX_GetTargetId(kUnit, -1, &m[0], &m[1]), 0);  // now the array's
  CHECK(std::memcmp(t.get(), m.get(), 2 * sizeof(TargetIdRec)) == 0);

  // A malformed or unfitting file changes nothing.
  const char* broken[] = {
      "pernix-sim target-id 2\ncontroller ctl=0 mode=0\nend\n",
      "pernix-sim target-id 1\ncontroller ctl=0 mode=0\n",
      "pernix-sim target-id 1\nport ctl=0 port=0 single=1\nend\n",
      "pernix-sim target-id 1\ncontroller ctl=0 mode=0\nport ctl=0 port=0 single=128\nend\n",
      "pernix-sim target-id 1\ncontroller ctl=0 mode=0\ntarget ctl=0 port=0 target=0 luns=5-3\nend\n",
      "pernix-sim target-id 1\ncontroller ctl=0 mode=0 mode=1\nend\n",
      "pernix-sim target-id 1\ncontroller ctl=0 mode=0\nport ctl=0 port=0 single=1 multi=1,2,3,4,5,6,7,8,9,10,11,12,13,14,15,16,17\nend\n",
      "pernix-sim target-id 1\nend\n",
  };
  std::string bad = file("bad-targets.txt");
  for (const char* text : broken) {
    write(bad, text);
    CHECK_EQ(KX_TargetIdImport(kUnit, bad.c_str(), &t[0], &t[1]), kBadFile);
  }
  write(bad, "pernix-sim target-id 1\ncontroller ctl=0 mode=0\ntarget ctl=0 port=0 target=0 luns=50\nend\n");
  CHECK_EQ(KX_TargetIdImport(kUnit, bad.c_str(), &t[0], &t[1]), kNoSuchObject);
  CHECK_EQ(KX_TargetIdImport(kUnit, file("missing.txt").c_str(), &t[0], &t[1]), kFileError);
  CHECK_EQ(KX_GetTargetId(kUnit, -1, &t[0], &t[1]), 0);
  CHECK(std::memcmp(t.get(), m.get(), 2 * sizeof(TargetIdRec)) == 0);

  // The wizard's import: one controller a file, nothing stored.
  std::string f1 = file("wz0.txt"), f2 = file("wz1.txt");
  write(f1, "pernix-sim target-id 1\ncontroller ctl=0 mode=0\nport ctl=0 port=1 single=3\nend\n");
  write(f2, "pernix-sim target-id 1\ncontroller ctl=1 mode=1\ntarget ctl=1 port=2 target=15 luns=100-127\nend\n");
  auto wz = std::make_unique<WZTargetIdRec[]>(2);
  CHECK_EQ(KX_WZTargetIdImport(kUnit, f1.c_str(), f2.c_str(), 0, &wz[0], &wz[1]), 0);
  CHECK_EQ(int(wz[0].target_config[1].single), 3);
  CHECK_EQ(wz[1].target_id_mode, 1);
  CHECK_EQ(int(wz[1].target_config[2].mapping[15].lun[127]), 1);
  CHECK_EQ(KX_WZTargetIdImport(kUnit, f1.c_str(), nullptr, 1, &wz[0], &wz[1]), 0);
  CHECK_EQ(wz[1].target_id_mode, 0);
  CHECK_EQ(KX_WZTargetIdImport(kUnit, f2.c_str(), f1.c_str(), 0, &wz[0], &wz[1]), kBadFile);
  CHECK_EQ(KX_WZTargetIdImport(kUnit, f1.c_str(), f2.c_str(), 2, &wz[0], &wz[1]), kBadParameter);
  CHECK_EQ(KX_GetTargetId(kUnit, -1, &t[0], &t[1]), 0);
  CHECK(std::memcmp(t.get(), m.get(), 2 * sizeof(TargetIdRec)) == 0);
}

void permission_import_cases() {
  fresh("permissions");
  std::string path = file("perms.txt");
  write(path,
        "pernix-sim wwn-permissions 1\n"
        "permission ctl=0 port=1 wwpn=10000000C9000001 node=20000000C9000001 n_port_id=0A0B0C luns=0,9,2047\n"
        "permission ctl=0 port=1 wwpn=10000000c9000002 luns=none\n"
        "permission ctl=1 port=1 wwpn=10000000C9000003 luns=1-3\n"
        "end\n");
  int count = -1;
  std::vector<FibreInformationPermissionRec> perms(128);
  std::memset(perms.data(), 0x5a, perms.size() * sizeof perms[0]);
  CHECK_EQ(KX_FibreInfoPermissionImport(kUnit, path.c_str(), 0, 1, &count, perms.data()), 0);
  CHECK_EQ(count, 2);
  CHECK_EQ(std::string(perms[0].port_name), std::string("10000000C9000001"));
  CHECK_EQ(std::string(perms[0].n_port_id), std::string("0A0B0C"));
  CHECK_EQ(int(perms[0].lun_security_bitmap[0]), 0x01);
  CHECK_EQ(int(perms[0].lun_security_bitmap[1]), 0x02);
  CHECK_EQ(int(perms[0].lun_security_bitmap[255]), 0x80);
  CHECK_EQ(std::string(perms[1].port_name), std::string("10000000C9000002"));
  CHECK_EQ(std::string(perms[1].node_name), std::string(""));
  CHECK_EQ(int(perms[2].port_name[0]), 0);  // the rest cleared
  CHECK_EQ(KX_FibreInfoPermissionImport(kUnit, path.c_str(), 1, 0, &count, perms.data()), 0);
  CHECK_EQ(count, 0);

  // More than a port takes: refused, nothing filled; never past 128.
  std::string big = "pernix-sim wwn-permissions 1\n";
  for (int i = 0; i < 129; ++i) {
    char w[17];
    std::snprintf(w, sizeof w, "10000000D%07X", i);
    big += std::string("permission ctl=0 port=0 wwpn=") + w + " luns=1\n";
  }
  write(path, big + "end\n");
  count = 7;
  CHECK_EQ(KX_FibreInfoPermissionImport(kUnit, path.c_str(), 0, 0, &count, perms.data()), kCapacity);
  CHECK_EQ(count, 7);
  write(path, big.substr(0, big.rfind("permission")) + "end\n");
  CHECK_EQ(KX_FibreInfoPermissionImport(kUnit, path.c_str(), 0, 0, &count, perms.data()), 0);
  CHECK_EQ(count, 128);

  const char* broken[] = {
      "permission ctl=0 port=0 wwpn=10000000C9000001 luns=1\nend\n",
      "pernix-sim wwn-permissions 1\npermission ctl=0 port=0 wwpn=10000000C900000 luns=1\nend\n",
      "pernix-sim wwn-permissions 1\npermission ctl=0 port=0 wwpn=10000000C9000001 luns=2048\nend\n",
      "pernix-sim wwn-permissions 1\npermission ctl=0 port=0 wwpn=10000000C9000001\nend\n",
      "pernix-sim wwn-permissions 1\npermission ctl=0 port=0 wwpn=10000000C9000001 luns=1 colour=red\nend\n",
      "pernix-sim wwn-permissions 1\npermission ctl=0 port=0 wwpn=10000000C9000001 luns=1\n"
      "permission ctl=0 port=0 wwpn=10000000c9000001 luns=2\nend\n",
  };
  for (const char* text : broken) {
    write(path, text);
    CHECK_EQ(KX_FibreInfoPermissionImport(kUnit, path.c_str(), 0, 0, &count, perms.data()), kBadFile);
  }
  CHECK_EQ(KX_FibreInfoPermissionImport(kUnit, path.c_str(), 0, 4, &count, perms.data()), kBadParameter);
  CHECK_EQ(KX_FibreInfoPermissionImport(kUnit, file("none.txt").c_str(), 0, 0, &count, perms.data()), kFileError);
}

// ---- LU guard

LuGuardRec guard_of(int lun) {
  auto g = rec<LuGuardInformationRec>();
  CHECK_EQ(KX_GetLuGuardInformation(kUnit, &S, g.get()), 0);
  return g->lu[lun];
}

int set_level(int lun, int level, int term, const KXSessionInfoRec& s = S) {
  LuAccessLevelRec r{lun, level, term};
  return KX_SetLuAccessLevel(kUnit, &s, &r);
}

// Steps the clock; the administrator logs in again (sessions expire too).
void step_days(long days) {
  step_clock(days * 86400);
  S = admin();
}

void guard_cases() {
  fresh("guard");
  auto g = rec<LuGuardInformationRec>();
  CHECK_EQ(KX_GetLuGuardInformation(kUnit, &S, g.get()), 0);
  CHECK_EQ(g->option, 1);
  CHECK_EQ(g->expirationlock, 0);
  CHECK_EQ(g->lu[7].lu_valid, 1);
  CHECK_EQ(g->lu[8].lu_valid, 0);
  CHECK_EQ(g->lu[7].access_attr, 3);
  CHECK_EQ(g->lu[7].changeable_attr, 3);

  CHECK_EQ(set_level(1, 1, 30), 0);
  auto l = guard_of(1);
  CHECK_EQ(l.access_level, 1);
  CHECK_EQ(l.retention_term, 30);
  CHECK_EQ(l.access_level_status, 1);
  CHECK_EQ(l.access_attr, 1);
  CHECK_EQ(l.changeable_attr, 0);
  step_days(1);
  CHECK_EQ(guard_of(1).retention_term, 29);
  CHECK_EQ(set_level(1, 0, 0), kBusy);
  CHECK_EQ(set_level(1, 2, 10), kBusy);
  CHECK_EQ(KX_LogicalUnitDeleteByLUN(kUnit, &S, 1), kBusy);
  CHECK_EQ(KX_ExtendRetentionTerm(kUnit, &S, 1, 5), 0);
  CHECK_EQ(guard_of(1).retention_term, 34);
  step_days(34);
  l = guard_of(1);
  CHECK_EQ(l.retention_term, 0);
  CHECK_EQ(l.access_level_status, 0);
  CHECK_EQ(l.access_level, 1);

  // The expiration lock keeps an LU whose term ran out at its level.
  CHECK_EQ(KX_SetExpirationLock(kUnit, &S, 1), 0);
  CHECK_EQ(guard_of(1).changeable_attr, 0);
  CHECK_EQ(set_level(1, 0, 0), kBusy);
  CHECK_EQ(KX_SetExpirationLock(kUnit, &S, 2), kBadParameter);
  CHECK_EQ(KX_SetExpirationLock(kUnit, &S, 0), 0);
  CHECK_EQ(set_level(1, 0, 0), 0);
  CHECK_EQ(KX_LogicalUnitDeleteByLUN(kUnit, &S, 1), 0);
  CHECK_EQ(guard_of(1).lu_valid, 0);

  // A level without a term changes freely; unlimited cannot be extended.
  CHECK_EQ(set_level(2, 2, 0), 0);
  CHECK_EQ(guard_of(2).access_attr, 0);
  CHECK_EQ(set_level(2, 1, -1), 0);
  CHECK_EQ(guard_of(2).retention_term, -1);
  step_days(100L * 365);
  CHECK_EQ(guard_of(2).retention_term, -1);
  CHECK_EQ(KX_ExtendRetentionTerm(kUnit, &S, 2, 1), kBusy);
  CHECK_EQ(KX_ExtendRetentionTerm(kUnit, &S, 3, 1), kBusy);  // read/write
  CHECK_EQ(set_level(3, 1, 21900), 0);
  CHECK_EQ(KX_ExtendRetentionTerm(kUnit, &S, 3, 1), kBadParameter);
  CHECK_EQ(KX_ExtendRetentionTerm(kUnit, &S, 3, 0), kBadParameter);

  CHECK_EQ(set_level(4, 3, 0), kBadParameter);
  CHECK_EQ(set_level(4, 0, 5), kBadParameter);
  CHECK_EQ(set_level(4, 1, 21901), kBadParameter);
  CHECK_EQ(set_level(4000, 1, 1), kNoSuchObject);
  CHECK_EQ(set_level(4096, 1, 1), kBadParameter);
  CHECK_EQ(KX_SetLuAccessLevel(kUnit, &S, nullptr), kBadParameter);

  // The security right: a storage administrator may not.
  CHECK_EQ(create_account(S, "storage", "storage-pw-1", 1), 0);
  KXSessionInfoRec st{};
  CHECK_EQ(login("storage", "storage-pw-1", &st), 0);
  CHECK_EQ(set_level(5, 1, 1, st), kPermission);
  CHECK_EQ(KX_SetExpirationLock(kUnit, &st, 1), kPermission);
  CHECK_EQ(guard_of(5).access_level, 0);
  HGConfigRec cfg{};
  put(cfg.hgname, "by-storage");
  CHECK_EQ(KX_CreateHG(kUnit, &st, 0, 0, 1, &cfg), 0);  // host access is the storage role's
}

}  // namespace

int main() {
  host_group_cases();
  absent_port_cases();
  option_cases();
  mapping_cases();
  fibre_cases();
  wwn_hg_cases();
  target_cases();
  permission_import_cases();
  guard_cases();
  return finish("hosts_test");
}
