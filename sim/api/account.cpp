// Accounts and audit: account login and management, the alert-check login,
// the array's file-based user tables, user LAN settings and the audit log.
#include <arpa/inet.h>

#include <cstdlib>
#include <cstring>
#include <ctime>
#include <fstream>
#include <map>
#include <string>

#include "account.h"
#include "sim/core/call.h"
#include "sim/core/text.h"
#include "sim/model/accounts.h"
#include "sim/model/model.h"
#include "sim/model/storage.h"

namespace {

using sim::Call;
using sim::fail;
using sim::in;
using sim::in_text;
using sim::out;
using sim::out_text;
using sim::Secret;

constexpr int kUsersPerTable = 16;  // users of one file-based user table
constexpr size_t kUserPasswordMax = 16;

bool ipv4(const std::string& s) {
  in_addr a;
  return inet_pton(AF_INET, s.c_str(), &a) == 1;
}

// A new session of `kind` for `user` on `unit`, written to `out_rec`.
void open_session(Call& c, const std::string& user, const std::string& unit, int kind,
                  KXSessionInfoRec* out_rec) {
  KXSessionInfoRec rec{};
  sim::random_bytes(rec.session_id, sizeof rec.session_id);
  auto s = c.db.sql("INSERT INTO sessions(token, user, unit, kind, created, expires) VALUES(?1,?2,?3,?4,?5,?6)");
  s.blob(rec.session_id, sizeof rec.session_id).bind(user).bind(unit).bind(kind).bind(c.now);
  s.bind(c.now + sim::session_timeout(c.db)).run();
  out(out_rec, "session") = rec;
}

int session_kind(Call& c, const KXSessionInfoRec* s) {
  auto q = c.db.sql("SELECT kind FROM sessions WHERE token=?1");
  q.blob(s->session_id, sizeof s->session_id);
  return q.step() ? q.i(0) : -1;
}

struct Account {
  std::string user, hash;
  int account_type = 0, role = 0, enabled = 0;
};

bool find_account(Call& c, const std::string& user, Account& a) {
  auto s = c.db.sql("SELECT hash, account_type, role, enabled FROM accounts WHERE user=?1");
  s.bind(user);
  if (!s.step()) return false;
  a.user = user;
  a.hash = s.text(0);
  a.account_type = s.i(1);
  a.role = s.i(2);
  a.enabled = s.i(3);
  return true;
}

std::string role_rights(Call& c, int role) {
  auto s = c.db.sql("SELECT rights FROM roles WHERE id=?1");
  s.bind(role);
  return s.step() ? s.text(0) : std::string();
}

bool administers(Call& c, int role, int enabled) {
  std::string r = role_rights(c, role);
  return enabled && !r.empty() && r[sim::kRightAccounts] == '1';
}

// Enabled accounts other than `user` whose role grants the accounts right.
int other_admins(Call& c, const std::string& user) {
  auto s = c.db.sql(
      "SELECT count(*) FROM accounts a JOIN roles r ON r.id=a.role WHERE a.user<>?1 AND a.enabled=1 "
      "AND substr(r.rights, 1, 1)='1'");
  s.bind(user);
  s.step();
  return s.i(0);
}

struct BaseIn {
  std::string user;
  int set_passwd = 0, account_type = 0, role = 0, enabled = 0;
};

BaseIn read_base(Call& c, const KXAccountBaseInfoRec& r) {
  BaseIn b;
  b.user = sim::in_name(r.user_id, sizeof r.user_id, "user_id");
  c.what = "account " + b.user;
  b.set_passwd = r.set_passwd;
  b.account_type = r.account_type;
  b.role = r.role;
  b.enabled = r.account_enable;
  if (b.set_passwd != 0 && b.set_passwd != 1) fail(sim::kBadParameter, "set_passwd");
  if (b.account_type != 0 && b.account_type != 1) fail(sim::kBadParameter, "account_type");
  if (b.enabled != 0 && b.enabled != 1) fail(sim::kBadParameter, "account_enable");
  if (role_rights(c, b.role).empty()) fail(sim::kBadParameter, "no role " + std::to_string(b.role));
  return b;
}

// ---- file-based user tables

std::string table_path(const char* path) {
  std::string p = in_text(path, 1024, "path");
  if (p.empty()) fail(sim::kBadParameter, "path: empty");
  return p;
}

int user_level(int a) {
  if (a != 0 && a != 1) fail(sim::kBadParameter, "user level " + std::to_string(a));
  return a;
}

std::string user_name(const KXUserInfoRec& u) {
  std::string n = in_text(u.user, "user");
  if (n.empty() || sim::has_control(n)) fail(sim::kBadParameter, "user name");
  return n;
}

// ---- user LAN settings

KXUserLANInformationRec default_lan(Call& c) {
  KXUserLANInformationRec r{};
  for (int i = 0; i < 2; ++i) {
    auto& d = r.ctl[i];
    d.support_index = 1;
    d.valid_index = 1;
    std::string ip = sim::meta(c.db, i == 0 ? "array_ip0" : "array_ip1");
    out_text(d.current_ipaddress, ip);
    out_text(d.current_subnet, "255.255.255.0");
    out_text(d.current_gateway, "192.0.2.1");
    out_text(d.set_ipaddress, ip);
    out_text(d.set_subnet, "255.255.255.0");
    out_text(d.set_gateway, "192.0.2.1");
  }
  return r;
}

KXUserLANInformationRec current_lan(Call& c) {
  KXUserLANInformationRec r{};
  if (!sim::load_setting(c.db, "user_lan", &r, sizeof r)) r = default_lan(c);
  return r;
}

// A clean copy of a LAN record: strings checked and zero-padded, addresses
// that are set must be IPv4 addresses, dhcp 0 or 1.
KXUserLANInformationRec checked_lan(const KXUserLANInformationRec& in_rec) {
  KXUserLANInformationRec r = in_rec;
  for (auto& d : r.ctl) {
    struct Field {
      char* p;
      const char* name;
    } fields[] = {{d.current_ipaddress, "current_ipaddress"}, {d.current_subnet, "current_subnet"},
                  {d.current_gateway, "current_gateway"},     {d.set_ipaddress, "set_ipaddress"},
                  {d.set_subnet, "set_subnet"},               {d.set_gateway, "set_gateway"}};
    for (auto& f : fields) {
      std::string v = in_text(f.p, 16, f.name);
      if (!v.empty() && !ipv4(v)) fail(sim::kBadParameter, std::string(f.name) + ": not an IPv4 address");
      out_text(f.p, 16, v);
    }
    if (d.dhcp != 0 && d.dhcp != 1) fail(sim::kBadParameter, "dhcp");
  }
  return r;
}

// ---- audit log settings

KXAuditLogInformationRec current_audit(Call& c) {
  KXAuditLogInformationRec r{};
  if (!sim::load_setting(c.db, "audit_log", &r, sizeof r)) r.auditlog_internallog.internallog_used = 1;
  return r;
}

std::string csv(const std::string& v) {
  if (v.find_first_of(",\"\n\r") == std::string::npos) return v;
  std::string q = "\"";
  for (char ch : v) {
    if (ch == '"') q += '"';
    q += ch;
  }
  return q + "\"";
}

std::string iso_time(int64_t t) {
  time_t tt = static_cast<time_t>(t);
  struct tm tm;
  gmtime_r(&tt, &tm);
  char buf[32];
  std::strftime(buf, sizeof buf, "%Y-%m-%dT%H:%M:%SZ", &tm);
  return buf;
}

}  // namespace

