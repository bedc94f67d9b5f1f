// Sessions and units: unit login, the unit registry and discovery, unit
// identity and maintenance, the unit condition report.
#include <sys/stat.h>

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <fstream>
#include <string>

#include "session.h"
#include "sim/core/call.h"
#include "sim/core/text.h"
#include "sim/model/accounts.h"
#include "sim/model/firmware.h"
#include "sim/model/model.h"
#include "sim/model/storage.h"

namespace {

using sim::Call;
using sim::fail;
using sim::in;
using sim::in_text;
using sim::out;
using sim::out_text;

constexpr int kMaxUnits = 256;     // registry entries
constexpr int kMaxLoginMode = 255;  // unit-login modes 0..255
constexpr int kRebootSeconds = 10;  // the unit answers "busy" this long after a reboot

// ---- the registry

struct UnitIn {
  std::string name, group, ctl0, ctl1, serial;
  int connect_type = 0, kx_type = 0, device_type = 0, unit_conf = 0, alert = 0;
};

UnitIn read_unit(const KXUnitParamRec* p) {
  const auto& r = in(p, "unit record");
  UnitIn u;
  u.name = sim::in_name(r.unit_name, sizeof r.unit_name, "unit_name");
  u.group = in_text(r.group_name, "group_name");
  u.ctl0 = in_text(r.ctl0, "ctl0");
  u.ctl1 = in_text(r.ctl1, "ctl1");
  u.serial = in_text(r.serial, "serial");
  if (sim::has_control(u.group) || sim::has_control(u.ctl0) || sim::has_control(u.ctl1) || sim::has_control(u.serial))
    fail(sim::kBadParameter, "control character in the unit record");
  u.connect_type = r.connect_type;
  u.kx_type = r.kx_type;
  u.device_type = r.device_type;
  u.unit_conf = r.unit_conf;
  u.alert = r.alert;
  return u;
}

// Registration by address: the controller addresses must answer a discovery;
// the unit's serial and type codes are taken from the answer.
void probe(Call& c, UnitIn& u) {
  if (u.ctl0.empty() && u.ctl1.empty()) fail(sim::kBadParameter, "no controller address");
  auto s = c.db.sql(
      "SELECT serial, kx_type, device_type, unit_conf FROM discover WHERE ip IN (?1, ?2) "
      "ORDER BY ip=?1 DESC LIMIT 1");
  s.bind(u.ctl0).bind(u.ctl1);
  if (!s.step()) fail(sim::kUnreachable, "nothing answers at " + u.ctl0);
  u.serial = s.text(0);
  u.kx_type = static_cast<int8_t>(s.i(1));
  u.device_type = static_cast<uint8_t>(s.i(2));
  u.unit_conf = static_cast<int8_t>(s.i(3));
}

bool registered(Call& c, const std::string& name) {
  auto s = c.db.sql("SELECT 1 FROM units WHERE name=?1");
  s.bind(name);
  return s.step();
}

int add_unit(const KXUnitParamRec* rec, bool by_ip, const char* fn) {
  return sim::run(fn, sim::kWrite, [&](Call& c) {
    UnitIn u = read_unit(rec);
    c.where = c.what = u.name;
    if (by_ip) probe(c, u);
    if (registered(c, u.name)) fail(sim::kExists, "unit " + u.name + " is registered");
    {
      auto n = c.db.sql("SELECT count(*) FROM units");
      n.step();
      if (n.i(0) >= kMaxUnits) fail(sim::kCapacity, "the registry is full");
    }
    auto s = c.db.sql(
        "INSERT INTO units VALUES(?1,?2,?3,?4,?5,?6,?7,?8,?9,?10,?11,"
        "(SELECT coalesce(max(seq),0)+1 FROM units))");
    s.bind(u.name).bind(u.group).bind(u.connect_type).bind(u.kx_type).bind(u.device_type);
    s.bind(u.unit_conf).bind(u.alert).bind(u.ctl0).bind(u.ctl1).bind(u.serial).bind(by_ip ? 1 : 0).run();
  });
}

int change_unit(const char* name, const KXUnitParamRec* rec, bool by_ip, const char* fn) {
  return sim::run(fn, sim::kWrite, [&](Call& c) {
    std::string old = in_text(name, 1024, "unit name");
    c.where = c.what = old;
    if (!registered(c, old)) fail(sim::kUnknownUnit, "no unit " + old);
    UnitIn u = read_unit(rec);
    if (by_ip) probe(c, u);
    if (u.name != old) {
      c.what = old + " -> " + u.name;
      if (registered(c, u.name)) fail(sim::kExists, "unit " + u.name + " is registered");
      c.db.sql("UPDATE sessions SET unit=?2 WHERE unit=?1").bind(old).bind(u.name).run();
      c.db.sql("UPDATE unit_logins SET unit=?2 WHERE unit=?1").bind(old).bind(u.name).run();
    }
    auto s = c.db.sql(
        "UPDATE units SET name=?2, group_name=?3, connect_type=?4, kx_type=?5, device_type=?6, "
        "unit_conf=?7, alert=?8, ctl0=?9, ctl1=?10, serial=?11, by_ip=?12 WHERE name=?1");
    s.bind(old).bind(u.name).bind(u.group).bind(u.connect_type).bind(u.kx_type).bind(u.device_type);
    s.bind(u.unit_conf).bind(u.alert).bind(u.ctl0).bind(u.ctl1).bind(u.serial).bind(by_ip ? 1 : 0).run();
  });
}

// Columns: name, group_name, connect_type, kx_type, device_type, unit_conf,
// alert, ctl0, ctl1, serial.
void fill_unit(const sim::Stmt& s, KXUnitParamRec& r) {
  out_text(r.unit_name, s.text(0));
  out_text(r.group_name, s.text(1));
  r.connect_type = static_cast<int8_t>(s.i(2));
  r.kx_type = static_cast<int8_t>(s.i(3));
  r.device_type = static_cast<uint8_t>(s.i(4));
  r.unit_conf = static_cast<int8_t>(s.i(5));
  r.alert = static_cast<int8_t>(s.i(6));
  out_text(r.ctl0, s.text(7));
  out_text(r.ctl1, s.text(8));
  out_text(r.serial, s.text(9));
}

int discover(const DiscoverEntryRec* entry, DiscoverUnitRec* unit, const char* fn) {
  return sim::run(fn, sim::kRead, [&](Call& c) {
    const auto& e = in(entry, "discovery entry");
    std::string ip = sim::in_name(e.ip_dev, sizeof e.ip_dev, "ip_dev");
    auto s = c.db.sql("SELECT kx_type, device_type, unit_conf, ctlno, serial FROM discover WHERE ip=?1");
    s.bind(ip);
    if (!s.step()) fail(sim::kNoSuchObject, "no array answers at " + ip);
    auto& u = out(unit, "discovered unit");
    u.connect_type = e.connect_type;
    out_text(u.ip_dev, ip);
    u.kx_type = static_cast<uint8_t>(s.i(0));
    u.device_type = static_cast<uint8_t>(s.i(1));
    u.unit_conf = static_cast<uint8_t>(s.i(2));
    u.ctlno = static_cast<uint8_t>(s.i(3));
    out_text(u.serial, s.text(4));
  });
}

// ---- identity

UnitIdentifierRec default_identifier(Call& c) {
  UnitIdentifierRec id{};
  std::string serial = sim::meta(c.db, "array_serial", "0000");
  out_text(id.equipment_id, serial.size() > 4 ? serial.substr(serial.size() - 4) : serial);
  for (int i = 0; i < 2; ++i) {
    id.ctl[i].ctrl_name_mode = 0;
    out_text(id.ctl[i].id_front, "CTL" + std::to_string(i));
    out_text(id.ctl[i].id_rear, i == 0 ? "A" : "B");
  }
  return id;
}

int login_mode(int mode) {
  if (mode < 0 || mode > kMaxLoginMode) fail(sim::kBadParameter, "mode " + std::to_string(mode));
  return mode;
}

// ---- the condition report

// Condition codes of the report's byte tables.
constexpr uint8_t kAbsent = 0, kNormal = 1, kAlarm = 2;

bool drive_in_trouble(const std::string& state) { return state == "offline" || state == "failed"; }

}  // namespace

