// Account login and management, the alert-check user, the file-based user
// tables, user LAN settings and the audit log, called straight into
// libpernix.so.
#include <chrono>

#include "session_support.h"

using namespace t;

namespace {

constexpr int kAdministrator = 0, kStorageAdmin = 1, kMonitor = 2;

bool zero(const void* p, size_t n) {
  auto b = static_cast<const unsigned char*>(p);
  for (size_t i = 0; i < n; ++i)
    if (b[i]) return false;
  return true;
}

KXAccountBaseInfoRec base(const char* user, int role, int enabled = 1, const char* password = nullptr) {
  KXAccountBaseInfoRec b{};
  put(b.user_id, user);
  b.role = role;
  b.account_enable = enabled;
  if (password) {
    b.set_passwd = 1;
    put(b.passwd, password);
  }
  return b;
}

void login_cases() {
  fresh_db("login");
  KXSessionInfoRec s;
  std::memset(&s, 0x11, sizeof s);
  CHECK_EQ(login(kAdmin, "not-the-password", &s), kAuthFailed);
  CHECK_EQ(login("ghost", kAdminPassword, &s), kAuthFailed);
  CHECK_EQ(login(kAdmin, kAdminPassword, &s, "NOSUCH"), kUnknownUnit);
  CHECK_EQ(login(kAdmin, kAdminPassword, nullptr), kBadParameter);
  KXAccountLoginRec l{};
  put(l.user_id, kAdmin);
  std::memset(l.passwd, 'p', sizeof l.passwd);  // no NUL within the field
  CHECK_EQ(KX_LoginKXAccount(kUnit, &l, &s), kBadParameter);

  KXSessionInfoRec a{}, b{};
  CHECK_EQ(login(kAdmin, kAdminPassword, &a), 0);
  CHECK_EQ(login(kAdmin, kAdminPassword, &b), 0);
  CHECK(!zero(a.session_id, sizeof a.session_id));
  CHECK(std::memcmp(&a, &b, sizeof a) != 0);

  // Logout ends that session only.
  KXAccountLogoutRec out{};
  CHECK_EQ(KX_LogoutKXAccount(kUnit, &a, &out), 0);
  CHECK_EQ(KX_KeepSession(kUnit, &a), kNotLoggedIn);
  CHECK_EQ(KX_LogoutKXAccount(kUnit, &a, &out), kNotLoggedIn);
  CHECK_EQ(KX_KeepSession(kUnit, &b), 0);

  // Expiry: a session lives the timeout from login or the last keep.
  step_clock(1801);
  CHECK_EQ(KX_KeepSession(kUnit, &b), kSessionExpired);
  AccountOptionRec opt{};
  CHECK_EQ(KX_GetAccountOption(kUnit, &b, &opt), kSessionExpired);
  // Expired sessions no longer count against the account's limit; eight
  // live ones do.
  KXSessionInfoRec many[8];
  for (auto& m : many) CHECK_EQ(login(kAdmin, kAdminPassword, &m), 0);
  CHECK_EQ(login(kAdmin, kAdminPassword, &s), kTooManySessions);
  CHECK_EQ(KX_LogoutKXAccount(kUnit, &many[0], &out), 0);
  CHECK_EQ(login(kAdmin, kAdminPassword, &s), 0);

  // The log string goes into the login's audit entry when asked for.
  put(l.passwd, kAdminPassword);
  l.log_option = 1;
  put(l.log_string, "nightly job");
  CHECK_EQ(KX_LogoutKXAccount(kUnit, &many[1], &out), 0);
  CHECK_EQ(KX_LoginKXAccount(kUnit, &l, &s), 0);
  CHECK_EQ(sql_int("SELECT count(*) FROM audit WHERE function='KX_LoginKXAccount' AND object='nightly job'"), 1);
  CHECK_EQ(sql_int("SELECT count(*) FROM audit WHERE function='KX_LoginKXAccount' AND result=12299 "
                   "AND user='ghost'"), 1);
}

void password_storage_cases() {
  fresh_db("password_storage");
  KXSessionInfoRec s = admin();
  const char* secret = "Plain-Text-Would-Show-42";
  CHECK_EQ(create_account(s, "keeper", secret, kStorageAdmin), 0);
  std::string hash = sql_text("SELECT hash FROM accounts WHERE user='keeper'");
  CHECK_EQ(hash.rfind("$argon2id$", 0), 0u);
  CHECK(hash != sql_text("SELECT hash FROM accounts WHERE user='admin'"));
  // Neither password is anywhere in the database or its journal.
  sql("PRAGMA wal_checkpoint");
  std::string bytes = read_file(db_path) + read_file(db_path + "-wal");
  CHECK(!bytes.empty());
  CHECK(bytes.find(secret) == std::string::npos);
  CHECK(bytes.find(kAdminPassword) == std::string::npos);
  // The account list never carries a password.
  KXAccountInfoListRec list;
  std::memset(&list, 0x5C, sizeof list);
  CHECK_EQ(KX_GetAccountInformation(kUnit, &s, &list), 0);
  CHECK_EQ(list.regist_account_count, 2);
  for (const auto& e : list.account_info) CHECK(zero(e.account_base_info.passwd, sizeof e.account_base_info.passwd));
  CHECK_EQ(std::string(list.account_info[1].account_base_info.user_id), "keeper");
  CHECK_EQ(list.account_info[1].account_base_info.role, kStorageAdmin);
  CHECK_EQ(list.account_info[0].number_session, 1);
  CHECK_EQ(list.account_info[1].number_session, 0);
  CHECK(zero(&list.account_info[2], sizeof list.account_info[2]));

  auto t0 = std::chrono::steady_clock::now();
  KXSessionInfoRec k{};
  CHECK_EQ(login("keeper", secret, &k), 0);
  auto ms = std::chrono::duration_cast<std::chrono::milliseconds>(std::chrono::steady_clock::now() - t0).count();
  std::printf("account login: %lld ms\n", static_cast<long long>(ms));
}

void role_cases() {
  fresh_db("roles");
  KXSessionInfoRec s = admin();
  KXAccountRoleInformationRec roles;
  std::memset(&roles, 0x21, sizeof roles);
  CHECK_EQ(KX_GetKXAccountRoleInformation(kUnit, &s, &roles), 0);
  CHECK_EQ(roles.role_valid_index, 3);
  CHECK_EQ(std::string(roles.role_info[kAdministrator].role_name), "Administrator");
  CHECK_EQ(std::string(roles.role_info[kMonitor].role_name), "Monitor");
  CHECK(zero(&roles.role_info[3], sizeof roles.role_info[3] * 29));

  CHECK_EQ(create_account(s, "storage", "storage-pw", kStorageAdmin), 0);
  CHECK_EQ(create_account(s, "watcher", "watcher-pw", kMonitor), 0);
  OwnUserPermissionRec p{};
  CHECK_EQ(KX_GetOwnUserPermission(kUnit, &s, &p), 0);
  for (int i = 0; i < 9; ++i) CHECK_EQ(p.operation_auth[i], 1);
  KXSessionInfoRec st{};
  CHECK_EQ(login("storage", "storage-pw", &st), 0);
  CHECK_EQ(KX_GetOwnUserPermission(kUnit, &st, &p), 0);
  CHECK_EQ(p.role, kStorageAdmin);
  CHECK_EQ(p.operation_auth[0], 0);
  CHECK_EQ(p.operation_auth[1], 1);
  CHECK_EQ(p.operation_auth[7], 1);
  CHECK_EQ(p.operation_auth[8], 0);
  CHECK(std::memcmp(p.operation_auth, p.original_operation_auth, sizeof p.operation_auth) == 0);

  // A monitor reads but changes nothing; each refusal is audited.
  KXSessionInfoRec w{};
  CHECK_EQ(login("watcher", "watcher-pw", &w), 0);
  CHECK_EQ(KX_GetOwnUserPermission(kUnit, &w, &p), 0);
  CHECK(zero(p.operation_auth, sizeof p.operation_auth));
  CHECK_EQ(p.role, kMonitor);
  KXAccountInfoListRec list{};
  CHECK_EQ(KX_GetAccountInformation(kUnit, &w, &list), 0);
  CHECK_EQ(create_account(w, "intruder", "intruder-pw", kAdministrator), kPermission);
  KXAccountDeleteRec del{};
  put(del.user_id, "storage");
  CHECK_EQ(KX_DeleteAccount(kUnit, &w, &del), kPermission);
  ForcedLogoutInfoRec f{};
  put(f.user_id, kAdmin);
  CHECK_EQ(KX_ForcedLogoutKXAccount(kUnit, &w, &f), kPermission);
  KXAuditLogInitRec init{1};
  CHECK_EQ(KX_InitKXAuditLog(kUnit, &w, &init), kPermission);
  CHECK_EQ(sql_int("SELECT count(*) FROM audit WHERE user='watcher' AND result=12298"), 4);
  CHECK_EQ(sql_int("SELECT count(*) FROM accounts WHERE user='intruder'"), 0);
  // A storage administrator holds the audit right.
  CHECK_EQ(KX_InitKXAuditLog(kUnit, &st, &init), 0);
  CHECK_EQ(sql_int("SELECT count(*) FROM audit"), 1);
  CHECK_EQ(KX_GetKXAccountRoleInformation(kUnit, &w, nullptr), kBadParameter);
}

void refused_changes_audited() {
  fresh_db("refusals");
  KXSessionInfoRec s = admin();
  CHECK_EQ(create_account(s, "watcher", "watcher-pw", kMonitor), 0);
  KXSessionInfoRec w{};
  CHECK_EQ(login("watcher", "watcher-pw", &w), 0);
  CHECK_EQ(create_account(w, "intruder", "intruder-pw", kAdministrator), kPermission);
  KXAuditLogInformationRec info{};
  CHECK_EQ(KX_SetKXAuditLogInformation(kUnit, &w, &info), kPermission);
  CHECK_EQ(sql_int("SELECT count(*) FROM audit WHERE user='watcher' AND result=12298"), 2);
  CHECK_EQ(sql_text("SELECT object FROM audit WHERE user='watcher' AND function='KX_CreateAccount'"),
           "account");
}

void management_cases() {
  fresh_db("management");
  KXSessionInfoRec s = admin();
  // Bad input first: nothing is created.
  KXAccountBaseInfoRec b = base("short", kMonitor, 1, "abc");
  CHECK_EQ(KX_CreateAccount(kUnit, &s, &b), kBadParameter);
  b = base("norole", 9, 1, "long-enough");
  CHECK_EQ(KX_CreateAccount(kUnit, &s, &b), kBadParameter);
  b = base("nopass", kMonitor, 1);
  CHECK_EQ(KX_CreateAccount(kUnit, &s, &b), kBadParameter);
  b = base("flag", kMonitor, 2, "long-enough");
  CHECK_EQ(KX_CreateAccount(kUnit, &s, &b), kBadParameter);
  b = base("x", kMonitor, 1, "long-enough");
  std::memset(b.user_id, 'u', sizeof b.user_id);
  CHECK_EQ(KX_CreateAccount(kUnit, &s, &b), kBadParameter);
  CHECK_EQ(KX_CreateAccount(kUnit, &s, nullptr), kBadParameter);
  CHECK_EQ(sql_int("SELECT count(*) FROM accounts"), 1);

  // The table holds 21 accounts.
  for (int i = 1; i < 21; ++i) CHECK_EQ(create_account(s, ("user" + std::to_string(i)).c_str(), "pw-123456", kMonitor), 0);
  CHECK_EQ(create_account(s, "user1", "pw-123456", kMonitor), kExists);
  CHECK_EQ(create_account(s, "user21", "pw-123456", kMonitor), kCapacity);
  KXAccountInfoListRec list{};
  CHECK_EQ(KX_GetAccountInformation(kUnit, &s, &list), 0);
  CHECK_EQ(list.regist_account_count, 21);
  CHECK_EQ(std::string(list.account_info[20].account_base_info.user_id), "user20");

  // Change: role and state read back; the password stays unless set.
  b = base("user1", kStorageAdmin, 1);
  CHECK_EQ(KX_ChangeAccount(kUnit, &s, &b), 0);
  KXSessionInfoRec u1{};
  CHECK_EQ(login("user1", "pw-123456", &u1), 0);
  OwnUserPermissionRec p{};
  CHECK_EQ(KX_GetOwnUserPermission(kUnit, &u1, &p), 0);
  CHECK_EQ(p.role, kStorageAdmin);
  b = base("user1", kStorageAdmin, 1, "new-pw-789");
  CHECK_EQ(KX_ChangeAccount(kUnit, &s, &b), 0);
  CHECK_EQ(login("user1", "pw-123456", &u1), kAuthFailed);
  CHECK_EQ(login("user1", "new-pw-789", &u1), 0);
  // Disabling ends the account's sessions and refuses its logins.
  b = base("user1", kStorageAdmin, 0);
  CHECK_EQ(KX_ChangeAccount(kUnit, &s, &b), 0);
  CHECK_EQ(KX_GetOwnUserPermission(kUnit, &u1, &p), kNotLoggedIn);
  CHECK_EQ(login("user1", "new-pw-789", &u1), kAuthFailed);
  b = base("ghost", kMonitor, 1);
  CHECK_EQ(KX_ChangeAccount(kUnit, &s, &b), kNoSuchObject);

  // The last administrator stays one; nobody deletes or disables himself.
  b = base(kAdmin, kMonitor, 1);
  CHECK_EQ(KX_ChangeAccount(kUnit, &s, &b), kBusy);
  b = base(kAdmin, kAdministrator, 0);
  CHECK_EQ(KX_ChangeAccount(kUnit, &s, &b), kBusy);
  KXAccountDeleteRec del{};
  put(del.user_id, kAdmin);
  CHECK_EQ(KX_DeleteAccount(kUnit, &s, &del), kBusy);
  b = base("user2", kAdministrator, 1);
  CHECK_EQ(KX_ChangeAccount(kUnit, &s, &b), 0);
  KXSessionInfoRec u2{};
  CHECK_EQ(login("user2", "pw-123456", &u2), 0);
  CHECK_EQ(KX_DeleteAccount(kUnit, &u2, &del), 0);  // another administrator remains
  CHECK_EQ(KX_KeepSession(kUnit, &s), kNotLoggedIn);
  put(del.user_id, "user2");
  CHECK_EQ(KX_DeleteAccount(kUnit, &u2, &del), kBusy);
  put(del.user_id, "ghost");
  CHECK_EQ(KX_DeleteAccount(kUnit, &u2, &del), kNoSuchObject);
  CHECK_EQ(create_account(u2, "user21", "pw-123456", kMonitor), 0);
}

void own_password_cases() {
  fresh_db("own_password");
  KXSessionInfoRec s = admin();
  CHECK_EQ(create_account(s, "watcher", "watcher-pw", kMonitor), 0);
  KXSessionInfoRec w{};
  CHECK_EQ(login("watcher", "watcher-pw", &w), 0);
  OwnUserPasswordRec pw{};
  put(pw.user_id, "watcher");
  put(pw.old_passwd, "wrong-old");
  put(pw.new_passwd, "fresh-pw-1");
  CHECK_EQ(KX_ChangeOwnUserPassword(kUnit, &w, &pw), kAuthFailed);
  put(pw.old_passwd, "watcher-pw");
  put(pw.new_passwd, "tiny");
  CHECK_EQ(KX_ChangeOwnUserPassword(kUnit, &w, &pw), kBadParameter);
  put(pw.user_id, kAdmin);
  put(pw.old_passwd, kAdminPassword);
  put(pw.new_passwd, "fresh-pw-1");
  CHECK_EQ(KX_ChangeOwnUserPassword(kUnit, &w, &pw), kPermission);
  // A monitor changes its own password: no right is needed for that.
  put(pw.user_id, "watcher");
  put(pw.old_passwd, "watcher-pw");
  CHECK_EQ(KX_ChangeOwnUserPassword(kUnit, &w, &pw), 0);
  KXSessionInfoRec again{};
  CHECK_EQ(login("watcher", "watcher-pw", &again), kAuthFailed);
  CHECK_EQ(login("watcher", "fresh-pw-1", &again), 0);
  CHECK_EQ(KX_ChangeOwnUserPassword(kUnit, &w, nullptr), kBadParameter);

  AccountOptionRec o{};
  CHECK_EQ(KX_GetAccountOption(kUnit, &w, &o), 0);
  CHECK_EQ(o.option_info.password_min_length, 6);
  CHECK_EQ(o.option_info.session_timeout, 1800);
  CHECK_EQ(o.additional_info.keep_alive_time, 300);
}

void forced_logout_cases() {
  fresh_db("forced_logout");
  KXSessionInfoRec s = admin();
  KXSessionInfoRec s2 = admin();
  CHECK_EQ(create_account(s, "watcher", "watcher-pw", kMonitor), 0);
  KXSessionInfoRec w1{}, w2{};
  CHECK_EQ(login("watcher", "watcher-pw", &w1), 0);
  CHECK_EQ(login("watcher", "watcher-pw", &w2), 0);
  CHECK_EQ(unit_login("watcher", "watcher-pw"), 0);
  ForcedLogoutInfoRec f{};
  put(f.user_id, "watcher");
  CHECK_EQ(KX_ForcedLogoutKXAccount(kUnit, &s, &f), 0);
  CHECK_EQ(KX_KeepSession(kUnit, &w1), kNotLoggedIn);
  CHECK_EQ(KX_KeepSession(kUnit, &w2), kNotLoggedIn);
  int state = 1;
  CHECK_EQ(KX_CheckLogin(kUnit, 0, &state), 0);
  CHECK_EQ(state, 0);
  // Naming yourself ends your other sessions, not the one you call with.
  put(f.user_id, kAdmin);
  CHECK_EQ(KX_ForcedLogoutKXAccount(kUnit, &s, &f), 0);
  CHECK_EQ(KX_KeepSession(kUnit, &s), 0);
  CHECK_EQ(KX_KeepSession(kUnit, &s2), kNotLoggedIn);
  put(f.user_id, "ghost");
  CHECK_EQ(KX_ForcedLogoutKXAccount(kUnit, &s, &f), kNoSuchObject);
}

void alert_check_cases() {
  fresh_db("alert_check");
  AlertCheckUserRec a{};
  CHECK_EQ(KX_GetAlertCheckUser(&a), 0);
  CHECK_EQ(a.user_id[0], 0);
  KXSessionInfoRec s{};
  CHECK_EQ(KX_LoginKXAccountAlertCheck(kUnit, 0, &s), kAuthFailed);
  KXSessionInfoRec adm = admin();
  CHECK_EQ(create_account(adm, "poller", "poller-pw", kMonitor), 0);
  put(a.user_id, "poller");
  put(a.passwd, "not-it");
  a.account_enable = 1;
  CHECK_EQ(KX_SetAlertCheckUser(&a), kAuthFailed);
  put(a.passwd, "poller-pw");
  CHECK_EQ(KX_SetAlertCheckUser(&a), 0);
  AlertCheckUserRec got;
  std::memset(&got, 0x44, sizeof got);
  CHECK_EQ(KX_GetAlertCheckUser(&got), 0);
  CHECK_EQ(std::string(got.user_id), "poller");
  CHECK(zero(got.passwd, sizeof got.passwd));
  CHECK_EQ(got.account_enable, 1);

  CHECK_EQ(KX_LoginKXAccountAlertCheck(kUnit, 0, &s), 0);
  int alerts = -1;
  CHECK_EQ(KX_AlertCheck(kUnit, &s, 0, &alerts), 0);
  CHECK_EQ(alerts, 0);
  KXAccountLogoutRec out{};
  CHECK_EQ(KX_LogoutKXAccountAlertCheck(kUnit, &adm, &out), kBadParameter);
  CHECK_EQ(KX_LogoutKXAccountAlertCheck(kUnit, &s, &out), 0);
  CHECK_EQ(KX_AlertCheck(kUnit, &s, 0, &alerts), kNotLoggedIn);

  // The account's password changed since: the alert-check login is refused.
  KXAccountBaseInfoRec b = base("poller", kMonitor, 1, "changed-pw");
  CHECK_EQ(KX_ChangeAccount(kUnit, &adm, &b), 0);
  CHECK_EQ(KX_LoginKXAccountAlertCheck(kUnit, 0, &s), kAuthFailed);
  // Disabled: kept as given, no password needed.
  AlertCheckUserRec off{};
  put(off.user_id, "poller");
  CHECK_EQ(KX_SetAlertCheckUser(&off), 0);
  CHECK_EQ(KX_GetAlertCheckUser(&got), 0);
  CHECK_EQ(got.account_enable, 0);
  CHECK_EQ(KX_LoginKXAccountAlertCheck(kUnit, 0, &s), kAuthFailed);
  off.account_enable = 5;
  CHECK_EQ(KX_SetAlertCheckUser(&off), kBadParameter);

  KXLoginUserNamesRec names;
  std::memset(&names, 0x31, sizeof names);
  CHECK_EQ(KX_GetLoginUser(kUnit, 0, &names), 0);
  CHECK_EQ(names.first[0], 0);
  CHECK_EQ(unit_login("poller", "changed-pw", 2), 0);
  CHECK_EQ(KX_GetLoginUser(kUnit, 0, &names), 0);
  CHECK_EQ(names.first[0], 0);
  CHECK_EQ(KX_GetLoginUser(kUnit, 2, &names), 0);
  CHECK_EQ(std::string(names.first), "poller");
  CHECK_EQ(std::string(names.second), "Monitor");
  CHECK_EQ(KX_GetLoginUser(kUnit, -1, &names), 0);
  CHECK_EQ(std::string(names.first), "poller");
  CHECK_EQ(KX_GetLoginUser("NOSUCH", 0, &names), kUnknownUnit);
}

KXUserInfoRec user(const char* name, const char* password) {
  KXUserInfoRec u{};
  put(u.user, name);
  put(u.passwd, password);
  return u;
}

void array_user_cases() {
  fresh_db("array_users");
  const char* path = "/etc/array/users";
  KXUserRegistRec r{};
  CHECK_EQ(KX_GetUserInformation(path, 0, &r), 0);
  CHECK_EQ(r.num, 0);
  KXUserInfoRec alice = user("alice", "alice-pw");
  CHECK_EQ(KX_RegistUser(path, 0, &alice), 0);
  CHECK_EQ(KX_RegistUser(path, 1, &alice), kExists);
  KXUserInfoRec bob = user("bob", "bob-pw-1");
  CHECK_EQ(KX_RegistUser(path, 1, &bob), 0);
  KXUserInfoRec weak = user("carol", "abc");
  CHECK_EQ(KX_RegistUser(path, 0, &weak), kBadParameter);
  CHECK_EQ(KX_RegistUser(path, 2, &bob), kBadParameter);
  CHECK_EQ(KX_RegistUser("", 0, &bob), kBadParameter);
  CHECK_EQ(KX_GetUserInformation(path, 0, &r), 0);
  CHECK_EQ(r.num, 1);
  CHECK_EQ(KX_GetUserInformation(path, 1, &r), 0);
  CHECK_EQ(r.num, 1);
  CHECK_EQ(KX_GetUserInformation("/other", 0, &r), 0);
  CHECK_EQ(r.num, 0);
  CHECK(sql_text("SELECT hash FROM array_users WHERE user='alice'").rfind("$argon2id$", 0) == 0);

  // The table is marked for a password change; each change clears its user.
  CHECK_EQ(KX_PasswdChange("/other"), kNoSuchObject);
  CHECK_EQ(KX_PasswdChange(path), 0);
  CHECK_EQ(KX_GetUserInformation(path, 0, &r), 0);
  CHECK_EQ(r.option, 1);
  KXUserInfoRec alice2 = user("alice", "alice-new");
  KXUserInfoRec wrong = user("alice", "guess-pw");
  CHECK_EQ(KX_ChangeUser(path, 0, &wrong, &alice2), kAuthFailed);
  KXUserInfoRec taken = user("bob", "alice-new");
  CHECK_EQ(KX_ChangeUser(path, 0, &alice, &taken), kExists);
  CHECK_EQ(KX_ChangeUser(path, 0, &alice, &alice2), 0);
  CHECK_EQ(KX_GetUserInformation(path, 0, &r), 0);
  CHECK_EQ(r.option, 0);
  CHECK_EQ(KX_ChangeUser(path, 0, &alice, &alice2), kAuthFailed);  // the old password is gone
  KXUserInfoRec nobody = user("nobody", "whatever");
  CHECK_EQ(KX_ChangeUser(path, 0, &nobody, &alice2), kNoSuchObject);

  CHECK_EQ(KX_DeleteUser(path, 0, &bob), kNoSuchObject);  // bob is at level 1
  CHECK_EQ(KX_DeleteUser(path, 1, &bob), 0);
  CHECK_EQ(KX_DeleteAllUser(path, 0), 0);
  CHECK_EQ(KX_GetUserInformation(path, 0, &r), 0);
  CHECK_EQ(r.num, 0);

  for (int i = 0; i < 16; ++i) {
    KXUserInfoRec u = user(("u" + std::to_string(i)).c_str(), "pw-123456");
    CHECK_EQ(KX_RegistUser(path, i % 2, &u), 0);
  }
  KXUserInfoRec extra = user("extra", "pw-123456");
  CHECK_EQ(KX_RegistUser(path, 0, &extra), kCapacity);
  KXUserInfoRec unterminated = user("x", "pw-123456");
  std::memset(unterminated.user, 'x', sizeof unterminated.user);
  CHECK_EQ(KX_RegistUser("/third", 0, &unterminated), kBadParameter);

  CHECK_EQ(KX_PasswdCheck("good-pass"), 0);
  CHECK_EQ(KX_PasswdCheck("short"), kBadParameter);
  CHECK_EQ(KX_PasswdCheck("far-too-long-for-the-table"), kBadParameter);
  CHECK_EQ(KX_PasswdCheck(nullptr), kBadParameter);
}

void lan_cases() {
  fresh_db("lan");
  KXSessionInfoRec s = admin();
  KXUserLANInformationRec lan;
  std::memset(&lan, 0x3C, sizeof lan);
  CHECK_EQ(KX_GetKXUserLANInformation(kUnit, &s, &lan), 0);
  CHECK_EQ(std::string(lan.ctl[0].current_ipaddress), "192.0.2.10");
  CHECK_EQ(std::string(lan.ctl[1].set_ipaddress), "192.0.2.11");
  KXUserLANInformationRec set = lan;
  put(set.ctl[0].set_ipaddress, "10.1.2.3");
  put(set.ctl[1].set_gateway, "10.1.2.254");
  set.ctl[1].dhcp = 1;
  set.mainte_ip_change_mode = 2;
  set.logout_instruction = 1;
  CHECK_EQ(KX_SetKXUserLANInformation(kUnit, &s, &set), 0);
  KXUserLANInformationRec got{};
  CHECK_EQ(KX_GetKXUserLANInformation(kUnit, &s, &got), 0);
  CHECK(std::memcmp(&got, &set, sizeof got) == 0);
  KXUserLANInformationRec bad = set;
  put(bad.ctl[0].set_subnet, "255.255.0");
  CHECK_EQ(KX_SetKXUserLANInformation(kUnit, &s, &bad), kBadParameter);
  bad = set;
  std::memset(bad.ctl[1].current_gateway, '1', sizeof bad.ctl[1].current_gateway);
  CHECK_EQ(KX_SetKXUserLANInformation(kUnit, &s, &bad), kBadParameter);
  CHECK_EQ(create_account(s, "watcher", "watcher-pw", kMonitor), 0);
  KXSessionInfoRec w{};
  CHECK_EQ(login("watcher", "watcher-pw", &w), 0);
  CHECK_EQ(KX_SetKXUserLANInformation(kUnit, &w, &lan), kPermission);
  CHECK_EQ(KX_GetKXUserLANInformation(kUnit, &w, &got), 0);
  CHECK(std::memcmp(&got, &set, sizeof got) == 0);

  // A file of settings loads over what is set, without storing it.
  std::string file = dir().path + "/lan.conf";
  std::ofstream(file) << "# user LAN\nctl0.ipaddress = 172.16.0.5\nctl1.dhcp=0\nlast_set_mode = 3\n\n";
  KXUserLANInformationRec loaded{};
  CHECK_EQ(KX_LoadKXUserLANInformation(kUnit, &s, file.c_str(), &loaded), 0);
  CHECK_EQ(std::string(loaded.ctl[0].set_ipaddress), "172.16.0.5");
  CHECK_EQ(loaded.ctl[1].dhcp, 0);
  CHECK_EQ(loaded.last_set_mode, 3);
  CHECK_EQ(std::string(loaded.ctl[1].set_gateway), "10.1.2.254");
  CHECK_EQ(KX_GetKXUserLANInformation(kUnit, &s, &got), 0);
  CHECK(std::memcmp(&got, &set, sizeof got) == 0);
  std::ofstream(file) << "ctl0.ipaddress = 300.1.1.1\n";
  CHECK_EQ(KX_LoadKXUserLANInformation(kUnit, &s, file.c_str(), &loaded), kBadFile);
  std::ofstream(file) << "colour = blue\n";
  CHECK_EQ(KX_LoadKXUserLANInformation(kUnit, &s, file.c_str(), &loaded), kBadFile);
  std::string missing = dir().path + "/none.conf";
  CHECK_EQ(KX_LoadKXUserLANInformation(kUnit, &s, missing.c_str(), &loaded), kFileError);
}

void audit_cases() {
  fresh_db("audit");
  KXSessionInfoRec s = admin();
  KXAuditLogInformationRec info;
  std::memset(&info, 0x19, sizeof info);
  CHECK_EQ(KX_GetKXAuditLogInformation(kUnit, &s, &info), 0);
  CHECK_EQ(info.auditlog_internallog.internallog_used, 1);
  CHECK_EQ(info.auditlog_server.serverall_used, 0);
  KXAuditLogInformationRec set{};
  set.option = 3;
  set.set_valid = 1;
  set.auditlog_server.serverall_used = 1;
  set.auditlog_server.server[1].server_used = 1;
  put(set.auditlog_server.server[1].ip_address, "198.51.100.20");
  set.auditlog_internallog.internallog_used = 1;
  CHECK_EQ(KX_SetKXAuditLogInformation(kUnit, &s, &set), 0);
  KXAuditLogInformationRec got{};
  CHECK_EQ(KX_GetKXAuditLogInformation(kUnit, &s, &got), 0);
  CHECK(std::memcmp(&got, &set, sizeof got) == 0);
  KXAuditLogInformationRec bad = set;
  put(bad.auditlog_server.server[0].ip_address, "syslog.example");
  bad.auditlog_server.server[0].server_used = 1;
  CHECK_EQ(KX_SetKXAuditLogInformation(kUnit, &s, &bad), kBadParameter);
  bad = set;
  bad.auditlog_internallog.internallog_used = 2;
  CHECK_EQ(KX_SetKXAuditLogInformation(kUnit, &s, &bad), kBadParameter);

  // Export: every entry, oldest first, as CSV; a refused change included.
  CHECK_EQ(create_account(s, "watcher", "watcher-pw", kMonitor), 0);
  KXSessionInfoRec w{};
  CHECK_EQ(login("watcher", "watcher-pw", &w), 0);
  KXAccountBaseInfoRec b = base("a,b \"c\"", kMonitor, 1, "long-enough");
  CHECK_EQ(KX_CreateAccount(kUnit, &s, &b), 0);
  CHECK_EQ(KX_CreateAccount(kUnit, &w, &b), kPermission);
  std::string file = dir().path + "/audit.csv";
  CHECK_EQ(KX_KXAuditLogExport(kUnit, &w, file.c_str()), 0);
  std::string text = read_file(file);
  std::istringstream in(text);
  std::string header, line, last;
  std::getline(in, header);
  CHECK_EQ(header, "id,time,unit,user,function,object,result");
  int lines = 0;
  while (std::getline(in, line)) {
    ++lines;
    last = line;
  }
  CHECK_EQ(lines, sql_int("SELECT count(*) FROM audit"));
  CHECK(last.find(",SIM01,watcher,KX_CreateAccount,account,12298") != std::string::npos);
  CHECK(text.find(",SIM01,admin,KX_CreateAccount,\"account a,b \"\"c\"\"\",0\n") != std::string::npos);
  CHECK(text.find("\n1,") != std::string::npos);
  std::string nowhere = dir().path + "/missing/audit.csv";
  CHECK_EQ(KX_KXAuditLogExport(kUnit, &w, nowhere.c_str()), kFileError);
  CHECK_EQ(KX_KXAuditLogExport(kUnit, &w, nullptr), kBadParameter);

  // Init clears the log; its own entry is the first of the new one.
  KXAuditLogInitRec init{1};
  CHECK_EQ(KX_InitKXAuditLog(kUnit, &w, &init), kPermission);
  init.set_valid = 4;
  CHECK_EQ(KX_InitKXAuditLog(kUnit, &s, &init), kBadParameter);
  int before = sql_int("SELECT count(*) FROM audit");
  init.set_valid = 0;
  CHECK_EQ(KX_InitKXAuditLog(kUnit, &s, &init), 0);
  CHECK_EQ(sql_int("SELECT count(*) FROM audit"), before + 1);
  init.set_valid = 1;
  CHECK_EQ(KX_InitKXAuditLog(kUnit, &s, &init), 0);
  CHECK_EQ(sql_int("SELECT count(*) FROM audit"), 1);
  CHECK_EQ(sql_text("SELECT function FROM audit"), "KX_InitKXAuditLog");
  CHECK_EQ(KX_KXAuditLogExport(kUnit, &s, file.c_str()), 0);
  CHECK(read_file(file).find(",SIM01,admin,KX_InitKXAuditLog,audit log,0\n") != std::string::npos);
}

}  // namespace

int main() {
  login_cases();
  password_storage_cases();
  role_cases();
  refused_changes_audited();
  management_cases();
  own_password_cases();
  forced_logout_cases();
  alert_check_cases();
  array_user_cases();
  lan_cases();
  audit_cases();
  return finish("account_test");
}
