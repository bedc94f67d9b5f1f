// Host access.
//
//   host_groups(ctl, port, hg, name, option, option2a, option2b, option3,
//               platform, altpath, failover, special)
//       the host groups of each port; group 0 ("default") is on every port
//   hg_map(ctl, port, hg, hlun, lun)       host LU number -> LU of a group
//   map_guard(lun)                         LUs whose mappings are fixed
//   fc_ports(ctl, port, ...)               settings of each Fibre Channel port
//   fc_logins(ctl, port, seq, node, wwpn, n_port_id)
//       the host ports logged in to each array port (seeded)
//   wwn_perms(ctl, port, seq, node, wwpn, n_port_id, bitmap)
//       WWN permissions: the LUs each host port may reach (bitmap of 2048 LUs)
//   wwn_hg(ctl, port, seq, node, wwpn, nickname, hg)
//       host ports assigned to host groups
//   lu_guard(lun, level, expiry)           LUs whose access level is not read/write
// meta keys: host_ports, mapping_mode, lun_security, expiration_lock.  The
// target ID tables are records kept in settings (hosts.target.<ctl>).
//
// A mapped LU is held ("host mapping") and an LU whose access level is not
// read/write is held ("LU guard"): neither can be deleted or renumbered.
#include "sim/model/hosts.h"

#include <algorithm>
#include <cctype>
#include <cstdio>
#include <cstring>
#include <map>
#include <set>
#include <sstream>
#include <tuple>

#include "sim/model/model.h"
#include "sim/model/storage.h"