extern "C" {

// ---- unit login

int KX_LoginKXUnit(const char* unit, int mode, const KXUserInfoRec* user, KXLoginResultRec* result) {
  return sim::run(__func__, sim::kWrite, [&](Call& c) {
    std::string u = c.unit(unit, 1024);
    c.what = "login mode " + std::to_string(mode);
    login_mode(mode);
    const auto& rec = in(user, "user");
    std::string name = in_text(rec.user, "user");
    sim::Secret pw(rec.passwd, sizeof rec.passwd, "passwd");
    if (!result) fail(sim::kBadParameter, "result: null");
    c.who = name.empty() ? "-" : name;
    std::string hash;
    int role = -1;
    {
      auto s = c.db.sql("SELECT hash, role, enabled FROM accounts WHERE user=?1");
      s.bind(name);
      if (!s.step() || !s.i(2)) fail(sim::kAuthFailed, "no such enabled account");
      hash = s.text(0);
      role = s.i(1);
    }
    if (!sim::verify_password(hash, pw.str())) fail(sim::kAuthFailed, "wrong password");
    sim::purge_sessions(c.db, c.now);
    auto s = c.db.sql("INSERT OR REPLACE INTO unit_logins(unit, mode, user, expires) VALUES(?1,?2,?3,?4)");
    s.bind(u).bind(mode).bind(name).bind(c.now + sim::session_timeout(c.db)).run();
    auto& r = out(result, "result");
    out_text(r.first, name);
    out_text(r.second, sim::role_name(c.db, role));
  });
}

int KX_LogoutKXUnit(const char* unit, int mode) {
  return sim::run(__func__, sim::kWrite, [&](Call& c) {
    std::string u = c.unit(unit, 1024);
    c.what = "login mode " + std::to_string(mode);
    login_mode(mode);
    {
      auto s = c.db.sql("SELECT user FROM unit_logins WHERE unit=?1 AND mode=?2 AND expires>?3");
      s.bind(u).bind(mode).bind(c.now);
      if (!s.step()) fail(sim::kNotLoggedIn, "nobody is logged in with that mode");
      c.who = s.text(0);
    }
    c.db.sql("DELETE FROM unit_logins WHERE unit=?1 AND mode=?2").bind(u).bind(mode).run();
  });
}

int KX_CheckLogin(const char* unit, int mode, int* state) {
  return sim::run(__func__, sim::kRead, [&](Call& c) {
    std::string u = c.unit(unit, 1024);
    login_mode(mode);
    if (!state) fail(sim::kBadParameter, "state: null");
    auto s = c.db.sql("SELECT 1 FROM unit_logins WHERE unit=?1 AND mode=?2 AND expires>?3");
    s.bind(u).bind(mode).bind(c.now);
    *state = s.step() ? 1 : 0;
  });
}

int KX_ResetLogin(const char* unit, int mode) {
  return sim::run(__func__, sim::kWrite, [&](Call& c) {
    std::string u = c.unit(unit, 1024);
    c.what = "login mode " + std::to_string(mode);
    login_mode(mode);
    c.db.sql("DELETE FROM unit_logins WHERE unit=?1 AND mode=?2").bind(u).bind(mode).run();
  });
}

int KX_KeepSession(const char* unit, const KXSessionInfoRec* session) {
  return sim::run(__func__, sim::kWrite, [&](Call& c) {
    c.session(unit, session);
    c.what = "session";
    auto s = c.db.sql("UPDATE sessions SET expires=?2 WHERE token=?1");
    s.blob(session->session_id, sizeof session->session_id).bind(c.now + sim::session_timeout(c.db)).run();
  });
}

// ---- unit registry and discovery

int KX_UnitAdd(const KXUnitParamRec* unit) { return add_unit(unit, false, __func__); }

int KX_UnitAddByIP(const KXUnitParamRec* unit) { return add_unit(unit, true, __func__); }

int KX_UnitChange(const char* unit, const KXUnitParamRec* param) {
  return change_unit(unit, param, false, __func__);
}

int KX_UnitChangeByIP(const char* unit, const KXUnitParamRec* param) {
  return change_unit(unit, param, true, __func__);
}

int KX_UnitDelete(const char* unit) {
  return sim::run(__func__, sim::kWrite, [&](Call& c) {
    std::string u = in_text(unit, 65, "unit name");
    c.where = c.what = u;
    if (!registered(c, u)) fail(sim::kUnknownUnit, "no unit " + u);
    c.db.sql("DELETE FROM sessions WHERE unit=?1").bind(u).run();
    c.db.sql("DELETE FROM unit_logins WHERE unit=?1").bind(u).run();
    c.db.sql("DELETE FROM units WHERE name=?1").bind(u).run();
  });
}

int KX_GetUnitParam(const char* unit, KXUnitParamRec* param) {
  return sim::run(__func__, sim::kRead, [&](Call& c) {
    std::string u = in_text(unit, 65, "unit name");
    auto s = c.db.sql(
        "SELECT name, group_name, connect_type, kx_type, device_type, unit_conf, alert, ctl0, ctl1, "
        "serial FROM units WHERE name=?1");
    s.bind(u);
    if (!s.step()) fail(sim::kUnknownUnit, "no unit " + u);
    fill_unit(s, out(param, "unit record"));
  });
}

int KX_GetUnitCount(int* count) {
  return sim::run(__func__, sim::kRead, [&](Call& c) {
    if (!count) fail(sim::kBadParameter, "count: null");
    auto s = c.db.sql("SELECT count(*) FROM units");
    s.step();
    *count = s.i(0);
  });
}

int KX_GetUnitParamTable(int count, KXUnitParamRec* params) {
  return sim::run(__func__, sim::kRead, [&](Call& c) {
    if (count < 0) fail(sim::kBadParameter, "negative count");
    if (count > 0 && !params) fail(sim::kBadParameter, "records: null");
    auto s = c.db.sql(
        "SELECT name, group_name, connect_type, kx_type, device_type, unit_conf, alert, ctl0, ctl1, "
        "serial FROM units ORDER BY seq");
    int i = 0;
    for (; i < count && s.step(); ++i) {
      std::memset(static_cast<void*>(&params[i]), 0, sizeof params[i]);
      fill_unit(s, params[i]);
    }
    for (; i < count; ++i) std::memset(static_cast<void*>(&params[i]), 0, sizeof params[i]);
  });
}

int KX_DiscoverUnitInformation(const DiscoverEntryRec* entry, DiscoverUnitRec* unit) {
  return discover(entry, unit, __func__);
}

int KX_DiscoverUnitInformationEx(const DiscoverEntryRec* entry, DiscoverUnitRec* unit) {
  return discover(entry, unit, __func__);
}

// ---- unit identity and maintenance

int KX_GetUnitIdentifier(const char* unit, UnitIdentifierRec* id) {
  return sim::run(__func__, sim::kRead, [&](Call& c) {
    c.unit_login(unit);
    UnitIdentifierRec rec{};
    if (!sim::load_setting(c.db, "unit_identifier", &rec, sizeof rec)) rec = default_identifier(c);
    out(id, "identifier") = rec;
  });
}

int KX_SetUnitIdentifier(const char* unit, const UnitIdentifierRec* id) {
  return sim::run(__func__, sim::kWrite, [&](Call& c) {
    c.what = "unit identifier";
    c.unit_login(unit, sim::kRightMaintenance);
    const auto& r = in(id, "identifier");
    UnitIdentifierRec keep{};
    out_text(keep.equipment_id, in_text(r.equipment_id, "equipment_id"));
    for (int i = 0; i < 2; ++i) {
      if (r.ctl[i].ctrl_name_mode != 0 && r.ctl[i].ctrl_name_mode != 1)
        fail(sim::kBadParameter, "ctrl_name_mode " + std::to_string(r.ctl[i].ctrl_name_mode));
      keep.ctl[i].ctrl_name_mode = r.ctl[i].ctrl_name_mode;
      out_text(keep.ctl[i].id_front, in_text(r.ctl[i].id_front, "id_front"));
      out_text(keep.ctl[i].id_rear, in_text(r.ctl[i].id_rear, "id_rear"));
    }
    if (sim::has_control(keep.equipment_id) || sim::has_control(keep.ctl[0].id_front) ||
        sim::has_control(keep.ctl[1].id_front) || sim::has_control(keep.ctl[0].id_rear) || sim::has_control(keep.ctl[1].id_rear))
      fail(sim::kBadParameter, "control character in the identifier");
    sim::save_setting(c.db, "unit_identifier", &keep, sizeof keep);
  });
}

int KX_UnitReboot(const char* unit, const KXSessionInfoRec* session) {
  return sim::run(__func__, sim::kWrite, [&](Call& c) {
    c.what = "reboot";
    c.session(unit, session, sim::kRightMaintenance);
    // The whole array restarts: every session and unit login ends.
    c.db.exec("DELETE FROM sessions; DELETE FROM unit_logins;");
    sim::set_meta(c.db, "ready_at", std::to_string(c.now + kRebootSeconds));
  });
}

int KX_TestUnitReady(const char* unit, int value) {
  return sim::run(__func__, sim::kRead, [&](Call& c) {
    c.unit(unit);
    (void)value;  // the controller to test; both answer alike
    std::string ready = sim::meta(c.db, "ready_at", "0");
    if (c.now < std::atoll(ready.c_str())) fail(sim::kBusy, "the unit is restarting");
  });
}

int KX_GUIInitialize(const GUIInitializeRec* init) {
  return sim::run(__func__, sim::kWrite, [&](Call& c) {
    const auto& r = in(init, "init");
    std::string path = in_text(r.damp_path, "damp_path");
    c.what = path;
    struct stat st;
    if (!path.empty() && (stat(path.c_str(), &st) != 0 || !S_ISDIR(st.st_mode)))
      fail(sim::kFileError, "no folder " + path);
    GUIInitializeRec keep{};
    out_text(keep.damp_path, path);
    sim::save_setting(c.db, "gui_initialize", &keep, sizeof keep);
  });
}

int KX_EnvironmentCheck(void) {
  return sim::run(__func__, sim::kRead, [](Call&) {});
}

int KX_JavaVersionCheck(const char* version) {
  return sim::run(__func__, sim::kRead, [&](Call&) {
    std::string v = in_text(version, 1024, "version");
    // "1.8.0_392" is Java 8, "17.0.9" is Java 17.
    const char* p = v.c_str();
    char* end = nullptr;
    long major = std::strtol(p, &end, 10);
    if (end == p || (*end && *end != '.' && *end != '_' && *end != '-' && *end != '+'))
      fail(sim::kBadParameter, "not a Java version: " + v);
    if (major == 1 && *end == '.') {
      p = end + 1;
      major = std::strtol(p, &end, 10);
      if (end == p) fail(sim::kBadParameter, "not a Java version: " + v);
    }
    if (major < 8) fail(sim::kBadParameter, "Java " + std::to_string(major) + " is older than 8");
  });
}

int KX_RgLuFileOutput(const char* unit, const char* path) {
  return sim::run(__func__, sim::kRead, [&](Call& c) {
    c.unit_login(unit);
    std::string u = c.where;
    std::string file = sim::in_name(path, 1024, "path");
    std::string text = "# RAID groups and LUs of unit " + u + ", serial " + sim::meta(c.db, "array_serial") + "\n";
    for (const auto& rg : sim::raid_groups(c.db)) {
      text += "raid_group " + std::to_string(rg.number) + " level " + std::to_string(rg.level) + " drives " +
              std::to_string(rg.per_group) + "x" + std::to_string(rg.groups) + " capacity " +
              std::to_string(rg.capacity) + " free " + std::to_string(rg.capacity - rg.used) + "\n";
      for (const auto& a : sim::rg_areas(c.db, rg.number))
        if (a.lun >= 0)
          text += "lu " + std::to_string(a.lun) + " raid_group " + std::to_string(rg.number) + " start " +
                  std::to_string(a.start) + " blocks " + std::to_string(a.size) + "\n";
    }
    std::ofstream f(file, std::ios::binary | std::ios::trunc);
    if (!f) fail(sim::kFileError, "cannot write " + file);
    f << text;
    f.close();
    if (!f) fail(sim::kFileError, "cannot write " + file);
  });
}

int KX_ModifyInfo(const char* name, int value, char* result) {
  return sim::run(__func__, value < 0 ? sim::kRead : sim::kWrite, [&](Call& c) {
    std::string n = sim::in_name(name, 1024, "name");
    if (n.size() > 64) fail(sim::kBadParameter, "name longer than 64 bytes");
    c.what = n;
    if (!result) fail(sim::kBadParameter, "result: null");
    if (value >= 0) {
      c.db.sql("INSERT OR REPLACE INTO info_items(name, value) VALUES(?1, ?2)").bind(n).bind(value).run();
    } else {
      auto s = c.db.sql("SELECT value FROM info_items WHERE name=?1");
      s.bind(n);
      if (!s.step()) fail(sim::kNoSuchObject, "no item " + n);
      value = s.i(0);
    }
    out_text(result, PERNIX_MODIFY_INFO_SIZE, n + "=" + std::to_string(value));
  });
}

int KX_APIRevision(char* first, char* second, char* third) {
  return sim::run(__func__, sim::kRead, [&](Call&) {
    if (!first || !second || !third) fail(sim::kBadParameter, "revision buffer: null");
    out_text(first, PERNIX_REVISION_SIZE, "SIM 1.0.0");
    out_text(second, PERNIX_REVISION2_SIZE, "pernix-sim 1");
    out_text(third, PERNIX_REVISION3_SIZE, std::string("pernix-sim 1.0.0, SQLite ") + sqlite3_libversion());
  });
}

// ---- unit condition report

int KX_GetUnitCondition(const char* unit, const KXSessionInfoRec* session, int a,
                        UnitConditionRec* condition) {
  return sim::run(__func__, sim::kRead, [&](Call& c) {
    c.session(unit, session);
    std::string u = c.where;
    (void)a;  // the report is the same for every value
    auto& r = out(condition, "condition");
    out_text(r.micro, sim::micro_revision(c.db));
    out_text(r.micro_pair, sim::micro_revision(c.db));
    r.max_slot = 2;
    for (int i = 0; i < 2; ++i) {
      r.cache[i] = {1, kNormal};
      r.cache2[i] = {1, kNormal};
    }
    r.ps[0] = r.ps[1] = kNormal;
    r.fan[0] = r.fan[1] = kNormal;
    r.ac[0] = r.ac[1] = kNormal;
    r.batt[0] = r.batt[1] = kNormal;
    int ports = std::atoi(sim::meta(c.db, "ports", "4").c_str());
    if (ports < 1 || ports > 4) ports = 4;
    for (int p = 0; p < ports; ++p) {
      r.ctl0_port[p] = r.ctl1_port[p] = kNormal;
      r.ctl0_port_type[p] = r.ctl1_port_type[p] = 1;  // Fibre Channel
      r.connector[0][p][0] = r.connector[1][p][0] = kNormal;
    }
    {
      auto s = c.db.sql("SELECT device_type FROM units WHERE name=?1");
      s.bind(u);
      r.device_type = static_cast<int8_t>(s.step() ? s.i(0) : 0);
    }
    out_text(r.ctl0_flush, "ON");
    out_text(r.ctl1_flush, "ON");
    out_text(r.ctl0_ip, sim::meta(c.db, "array_ip0"));
    out_text(r.ctl1_ip, sim::meta(c.db, "array_ip1"));
    out_text(r.ctl0_subnet, "255.255.255.0");
    out_text(r.ctl1_subnet, "255.255.255.0");
    out_text(r.ctl0_gateway, "192.0.2.1");
    out_text(r.ctl1_gateway, "192.0.2.1");
    // Enclosures: normal, or alarm while one of their drives is offline or
    // failed; the controllers report the alarm as well.
    bool trouble = false;
    for (const auto& d : sim::drives(c.db)) {
      if (d.enclosure < 0 || d.enclosure >= static_cast<int>(sizeof r.enclosure)) continue;
      if (r.enclosure[d.enclosure] == kAbsent) r.enclosure[d.enclosure] = kNormal;
      if (drive_in_trouble(d.state)) {
        r.enclosure[d.enclosure] = kAlarm;
        trouble = true;
      }
    }
    r.controller_condition = trouble ? kAlarm : kNormal;
    r.loop[0] = r.loop[1] = kNormal;
    out_text(r.serial, sim::meta(c.db, "array_serial"));
    r.unit_count = 1;
    r.unit_type[0] = sim::kUnitType;
    r.unit_type_sub_code[0] = sim::kUnitTypeSub;
    r.unit_kind[0] = 1;
    for (size_t i = 0; i < 16; ++i) r.function_revision[i] = 1;
    r.ctl_num = 2;
  });
}

}  // extern "C"
