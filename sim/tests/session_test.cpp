// Unit login, the unit registry and discovery, unit identity and maintenance
// and the condition report, called straight into libpernix.so.
#include "session_support.h"

using namespace t;

namespace {

KXUnitParamRec unit_rec(const char* name, const char* ctl0, const char* ctl1 = "") {
  KXUnitParamRec r{};
  put(r.unit_name, name);
  put(r.group_name, "lab");
  r.connect_type = -1;
  r.kx_type = 3;
  r.device_type = 0xC8;
  r.unit_conf = 1;
  r.alert = 1;
  put(r.ctl0, ctl0);
  put(r.ctl1, ctl1);
  put(r.serial, "12345678");
  return r;
}

void unit_login_cases() {
  fresh_db("unit_login");
  KXLoginResultRec r{};
  CHECK_EQ(unit_login(kAdmin, "wrong-password", 0, &r), kAuthFailed);
  CHECK_EQ(unit_login("nobody", kAdminPassword), kAuthFailed);
  int state = 7;
  CHECK_EQ(KX_CheckLogin(kUnit, 0, &state), 0);
  CHECK_EQ(state, 0);
  // The older calls act for the unit's login: none yet.
  UnitIdentifierRec id{};
  CHECK_EQ(KX_GetUnitIdentifier(kUnit, &id), kNotLoggedIn);

  CHECK_EQ(unit_login(kAdmin, kAdminPassword, 3, &r), 0);
  CHECK_EQ(std::string(r.first), kAdmin);
  CHECK_EQ(std::string(r.second), "Administrator");
  CHECK_EQ(KX_CheckLogin(kUnit, 3, &state), 0);
  CHECK_EQ(state, 1);
  CHECK_EQ(KX_CheckLogin(kUnit, 0, &state), 0);
  CHECK_EQ(state, 0);
  CHECK_EQ(KX_GetUnitIdentifier(kUnit, &id), 0);

  CHECK_EQ(KX_LogoutKXUnit(kUnit, 3), 0);
  CHECK_EQ(KX_LogoutKXUnit(kUnit, 3), kNotLoggedIn);
  CHECK_EQ(KX_CheckLogin(kUnit, 3, &state), 0);
  CHECK_EQ(state, 0);
  CHECK_EQ(KX_GetUnitIdentifier(kUnit, &id), kNotLoggedIn);

  // A unit login lasts the session timeout; ResetLogin clears it at once.
  CHECK_EQ(unit_login(kAdmin, kAdminPassword, 0), 0);
  step_clock(1799);
  CHECK_EQ(KX_CheckLogin(kUnit, 0, &state), 0);
  CHECK_EQ(state, 1);
  step_clock(2);
  CHECK_EQ(KX_CheckLogin(kUnit, 0, &state), 0);
  CHECK_EQ(state, 0);
  CHECK_EQ(KX_GetUnitIdentifier(kUnit, &id), kNotLoggedIn);
  CHECK_EQ(unit_login(kAdmin, kAdminPassword, 0), 0);
  CHECK_EQ(KX_ResetLogin(kUnit, 0), 0);
  CHECK_EQ(KX_CheckLogin(kUnit, 0, &state), 0);
  CHECK_EQ(state, 0);
  CHECK_EQ(KX_ResetLogin(kUnit, 0), 0);

  // Bad input.
  CHECK_EQ(unit_login(kAdmin, kAdminPassword, -1), kBadParameter);
  CHECK_EQ(unit_login(kAdmin, kAdminPassword, 256), kBadParameter);
  KXUserInfoRec u{};
  std::memset(u.user, 'a', sizeof u.user);  // no NUL within the field
  put(u.passwd, kAdminPassword);
  CHECK_EQ(KX_LoginKXUnit(kUnit, 0, &u, &r), kBadParameter);
  CHECK_EQ(KX_LoginKXUnit(kUnit, 0, nullptr, &r), kBadParameter);
  CHECK_EQ(KX_CheckLogin(kUnit, 0, nullptr), kBadParameter);
  CHECK_EQ(KX_CheckLogin("NOSUCH", 0, &state), kUnknownUnit);
  // The refused logins are in the audit log with their codes.
  CHECK_EQ(sql_int("SELECT count(*) FROM audit WHERE function='KX_LoginKXUnit' AND result=12299"), 2);
  CHECK_EQ(sql_text("SELECT user FROM audit WHERE function='KX_LoginKXUnit' AND result=12299 ORDER BY id"), kAdmin);
}

void keep_session_cases() {
  fresh_db("keep_session");
  KXSessionInfoRec s = admin();
  KXSessionInfoRec other = admin();
  step_clock(1700);
  CHECK_EQ(KX_KeepSession(kUnit, &s), 0);
  step_clock(200);  // 1900 s after login: only the kept session lives
  CHECK_EQ(KX_KeepSession(kUnit, &s), 0);
  CHECK_EQ(KX_KeepSession(kUnit, &other), kSessionExpired);
  KXSessionInfoRec unknown{};
  CHECK_EQ(KX_KeepSession(kUnit, &unknown), kNotLoggedIn);
  CHECK_EQ(KX_KeepSession(kUnit, nullptr), kBadParameter);
  // A session belongs to the unit it was opened on.
  KXUnitParamRec second = unit_rec("SECOND", "192.0.2.10");
  CHECK_EQ(KX_UnitAdd(&second), 0);
  CHECK_EQ(KX_KeepSession("SECOND", &s), kNotLoggedIn);
}

void registry_cases() {
  fresh_db("registry");
  int n = -1;
  CHECK_EQ(KX_GetUnitCount(&n), 0);
  CHECK_EQ(n, 1);
  KXUnitParamRec r = unit_rec("LAB2", "192.0.2.10", "192.0.2.11");
  CHECK_EQ(KX_UnitAdd(&r), 0);
  CHECK_EQ(KX_UnitAdd(&r), kExists);
  KXUnitParamRec got;
  std::memset(&got, 0x5A, sizeof got);
  CHECK_EQ(KX_GetUnitParam("LAB2", &got), 0);
  CHECK(std::memcmp(&got, &r, sizeof r) == 0);
  CHECK_EQ(KX_GetUnitCount(&n), 0);
  CHECK_EQ(n, 2);

  // A table asked for more units than there are: the rest zero, nothing
  // written past the count.
  KXUnitParamRec table[5];
  std::memset(table, 0xAA, sizeof table);
  CHECK_EQ(KX_GetUnitParamTable(4, table), 0);
  CHECK_EQ(std::string(table[0].unit_name), kUnit);
  CHECK_EQ(std::string(table[1].unit_name), "LAB2");
  KXUnitParamRec zero{};
  CHECK(std::memcmp(&table[2], &zero, sizeof zero) == 0);
  CHECK(std::memcmp(&table[3], &zero, sizeof zero) == 0);
  CHECK_EQ(static_cast<unsigned char>(table[4].unit_name[0]), 0xAA);
  std::memset(table, 0xAA, sizeof table);
  CHECK_EQ(KX_GetUnitParamTable(1, table), 0);
  CHECK_EQ(std::string(table[0].unit_name), kUnit);
  CHECK_EQ(static_cast<unsigned char>(table[1].unit_name[0]), 0xAA);
  CHECK_EQ(KX_GetUnitParamTable(-1, table), kBadParameter);
  CHECK_EQ(KX_GetUnitParamTable(0, nullptr), 0);
  CHECK_EQ(KX_GetUnitParamTable(2, nullptr), kBadParameter);

  // Bad records: no name, a name without NUL, an address without NUL.
  KXUnitParamRec bad = unit_rec("", "192.0.2.10");
  CHECK_EQ(KX_UnitAdd(&bad), kBadParameter);
  bad = unit_rec("X", "192.0.2.10");
  std::memset(bad.unit_name, 'x', sizeof bad.unit_name);
  CHECK_EQ(KX_UnitAdd(&bad), kBadParameter);
  bad = unit_rec("Y", "192.0.2.10");
  std::memset(bad.ctl1, '1', sizeof bad.ctl1);
  CHECK_EQ(KX_UnitAdd(&bad), kBadParameter);
  CHECK_EQ(KX_UnitAdd(nullptr), kBadParameter);
  CHECK_EQ(KX_GetUnitCount(&n), 0);
  CHECK_EQ(n, 2);

  // By address: the address must answer, and the answer fills the serial.
  KXUnitParamRec by_ip = unit_rec("BYIP", "203.0.113.99");
  CHECK_EQ(KX_UnitAddByIP(&by_ip), kUnreachable);
  by_ip = unit_rec("BYIP", "198.51.100.7");
  CHECK_EQ(KX_UnitAddByIP(&by_ip), 0);
  CHECK_EQ(KX_GetUnitParam("BYIP", &got), 0);
  CHECK(std::string(got.serial) != "12345678");
  CHECK_EQ(std::string(got.ctl0), "198.51.100.7");
  // It answers discovery but is not the simulated array.
  int state = 0;
  CHECK_EQ(KX_CheckLogin("BYIP", 0, &state), kUnreachable);

  // Renaming keeps the unit's login.
  CHECK_EQ(unit_login(kAdmin, kAdminPassword), 0);
  KXUnitParamRec renamed = unit_rec("MAIN", "192.0.2.10", "192.0.2.11");
  CHECK_EQ(KX_UnitChange(kUnit, &renamed), 0);
  CHECK_EQ(KX_GetUnitParam(kUnit, &got), kUnknownUnit);
  CHECK_EQ(KX_CheckLogin("MAIN", 0, &state), 0);
  CHECK_EQ(state, 1);
  renamed = unit_rec("LAB2", "192.0.2.10");
  CHECK_EQ(KX_UnitChange("MAIN", &renamed), kExists);
  CHECK_EQ(KX_UnitChange("NOSUCH", &renamed), kUnknownUnit);
  renamed = unit_rec("MAIN", "203.0.113.99");
  CHECK_EQ(KX_UnitChangeByIP("MAIN", &renamed), kUnreachable);
  CHECK_EQ(KX_GetUnitParam("MAIN", &got), 0);
  CHECK_EQ(std::string(got.ctl0), "192.0.2.10");

  CHECK_EQ(KX_UnitDelete("LAB2"), 0);
  CHECK_EQ(KX_UnitDelete("LAB2"), kUnknownUnit);
  CHECK_EQ(KX_GetUnitCount(&n), 0);
  CHECK_EQ(n, 2);
  // Deleting the unit ends its logins.
  CHECK_EQ(KX_UnitDelete("MAIN"), 0);
  CHECK_EQ(sql_int("SELECT count(*) FROM unit_logins"), 0);
  CHECK_EQ(sql_int("SELECT count(*) FROM audit WHERE function='KX_UnitAdd' AND result=12293"), 1);
}

void discovery_cases() {
  fresh_db("discovery");
  DiscoverEntryRec e{};
  e.connect_type = 1;
  put(e.ip_dev, "192.0.2.11");
  DiscoverUnitRec u;
  std::memset(&u, 0x77, sizeof u);
  CHECK_EQ(KX_DiscoverUnitInformation(&e, &u), 0);
  CHECK_EQ(static_cast<int>(u.ctlno), 1);
  CHECK_EQ(std::string(u.ip_dev), "192.0.2.11");
  CHECK_EQ(std::string(u.serial), "93000001");
  CHECK_EQ(static_cast<int>(u.connect_type), 1);
  put(e.ip_dev, "198.51.100.7");
  CHECK_EQ(KX_DiscoverUnitInformationEx(&e, &u), 0);
  CHECK_EQ(static_cast<int>(u.ctlno), 0);
  put(e.ip_dev, "203.0.113.1");
  CHECK_EQ(KX_DiscoverUnitInformation(&e, &u), kNoSuchObject);
  std::memset(e.ip_dev, '9', sizeof e.ip_dev);
  CHECK_EQ(KX_DiscoverUnitInformationEx(&e, &u), kBadParameter);
  CHECK_EQ(KX_DiscoverUnitInformation(nullptr, &u), kBadParameter);
}

void identity_cases() {
  fresh_db("identity");
  KXSessionInfoRec s = admin();
  CHECK_EQ(create_account(s, "watcher", "watcher-pw", 2), 0);
  CHECK_EQ(unit_login(kAdmin, kAdminPassword), 0);
  UnitIdentifierRec id{};
  CHECK_EQ(KX_GetUnitIdentifier(kUnit, &id), 0);
  CHECK_EQ(std::string(id.ctl[1].id_front), "CTL1");
  UnitIdentifierRec set{};
  put(set.equipment_id, "AB12");
  set.ctl[0].ctrl_name_mode = 1;
  put(set.ctl[0].id_front, "FRONT-0");
  put(set.ctl[0].id_rear, "R0");
  put(set.ctl[1].id_front, "FRONT-1");
  put(set.ctl[1].id_rear, "R1");
  CHECK_EQ(KX_SetUnitIdentifier(kUnit, &set), 0);
  std::memset(&id, 0x33, sizeof id);
  CHECK_EQ(KX_GetUnitIdentifier(kUnit, &id), 0);
  CHECK(std::memcmp(&id, &set, sizeof id) == 0);
  UnitIdentifierRec bad = set;
  bad.ctl[1].ctrl_name_mode = 7;
  CHECK_EQ(KX_SetUnitIdentifier(kUnit, &bad), kBadParameter);
  bad = set;
  std::memset(bad.ctl[0].id_rear, 'z', sizeof bad.ctl[0].id_rear);
  CHECK_EQ(KX_SetUnitIdentifier(kUnit, &bad), kBadParameter);
  // A monitor logged in to the unit reads it but may not change it.
  CHECK_EQ(KX_LogoutKXUnit(kUnit, 0), 0);
  CHECK_EQ(unit_login("watcher", "watcher-pw"), 0);
  CHECK_EQ(KX_GetUnitIdentifier(kUnit, &id), 0);
  UnitIdentifierRec other = set;
  put(other.equipment_id, "ZZ");
  CHECK_EQ(KX_SetUnitIdentifier(kUnit, &other), kPermission);
  CHECK_EQ(KX_GetUnitIdentifier(kUnit, &id), 0);
  CHECK_EQ(std::string(id.equipment_id), "AB12");
  CHECK_EQ(sql_int("SELECT count(*) FROM audit WHERE function='KX_SetUnitIdentifier' AND user='watcher' "
                   "AND result=12298"), 1);
}

void maintenance_cases() {
  fresh_db("maintenance");
  KXSessionInfoRec s = admin();
  CHECK_EQ(create_account(s, "watcher", "watcher-pw", 2), 0);
  KXSessionInfoRec w{};
  CHECK_EQ(login("watcher", "watcher-pw", &w), 0);
  CHECK_EQ(KX_UnitReboot(kUnit, &w), kPermission);
  CHECK_EQ(KX_TestUnitReady(kUnit, 0), 0);
  CHECK_EQ(KX_UnitReboot(kUnit, &s), 0);
  // Every session ended with the restart; the unit is busy for a while.
  CHECK_EQ(KX_KeepSession(kUnit, &s), kNotLoggedIn);
  CHECK_EQ(KX_KeepSession(kUnit, &w), kNotLoggedIn);
  CHECK_EQ(KX_TestUnitReady(kUnit, 0), kBusy);
  step_clock(11);
  CHECK_EQ(KX_TestUnitReady(kUnit, 1), 0);
  CHECK_EQ(KX_TestUnitReady("NOSUCH", 0), kUnknownUnit);

  CHECK_EQ(KX_EnvironmentCheck(), 0);
  CHECK_EQ(KX_JavaVersionCheck("1.8.0_392"), 0);
  CHECK_EQ(KX_JavaVersionCheck("17.0.9"), 0);
  CHECK_EQ(KX_JavaVersionCheck("1.6.0_45"), kBadParameter);
  CHECK_EQ(KX_JavaVersionCheck("seventeen"), kBadParameter);
  CHECK_EQ(KX_JavaVersionCheck(nullptr), kBadParameter);

  char first[20], second[20], third[52];
  std::memset(first, 0x41, sizeof first);
  CHECK_EQ(KX_APIRevision(first, second, third), 0);
  CHECK(std::strlen(first) > 0 && std::strlen(first) < sizeof first);
  CHECK(std::strlen(third) > 0 && std::strlen(third) < sizeof third);
  CHECK_EQ(KX_APIRevision(first, nullptr, third), kBadParameter);

  char result[1024];
  CHECK_EQ(KX_ModifyInfo("trace_level", -1, result), kNoSuchObject);
  CHECK_EQ(KX_ModifyInfo("trace_level", 5, result), 0);
  CHECK_EQ(std::string(result), "trace_level=5");
  std::memset(result, 0, sizeof result);
  CHECK_EQ(KX_ModifyInfo("trace_level", -1, result), 0);
  CHECK_EQ(std::string(result), "trace_level=5");
  CHECK_EQ(KX_ModifyInfo("", 1, result), kBadParameter);
  CHECK_EQ(KX_ModifyInfo("trace_level", 1, nullptr), kBadParameter);

  GUIInitializeRec g{};
  put(g.damp_path, dir().path);
  CHECK_EQ(KX_GUIInitialize(&g), 0);
  put(g.damp_path, dir().path + "/missing");
  CHECK_EQ(KX_GUIInitialize(&g), kFileError);
  std::memset(g.damp_path, 'p', sizeof g.damp_path);
  CHECK_EQ(KX_GUIInitialize(&g), kBadParameter);
}

void file_output_cases() {
  fresh_db("file_output");
  std::string file = dir().path + "/rglu.txt";
  CHECK_EQ(KX_RgLuFileOutput(kUnit, file.c_str()), kNotLoggedIn);
  CHECK_EQ(unit_login(kAdmin, kAdminPassword), 0);
  CHECK_EQ(KX_RgLuFileOutput(kUnit, file.c_str()), 0);
  std::string text = read_file(file);
  int groups = sql_int("SELECT count(*) FROM raid_groups");
  int lus = sql_int("SELECT count(*) FROM lus");
  int group_lines = 0, lu_lines = 0;
  std::istringstream in(text);
  for (std::string line; std::getline(in, line);) {
    if (line.rfind("raid_group ", 0) == 0) ++group_lines;
    if (line.rfind("lu ", 0) == 0) ++lu_lines;
  }
  CHECK_EQ(group_lines, groups);
  CHECK_EQ(lu_lines, lus);
  CHECK(groups > 0 && lus > 0);
  std::string first_lu = sql_text("SELECT 'lu ' || number || ' raid_group ' || rg || ' start ' || start || "
                                  "' blocks ' || size FROM lus ORDER BY rg, start LIMIT 1");
  CHECK(text.find(first_lu + "\n") != std::string::npos);
  std::string nowhere = dir().path + "/missing/rglu.txt";
  CHECK_EQ(KX_RgLuFileOutput(kUnit, nowhere.c_str()), kFileError);
  CHECK_EQ(KX_RgLuFileOutput(kUnit, ""), kBadParameter);
}

void condition_cases() {
  fresh_db("condition");
  KXSessionInfoRec s = admin();
  UnitConditionRec c;
  std::memset(&c, 0x6B, sizeof c);
  CHECK_EQ(KX_GetUnitCondition(kUnit, &s, 0, &c), 0);
  int enclosures = sql_int("SELECT count(DISTINCT enclosure) FROM drives");
  CHECK(enclosures > 1);
  for (int i = 0; i < enclosures; ++i) CHECK_EQ(static_cast<int>(c.enclosure[i]), 1);
  CHECK_EQ(static_cast<int>(c.enclosure[enclosures]), 0);
  CHECK_EQ(static_cast<int>(c.controller_condition), 1);
  CHECK_EQ(std::string(c.serial), "93000001");
  CHECK_EQ(std::string(c.ctl0_ip), "192.0.2.10");
  CHECK_EQ(c.ctl_num, 2);
  int alerts = -1;
  CHECK_EQ(KX_AlertCheck(kUnit, &s, 0, &alerts), 0);
  CHECK_EQ(alerts, 0);

  // A drive taken offline shows in its enclosure and the controllers.
  sql("UPDATE drives SET state='offline' WHERE enclosure=1 AND slot=2");
  CHECK_EQ(KX_GetUnitCondition(kUnit, &s, 0, &c), 0);
  CHECK_EQ(static_cast<int>(c.enclosure[0]), 1);
  CHECK_EQ(static_cast<int>(c.enclosure[1]), 2);
  CHECK_EQ(static_cast<int>(c.controller_condition), 2);
  CHECK_EQ(KX_AlertCheck(kUnit, &s, 0, &alerts), 0);
  CHECK_EQ(alerts, 1);
  sql("UPDATE drives SET state='normal'");
  CHECK_EQ(KX_GetUnitCondition(kUnit, &s, 0, &c), 0);
  CHECK_EQ(static_cast<int>(c.enclosure[1]), 1);
  CHECK_EQ(static_cast<int>(c.controller_condition), 1);

  CHECK_EQ(KX_GetUnitCondition(kUnit, &s, 0, nullptr), kBadParameter);
  KXSessionInfoRec none{};
  CHECK_EQ(KX_GetUnitCondition(kUnit, &none, 0, &c), kNotLoggedIn);
}

}  // namespace

int main() {
  unit_login_cases();
  keep_session_cases();
  registry_cases();
  discovery_cases();
  identity_cases();
  maintenance_cases();
  file_output_cases();
  condition_cases();
  return finish("session_test");
}