namespace sim {

namespace {

std::string num(int v) { return std::to_string(v); }

std::string port_text(int ctl, int port) { return "port " + num(ctl) + "/" + num(port); }

// The seeded hosts: two host ports logged in to every array port.
std::string login_wwpn(int ctl, int port, int k) {
  char b[17];
  std::snprintf(b, sizeof b, "10000000C0%02X%02X%02X", ctl & 0xff, port & 0xff, (k + 1) & 0xff);
  return b;
}
std::string login_node(int ctl, int port, int k) {
  char b[17];
  std::snprintf(b, sizeof b, "20000000C0%02X%02X%02X", ctl & 0xff, port & 0xff, (k + 1) & 0xff);
  return b;
}
std::string login_port_id(int ctl, int port, int k) {
  char b[7];
  std::snprintf(b, sizeof b, "01%02X%02X", (ctl * kHostPorts + port + 1) & 0xff, (k + 1) & 0xff);
  return b;
}

bool hex_digits(const std::string& s, size_t n) {
  if (s.size() != n) return false;
  for (char ch : s)
    if (!std::isxdigit(static_cast<unsigned char>(ch))) return false;
  return true;
}

std::string upper(std::string s) {
  for (auto& ch : s) ch = static_cast<char>(std::toupper(static_cast<unsigned char>(ch)));
  return s;
}

int meta_int(Db& db, std::string_view key, int fallback) {
  std::string v = meta(db, key);
  return v.empty() ? fallback : std::atoi(v.c_str());
}

const std::set<int> kPathsForAll = {0, 1, 2};

}  // namespace

void create_hosts(Db& db, const Options& o) {
  db.exec(R"(
    CREATE TABLE host_groups(ctl INT NOT NULL, port INT NOT NULL, hg INT NOT NULL,
      name TEXT NOT NULL, option INT NOT NULL DEFAULT 0, option2a INT NOT NULL DEFAULT 0,
      option2b INT NOT NULL DEFAULT 0, option3 INT NOT NULL DEFAULT 0,
      platform INT NOT NULL DEFAULT 0, altpath INT NOT NULL DEFAULT 0,
      failover INT NOT NULL DEFAULT 0, special INT NOT NULL DEFAULT 0,
      PRIMARY KEY(ctl, port, hg));
    CREATE TABLE hg_map(ctl INT NOT NULL, port INT NOT NULL, hg INT NOT NULL, hlun INT NOT NULL,
      lun INT NOT NULL, PRIMARY KEY(ctl, port, hg, hlun));
    CREATE INDEX hg_map_by_lun ON hg_map(lun);
    CREATE TABLE map_guard(lun INTEGER PRIMARY KEY);
    CREATE TABLE fc_ports(ctl INT NOT NULL, port INT NOT NULL,
      topology INT NOT NULL DEFAULT 0, speed INT NOT NULL DEFAULT 0,
      frame_size INT NOT NULL DEFAULT 3, security INT NOT NULL DEFAULT 0,
      all_lun_security INT NOT NULL DEFAULT 0, check_level INT NOT NULL DEFAULT 0,
      lip_mode INT NOT NULL DEFAULT 0, common_opt INT NOT NULL DEFAULT 0,
      PRIMARY KEY(ctl, port));
    CREATE TABLE fc_logins(ctl INT NOT NULL, port INT NOT NULL, seq INT NOT NULL,
      node TEXT NOT NULL, wwpn TEXT NOT NULL, n_port_id TEXT NOT NULL, PRIMARY KEY(ctl, port, seq));
    CREATE TABLE wwn_perms(ctl INT NOT NULL, port INT NOT NULL, seq INT NOT NULL,
      node TEXT NOT NULL, wwpn TEXT NOT NULL, n_port_id TEXT NOT NULL, bitmap BLOB NOT NULL,
      PRIMARY KEY(ctl, port, seq));
    CREATE TABLE wwn_hg(ctl INT NOT NULL, port INT NOT NULL, seq INT NOT NULL,
      node TEXT NOT NULL, wwpn TEXT NOT NULL, nickname TEXT NOT NULL, hg INT NOT NULL,
      PRIMARY KEY(ctl, port, seq));
    CREATE TABLE lu_guard(lun INTEGER PRIMARY KEY, level INT NOT NULL, expiry INT NOT NULL);
    -- What is kept for an LU goes with it.
    CREATE TRIGGER lu_gone_hosts AFTER DELETE ON lus BEGIN
      DELETE FROM map_guard WHERE lun=old.number;
      DELETE FROM lu_guard WHERE lun=old.number;
    END;
    CREATE TRIGGER lu_renumbered_hosts AFTER UPDATE OF number ON lus BEGIN
      UPDATE map_guard SET lun=new.number WHERE lun=old.number;
    END;
  )");
  int ports = std::clamp(o.ports, 1, kHostPorts);
  set_meta(db, "host_ports", std::to_string(ports));
  set_meta(db, "mapping_mode", "1");
  set_meta(db, "lun_security", "0");
  set_meta(db, "expiration_lock", "0");
  for (int ctl = 0; ctl < kHostCtls; ++ctl)
    for (int port = 0; port < ports; ++port) {
      {
        auto g = db.sql("INSERT INTO host_groups(ctl, port, hg, name) VALUES(?1, ?2, 0, 'default')");
        g.bind(ctl).bind(port).run();
      }
      {
        auto p = db.sql("INSERT INTO fc_ports(ctl, port) VALUES(?1, ?2)");
        p.bind(ctl).bind(port).run();
      }
      for (int k = 0; k < 2; ++k) {
        auto l = db.sql("INSERT INTO fc_logins VALUES(?1, ?2, ?3, ?4, ?5, ?6)");
        l.bind(ctl).bind(port).bind(k).bind(login_node(ctl, port, k)).bind(login_wwpn(ctl, port, k))
            .bind(login_port_id(ctl, port, k)).run();
      }
    }
}

// ---- ports

int host_ports(Db& db) { return std::clamp(meta_int(db, "host_ports", kHostPorts), 1, kHostPorts); }

bool port_exists(Db& db, int ctl, int port) {
  return ctl >= 0 && ctl < kHostCtls && port >= 0 && port < host_ports(db);
}

void need_port(Db& db, int ctl, int port) {
  if (ctl < 0 || ctl >= kHostCtls) fail(kBadParameter, "controller " + num(ctl) + " is not 0 or 1");
  if (port < 0 || port >= kHostPorts) fail(kBadParameter, "port " + num(port) + " is not within 0..3");
  if (!port_exists(db, ctl, port)) fail(kNoSuchObject, "the array has no " + port_text(ctl, port));
}

// ---- the catalogue

const std::vector<CatalogueEntry>& platforms() {
  static const std::vector<CatalogueEntry> v = {{0, "not specified"}, {1, "Linux"},  {2, "Windows"},
                                                {3, "Solaris"},       {4, "AIX"},    {5, "HP-UX"},
                                                {6, "VMware"}};
  return v;
}
const std::vector<CatalogueEntry>& alternate_paths() {
  static const std::vector<CatalogueEntry> v = {
      {0, "not specified"}, {1, "native multipath"}, {2, "path manager"}, {3, "volume manager DMP"}};
  return v;
}
const std::vector<CatalogueEntry>& failovers() {
  static const std::vector<CatalogueEntry> v = {
      {0, "not specified"}, {1, "cluster, SCSI-3 reservations"}, {2, "cluster, SCSI-2 reservations"}};
  return v;
}
const std::vector<CatalogueEntry>& special_modes() {
  static const std::vector<CatalogueEntry> v = {{0, "none"},
                                                {1, "unique reserve"},
                                                {2, "report device identification page"},
                                                {3, "no LU 0 required"},
                                                {4, "extended command timeout"}};
  return v;
}

namespace {
bool in_catalogue(const std::vector<CatalogueEntry>& v, int id) {
  return std::any_of(v.begin(), v.end(), [&](const CatalogueEntry& e) { return e.id == id; });
}
int32_t bit(int id) { return id > 0 ? static_cast<int32_t>(1u << (id - 1)) : 0; }
}  // namespace

bool platform_admits(int platform, int altpath) {
  if (!in_catalogue(platforms(), platform) || !in_catalogue(alternate_paths(), altpath)) return false;
  // The volume manager's multipathing runs on the UNIX platforms only.
  if (altpath == 3) return platform == 1 || platform == 3 || platform == 4 || platform == 5;
  return kPathsForAll.count(altpath) > 0;
}

HgOptions combination_options(int platform, int altpath, int failover) {
  HgOptions o;
  o.option = bit(platform);
  o.option2[0] = bit(altpath);
  o.option2[1] = bit(failover);
  o.platform = platform;
  o.altpath = altpath;
  o.failover = failover;
  return o;
}

HgOptions special_mode_options(int special) {
  HgOptions o;
  o.option3 = bit(special);
  o.special = special;
  return o;
}

void check_hg_options(const HgOptions& o) {
  auto mask = [](int32_t v, const char* what) {
    if (v & ~kOptionMask) fail(kBadParameter, std::string(what) + " has bits outside 0..7");
  };
  mask(o.option, "option");
  mask(o.option2[0], "option2[0]");
  mask(o.option2[1], "option2[1]");
  mask(o.option3, "option3");
  if (!in_catalogue(platforms(), o.platform)) fail(kBadParameter, "unknown platform " + num(o.platform));
  if (!in_catalogue(alternate_paths(), o.altpath))
    fail(kBadParameter, "unknown alternate path " + num(o.altpath));
  if (!in_catalogue(failovers(), o.failover)) fail(kBadParameter, "unknown fail-over mode " + num(o.failover));
  if (!in_catalogue(special_modes(), o.special)) fail(kBadParameter, "unknown special mode " + num(o.special));
  if (!platform_admits(o.platform, o.altpath))
    fail(kBadParameter, "platform " + num(o.platform) + " does not take alternate path " + num(o.altpath));
}

void check_hg_name(const std::string& name) {
  if (name.empty() || name.size() > static_cast<size_t>(kHgNameMax))
    fail(kBadParameter, "a host-group name has 1 to 16 bytes");
  for (char ch : name)
    if (ch < 0x20 || ch > 0x7e) fail(kBadParameter, "a host-group name is printable ASCII");
}

// ---- host groups

namespace {
HostGroup hg_row(Stmt& s) {
  HostGroup g;
  g.ctl = s.i(0);
  g.port = s.i(1);
  g.number = s.i(2);
  g.name = s.text(3);
  g.opt.option = s.i(4);
  g.opt.option2[0] = s.i(5);
  g.opt.option2[1] = s.i(6);
  g.opt.option3 = s.i(7);
  g.opt.platform = s.i(8);
  g.opt.altpath = s.i(9);
  g.opt.failover = s.i(10);
  g.opt.special = s.i(11);
  return g;
}
constexpr const char* kHgColumns =
    "SELECT ctl, port, hg, name, option, option2a, option2b, option3, platform, altpath, failover, "
    "special FROM host_groups";

std::string hg_text(int ctl, int port, int hg) { return "host group " + num(ctl) + "/" + num(port) + "/" + num(hg); }
}  // namespace

std::optional<HostGroup> find_hg(Db& db, int ctl, int port, int hg) {
  static const std::string q = std::string(kHgColumns) + " WHERE ctl=?1 AND port=?2 AND hg=?3";
  auto s = db.sql(q.c_str());
  s.bind(ctl).bind(port).bind(hg);
  if (!s.step()) return std::nullopt;
  return hg_row(s);
}

HostGroup need_hg(Db& db, int ctl, int port, int hg) {
  need_port(db, ctl, port);
  if (hg < 0 || hg >= kHostGroupSlots) fail(kBadParameter, "host group " + num(hg) + " is not within 0..254");
  auto g = find_hg(db, ctl, port, hg);
  if (!g) fail(kNoSuchObject, "no " + hg_text(ctl, port, hg));
  return *g;
}

std::vector<HostGroup> host_groups(Db& db) {
  static const std::string q = std::string(kHgColumns) + " ORDER BY ctl, port, hg";
  std::vector<HostGroup> v;
  auto s = db.sql(q.c_str());
  while (s.step()) v.push_back(hg_row(s));
  return v;
}

namespace {
void name_free(Db& db, int ctl, int port, int hg, const std::string& name) {
  auto s = db.sql("SELECT hg FROM host_groups WHERE ctl=?1 AND port=?2 AND name=?3 AND hg<>?4");
  s.bind(ctl).bind(port).bind(name).bind(hg);
  if (s.step()) fail(kExists, "host group " + num(s.i(0)) + " of " + port_text(ctl, port) + " is named " + name);
}
}  // namespace

int create_hg(Db& db, int ctl, int port, int number, const std::string& name) {
  need_port(db, ctl, port);
  if (number < -1 || number >= kHostGroups)
    fail(kBadParameter, "host group " + num(number) + " is not within 0..127 (or -1)");
  check_hg_name(name);
  if (number == -1) {
    std::set<int> taken;
    auto s = db.sql("SELECT hg FROM host_groups WHERE ctl=?1 AND port=?2");
    s.bind(ctl).bind(port);
    while (s.step()) taken.insert(s.i(0));
    for (int n = 1; n < kHostGroups && number < 0; ++n)
      if (!taken.count(n)) number = n;
    if (number < 0) fail(kCapacity, port_text(ctl, port) + " has 128 host groups");
  } else if (find_hg(db, ctl, port, number)) {
    fail(kExists, hg_text(ctl, port, number) + " exists");
  }
  name_free(db, ctl, port, number, name);
  auto i = db.sql("INSERT INTO host_groups(ctl, port, hg, name) VALUES(?1, ?2, ?3, ?4)");
  i.bind(ctl).bind(port).bind(number).bind(name).run();
  return number;
}

void rename_hg(Db& db, int ctl, int port, int hg, const std::string& name) {
  need_hg(db, ctl, port, hg);
  check_hg_name(name);
  name_free(db, ctl, port, hg, name);
  auto u = db.sql("UPDATE host_groups SET name=?4 WHERE ctl=?1 AND port=?2 AND hg=?3");
  u.bind(ctl).bind(port).bind(hg).bind(name).run();
}

namespace {
void clear_hg(Db& db, int ctl, int port, int hg) {
  std::array<int, kHostLuns> none;
  none.fill(-1);
  set_hg_mapping(db, ctl, port, hg, none);
  auto w = db.sql("DELETE FROM wwn_hg WHERE ctl=?1 AND port=?2 AND hg=?3");
  w.bind(ctl).bind(port).bind(hg).run();
}
}  // namespace

void delete_hg(Db& db, int ctl, int port, int hg) {
  need_hg(db, ctl, port, hg);
  if (hg == 0) fail(kBusy, "host group 0 of a port cannot be deleted");
  clear_hg(db, ctl, port, hg);
  auto d = db.sql("DELETE FROM host_groups WHERE ctl=?1 AND port=?2 AND hg=?3");
  d.bind(ctl).bind(port).bind(hg).run();
}

void init_hg(Db& db, int ctl, int port, int hg) {
  need_hg(db, ctl, port, hg);
  clear_hg(db, ctl, port, hg);
  set_hg_options(db, ctl, port, hg, HgOptions{});
}

void set_hg_options(Db& db, int ctl, int port, int hg, const HgOptions& o) {
  auto u = db.sql(
      "UPDATE host_groups SET option=?4, option2a=?5, option2b=?6, option3=?7, platform=?8, "
      "altpath=?9, failover=?10, special=?11 WHERE ctl=?1 AND port=?2 AND hg=?3");
  u.bind(ctl).bind(port).bind(hg).bind(o.option).bind(o.option2[0]).bind(o.option2[1]).bind(o.option3)
      .bind(o.platform).bind(o.altpath).bind(o.failover).bind(o.special).run();
}

// ---- LU mapping

std::array<int, kHostLuns> hg_mapping(Db& db, int ctl, int port, int hg) {
  std::array<int, kHostLuns> lu;
  lu.fill(-1);
  auto s = db.sql("SELECT hlun, lun FROM hg_map WHERE ctl=?1 AND port=?2 AND hg=?3");
  s.bind(ctl).bind(port).bind(hg);
  while (s.step()) {
    int h = s.i(0);
    if (h >= 0 && h < kHostLuns) lu[static_cast<size_t>(h)] = s.i(1);
  }
  return lu;
}

void set_hg_mapping(Db& db, int ctl, int port, int hg, const std::array<int, kHostLuns>& lu) {
  auto old = hg_mapping(db, ctl, port, hg);
  std::set<int> seen, touched;
  auto guard = mapping_guard(db);
  for (int h = 0; h < kHostLuns; ++h) {
    int l = lu[static_cast<size_t>(h)];
    if (l == -1) continue;
    if (l < -1 || l >= kMaxLus) fail(kBadParameter, "LU " + num(l) + " at host LU " + num(h) + " is out of range");
    if (!lu_exists(db, l)) fail(kNoSuchObject, "no LU " + num(l) + " to map at host LU " + num(h));
    if (!seen.insert(l).second)
      fail(kExists, "LU " + num(l) + " is mapped twice in " + hg_text(ctl, port, hg));
  }
  for (int h = 0; h < kHostLuns; ++h) {
    int was = old[static_cast<size_t>(h)], now = lu[static_cast<size_t>(h)];
    if (was == now) continue;
    for (int l : {was, now})
      if (l >= 0 && l < kMaxLus && guard[static_cast<size_t>(l)])
        fail(kBusy, "the mapping of LU " + num(l) + " is guarded");
    if (was >= 0) touched.insert(was);
    if (now >= 0) touched.insert(now);
  }
  if (touched.empty()) return;
  {
    auto d = db.sql("DELETE FROM hg_map WHERE ctl=?1 AND port=?2 AND hg=?3");
    d.bind(ctl).bind(port).bind(hg).run();
  }
  for (int h = 0; h < kHostLuns; ++h) {
    int l = lu[static_cast<size_t>(h)];
    if (l < 0) continue;
    auto i = db.sql("INSERT INTO hg_map VALUES(?1, ?2, ?3, ?4, ?5)");
    i.bind(ctl).bind(port).bind(hg).bind(h).bind(l).run();
  }
  for (int l : touched) {
    bool mapped;
    {
      auto s = db.sql("SELECT 1 FROM hg_map WHERE lun=?1 LIMIT 1");
      s.bind(l);
      mapped = s.step();
    }
    if (mapped)
      hold_lu(db, l, kMappingHolder);
    else
      release_lu(db, l, kMappingHolder);
  }
}

int mapping_mode(Db& db) { return meta_int(db, "mapping_mode", 1); }

void set_mapping_mode(Db& db, int mode) {
  if (mode != 0 && mode != 1) fail(kBadParameter, "mapping mode " + num(mode) + " is not 0 or 1");
  set_meta(db, "mapping_mode", num(mode));
}

std::vector<uint8_t> mapping_guard(Db& db) {
  std::vector<uint8_t> v(kMaxLus, 0);
  auto s = db.sql("SELECT lun FROM map_guard");
  while (s.step()) {
    int l = s.i(0);
    if (l >= 0 && l < kMaxLus) v[static_cast<size_t>(l)] = 1;
  }
  return v;
}

void set_mapping_guard(Db& db, const std::vector<uint8_t>& guard) {
  for (int l = 0; l < kMaxLus && l < static_cast<int>(guard.size()); ++l) {
    uint8_t g = guard[static_cast<size_t>(l)];
    if (g > 1) fail(kBadParameter, "mapping guard of LU " + num(l) + " is not 0 or 1");
    if (g && !lu_exists(db, l)) fail(kNoSuchObject, "no LU " + num(l) + " to guard");
  }
  db.exec("DELETE FROM map_guard");
  for (int l = 0; l < kMaxLus && l < static_cast<int>(guard.size()); ++l) {
    if (!guard[static_cast<size_t>(l)]) continue;
    auto i = db.sql("INSERT INTO map_guard VALUES(?1)");
    i.bind(l).run();
  }
}

// ---- Fibre Channel ports

FcPort fc_port(Db& db, int ctl, int port) {
  FcPort p;
  auto s = db.sql(
      "SELECT topology, speed, frame_size, security, all_lun_security, check_level, lip_mode, "
      "common_opt FROM fc_ports WHERE ctl=?1 AND port=?2");
  s.bind(ctl).bind(port);
  if (!s.step()) return p;
  p.topology = s.i(0);
  p.speed = s.i(1);
  p.frame_size = s.i(2);
  p.security = s.i(3);
  p.all_lun_security = s.i(4);
  p.check_level = s.i(5);
  p.lip_mode = s.i(6);
  p.common_opt = s.i(7);
  return p;
}

void set_fc_port(Db& db, int ctl, int port, const FcPort& p) {
  auto bad = [&](const char* what, int v) {
    fail(kBadParameter, std::string(what) + " " + num(v) + " of " + port_text(ctl, port) + " is out of range");
  };
  if (p.topology < 0 || p.topology > 2) bad("topology", p.topology);
  if (p.speed != 0 && p.speed != 1 && p.speed != 2 && p.speed != 4 && p.speed != 8) bad("speed", p.speed);
  if (p.frame_size < 0 || p.frame_size > 3) bad("frame size", p.frame_size);
  if (p.security < 0 || p.security > 1) bad("security", p.security);
  if (p.all_lun_security < 0 || p.all_lun_security > 1) bad("all-LU security", p.all_lun_security);
  if (p.check_level < 0 || p.check_level > 2) bad("security check level", p.check_level);
  if (p.lip_mode < 0 || p.lip_mode > 2) bad("LIP mode", p.lip_mode);
  if (p.common_opt & ~0xff) bad("port option", p.common_opt);
  auto u = db.sql(
      "UPDATE fc_ports SET topology=?3, speed=?4, frame_size=?5, security=?6, all_lun_security=?7, "
      "check_level=?8, lip_mode=?9, common_opt=?10 WHERE ctl=?1 AND port=?2");
  u.bind(ctl).bind(port).bind(p.topology).bind(p.speed).bind(p.frame_size).bind(p.security)
      .bind(p.all_lun_security).bind(p.check_level).bind(p.lip_mode).bind(p.common_opt).run();
}

int lun_security(Db& db) { return meta_int(db, "lun_security", 0); }

void set_lun_security(Db& db, int on) {
  if (on != 0 && on != 1) fail(kBadParameter, "LUN security " + num(on) + " is not 0 or 1");
  set_meta(db, "lun_security", num(on));
}

std::vector<FcLogin> fc_logins(Db& db, int ctl, int port) {
  std::vector<FcLogin> v;
  auto s = db.sql("SELECT node, wwpn, n_port_id FROM fc_logins WHERE ctl=?1 AND port=?2 ORDER BY seq");
  s.bind(ctl).bind(port);
  while (s.step()) v.push_back({s.text(0), s.text(1), s.text(2)});
  return v;
}

std::string check_wwn(const std::string& s, const char* what) {
  if (!hex_digits(s, 16)) fail(kBadParameter, std::string(what) + " '" + s + "' is not 16 hex digits");
  return upper(s);
}

std::string check_port_id(const std::string& s, const char* what) {
  if (s.empty()) return s;
  if (!hex_digits(s, 6)) fail(kBadParameter, std::string(what) + " '" + s + "' is not 6 hex digits");
  return upper(s);
}

std::string array_node_name(Db& db) {
  std::string digits;
  for (char ch : meta(db, "array_serial"))
    if (std::isxdigit(static_cast<unsigned char>(ch))) digits += ch;
  if (digits.size() > 8) digits = digits.substr(digits.size() - 8);
  while (digits.size() < 8) digits.insert(digits.begin(), '0');
  return upper("5F0000" + digits + "00");
}

std::string array_port_name(Db& db, int ctl, int port) {
  std::string n = array_node_name(db);
  char tail[3];
  std::snprintf(tail, sizeof tail, "%X%X", ctl & 0xf, (port + 1) & 0xf);
  return n.substr(0, 14) + tail;
}

std::vector<WwnPermission> wwn_permissions(Db& db, int ctl, int port) {
  std::vector<WwnPermission> v;
  auto s = db.sql("SELECT node, wwpn, n_port_id, bitmap FROM wwn_perms WHERE ctl=?1 AND port=?2 ORDER BY seq");
  s.bind(ctl).bind(port);
  while (s.step()) {
    WwnPermission p;
    p.node = s.text(0);
    p.wwpn = s.text(1);
    p.n_port_id = s.text(2);
    auto b = s.bytes(3);
    std::memcpy(p.bitmap.data(), b.data(), std::min(b.size(), p.bitmap.size()));
    v.push_back(std::move(p));
  }
  return v;
}

void set_wwn_permissions(Db& db, int ctl, int port, const std::vector<WwnPermission>& perms) {
  if (perms.size() > static_cast<size_t>(kPortWwns))
    fail(kCapacity, port_text(ctl, port) + " takes at most 128 WWN permissions");
  std::set<std::string> seen;
  std::vector<WwnPermission> clean;
  for (const auto& p : perms) {
    WwnPermission q = p;
    q.wwpn = check_wwn(p.wwpn, "port name");
    q.node = p.node.empty() ? p.node : check_wwn(p.node, "node name");
    q.n_port_id = check_port_id(p.n_port_id, "N_Port ID");
    if (!seen.insert(q.wwpn).second) fail(kExists, "WWN " + q.wwpn + " is listed twice on " + port_text(ctl, port));
    clean.push_back(std::move(q));
  }
  {
    auto d = db.sql("DELETE FROM wwn_perms WHERE ctl=?1 AND port=?2");
    d.bind(ctl).bind(port).run();
  }
  int seq = 0;
  for (const auto& p : clean) {
    auto i = db.sql("INSERT INTO wwn_perms VALUES(?1, ?2, ?3, ?4, ?5, ?6, ?7)");
    i.bind(ctl).bind(port).bind(seq++).bind(p.node).bind(p.wwpn).bind(p.n_port_id).blob(p.bitmap.data(), p.bitmap.size()).run();
  }
}

std::vector<WwnAssignment> wwn_assignments(Db& db, int ctl, int port) {
  std::vector<WwnAssignment> v;
  auto s = db.sql("SELECT node, wwpn, nickname, hg FROM wwn_hg WHERE ctl=?1 AND port=?2 ORDER BY seq");
  s.bind(ctl).bind(port);
  while (s.step()) v.push_back({s.text(0), s.text(1), s.text(2), s.i(3)});
  return v;
}

void set_wwn_assignments(Db& db, int ctl, int port, const std::vector<WwnAssignment>& list) {
  if (list.size() > static_cast<size_t>(kPortWwns))
    fail(kCapacity, port_text(ctl, port) + " takes at most 128 host WWNs");
  std::set<std::string> seen;
  std::vector<WwnAssignment> clean;
  for (const auto& a : list) {
    WwnAssignment q = a;
    q.wwpn = check_wwn(a.wwpn, "port name");
    q.node = a.node.empty() ? a.node : check_wwn(a.node, "node name");
    if (a.nickname.size() > static_cast<size_t>(kHgNameMax)) fail(kBadParameter, "a WWN nickname has at most 16 bytes");
    for (char ch : a.nickname)
      if (ch < 0x20 || ch > 0x7e) fail(kBadParameter, "a WWN nickname is printable ASCII");
    if (a.hg < 0 || a.hg >= kHostGroups) fail(kBadParameter, "host group " + num(a.hg) + " is not within 0..127");
    if (!find_hg(db, ctl, port, a.hg)) fail(kNoSuchObject, "no " + hg_text(ctl, port, a.hg) + " for WWN " + q.wwpn);
    if (!seen.insert(q.wwpn).second) fail(kExists, "WWN " + q.wwpn + " is assigned twice on " + port_text(ctl, port));
    clean.push_back(std::move(q));
  }
  {
    auto d = db.sql("DELETE FROM wwn_hg WHERE ctl=?1 AND port=?2");
    d.bind(ctl).bind(port).run();
  }
  int seq = 0;
  for (const auto& a : clean) {
    auto i = db.sql("INSERT INTO wwn_hg VALUES(?1, ?2, ?3, ?4, ?5, ?6, ?7)");
    i.bind(ctl).bind(port).bind(seq++).bind(a.node).bind(a.wwpn).bind(a.nickname).bind(a.hg).run();
  }
}

// ---- target IDs

TargetTable default_target_table() {
  TargetTable t;
  for (auto& p : t.port) p.multi.fill(255);
  return t;
}

namespace {
std::string target_key(int ctl) { return "hosts.target." + num(ctl); }
}  // namespace

TargetTable target_table(Db& db, int ctl) {
  TargetTable t = default_target_table();
  load_setting(db, target_key(ctl), &t, sizeof t);
  // LUs deleted since read as unreachable.
  auto exists = [&](int lun) { return lu_exists(db, lun); };
  std::array<bool, 128> have{};
  for (int l = 0; l < 128; ++l) have[static_cast<size_t>(l)] = exists(l);
  for (auto& p : t.port)
    for (auto& list : p.lun)
      for (int l = 0; l < 128; ++l)
        if (!have[static_cast<size_t>(l)]) list[static_cast<size_t>(l)] = 0;
  return t;
}

void set_target_table(Db& db, int ctl, const TargetTable& t) { save_setting(db, target_key(ctl), &t, sizeof t); }

void check_target_table(Db& db, const TargetTable& t, bool need_lus) {
  if (t.mode != 0 && t.mode != 1) fail(kBadParameter, "target ID mode " + num(t.mode) + " is not 0 or 1");
  for (int p = 0; p < kHostPorts; ++p) {
    const auto& tp = t.port[static_cast<size_t>(p)];
    if (tp.single < 0 || tp.single > 127) fail(kBadParameter, "target ID " + num(tp.single) + " of port " + num(p) + " is not within 0..127");
    for (uint8_t m : tp.multi)
      if (m > 127 && m != 255) fail(kBadParameter, "target ID " + num(m) + " of port " + num(p) + " is not within 0..127 (255 unused)");
    for (int tg = 0; tg < 16; ++tg)
      for (int l = 0; l < 128; ++l) {
        uint8_t v = tp.lun[static_cast<size_t>(tg)][static_cast<size_t>(l)];
        if (v > 1) fail(kBadParameter, "LU flag of target " + num(tg) + " of port " + num(p) + " is not 0 or 1");
        if (v && need_lus && !lu_exists(db, l)) fail(kNoSuchObject, "no LU " + num(l) + " for target " + num(tg) + " of port " + num(p));
      }
  }
}

// ---- files

namespace {

[[noreturn]] void bad_line(int line, const std::string& why) {
  fail(kBadFile, "line " + num(line) + ": " + why);
}

std::vector<std::string> words(const std::string& line) {
  std::vector<std::string> v;
  std::istringstream in(line);
  std::string w;
  while (in >> w) v.push_back(w);
  return v;
}

bool parse_int(const std::string& s, long lo, long hi, long& out) {
  if (s.empty() || s.size() > 10) return false;
  size_t i = 0;
  bool neg = false;
  if (s[0] == '-') {
    neg = true;
    i = 1;
    if (s.size() == 1) return false;
  }
  long v = 0;
  for (; i < s.size(); ++i) {
    if (!std::isdigit(static_cast<unsigned char>(s[i]))) return false;
    v = v * 10 + (s[i] - '0');
  }
  if (neg) v = -v;
  if (v < lo || v > hi) return false;
  out = v;
  return true;
}

// `key=value` words after the kind, each key at most once, all known.
std::map<std::string, std::string> fields(int line, const std::vector<std::string>& w, size_t from,
                                          std::initializer_list<const char*> known) {
  std::map<std::string, std::string> m;
  for (size_t i = from; i < w.size(); ++i) {
    auto eq = w[i].find('=');
    if (eq == std::string::npos || eq == 0) bad_line(line, "'" + w[i] + "' is not name=value");
    std::string k = w[i].substr(0, eq);
    if (std::none_of(known.begin(), known.end(), [&](const char* n) { return k == n; }))
      bad_line(line, "unknown field " + k);
    if (!m.emplace(k, w[i].substr(eq + 1)).second) bad_line(line, "field " + k + " given twice");
  }
  return m;
}

long need_int(int line, const std::map<std::string, std::string>& m, const char* key, long lo, long hi) {
  auto it = m.find(key);
  if (it == m.end()) bad_line(line, std::string("field ") + key + " missing");
  long v = 0;
  if (!parse_int(it->second, lo, hi, v))
    bad_line(line, std::string(key) + "=" + it->second + " is not a number within " + num(static_cast<int>(lo)) + ".." + num(static_cast<int>(hi)));
  return v;
}

// "none" or a comma list of N and N-M within 0..hi.
std::vector<int> lu_list(int line, const std::string& s, int hi) {
  std::vector<int> v;
  if (s == "none") return v;
  std::string item;
  std::istringstream in(s);
  while (std::getline(in, item, ',')) {
    auto dash = item.find('-');
    long a = 0, b = 0;
    bool ok = dash == std::string::npos ? parse_int(item, 0, hi, a) && (b = a, true)
                                        : parse_int(item.substr(0, dash), 0, hi, a) && parse_int(item.substr(dash + 1), 0, hi, b);
    if (!ok || b < a) bad_line(line, "'" + item + "' is not an LU or a range within 0.." + num(hi));
    for (long l = a; l <= b; ++l) v.push_back(static_cast<int>(l));
  }
  if (v.empty()) bad_line(line, "empty LU list (write none)");
  return v;
}

std::string lu_ranges(const uint8_t* flags, int n) {
  std::string out;
  for (int l = 0; l < n;) {
    if (!flags[l]) {
      ++l;
      continue;
    }
    int e = l;
    while (e + 1 < n && flags[e + 1]) ++e;
    if (!out.empty()) out += ',';
    out += num(l);
    if (e > l) out += "-" + num(e);
    l = e + 1;
  }
  return out.empty() ? "none" : out;
}

// Lines without comments and blanks, numbered; the header first and `end` last.
std::vector<std::pair<int, std::string>> body(std::string_view text, const char* header) {
  std::vector<std::pair<int, std::string>> lines;
  size_t pos = 0;
  int n = 0;
  while (pos <= text.size()) {
    size_t nl = text.find('\n', pos);
    std::string line(text.substr(pos, nl == std::string_view::npos ? std::string_view::npos : nl - pos));
    ++n;
    if (!line.empty() && line.back() == '\r') line.pop_back();
    for (char ch : line)
      if (ch == 0) bad_line(n, "NUL byte");
    auto w = line.find_first_not_of(" \t");
    if (w != std::string::npos && line[w] != '#') lines.emplace_back(n, line.substr(w));
    if (nl == std::string_view::npos) break;
    pos = nl + 1;
  }
  if (lines.empty() || words(lines.front().second) != words(header))
    fail(kBadFile, std::string("the first line is not '") + header + "'");
  if (words(lines.back().second) != std::vector<std::string>{"end"}) fail(kBadFile, "the file does not end with 'end'");
  lines.erase(lines.begin());
  lines.pop_back();
  return lines;
}

}  // namespace

TargetFile parse_target_file(std::string_view text) {
  TargetFile f;
  for (auto& t : f.table) t = default_target_table();
  std::set<std::pair<int, int>> ports_seen;
  std::set<std::tuple<int, int, int>> targets_seen;
  for (const auto& [line, content] : body(text, kTargetIdHeader)) {
    auto w = words(content);
    if (w[0] == "controller") {
      auto m = fields(line, w, 1, {"ctl", "mode"});
      int c = static_cast<int>(need_int(line, m, "ctl", 0, 1));
      if (f.present[static_cast<size_t>(c)]) bad_line(line, "controller " + num(c) + " given twice");
      f.present[static_cast<size_t>(c)] = true;
      f.table[static_cast<size_t>(c)].mode = static_cast<int>(need_int(line, m, "mode", 0, 1));
    } else if (w[0] == "port") {
      auto m = fields(line, w, 1, {"ctl", "port", "single", "multi"});
      int c = static_cast<int>(need_int(line, m, "ctl", 0, 1));
      int p = static_cast<int>(need_int(line, m, "port", 0, 3));
      if (!f.present[static_cast<size_t>(c)]) bad_line(line, "controller " + num(c) + " not given before its ports");
      if (!ports_seen.insert({c, p}).second) bad_line(line, "port given twice");
      auto& tp = f.table[static_cast<size_t>(c)].port[static_cast<size_t>(p)];
      tp.single = static_cast<int>(need_int(line, m, "single", 0, 127));
      if (m.count("multi")) {
        std::istringstream in(m["multi"]);
        std::string item;
        size_t k = 0;
        while (std::getline(in, item, ',')) {
          long v = 0;
          if (k >= 16 || !parse_int(item, 0, 255, v) || (v > 127 && v != 255))
            bad_line(line, "multi takes up to 16 target IDs 0..127 or 255");
          tp.multi[k++] = static_cast<uint8_t>(v);
        }
      }
    } else if (w[0] == "target") {
      auto m = fields(line, w, 1, {"ctl", "port", "target", "luns"});
      int c = static_cast<int>(need_int(line, m, "ctl", 0, 1));
      int p = static_cast<int>(need_int(line, m, "port", 0, 3));
      int t = static_cast<int>(need_int(line, m, "target", 0, 15));
      if (!f.present[static_cast<size_t>(c)]) bad_line(line, "controller " + num(c) + " not given before its targets");
      if (!targets_seen.insert({c, p, t}).second) bad_line(line, "target given twice");
      if (!m.count("luns")) bad_line(line, "field luns missing");
      auto& list = f.table[static_cast<size_t>(c)].port[static_cast<size_t>(p)].lun[static_cast<size_t>(t)];
      for (int l : lu_list(line, m["luns"], 127)) list[static_cast<size_t>(l)] = 1;
    } else {
      bad_line(line, "unknown line kind " + w[0]);
    }
  }
  if (!f.present[0] && !f.present[1]) fail(kBadFile, "the file names no controller");
  return f;
}

std::string render_target_file(const TargetFile& f) {
  std::string out = std::string(kTargetIdHeader) + "\n";
  for (int c = 0; c < kHostCtls; ++c) {
    if (!f.present[static_cast<size_t>(c)]) continue;
    const auto& t = f.table[static_cast<size_t>(c)];
    out += "controller ctl=" + num(c) + " mode=" + num(t.mode) + "\n";
    for (int p = 0; p < kHostPorts; ++p) {
      const auto& tp = t.port[static_cast<size_t>(p)];
      out += "port ctl=" + num(c) + " port=" + num(p) + " single=" + num(tp.single) + " multi=";
      for (size_t k = 0; k < 16; ++k) out += (k ? "," : "") + num(tp.multi[k]);
      out += "\n";
      for (int tg = 0; tg < 16; ++tg) {
        const auto& list = tp.lun[static_cast<size_t>(tg)];
        if (std::none_of(list.begin(), list.end(), [](uint8_t v) { return v != 0; })) continue;
        out += "target ctl=" + num(c) + " port=" + num(p) + " target=" + num(tg) +
               " luns=" + lu_ranges(list.data(), 128) + "\n";
      }
    }
  }
  return out + "end\n";
}

std::vector<PermissionEntry> parse_permission_file(std::string_view text) {
  std::vector<PermissionEntry> v;
  for (const auto& [line, content] : body(text, kPermissionHeader)) {
    auto w = words(content);
    if (w[0] != "permission") bad_line(line, "unknown line kind " + w[0]);
    auto m = fields(line, w, 1, {"ctl", "port", "wwpn", "node", "n_port_id", "luns"});
    PermissionEntry e;
    e.ctl = static_cast<int>(need_int(line, m, "ctl", 0, 1));
    e.port = static_cast<int>(need_int(line, m, "port", 0, 3));
    if (!m.count("wwpn")) bad_line(line, "field wwpn missing");
    if (!m.count("luns")) bad_line(line, "field luns missing");
    try {
      e.perm.wwpn = check_wwn(m["wwpn"], "wwpn");
      if (m.count("node")) e.perm.node = check_wwn(m["node"], "node");
      if (m.count("n_port_id")) e.perm.n_port_id = check_port_id(m["n_port_id"], "n_port_id");
    } catch (const Error& err) {
      bad_line(line, err.what);
    }
    for (int l : lu_list(line, m["luns"], 2047))
      e.perm.bitmap[static_cast<size_t>(l / 8)] |= static_cast<uint8_t>(1u << (l % 8));
    for (const auto& o : v)
      if (o.ctl == e.ctl && o.port == e.port && o.perm.wwpn == e.perm.wwpn)
        bad_line(line, "WWN " + e.perm.wwpn + " given twice for its port");
    v.push_back(std::move(e));
  }
  return v;
}

// ---- LU guard

std::vector<LuGuard> lu_guards(Db& db) {
  std::vector<LuGuard> v(kMaxLus);
  auto s = db.sql("SELECT lun, level, expiry FROM lu_guard");
  while (s.step()) {
    int l = s.i(0);
    if (l >= 0 && l < kMaxLus) v[static_cast<size_t>(l)] = {s.i(1), s.i64(2)};
  }
  return v;
}

LuGuard lu_guard(Db& db, int lun) {
  auto s = db.sql("SELECT level, expiry FROM lu_guard WHERE lun=?1");
  s.bind(lun);
  if (!s.step()) return {};
  return {s.i(0), s.i64(1)};
}

void set_lu_guard(Db& db, int lun, const LuGuard& g) {
  if (g.level == 0) {
    auto d = db.sql("DELETE FROM lu_guard WHERE lun=?1");
    d.bind(lun).run();
    release_lu(db, lun, kGuardHolder);
    return;
  }
  auto u = db.sql("INSERT OR REPLACE INTO lu_guard VALUES(?1, ?2, ?3)");
  u.bind(lun).bind(g.level).bind(g.expiry).run();
  hold_lu(db, lun, kGuardHolder);
}

int retention_days(const LuGuard& g, int64_t now) {
  if (g.expiry == -1) return -1;
  if (g.expiry <= now) return 0;
  return static_cast<int>((g.expiry - now + kSecondsPerDay - 1) / kSecondsPerDay);
}

int expiration_lock(Db& db) { return meta_int(db, "expiration_lock", 0); }

void set_expiration_lock(Db& db, int on) {
  if (on != 0 && on != 1) fail(kBadParameter, "expiration lock " + num(on) + " is not 0 or 1");
  set_meta(db, "expiration_lock", num(on));
}

}  // namespace sim