extern "C" {

// ---- account login

int KX_LoginKXAccount(const char* unit, const KXAccountLoginRec* login, KXSessionInfoRec* session) {
  return sim::run(__func__, sim::kWrite, [&](Call& c) {
    std::string u = c.unit(unit);
    const auto& l = in(login, "login");
    std::string user = in_text(l.user_id, "user_id");
    Secret pw(l.passwd, sizeof l.passwd, "passwd");
    std::string note = in_text(l.log_string, "log_string");
    c.who = user.empty() ? "-" : user;
    c.what = l.log_option ? note : "login";
    if (!session) fail(sim::kBadParameter, "session: null");
    Account a;
    if (!find_account(c, user, a) || !a.enabled) fail(sim::kAuthFailed, "no such enabled account");
    if (!sim::verify_password(a.hash, pw.str())) fail(sim::kAuthFailed, "wrong password");
    sim::purge_sessions(c.db, c.now);
    {
      auto s = c.db.sql("SELECT count(*) FROM sessions WHERE user=?1 AND kind=?2 AND expires>?3");
      s.bind(user).bind(sim::kAccountSession).bind(c.now);
      s.step();
      if (s.i(0) >= sim::kSessionsPerAccount) fail(sim::kTooManySessions, user + " has no free session");
    }
    open_session(c, user, u, sim::kAccountSession, session);
  });
}

int KX_LogoutKXAccount(const char* unit, const KXSessionInfoRec* session, const KXAccountLogoutRec* logout) {
  return sim::run(__func__, sim::kWrite, [&](Call& c) {
    c.what = "logout";
    c.session(unit, session);
    c.what = "logout, option " + std::to_string(in(logout, "logout").log_option);
    c.db.sql("DELETE FROM sessions WHERE token=?1").blob(session->session_id, sizeof session->session_id).run();
  });
}

int KX_LoginKXAccountAlertCheck(const char* unit, int a, KXSessionInfoRec* session) {
  return sim::run(__func__, sim::kWrite, [&](Call& c) {
    std::string u = c.unit(unit);
    (void)a;  // not used
    c.what = "alert-check login";
    if (!session) fail(sim::kBadParameter, "session: null");
    std::string user, kept;
    {
      auto s = c.db.sql("SELECT user, hash FROM alert_check WHERE id=1 AND enabled=1");
      if (!s.step()) fail(sim::kAuthFailed, "no alert-check user is set");
      user = s.text(0);
      kept = s.text(1);
    }
    c.who = user;
    Account acc;
    if (!find_account(c, user, acc) || !acc.enabled) fail(sim::kAuthFailed, "the alert-check account is gone");
    if (acc.hash != kept) fail(sim::kAuthFailed, "the alert-check account's password changed");
    sim::purge_sessions(c.db, c.now);
    auto s = c.db.sql("DELETE FROM sessions WHERE unit=?1 AND kind=?2");
    s.bind(u).bind(sim::kAlertCheckSession).run();
    open_session(c, user, u, sim::kAlertCheckSession, session);
  });
}

int KX_LogoutKXAccountAlertCheck(const char* unit, const KXSessionInfoRec* session,
                                 const KXAccountLogoutRec* logout) {
  return sim::run(__func__, sim::kWrite, [&](Call& c) {
    c.what = "alert-check logout";
    c.session(unit, session);
    in(logout, "logout");
    if (session_kind(c, session) != sim::kAlertCheckSession)
      fail(sim::kBadParameter, "not an alert-check session");
    c.db.sql("DELETE FROM sessions WHERE token=?1").blob(session->session_id, sizeof session->session_id).run();
  });
}

int KX_ForcedLogoutKXAccount(const char* unit, const KXSessionInfoRec* session, const ForcedLogoutInfoRec* info) {
  return sim::run(__func__, sim::kWrite, [&](Call& c) {
    c.session(unit, session);
    std::string target = sim::in_name(in(info, "info").user_id, sizeof info->user_id, "user_id");
    c.what = "sessions of " + target;
    c.require(sim::kRightAccounts);
    Account a;
    if (!find_account(c, target, a)) fail(sim::kNoSuchObject, "no account " + target);
    if (target == c.actor.user) {
      // Your own other sessions end; the one you call with stays.
      auto s = c.db.sql("DELETE FROM sessions WHERE user=?1 AND token<>?2");
      s.bind(target).blob(session->session_id, sizeof session->session_id).run();
      c.db.sql("DELETE FROM unit_logins WHERE user=?1").bind(target).run();
    } else {
      sim::end_sessions(c.db, target);
    }
  });
}

// ---- account management

int KX_GetAccountInformation(const char* unit, const KXSessionInfoRec* session, KXAccountInfoListRec* list) {
  return sim::run(__func__, sim::kRead, [&](Call& c) {
    c.session(unit, session);
    auto& l = out(list, "account list");
    auto s = c.db.sql(
        "SELECT a.user, a.account_type, a.role, a.enabled, r.rights, "
        "(SELECT count(*) FROM sessions s WHERE s.user=a.user AND s.expires>?1) "
        "FROM accounts a LEFT JOIN roles r ON r.id=a.role ORDER BY a.created, a.rowid");
    s.bind(c.now);
    int n = 0;
    while (n < sim::kMaxAccounts && s.step()) {
      auto& e = l.account_info[n++];
      out_text(e.account_base_info.user_id, s.text(0));
      e.account_base_info.account_type = s.i(1);
      e.account_base_info.role = s.i(2);
      e.account_base_info.account_enable = s.i(3);
      e.number_session = s.i(5);
      e.modify_session = s.text(4).find('1') != std::string::npos ? e.number_session : 0;
    }
    l.regist_account_count = n;
  });
}

int KX_CreateAccount(const char* unit, const KXSessionInfoRec* session, const KXAccountBaseInfoRec* base) {
  return sim::run(__func__, sim::kWrite, [&](Call& c) {
    c.what = "account";
    c.session(unit, session, sim::kRightAccounts);
    const auto& r = in(base, "account");
    BaseIn b = read_base(c, r);
    Secret pw(r.passwd, sizeof r.passwd, "passwd");
    if (b.set_passwd != 1) fail(sim::kBadParameter, "a new account needs a password (set_passwd 1)");
    Account existing;
    if (find_account(c, b.user, existing)) fail(sim::kExists, "account " + b.user + " exists");
    {
      auto n = c.db.sql("SELECT count(*) FROM accounts");
      n.step();
      if (n.i(0) >= sim::kMaxAccounts) fail(sim::kCapacity, "the account table is full");
    }
    sim::check_new_password(c.db, pw.str());
    auto s = c.db.sql("INSERT INTO accounts VALUES(?1, ?2, ?3, ?4, ?5, ?6)");
    s.bind(b.user).bind(sim::hash_password(pw.str())).bind(b.account_type).bind(b.role).bind(b.enabled);
    s.bind(c.now).run();
  });
}

int KX_ChangeAccount(const char* unit, const KXSessionInfoRec* session, const KXAccountBaseInfoRec* base) {
  return sim::run(__func__, sim::kWrite, [&](Call& c) {
    c.what = "account";
    c.session(unit, session, sim::kRightAccounts);
    const auto& r = in(base, "account");
    BaseIn b = read_base(c, r);
    Secret pw(r.passwd, sizeof r.passwd, "passwd");
    Account a;
    if (!find_account(c, b.user, a)) fail(sim::kNoSuchObject, "no account " + b.user);
    if (b.user == c.actor.user && !b.enabled) fail(sim::kBusy, "you cannot disable yourself");
    if (administers(c, a.role, a.enabled) && !administers(c, b.role, b.enabled) && other_admins(c, b.user) == 0)
      fail(sim::kBusy, "the last administrator keeps the accounts right");
    std::string hash = a.hash;
    if (b.set_passwd) {
      sim::check_new_password(c.db, pw.str());
      hash = sim::hash_password(pw.str());
    }
    auto s = c.db.sql("UPDATE accounts SET hash=?2, account_type=?3, role=?4, enabled=?5 WHERE user=?1");
    s.bind(b.user).bind(hash).bind(b.account_type).bind(b.role).bind(b.enabled).run();
    if (!b.enabled) sim::end_sessions(c.db, b.user);
  });
}

int KX_DeleteAccount(const char* unit, const KXSessionInfoRec* session, const KXAccountDeleteRec* del) {
  return sim::run(__func__, sim::kWrite, [&](Call& c) {
    c.what = "account";
    c.session(unit, session);
    std::string user = sim::in_name(in(del, "account").user_id, sizeof del->user_id, "user_id");
    c.what = "account " + user;
    c.require(sim::kRightAccounts);
    Account a;
    if (!find_account(c, user, a)) fail(sim::kNoSuchObject, "no account " + user);
    if (user == c.actor.user) fail(sim::kBusy, "you cannot delete yourself");
    if (administers(c, a.role, a.enabled) && other_admins(c, user) == 0)
      fail(sim::kBusy, "the last administrator cannot be deleted");
    sim::end_sessions(c.db, user);
    c.db.sql("DELETE FROM accounts WHERE user=?1").bind(user).run();
  });
}

int KX_ChangeOwnUserPassword(const char* unit, const KXSessionInfoRec* session, const OwnUserPasswordRec* pw) {
  return sim::run(__func__, sim::kWrite, [&](Call& c) {
    c.what = "own password";
    c.session(unit, session);
    const auto& r = in(pw, "password");
    std::string user = in_text(r.user_id, "user_id");
    Secret old_pw(r.old_passwd, sizeof r.old_passwd, "old_passwd");
    Secret new_pw(r.new_passwd, sizeof r.new_passwd, "new_passwd");
    if (user != c.actor.user) fail(sim::kPermission, "only your own password");
    Account a;
    if (!find_account(c, user, a)) fail(sim::kNoSuchObject, "no account " + user);
    if (!sim::verify_password(a.hash, old_pw.str())) fail(sim::kAuthFailed, "wrong old password");
    sim::check_new_password(c.db, new_pw.str());
    c.db.sql("UPDATE accounts SET hash=?2 WHERE user=?1").bind(user).bind(sim::hash_password(new_pw.str())).run();
  });
}

int KX_GetOwnUserPermission(const char* unit, const KXSessionInfoRec* session, OwnUserPermissionRec* perm) {
  return sim::run(__func__, sim::kRead, [&](Call& c) {
    const auto& actor = c.session(unit, session);
    auto& p = out(perm, "permission");
    std::string original = role_rights(c, actor.role);
    for (int i = 0; i < sim::kRights; ++i) {
      p.operation_auth[i] = static_cast<size_t>(i) < actor.rights.size() && actor.rights[i] == '1';
      p.original_operation_auth[i] = static_cast<size_t>(i) < original.size() && original[i] == '1';
    }
    p.role = actor.role;
  });
}

int KX_GetKXAccountRoleInformation(const char* unit, const KXSessionInfoRec* session,
                                   KXAccountRoleInformationRec* roles) {
  return sim::run(__func__, sim::kRead, [&](Call& c) {
    c.session(unit, session);
    auto& r = out(roles, "roles");
    auto s = c.db.sql("SELECT id, name FROM roles ORDER BY id");
    int n = 0;
    while (s.step()) {
      int id = s.i(0);
      if (id < 0 || id >= sim::kMaxRoles) continue;
      out_text(r.role_info[id].role_name, s.text(1));
      ++n;
    }
    r.role_valid_index = n;
  });
}

int KX_GetAccountOption(const char* unit, const KXSessionInfoRec* session, AccountOptionRec* opt) {
  return sim::run(__func__, sim::kRead, [&](Call& c) {
    c.session(unit, session);
    auto& o = out(opt, "account option");
    o.option_info.password_min_length = sim::password_min_length(c.db);
    o.option_info.session_timeout = static_cast<int32_t>(sim::session_timeout(c.db));
    o.additional_info.keep_alive_time = sim::keep_alive_time(c.db);
  });
}

int KX_AlertCheck(const char* unit, const KXSessionInfoRec* session, int a, int* out_state) {
  return sim::run(__func__, sim::kRead, [&](Call& c) {
    c.session(unit, session);
    (void)a;  // not used
    if (!out_state) fail(sim::kBadParameter, "out: null");
    int alerts = 0;
    for (const auto& d : sim::drives(c.db))
      if (d.state == "offline" || d.state == "failed") ++alerts;
    *out_state = alerts;
  });
}

int KX_SetAlertCheckUser(const AlertCheckUserRec* user) {
  return sim::run(__func__, sim::kWrite, [&](Call& c) {
    const auto& r = in(user, "alert-check user");
    std::string name = in_text(r.user_id, "user_id");
    Secret pw(r.passwd, sizeof r.passwd, "passwd");
    c.what = "alert-check user " + name;
    if (r.account_enable != 0 && r.account_enable != 1) fail(sim::kBadParameter, "account_enable");
    std::string kept;
    if (r.account_enable) {
      Account a;
      if (name.empty() || !find_account(c, name, a) || !a.enabled) fail(sim::kAuthFailed, "no such enabled account");
      if (!sim::verify_password(a.hash, pw.str())) fail(sim::kAuthFailed, "wrong password");
      kept = a.hash;
    } else if (sim::has_control(name)) {
      fail(sim::kBadParameter, "user_id: control character");
    }
    auto s = c.db.sql("INSERT OR REPLACE INTO alert_check(id, user, enabled, hash) VALUES(1, ?1, ?2, ?3)");
    s.bind(name).bind(static_cast<int>(r.account_enable)).bind(kept).run();
  });
}

int KX_GetAlertCheckUser(AlertCheckUserRec* user) {
  return sim::run(__func__, sim::kRead, [&](Call& c) {
    auto& r = out(user, "alert-check user");
    auto s = c.db.sql("SELECT user, enabled FROM alert_check WHERE id=1");
    if (!s.step()) return;
    out_text(r.user_id, s.text(0));
    r.account_enable = s.i(1);
  });
}

int KX_GetLoginUser(const char* path, int a, KXLoginUserNamesRec* names) {
  return sim::run(__func__, sim::kRead, [&](Call& c) {
    std::string u = c.unit(path, 1024);
    auto& n = out(names, "names");
    auto s = c.db.sql(
        "SELECT l.user, coalesce(r.name, '') FROM unit_logins l LEFT JOIN accounts ac ON ac.user=l.user "
        "LEFT JOIN roles r ON r.id=ac.role WHERE l.unit=?1 AND (?2<0 OR l.mode=?2) AND l.expires>?3 "
        "ORDER BY l.expires DESC LIMIT 1");
    s.bind(u).bind(a).bind(c.now);
    if (!s.step()) return;
    out_text(n.first, s.text(0));
    out_text(n.second, s.text(1));
  });
}

// ---- file-based user tables

int KX_GetUserInformation(const char* path, int a, KXUserRegistRec* regist) {
  return sim::run(__func__, sim::kRead, [&](Call& c) {
    std::string p = table_path(path);
    int level = user_level(a);
    auto& r = out(regist, "regist");
    auto s = c.db.sql("SELECT count(*), coalesce(sum(must_change), 0) FROM array_users WHERE path=?1 AND level=?2");
    s.bind(p).bind(level);
    s.step();
    r.num = s.i(0);
    r.option = s.i(1);
  });
}

int KX_RegistUser(const char* path, int a, const KXUserInfoRec* user) {
  return sim::run(__func__, sim::kWrite, [&](Call& c) {
    std::string p = table_path(path);
    int level = user_level(a);
    const auto& u = in(user, "user");
    std::string name = user_name(u);
    Secret pw(u.passwd, sizeof u.passwd, "passwd");
    c.what = "user " + name + " of " + p;
    {
      auto s = c.db.sql("SELECT count(*), coalesce(sum(user=?2), 0) FROM array_users WHERE path=?1");
      s.bind(p).bind(name);
      s.step();
      if (s.i(1)) fail(sim::kExists, "user " + name + " exists");
      if (s.i(0) >= kUsersPerTable) fail(sim::kCapacity, "the user table is full");
    }
    sim::check_new_password(c.db, pw.str(), kUserPasswordMax);
    auto s = c.db.sql(
        "INSERT INTO array_users VALUES(?1, ?2, ?3, ?4, 0, "
        "(SELECT coalesce(max(seq), 0) + 1 FROM array_users))");
    s.bind(p).bind(name).bind(level).bind(sim::hash_password(pw.str())).run();
  });
}

int KX_ChangeUser(const char* path, int a, const KXUserInfoRec* old_user, const KXUserInfoRec* new_user) {
  return sim::run(__func__, sim::kWrite, [&](Call& c) {
    std::string p = table_path(path);
    int level = user_level(a);
    const auto& o = in(old_user, "old user");
    const auto& n = in(new_user, "new user");
    std::string old_name = user_name(o), new_name = user_name(n);
    Secret old_pw(o.passwd, sizeof o.passwd, "old passwd");
    Secret new_pw(n.passwd, sizeof n.passwd, "new passwd");
    c.what = "user " + old_name + " of " + p;
    std::string hash;
    {
      auto s = c.db.sql("SELECT hash FROM array_users WHERE path=?1 AND user=?2");
      s.bind(p).bind(old_name);
      if (!s.step()) fail(sim::kNoSuchObject, "no user " + old_name);
      hash = s.text(0);
    }
    if (!sim::verify_password(hash, old_pw.str())) fail(sim::kAuthFailed, "wrong password");
    if (new_name != old_name) {
      auto s = c.db.sql("SELECT 1 FROM array_users WHERE path=?1 AND user=?2");
      s.bind(p).bind(new_name);
      if (s.step()) fail(sim::kExists, "user " + new_name + " exists");
    }
    sim::check_new_password(c.db, new_pw.str(), kUserPasswordMax);
    bool same = new_pw.str() == old_pw.str();
    auto s = c.db.sql(
        "UPDATE array_users SET user=?3, level=?4, hash=?5, must_change=must_change*?6 WHERE path=?1 AND user=?2");
    s.bind(p).bind(old_name).bind(new_name).bind(level).bind(sim::hash_password(new_pw.str())).bind(same ? 1 : 0).run();
  });
}

int KX_DeleteUser(const char* path, int a, const KXUserInfoRec* user) {
  return sim::run(__func__, sim::kWrite, [&](Call& c) {
    std::string p = table_path(path);
    int level = user_level(a);
    std::string name = user_name(in(user, "user"));
    c.what = "user " + name + " of " + p;
    c.db.sql("DELETE FROM array_users WHERE path=?1 AND user=?2 AND level=?3").bind(p).bind(name).bind(level).run();
    if (c.db.changes() == 0) fail(sim::kNoSuchObject, "no user " + name + " at level " + std::to_string(level));
  });
}

int KX_DeleteAllUser(const char* path, int a) {
  return sim::run(__func__, sim::kWrite, [&](Call& c) {
    std::string p = table_path(path);
    int level = user_level(a);
    c.what = "users of " + p;
    c.db.sql("DELETE FROM array_users WHERE path=?1 AND level=?2").bind(p).bind(level).run();
  });
}

int KX_PasswdChange(const char* path) {
  return sim::run(__func__, sim::kWrite, [&](Call& c) {
    std::string p = table_path(path);
    c.what = "users of " + p;
    c.db.sql("UPDATE array_users SET must_change=1 WHERE path=?1").bind(p).run();
    if (c.db.changes() == 0) fail(sim::kNoSuchObject, "no users in " + p);
  });
}

int KX_PasswdCheck(const char* text) {
  return sim::run(__func__, sim::kRead, [&](Call& c) {
    Secret pw(text, static_cast<size_t>(kUserPasswordMax) + 1, "password");
    sim::check_new_password(c.db, pw.str(), kUserPasswordMax);
  });
}

// ---- user LAN settings

int KX_GetKXUserLANInformation(const char* unit, const KXSessionInfoRec* session, KXUserLANInformationRec* lan) {
  return sim::run(__func__, sim::kRead, [&](Call& c) {
    c.session(unit, session);
    KXUserLANInformationRec r = current_lan(c);
    out(lan, "LAN information") = r;
  });
}

int KX_SetKXUserLANInformation(const char* unit, const KXSessionInfoRec* session,
                               const KXUserLANInformationRec* lan) {
  return sim::run(__func__, sim::kWrite, [&](Call& c) {
    c.what = "user LAN";
    c.session(unit, session, sim::kRightMaintenance);
    KXUserLANInformationRec r = checked_lan(in(lan, "LAN information"));
    sim::save_setting(c.db, "user_lan", &r, sizeof r);
  });
}

int KX_LoadKXUserLANInformation(const char* unit, const KXSessionInfoRec* session, const char* path,
                                KXUserLANInformationRec* lan) {
  return sim::run(__func__, sim::kRead, [&](Call& c) {
    c.session(unit, session);
    std::string file = table_path(path);
    if (!lan) fail(sim::kBadParameter, "LAN information: null");
    std::ifstream f(file);
    if (!f) fail(sim::kFileError, "cannot read " + file);
    KXUserLANInformationRec r = current_lan(c);
    std::map<std::string, int32_t*> ints = {
        {"mainte_ip_change_mode", &r.mainte_ip_change_mode},
        {"last_set_mode", &r.last_set_mode},
        {"logout_instruction", &r.logout_instruction}};
    std::map<std::string, char*> texts;
    for (int i = 0; i < 2; ++i) {
      std::string k = "ctl" + std::to_string(i) + ".";
      ints[k + "dhcp"] = &r.ctl[i].dhcp;
      ints[k + "linkspeed_duplex"] = &r.ctl[i].set_linkspeed_duplex;
      texts[k + "ipaddress"] = r.ctl[i].set_ipaddress;
      texts[k + "subnet"] = r.ctl[i].set_subnet;
      texts[k + "gateway"] = r.ctl[i].set_gateway;
    }
    std::string line;
    int no = 0;
    while (std::getline(f, line)) {
      ++no;
      auto hash = line.find('#');
      if (hash != std::string::npos) line.erase(hash);
      auto b = line.find_first_not_of(" \t\r");
      if (b == std::string::npos) continue;
      auto eq = line.find('=');
      if (eq == std::string::npos) fail(sim::kBadFile, file + ":" + std::to_string(no) + ": no '='");
      auto trim = [](std::string s) {
        auto x = s.find_first_not_of(" \t\r");
        auto y = s.find_last_not_of(" \t\r");
        return x == std::string::npos ? std::string() : s.substr(x, y - x + 1);
      };
      std::string key = trim(line.substr(0, eq)), value = trim(line.substr(eq + 1));
      if (auto it = ints.find(key); it != ints.end()) {
        char* end = nullptr;
        long long v = std::strtoll(value.c_str(), &end, 10);
        if (value.empty() || *end || v < INT32_MIN || v > INT32_MAX)
          fail(sim::kBadFile, file + ":" + std::to_string(no) + ": not a number");
        *it->second = static_cast<int32_t>(v);
      } else if (auto t = texts.find(key); t != texts.end()) {
        if (value.size() > 15 || (!value.empty() && !ipv4(value)))
          fail(sim::kBadFile, file + ":" + std::to_string(no) + ": not an IPv4 address");
        out_text(t->second, 16, value);
      } else {
        fail(sim::kBadFile, file + ":" + std::to_string(no) + ": unknown key " + key);
      }
    }
    if (f.bad()) fail(sim::kFileError, "cannot read " + file);
    for (const auto& d : r.ctl)
      if (d.dhcp != 0 && d.dhcp != 1) fail(sim::kBadFile, file + ": dhcp must be 0 or 1");
    *lan = r;
  });
}

// ---- the audit log

int KX_GetKXAuditLogInformation(const char* unit, const KXSessionInfoRec* session, KXAuditLogInformationRec* info) {
  return sim::run(__func__, sim::kRead, [&](Call& c) {
    c.session(unit, session);
    KXAuditLogInformationRec r = current_audit(c);
    out(info, "audit log information") = r;
  });
}

int KX_SetKXAuditLogInformation(const char* unit, const KXSessionInfoRec* session,
                                const KXAuditLogInformationRec* info) {
  return sim::run(__func__, sim::kWrite, [&](Call& c) {
    c.what = "audit log settings";
    c.session(unit, session, sim::kRightAudit);
    KXAuditLogInformationRec r = in(info, "audit log information");
    auto flag = [](int32_t v, const char* what) {
      if (v != 0 && v != 1) fail(sim::kBadParameter, std::string(what) + " must be 0 or 1");
    };
    flag(r.auditlog_server.serverall_used, "serverall_used");
    flag(r.auditlog_internallog.internallog_used, "internallog_used");
    for (auto& s : r.auditlog_server.server) {
      flag(s.server_used, "server_used");
      std::string ip = in_text(s.ip_address, "ip_address");
      if ((s.server_used || !ip.empty()) && !ipv4(ip)) fail(sim::kBadParameter, "ip_address: not an IPv4 address");
      out_text(s.ip_address, ip);
    }
    sim::save_setting(c.db, "audit_log", &r, sizeof r);
  });
}

int KX_KXAuditLogExport(const char* unit, const KXSessionInfoRec* session, const char* path) {
  return sim::run(__func__, sim::kRead, [&](Call& c) {
    c.session(unit, session);
    std::string file = table_path(path);
    std::ofstream f(file, std::ios::binary | std::ios::trunc);
    if (!f) fail(sim::kFileError, "cannot write " + file);
    f << "id,time,unit,user,function,object,result\n";
    auto s = c.db.sql("SELECT id, time, unit, user, function, object, result FROM audit ORDER BY id");
    while (s.step()) {
      f << s.i64(0) << ',' << iso_time(s.i64(1)) << ',' << csv(s.text(2)) << ',' << csv(s.text(3)) << ','
        << csv(s.text(4)) << ',' << csv(s.text(5)) << ',' << s.i(6) << '\n';
    }
    f.close();
    if (!f) fail(sim::kFileError, "cannot write " + file);
  });
}

int KX_InitKXAuditLog(const char* unit, const KXSessionInfoRec* session, const KXAuditLogInitRec* init) {
  return sim::run(__func__, sim::kWrite, [&](Call& c) {
    c.what = "audit log";
    c.session(unit, session, sim::kRightAudit);
    int v = in(init, "init").set_valid;
    if (v != 0 && v != 1) fail(sim::kBadParameter, "set_valid must be 0 or 1");
    if (v) c.db.exec("DELETE FROM audit");
  });
}

}  // extern "C"
