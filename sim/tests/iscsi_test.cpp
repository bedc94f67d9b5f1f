// iSCSI ports, targets, initiators, logged-in hosts, CHAP users and their
// import, iSNS and ping, called straight into libpernix.so on fresh databases.
#include <chrono>
#include <cstdio>
#include <cstring>
#include <fstream>
#include <memory>
#include <string>
#include <vector>

#include "host.h"
#include "session_support.h"

using namespace t;

namespace {

KXSessionInfoRec S;  // the administrator's session of the current database

void fresh(const char* name) {
  fresh_db(name);
  S = admin();
}

template <class T>
std::unique_ptr<T> zeroed() {
  return std::make_unique<T>();  // value-initialised: all zero
}

template <class T>
bool same(const T& a, const T& b) {
  return std::memcmp(&a, &b, sizeof(T)) == 0;
}

std::unique_ptr<KXiSCSITargetInformationAllRec> targets() {
  auto r = zeroed<KXiSCSITargetInformationAllRec>();
  CHECK_EQ(KX_GetiSCSITargetInformationAll(kUnit, &S, r.get()), 0);
  return r;
}

std::unique_ptr<KXiSCSICHAPUserInformationAllRec> chap() {
  auto r = zeroed<KXiSCSICHAPUserInformationAllRec>();
  CHECK_EQ(KX_GetiSCSICHAPUserInformationAll(kUnit, &S, r.get()), 0);
  return r;
}

std::unique_ptr<KXiSCSIInitiatorInformationAllRec> initiators() {
  auto r = zeroed<KXiSCSIInitiatorInformationAllRec>();
  CHECK_EQ(KX_GetiSCSIInitiatorInformationAll(kUnit, &S, r.get()), 0);
  return r;
}

std::unique_ptr<KXiSCSILoginInitiatorInformationAllRec> logins() {
  auto r = zeroed<KXiSCSILoginInitiatorInformationAllRec>();
  CHECK_EQ(KX_GetiSCSILoginInitiatorInformationAll(kUnit, &S, r.get()), 0);
  return r;
}

KXiSCSITargetInfoRec target(const std::string& alias, int auth = 0, const std::string& user = "",
                            const std::string& secret = "") {
  KXiSCSITargetInfoRec t{};
  put(t.target_name, alias);
  t.authmethod = auth ? 1 : 0;
  t.auth = auth;
  put(t.user_name, user);
  put(t.secret, secret);
  return t;
}

void set_bit(uint8_t (&b)[32], int n) { b[n / 8] |= static_cast<uint8_t>(1u << (n % 8)); }

// Every byte of the database and its WAL, to look for what must not be there.
std::string db_bytes() { return read_file(db_path) + read_file(db_path + "-wal"); }

void spit(const std::string& path, const std::string& text) { std::ofstream(path, std::ios::binary) << text; }

KXSessionInfoRec session_of_role(const char* user, int role) {
  CHECK_EQ(create_account(S, user, "role-pass-123", role), 0);
  KXSessionInfoRec s{};
  CHECK_EQ(login(user, "role-pass-123", &s), 0);
  return s;
}

// ---- the default array

void defaults() {
  setenv("PERNIX_SIM_PORTS", "2", 1);
  fresh("defaults");
  unsetenv("PERNIX_SIM_PORTS");
  KXiSCSIPortInformationRec p{};
  CHECK_EQ(KX_GetiSCSIPortInformation(kUnit, &S, &p), 0);
  CHECK_EQ(p.ctl[1].port[1].port_valid, 1);
  CHECK_EQ(std::string(p.ctl[1].port[1].ip_address), "192.168.1.201");
  CHECK_EQ(p.ctl[0].port[0].mtu, 1500);
  CHECK_EQ(p.ctl[0].port[0].port_num, 3260);
  CHECK_EQ(std::strlen(p.ctl[0].port[0].ether), 17u);
  KXiSCSIPortPortInfoRec none{};
  CHECK(same(p.ctl[0].port[2], none));  // two ports per controller only

  auto t = targets();
  CHECK_EQ(t->option, 1);
  CHECK_EQ(t->ctl[0].port[1].target_count, 1);
  CHECK_EQ(t->ctl[0].port[1].target_max_count, 255);
  CHECK_EQ(t->ctl[0].port[1].target[0].target_valid, 1);
  CHECK_EQ(std::string(t->ctl[0].port[1].target[0].iscsi_name), "iqn.2014-04.com.pernix:sim.93000001.c0p1.t000");
  CHECK_EQ(t->ctl[0].port[2].port_valid, 0);

  // The seeded hosts: three on port 0, two on port 1.
  auto l = logins();
  CHECK_EQ(l->ctl[1].port[0].initiator_count, 3);
  CHECK_EQ(l->ctl[1].port[1].initiator_count, 2);
  CHECK_EQ(std::string(l->ctl[1].port[1].initiator[0].iscsi_name), "iqn.1994-05.com.redhat:sim-linux-02");
  CHECK_EQ(l->ctl[0].port[3].port_valid, 0);

  // A port that is not there: each setter names it.
  CHECK_EQ(KX_InitiSCSITarget(kUnit, &S, 0, 2), kNoSuchObject);
  CHECK_EQ(KX_InitiSCSITarget(kUnit, &S, 0, 4), kBadParameter);
  CHECK_EQ(KX_InitiSCSITarget(kUnit, &S, 2, 0), kBadParameter);
  KXiSCSIPortInformationRec q = p;
  q.ctl[0].port[2].set_valid = 1;
  CHECK_EQ(KX_SetiSCSIPortInformation(kUnit, &S, &q), kNoSuchObject);
}

// ---- port network settings

void port_settings() {
  fresh("ports");
  KXiSCSIPortInformationRec p{};
  CHECK_EQ(KX_GetiSCSIPortInformation(kUnit, &S, &p), 0);
  auto& x = p.ctl[0].port[2];
  put(x.ip_address, "10.20.30.40");
  put(x.subnet, "255.255.252.0");
  put(x.gateway, "10.20.28.1");
  x.mtu = 9000;
  x.keep_alive_timer = 120;
  x.port_num = 3261;
  CHECK_EQ(KX_SetiSCSIPortInformation(kUnit, &S, &p), 0);
  KXiSCSIPortInformationRec back{};
  CHECK_EQ(KX_GetiSCSIPortInformation(kUnit, &S, &back), 0);
  CHECK(same(p, back));

  // Each refusal leaves every port as it was.
  auto refused = [&](int code, auto edit) {
    KXiSCSIPortInformationRec r = back;
    edit(r.ctl[1].port[3]);
    CHECK_EQ(KX_SetiSCSIPortInformation(kUnit, &S, &r), code);
    KXiSCSIPortInformationRec now{};
    CHECK_EQ(KX_GetiSCSIPortInformation(kUnit, &S, &now), 0);
    CHECK(same(now, back));
  };
  using P = KXiSCSIPortPortInfoRec;
  refused(kBadParameter, [](P& q) { put(q.ip_address, "192.168.3.256"); });
  refused(kBadParameter, [](P& q) { put(q.ip_address, "192.168.03.20"); });
  refused(kBadParameter, [](P& q) { put(q.ip_address, "192.168.3"); });
  refused(kBadParameter, [](P& q) { put(q.ip_address, "192.168.3.255"); });  // broadcast of its /24
  refused(kBadParameter, [](P& q) { put(q.ip_address, "127.0.0.5"); });
  refused(kBadParameter, [](P& q) { put(q.subnet, "255.0.255.0"); });
  refused(kBadParameter, [](P& q) { put(q.subnet, "255.255.255.254"); });
  refused(kBadParameter, [](P& q) { put(q.gateway, "192.168.4.1"); });     // outside its subnet
  refused(kBadParameter, [](P& q) { put(q.gateway, "192.168.3.201"); });   // itself
  refused(kBadParameter, [](P& q) { q.mtu = 1600; });
  refused(kBadParameter, [](P& q) { q.port_num = 0; });
  refused(kBadParameter, [](P& q) { q.keep_alive_timer = 29; });
  refused(kBadParameter, [](P& q) { q.set_valid = 2; });
  refused(kBadParameter, [](P& q) { std::memset(q.gateway, 'x', sizeof q.gateway); });
  refused(kExists, [](P& q) { put(q.ip_address, "192.168.3.200"); });     // controller 0's port 3
  refused(kExists, [](P& q) {                                              // a LAN address
    put(q.ip_address, "192.0.2.10");
    put(q.subnet, "255.255.255.0");
  });
  refused(kBadParameter, [](P& q) { put(q.ip_address, "192.168.0.77"); }); // port 0's subnet, same controller
  // The MAC address is the port's own: a setter cannot change it.
  KXiSCSIPortInformationRec r = back;
  put(r.ctl[1].port[3].ether, "00:11:22:33:44:55");
  CHECK_EQ(KX_SetiSCSIPortInformation(kUnit, &S, &r), 0);
  KXiSCSIPortInformationRec now{};
  CHECK_EQ(KX_GetiSCSIPortInformation(kUnit, &S, &now), 0);
  CHECK(same(now, back));
  // Nothing selected.
  for (auto& c : r.ctl)
    for (auto& q : c.port) q.set_valid = 0;
  CHECK_EQ(KX_SetiSCSIPortInformation(kUnit, &S, &r), kBadParameter);
  CHECK_EQ(KX_SetiSCSIPortInformation(kUnit, &S, nullptr), kBadParameter);
  CHECK_EQ(KX_GetiSCSIPortInformation(kUnit, &S, nullptr), kBadParameter);

  // A monitor reads but does not change.
  KXSessionInfoRec mon = session_of_role("watcher", 2);
  CHECK_EQ(KX_GetiSCSIPortInformation(kUnit, &mon, &now), 0);
  CHECK_EQ(KX_SetiSCSIPortInformation(kUnit, &mon, &back), kPermission);

  // iSNS settings, per port.
  KXiSNSInformationRec i{};
  CHECK_EQ(KX_GetiSNSInformation(kUnit, &S, &i), 0);
  CHECK_EQ(i.ctl[0].port[0].set_valid, 1);
  CHECK_EQ(i.ctl[0].port[0].port_num, 3205);
  i.ctl[1].port[2].isns_use = 1;
  put(i.ctl[1].port[2].ip_address, "198.51.100.9");
  i.ctl[1].port[2].port_num = 3206;
  CHECK_EQ(KX_SetiSNSInformation(kUnit, &S, &i), 0);
  KXiSNSInformationRec ib{};
  CHECK_EQ(KX_GetiSNSInformation(kUnit, &S, &ib), 0);
  CHECK(same(i, ib));
  KXiSNSInformationRec bad = i;
  put(bad.ctl[0].port[0].ip_address, "");
  bad.ctl[0].port[0].isns_use = 1;  // in use without a server
  CHECK_EQ(KX_SetiSNSInformation(kUnit, &S, &bad), kBadParameter);
  bad = i;
  bad.ctl[0].port[1].isns_use = 2;
  CHECK_EQ(KX_SetiSNSInformation(kUnit, &S, &bad), kBadParameter);
  CHECK_EQ(KX_GetiSNSInformation(kUnit, &S, &ib), 0);
  CHECK(same(i, ib));
}

// ---- targets

void target_cases() {
  fresh("targets");
  const std::string secret = "Mutual-Secret-77";
  auto t3 = target("backup", 1, "array-side", secret);
  CHECK_EQ(KX_CreateiSCSITarget(kUnit, &S, 0, 1, 3, &t3), 0);
  auto all = targets();
  const auto& got = all->ctl[0].port[1].target[3];
  CHECK_EQ(all->ctl[0].port[1].target_count, 2);
  CHECK_EQ(got.target_valid, 1);
  CHECK_EQ(std::string(got.target_name), "backup");
  CHECK_EQ(std::string(got.iscsi_name), "iqn.2014-04.com.pernix:sim.93000001.c0p1.t003");
  CHECK_EQ(std::string(got.user_name), "array-side");
  CHECK_EQ(std::string(got.secret), "");  // never read back
  CHECK_EQ(db_bytes().find(secret), std::string::npos);

  // Changing with the secret field empty keeps the secret: the record read
  // back goes back unchanged.
  KXiSCSITargetInfoRec again = got;
  put(again.target_name, "backup-2");
  CHECK_EQ(KX_ChangeiSCSITarget(kUnit, &S, 0, 1, 3, &again), 0);
  all = targets();
  CHECK(same(all->ctl[0].port[1].target[3], again));
  // ... and the kept secret still counts: a CHAP user may not share it.
  auto u = zeroed<KXiSCSICHAPUserPortInfoRec>();
  u->user[0].user_valid = 1;
  put(u->user[0].user_name, "host-a");
  put(u->user[0].secret, secret);
  CHECK_EQ(KX_SetiSCSICHAPUserInformation(kUnit, &S, 0, 1, u.get()), kBadParameter);
  put(u->user[0].secret, "another-secret-1");
  CHECK_EQ(KX_SetiSCSICHAPUserInformation(kUnit, &S, 0, 1, u.get()), 0);

  // Slot -1 takes the lowest free slot.
  auto t = target("auto");
  CHECK_EQ(KX_CreateiSCSITarget(kUnit, &S, 0, 1, -1, &t), 0);
  CHECK_EQ(targets()->ctl[0].port[1].target[1].target_valid, 1);

  // Refusals.
  auto named = [](const std::string& alias, const std::string& iqn) {
    auto r = target(alias);
    put(r.iscsi_name, iqn);
    return r;
  };
  auto r = target("backup-2");
  CHECK_EQ(KX_CreateiSCSITarget(kUnit, &S, 0, 1, 7, &r), kExists);         // alias taken
  r = named("x", "iqn.2014-04.com.pernix:sim.93000001.c0p1.t003");
  CHECK_EQ(KX_CreateiSCSITarget(kUnit, &S, 0, 1, 7, &r), kExists);         // name taken
  r = target("y");
  CHECK_EQ(KX_CreateiSCSITarget(kUnit, &S, 0, 1, 3, &r), kExists);         // slot taken
  CHECK_EQ(KX_ChangeiSCSITarget(kUnit, &S, 0, 1, 9, &r), kNoSuchObject);
  CHECK_EQ(KX_CreateiSCSITarget(kUnit, &S, 0, 1, 255, &r), kBadParameter);
  r = named("y", "iqn.2014-04.com.Pernix:x");                               // upper case
  CHECK_EQ(KX_CreateiSCSITarget(kUnit, &S, 0, 1, 7, &r), kBadParameter);
  r = named("y", "iqn.2014-13.com.pernix:x");                               // month 13
  CHECK_EQ(KX_CreateiSCSITarget(kUnit, &S, 0, 1, 7, &r), kBadParameter);
  r = named("y", "eui.02004567A425678D");
  CHECK_EQ(KX_CreateiSCSITarget(kUnit, &S, 0, 1, 7, &r), 0);
  r = target("z", 1, "u", "short");
  CHECK_EQ(KX_CreateiSCSITarget(kUnit, &S, 0, 1, 8, &r), kBadParameter);   // secret under 12
  r = target("z", 1, "u", "");
  CHECK_EQ(KX_CreateiSCSITarget(kUnit, &S, 0, 1, 8, &r), kBadParameter);   // mutual without a secret
  r = target("z", 0, "u", "");
  CHECK_EQ(KX_CreateiSCSITarget(kUnit, &S, 0, 1, 8, &r), kBadParameter);   // a name without mutual auth
  r = target("z", 1, "u", "long-enough-secret");
  r.authmethod = 0;
  CHECK_EQ(KX_CreateiSCSITarget(kUnit, &S, 0, 1, 8, &r), kBadParameter);   // mutual auth without CHAP
  r = target("z");
  r.algorithm = 1;
  CHECK_EQ(KX_CreateiSCSITarget(kUnit, &S, 0, 1, 8, &r), kBadParameter);
  r = target("z");
  std::memset(r.secret, 'q', sizeof r.secret);                               // no NUL
  CHECK_EQ(KX_CreateiSCSITarget(kUnit, &S, 0, 1, 8, &r), kBadParameter);
  CHECK_EQ(KX_CreateiSCSITarget(kUnit, &S, 0, 1, 8, nullptr), kBadParameter);

  // Rights: targets need the hosts right, a secret the security right too.
  KXSessionInfoRec storage = session_of_role("storer", 1);
  r = target("by-storage");
  CHECK_EQ(KX_CreateiSCSITarget(kUnit, &storage, 0, 1, 10, &r), 0);
  r = target("by-storage-2", 1, "u", "long-enough-secret");
  CHECK_EQ(KX_CreateiSCSITarget(kUnit, &storage, 0, 1, 11, &r), kPermission);
  CHECK_EQ(KX_ChangeiSCSITargetSecurity(kUnit, &storage, 0, 1, 1), kPermission);
  // No audit entry carries a secret.
  CHECK_EQ(sql_int("SELECT count(*) FROM audit WHERE object LIKE '%secret%'"), 0);
  CHECK(sql_int("SELECT count(*) FROM audit WHERE function='KX_CreateiSCSITarget'") > 5);

  // Deleting clears the deleted targets' bits of initiators and CHAP users.
  auto ip = zeroed<KXiSCSIInitiatorPortInfoRec>();
  ip->initiator[0].initiator_valid = 1;
  put(ip->initiator[0].initiator_name, "win");
  put(ip->initiator[0].iscsi_name, "iqn.1991-05.com.microsoft:sim-win-01");
  set_bit(ip->initiator[0].target_bitmap, 0);
  set_bit(ip->initiator[0].target_bitmap, 3);
  CHECK_EQ(KX_SetiSCSIInitiatortInformation(kUnit, &S, 0, 1, ip.get()), 0);
  DeleteiSCSITargetRec d{};
  d.delete_target[3] = 1;
  d.delete_target[9] = 1;
  CHECK_EQ(KX_DeleteiSCSITarget(kUnit, &S, 0, 1, &d), kNoSuchObject);     // 9 is not there: nothing goes
  CHECK_EQ(targets()->ctl[0].port[1].target[3].target_valid, 1);
  d.delete_target[9] = 0;
  CHECK_EQ(KX_DeleteiSCSITarget(kUnit, &S, 0, 1, &d), 0);
  auto in = initiators();
  CHECK_EQ(in->ctl[0].port[1].initiator[0].target_bitmap[0], 1);
  d = {};
  d.delete_target[0] = 1;
  CHECK_EQ(KX_DeleteiSCSITarget(kUnit, &S, 0, 1, &d), kBusy);
  d = {};
  CHECK_EQ(KX_DeleteiSCSITarget(kUnit, &S, 0, 1, &d), kBadParameter);
  d.delete_target[5] = 2;
  CHECK_EQ(KX_DeleteiSCSITarget(kUnit, &S, 0, 1, &d), kBadParameter);

  // Initialising: target 0 alone with its defaults, security off.
  CHECK_EQ(KX_ChangeiSCSITargetSecurity(kUnit, &S, 0, 1, 1), 0);
  CHECK_EQ(KX_ChangeiSCSITargetSecurity(kUnit, &S, 0, 1, 2), kBadParameter);
  CHECK_EQ(targets()->ctl[0].port[1].security, 1);
  CHECK_EQ(KX_InitiSCSITarget(kUnit, &S, 0, 1), 0);
  all = targets();
  CHECK_EQ(all->ctl[0].port[1].target_count, 1);
  CHECK_EQ(all->ctl[0].port[1].security, 0);
  CHECK_EQ(std::string(all->ctl[0].port[1].target[0].target_name), "T000");
  CHECK_EQ(sql_int("SELECT count(*) FROM iscsi_targets WHERE ctl=0 AND port=1"), 1);
}

// ---- initiators and who is logged in

void initiator_cases() {
  fresh("initiators");
  auto t = target("second");
  CHECK_EQ(KX_CreateiSCSITarget(kUnit, &S, 1, 0, 4, &t), 0);
  auto ip = zeroed<KXiSCSIInitiatorPortInfoRec>();
  auto& a = ip->initiator[2];
  a.initiator_valid = 1;
  a.ctrl_flag = 1;
  put(a.initiator_name, "esx");
  put(a.iscsi_name, "iqn.1998-01.com.vmware:sim-esx-03");
  set_bit(a.target_bitmap, 4);
  auto& b = ip->initiator[7];
  b.initiator_valid = 1;
  put(b.initiator_name, "other");
  put(b.iscsi_name, "iqn.2001-04.com.example:storage.disk2");
  set_bit(b.target_bitmap, 0);
  CHECK_EQ(KX_SetiSCSIInitiatortInformation(kUnit, &S, 1, 0, ip.get()), 0);
  auto all = initiators();
  const auto& port = all->ctl[1].port[0];
  CHECK_EQ(port.initiator_count, 2);
  CHECK_EQ(port.initiator_max_count, 256);
  CHECK(same(port.initiator[2], a));
  CHECK(same(port.initiator[7], b));
  // The port record read back goes back unchanged.
  CHECK_EQ(KX_SetiSCSIInitiatortInformation(kUnit, &S, 1, 0, &port), 0);
  CHECK(same(initiators()->ctl[1].port[0], port));

  auto refused = [&](int code, auto edit) {
    auto r = std::make_unique<KXiSCSIInitiatorPortInfoRec>(port);
    edit(*r);
    CHECK_EQ(KX_SetiSCSIInitiatortInformation(kUnit, &S, 1, 0, r.get()), code);
    CHECK(same(initiators()->ctl[1].port[0], port));
  };
  using R = KXiSCSIInitiatorPortInfoRec;
  refused(kNoSuchObject, [](R& r) { set_bit(r.initiator[2].target_bitmap, 5); });   // no target 5
  refused(kBadParameter, [](R& r) { set_bit(r.initiator[2].target_bitmap, 255); });
  refused(kExists, [](R& r) {
    r.initiator[9] = r.initiator[2];
    put(r.initiator[9].initiator_name, "esx-again");
  });
  refused(kBadParameter, [](R& r) { r.initiator[0].initiator_valid = 3; });
  refused(kBadParameter, [](R& r) { put(r.initiator[2].iscsi_name, "not-a-name"); });
  refused(kBadParameter, [](R& r) { put(r.initiator[2].initiator_name, ""); });
  refused(kBadParameter, [](R& r) { r.initiator[2].ctrl_flag = 5; });
  CHECK_EQ(KX_SetiSCSIInitiatortInformation(kUnit, &S, 1, 9, &port), kBadParameter);

  // Security on: only the registered hosts stay logged in.
  CHECK_EQ(logins()->ctl[1].port[0].initiator_count, 3);
  CHECK_EQ(KX_ChangeiSCSITargetSecurity(kUnit, &S, 1, 0, 1), 0);
  auto l = logins();
  CHECK_EQ(l->ctl[1].port[0].initiator_count, 1);
  CHECK_EQ(std::string(l->ctl[1].port[0].initiator[0].iscsi_name), "iqn.1998-01.com.vmware:sim-esx-03");
  CHECK_EQ(l->ctl[0].port[0].initiator_count, 3);  // the other controller's port is open still
  CHECK_EQ(initiators()->ctl[1].port[0].security, 1);
  CHECK_EQ(chap()->ctl[1].port[0].security, 1);
}

// ---- CHAP users and their file

void chap_cases() {
  fresh("chap");
  auto t = target("t5");
  CHECK_EQ(KX_CreateiSCSITarget(kUnit, &S, 0, 0, 5, &t), 0);
  auto port = zeroed<KXiSCSICHAPUserPortInfoRec>();
  auto& a = port->user[0];
  a.user_valid = 1;
  put(a.user_name, "iqn.1994-05.com.redhat:sim-linux-02");
  put(a.secret, "Secret-Of-Linux-02");
  set_bit(a.target_bitmap, 5);
  auto& b = port->user[511];
  b.user_valid = 1;
  b.ctrl_flag = 1;
  put(b.user_name, "win01");
  put(b.secret, "Secret-Of-Win-01");
  CHECK_EQ(KX_SetiSCSICHAPUserInformation(kUnit, &S, 0, 0, port.get()), 0);
  std::string bytes = db_bytes();
  CHECK_EQ(bytes.find("Secret-Of-Linux-02"), std::string::npos);
  CHECK_EQ(bytes.find("Secret-Of-Win-01"), std::string::npos);

  auto all = chap();
  const auto& p = all->ctl[0].port[0];
  CHECK_EQ(p.user_count, 2);
  CHECK_EQ(p.user_max_count, 512);
  CHECK_EQ(std::string(p.user[0].user_name), "iqn.1994-05.com.redhat:sim-linux-02");
  CHECK_EQ(std::string(p.user[0].secret), "");
  CHECK_EQ(std::string(p.user[511].secret), "");
  CHECK_EQ(p.user[0].target_bitmap[0], 1u << 5);
  CHECK_EQ(p.user[511].ctrl_flag, 1);

  // The record read back (secrets empty) goes back unchanged: each user keeps
  // the secret it had, which a target then may not take.
  CHECK_EQ(KX_SetiSCSICHAPUserInformation(kUnit, &S, 0, 0, &p), 0);
  CHECK(same(chap()->ctl[0].port[0], p));
  auto m = target("m", 1, "array", "Secret-Of-Win-01");
  CHECK_EQ(KX_CreateiSCSITarget(kUnit, &S, 0, 0, 6, &m), kBadParameter);
  m = target("m", 1, "array", "Secret-Of-Array");
  CHECK_EQ(KX_CreateiSCSITarget(kUnit, &S, 0, 0, 6, &m), 0);

  auto refused = [&](int code, auto edit) {
    auto r = std::make_unique<KXiSCSICHAPUserPortInfoRec>(p);
    edit(*r);
    CHECK_EQ(KX_SetiSCSICHAPUserInformation(kUnit, &S, 0, 0, r.get()), code);
    CHECK(same(chap()->ctl[0].port[0], p));
  };
  using R = KXiSCSICHAPUserPortInfoRec;
  refused(kBadParameter, [](R& r) {  // a new user needs a secret
    r.user[3].user_valid = 1;
    put(r.user[3].user_name, "newcomer");
  });
  refused(kBadParameter, [](R& r) { put(r.user[0].secret, "too-short"); });
  refused(kBadParameter, [](R& r) { put(r.user[0].secret, "has a space in it"); });
  refused(kBadParameter, [](R& r) { put(r.user[0].secret, "Secret-Of-Array"); });  // the target's
  refused(kBadParameter, [](R& r) { put(r.user[0].user_name, ""); });
  refused(kExists, [](R& r) { put(r.user[511].user_name, "iqn.1994-05.com.redhat:sim-linux-02"); });
  refused(kNoSuchObject, [](R& r) { set_bit(r.user[0].target_bitmap, 7); });
  refused(kBadParameter, [](R& r) { r.user[1].user_valid = -1; });

  // Secrets and the security setting need the security right.
  KXSessionInfoRec storage = session_of_role("storer", 1);
  CHECK_EQ(KX_SetiSCSICHAPUserInformation(kUnit, &storage, 0, 0, &p), kPermission);
  CHECK_EQ(KX_iSCSICHAPUserImport(kUnit, &storage, "/nonexistent"), kPermission);

  // The import adds users and replaces the same-named ones in their slots.
  std::string file = dir().path + "/chap.txt";
  spit(file,
       "# CHAP users\n"
       "pernix-sim chap-users 1\n"
       "user ctl=0 port=0 name=win01 secret=Replaced-Secret-9 targets=0,5\n"
       "user ctl=0 port=0 name=esx03 secret=Esx-Secret-0003 targets=none\n"
       "\n"
       "user ctl=1 port=3 name=win01 secret=Other-Port-Secret targets=0\n"
       "end\n");
  CHECK_EQ(KX_iSCSICHAPUserImport(kUnit, &S, file.c_str()), 0);
  all = chap();
  CHECK_EQ(all->ctl[0].port[0].user_count, 3);
  CHECK_EQ(std::string(all->ctl[0].port[0].user[511].user_name), "win01");
  CHECK_EQ(all->ctl[0].port[0].user[511].target_bitmap[0], 1u | (1u << 5));
  CHECK_EQ(std::string(all->ctl[0].port[0].user[1].user_name), "esx03");  // lowest free slot
  CHECK_EQ(all->ctl[1].port[3].user_count, 1);
  CHECK_EQ(db_bytes().find("Replaced-Secret-9"), std::string::npos);
  // The replaced secret is the one kept now.
  m = target("m2", 1, "array2", "Replaced-Secret-9");
  CHECK_EQ(KX_CreateiSCSITarget(kUnit, &S, 0, 0, 7, &m), kBadParameter);
  m = target("m2", 1, "array2", "Secret-Of-Win-01");
  CHECK_EQ(KX_CreateiSCSITarget(kUnit, &S, 0, 0, 7, &m), 0);

  // A malformed file changes nothing.
  auto before = chap();
  const std::string head = "pernix-sim chap-users 1\n";
  const std::string good = "user ctl=0 port=0 name=fresh secret=Fresh-Secret-01 targets=0\n";
  // Whole files, then single lines after a good one (all or nothing).
  std::vector<std::string> bad = {
      good + "end\n",                                       // no header
      "pernix-sim chap-users 2\n" + good + "end\n",
      head + good,                                          // no end
      head + good + "end\n" + good,                         // after the end
  };
  const char* lines[] = {
      "user ctl=0 port=0 name=x secret=Fresh-Secret-01\n",  // no targets
      "user ctl=0 port=0 name=x secret=Fresh-Secret-01 targets=0 colour=red\n",
      "user ctl=0 port=0 port=1 name=x secret=Fresh-Secret-01 targets=0\n",
      "user ctl=2 port=0 name=x secret=Fresh-Secret-01 targets=0\n",
      "user ctl=0 port=0 name=x secret=short targets=0\n",
      "user ctl=0 port=0 name=x secret=Fresh-Secret-01 targets=0,\n",
      "user ctl=0 port=0 name=x secret=Fresh-Secret-01 targets=9\n",   // no target 9
      "user ctl=0 port=0 name=x secret=Secret-Of-Array targets=0\n",   // a target's secret
      "user ctl=0 port=0 name=fresh secret=Fresh-Secret-02 targets=0\n",  // twice
      "fresh ctl=0\n",
  };
  for (const char* l : lines) bad.push_back(head + good + l + "end\n");
  for (const auto& text : bad) {
    spit(file, text);
    int rc = KX_iSCSICHAPUserImport(kUnit, &S, file.c_str());
    if (rc != kBadFile) std::fprintf(stderr, "file refused with %d, not as malformed:\n%s", rc, text.c_str());
    CHECK_EQ(rc, kBadFile);
    CHECK(same(*chap(), *before));
  }
  setenv("PERNIX_SIM_PORTS", "2", 1);
  fresh("chap-two-ports");
  unsetenv("PERNIX_SIM_PORTS");
  spit(file, head + "user ctl=0 port=3 name=x secret=Fresh-Secret-01 targets=0\nend\n");
  CHECK_EQ(KX_iSCSICHAPUserImport(kUnit, &S, file.c_str()), kBadFile);  // no port 3 here
  CHECK_EQ(KX_iSCSICHAPUserImport(kUnit, &S, (dir().path + "/missing.txt").c_str()), kFileError);
  CHECK_EQ(KX_iSCSICHAPUserImport(kUnit, &S, dir().path.c_str()), kFileError);
  CHECK_EQ(KX_iSCSICHAPUserImport(kUnit, &S, nullptr), kBadParameter);
}

// ---- ping

void ping_cases() {
  fresh("ping");
  KXiSCSIPingRec p{};
  CHECK_EQ(KX_GetiSCSIPingStatus(kUnit, &S, &p), 0);
  CHECK_EQ(p.ctl[0].port[0].port_valid, 1);
  CHECK_EQ(p.ctl[0].port[0].request_valid, 0);
  CHECK_EQ(p.ctl[0].port[0].status, 0);

  KXiSCSIPingRec r{};
  r.ctl[0].port[0].request_valid = 1;
  put(r.ctl[0].port[0].ip_address, "192.168.0.13");  // the ESX host
  r.ctl[0].port[0].schedule_count = 3;
  r.ctl[1].port[2].request_valid = 1;
  put(r.ctl[1].port[2].ip_address, "192.168.2.99");  // nobody there
  CHECK_EQ(KX_RequestiSCSIPing(kUnit, &S, &r), 0);
  CHECK_EQ(KX_GetiSCSIPingStatus(kUnit, &S, &p), 0);
  CHECK_EQ(p.ctl[0].port[0].status, 1);
  CHECK_EQ(p.ctl[0].port[0].execute_count, 0);
  CHECK_EQ(p.ctl[0].port[0].schedule_count, 3);
  CHECK_EQ(std::string(p.ctl[0].port[0].ip_address), "192.168.0.13");
  CHECK_EQ(p.ctl[1].port[2].schedule_count, 4);  // 0 asks for the default
  CHECK_EQ(KX_RequestiSCSIPing(kUnit, &S, &r), kBusy);  // still running

  step_clock(2);
  CHECK_EQ(KX_GetiSCSIPingStatus(kUnit, &S, &p), 0);
  CHECK_EQ(p.ctl[0].port[0].status, 1);
  CHECK_EQ(p.ctl[0].port[0].execute_count, 2);
  CHECK_EQ(p.ctl[0].port[0].success_count, 2);
  step_clock(5);
  CHECK_EQ(KX_GetiSCSIPingStatus(kUnit, &S, &p), 0);
  CHECK_EQ(p.ctl[0].port[0].status, 2);
  CHECK_EQ(p.ctl[0].port[0].execute_count, 3);
  CHECK_EQ(p.ctl[0].port[0].success_count, 3);
  CHECK_EQ(p.ctl[1].port[2].status, 3);
  CHECK_EQ(p.ctl[1].port[2].execute_count, 4);
  CHECK_EQ(p.ctl[1].port[2].success_count, 0);

  // Beyond the subnet only through a gateway.
  KXiSCSIPingRec q{};
  q.ctl[0].port[1].request_valid = 1;
  put(q.ctl[0].port[1].ip_address, "192.168.0.13");
  q.ctl[0].port[1].schedule_count = 1;
  CHECK_EQ(KX_RequestiSCSIPing(kUnit, &S, &q), 0);
  step_clock(1);
  CHECK_EQ(KX_GetiSCSIPingStatus(kUnit, &S, &p), 0);
  CHECK_EQ(p.ctl[0].port[1].status, 3);
  KXiSCSIPortInformationRec ports{};
  CHECK_EQ(KX_GetiSCSIPortInformation(kUnit, &S, &ports), 0);
  put(ports.ctl[0].port[1].gateway, "192.168.1.1");
  CHECK_EQ(KX_SetiSCSIPortInformation(kUnit, &S, &ports), 0);
  CHECK_EQ(KX_RequestiSCSIPing(kUnit, &S, &q), 0);
  step_clock(1);
  CHECK_EQ(KX_GetiSCSIPingStatus(kUnit, &S, &p), 0);
  CHECK_EQ(p.ctl[0].port[1].status, 2);

  // Refusals.
  KXiSCSIPingRec bad{};
  CHECK_EQ(KX_RequestiSCSIPing(kUnit, &S, &bad), kBadParameter);  // nothing asked
  bad.ctl[0].port[3].request_valid = 1;
  put(bad.ctl[0].port[3].ip_address, "224.0.0.1");
  CHECK_EQ(KX_RequestiSCSIPing(kUnit, &S, &bad), kBadParameter);
  put(bad.ctl[0].port[3].ip_address, "192.168.3.1");
  bad.ctl[0].port[3].schedule_count = 101;
  CHECK_EQ(KX_RequestiSCSIPing(kUnit, &S, &bad), kBadParameter);
  bad.ctl[0].port[3].schedule_count = 1;
  bad.ctl[0].port[3].request_valid = 2;
  CHECK_EQ(KX_RequestiSCSIPing(kUnit, &S, &bad), kBadParameter);
}

// The largest table: 8 × 512 CHAP users, read in one query.
void chap_table_speed() {
  fresh("chap-speed");
  auto port = zeroed<KXiSCSICHAPUserPortInfoRec>();
  for (int n = 0; n < 512; ++n) {
    auto& u = port->user[n];
    u.user_valid = 1;
    put(u.user_name, "user-" + std::to_string(n));
    put(u.secret, "Secret-number-" + std::to_string(n));
  }
  auto t0 = std::chrono::steady_clock::now();
  CHECK_EQ(KX_SetiSCSICHAPUserInformation(kUnit, &S, 0, 0, port.get()), 0);
  auto t1 = std::chrono::steady_clock::now();
  auto all = zeroed<KXiSCSICHAPUserInformationAllRec>();
  constexpr int kRounds = 20;
  for (int i = 0; i < kRounds; ++i) CHECK_EQ(KX_GetiSCSICHAPUserInformationAll(kUnit, &S, all.get()), 0);
  auto t2 = std::chrono::steady_clock::now();
  CHECK_EQ(all->ctl[0].port[0].user_count, 512);
  CHECK_EQ(std::string(all->ctl[0].port[0].user[300].user_name), "user-300");
  using us = std::chrono::microseconds;
  std::printf("512 CHAP users set in %lld us; the whole table read in %lld us\n",
              static_cast<long long>(std::chrono::duration_cast<us>(t1 - t0).count()),
              static_cast<long long>(std::chrono::duration_cast<us>(t2 - t1).count() / kRounds));
}

}  // namespace

int main() {
  defaults();
  port_settings();
  target_cases();
  initiator_cases();
  chap_cases();
  ping_cases();
  chap_table_speed();
  return finish("iscsi_test");
}
