// iSCSI ports, targets, registered and logged-in initiators, CHAP users and
// their import, iSNS settings and ping tests.
//
// Every table is addressed controller (a), then port (b), then slot (c).
// CHAP secrets never leave the simulator: every getter's `secret` is empty,
// and a setter given an empty secret keeps the one kept.
#include <fcntl.h>
#include <sodium.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>
#include <map>
#include <string>
#include <type_traits>
#include <vector>

#include "host.h"
#include "sim/core/call.h"
#include "sim/core/text.h"
#include "sim/model/iscsi.h"
#include "sim/model/model.h"

namespace {

using sim::Call;
using sim::fail;
using sim::in;
using sim::in_text;
using sim::kBadParameter;
using sim::out;
using sim::out_text;

// A CHAP user file of 8 ports × 512 users stays far below.
constexpr size_t kChapFileLimit = 4u << 20;

std::string str(int v) { return std::to_string(v); }

void flag(int v, const std::string& what) {
  if (v != 0 && v != 1) fail(kBadParameter, what + " " + str(v) + " is not 0 or 1");
}

// A secret field: terminated within its buffer; copied straight into a Plain.
template <size_t N>
void in_secret(const char (&field)[N], sim::Plain& out, const std::string& what) {
  auto end = static_cast<const char*>(std::memchr(field, 0, N));
  if (!end) fail(kBadParameter, what + ": not terminated within " + str(static_cast<int>(N)) + " bytes");
  out.assign(std::string_view(field, static_cast<size_t>(end - field)));
}

// The port a row's first two columns name in a record of all ports, marked
// valid; null for a controller or port beyond the record.
template <class All>
auto* port_of(All& r, const sim::Stmt& s) {
  int ctl = s.i(0), port = s.i(1);
  using Port = std::remove_reference_t<decltype(r.ctl[0].port[0])>;
  if (ctl < 0 || ctl >= sim::kIscsiCtls || port < 0 || port >= sim::kIscsiPortSlots) return static_cast<Port*>(nullptr);
  auto& p = r.ctl[ctl].port[port];
  p.port_valid = 1;
  return &p;
}

// The slot in column col of a row, or -1 when the row has none (no entry
// joined) or it lies beyond the cap slots of its table.
int slot_of(const sim::Stmt& s, int col, int cap) {
  if (s.is_null(col)) return -1;
  int slot = s.i(col);
  return slot < 0 || slot >= cap ? -1 : slot;
}

sim::TargetBitmap in_bits(const uint8_t (&b)[32]) {
  sim::TargetBitmap t;
  std::memcpy(t.data(), b, t.size());
  return t;
}

void out_bits(uint8_t (&b)[32], std::span<const uint8_t> v) {
  if (v.size() == sizeof b) std::memcpy(b, v.data(), sizeof b);
}

sim::IscsiTarget target_in(const KXiSCSITargetInfoRec& r, int slot, sim::Plain& secret) {
  sim::IscsiTarget t;
  t.slot = slot;
  t.alias = in_text(r.target_name, "target_name");
  t.iscsi_name = in_text(r.iscsi_name, "iscsi_name");
  t.authmethod = r.authmethod;
  t.algorithm = r.algorithm;
  t.auth = r.auth;
  t.user_name = in_text(r.user_name, "user_name");
  in_secret(r.secret, secret, "secret");
  return t;
}

// Creating or changing a target needs the hosts right; giving it a secret
// needs the security right as well.
void target_rights(Call& c, const char* unit, const KXSessionInfoRec* s, const KXiSCSITargetInfoRec* r) {
  c.session(unit, s, sim::kRightHosts);
  if (r && std::memchr(r->secret, 0, sizeof r->secret) != r->secret) c.require(sim::kRightSecurity);
}

// Reads the whole file into a buffer sized once, wiped when it goes: the file
// holds secrets.
struct FileText {
  std::string text;
  explicit FileText(const std::string& path) {
    if (path.empty()) fail(sim::kFileError, "no file named");
    int fd = ::open(path.c_str(), O_RDONLY | O_CLOEXEC);
    if (fd < 0) fail(sim::kFileError, path + ": cannot open (" + std::strerror(errno) + ")");
    struct Closer {
      int fd;
      ~Closer() { ::close(fd); }
    } closer{fd};
    struct stat st;
    if (::fstat(fd, &st) != 0) fail(sim::kFileError, path + ": cannot read");
    if (!S_ISREG(st.st_mode)) fail(sim::kFileError, path + " is not a regular file");
    if (static_cast<uint64_t>(st.st_size) > kChapFileLimit)
      fail(sim::kBadFile, path + " is longer than " + std::to_string(kChapFileLimit) + " bytes");
    text.resize(static_cast<size_t>(st.st_size));
    size_t got = 0;
    while (got < text.size()) {
      ssize_t n = ::read(fd, text.data() + got, text.size() - got);
      if (n < 0 && errno == EINTR) continue;
      if (n < 0) fail(sim::kFileError, path + ": cannot read");
      if (n == 0) break;
      got += static_cast<size_t>(n);
    }
    text.resize(got);  // shrinking keeps the buffer
    char extra;
    if (got == static_cast<size_t>(st.st_size) && ::read(fd, &extra, 1) > 0)
      fail(sim::kFileError, path + " grew while read");
  }
  FileText(const FileText&) = delete;
  FileText& operator=(const FileText&) = delete;
  ~FileText() { sodium_memzero(text.data(), text.capacity()); }
};

}  // namespace

extern "C" {

// ---- port network settings

int KX_GetiSCSIPortInformation(const char* unit, const KXSessionInfoRec* session,
                               KXiSCSIPortInformationRec* info) {
  return sim::run(__func__, sim::kRead, [&](Call& c) {
    c.session(unit, session);
    auto& r = out(info, "iSCSI port information");
    for (const auto& p : sim::iscsi_ports(c.db)) {
      auto& o = r.ctl[p.ctl].port[p.port];
      o.port_valid = 1;
      o.set_valid = 1;
      out_text(o.ip_address, p.ip);
      out_text(o.subnet, p.subnet);
      out_text(o.gateway, p.gateway);
      o.port_num = p.port_num;
      out_text(o.ether, p.ether);
      o.keep_alive_timer = p.keep_alive;
      o.mtu = p.mtu;
      o.set_status = 0;
    }
  });
}

int KX_SetiSCSIPortInformation(const char* unit, const KXSessionInfoRec* session,
                               const KXiSCSIPortInformationRec* info) {
  return sim::run(__func__, sim::kWrite, [&](Call& c) {
    c.what = "iSCSI port settings";
    c.session(unit, session, sim::kRightHosts);
    const auto& r = in(info, "iSCSI port information");
    std::vector<sim::IscsiPort> changed;
    for (int ctl = 0; ctl < sim::kIscsiCtls; ++ctl)
      for (int port = 0; port < sim::kIscsiPortSlots; ++port) {
        const auto& p = r.ctl[ctl].port[port];
        flag(p.set_valid, "set_valid of " + sim::port_label(ctl, port));
        if (!p.set_valid) continue;
        sim::IscsiPort x = sim::iscsi_port(c.db, ctl, port);
        x.ip = in_text(p.ip_address, "ip_address");
        x.subnet = in_text(p.subnet, "subnet");
        x.gateway = in_text(p.gateway, "gateway");
        x.port_num = p.port_num;
        x.keep_alive = p.keep_alive_timer;
        x.mtu = p.mtu;
        changed.push_back(std::move(x));
      }
    if (changed.empty()) fail(kBadParameter, "no port selected (set_valid)");
    sim::set_port_network(c.db, changed);
  });
}

// ---- targets

int KX_GetiSCSITargetInformationAll(const char* unit, const KXSessionInfoRec* session,
                                    KXiSCSITargetInformationAllRec* all) {
  return sim::run(__func__, sim::kRead, [&](Call& c) {
    c.session(unit, session);
    auto& r = out(all, "iSCSI target information");
    r.option = 1;
    auto s = c.db.sql(
        "SELECT p.ctl, p.port, p.security, t.slot, t.alias, t.iscsi_name, t.authmethod, t.algorithm, t.auth, "
        "t.user_name FROM iscsi_ports p LEFT JOIN iscsi_targets t ON t.ctl=p.ctl AND t.port=p.port "
        "ORDER BY p.ctl, p.port, t.slot");
    while (s.step()) {
      auto* pp = port_of(r, s);
      if (!pp) continue;
      auto& p = *pp;
      p.security = s.i(2);
      p.target_max_count = sim::kIscsiTargets;
      int slot = slot_of(s, 3, sim::kIscsiTargets);
      if (slot < 0) continue;
      auto& t = p.target[slot];
      ++p.target_count;
      t.target_valid = 1;
      out_text(t.target_name, s.text(4));
      out_text(t.iscsi_name, s.text(5));
      t.authmethod = s.i(6);
      t.algorithm = s.i(7);
      t.auth = s.i(8);
      out_text(t.user_name, s.text(9));
      // t.secret stays empty: secrets are never read back.
    }
  });
}

int KX_CreateiSCSITarget(const char* unit, const KXSessionInfoRec* session, int a, int b, int c,
                         const KXiSCSITargetInfoRec* target) {
  return sim::run(__func__, sim::kWrite, [&](Call& call) {
    call.what = "iSCSI target " + str(c) + " of port " + str(a) + "/" + str(b);
    target_rights(call, unit, session, target);
    const auto& r = in(target, "iSCSI target");
    sim::need_iscsi_port(call.db, a, b);
    int slot = c;
    if (slot == -1) {
      slot = 0;
      while (slot < sim::kIscsiTargets && sim::target_exists(call.db, a, b, slot)) ++slot;
      if (slot == sim::kIscsiTargets) fail(sim::kCapacity, sim::port_label(a, b) + " holds 255 targets already");
      call.what = "iSCSI target " + str(slot) + " of port " + str(a) + "/" + str(b);
    }
    sim::Plain secret;
    auto t = target_in(r, slot, secret);
    sim::put_target(call.db, a, b, t, secret, true);
  });
}

int KX_ChangeiSCSITarget(const char* unit, const KXSessionInfoRec* session, int a, int b, int c,
                         const KXiSCSITargetInfoRec* target) {
  return sim::run(__func__, sim::kWrite, [&](Call& call) {
    call.what = "iSCSI target " + str(c) + " of port " + str(a) + "/" + str(b);
    target_rights(call, unit, session, target);
    const auto& r = in(target, "iSCSI target");
    sim::Plain secret;
    auto t = target_in(r, c, secret);
    sim::put_target(call.db, a, b, t, secret, false);
  });
}

int KX_DeleteiSCSITarget(const char* unit, const KXSessionInfoRec* session, int a, int b,
                         const DeleteiSCSITargetRec* list) {
  return sim::run(__func__, sim::kWrite, [&](Call& c) {
    c.what = "iSCSI targets of port " + str(a) + "/" + str(b);
    c.session(unit, session, sim::kRightHosts);
    const auto& l = in(list, "target list");
    std::vector<int> slots;
    for (int i = 0; i < sim::kIscsiTargets; ++i) {
      flag(l.delete_target[i], "delete_target[" + str(i) + "]");
      if (l.delete_target[i]) slots.push_back(i);
    }
    sim::delete_targets(c.db, a, b, slots);
  });
}

int KX_InitiSCSITarget(const char* unit, const KXSessionInfoRec* session, int a, int b) {
  return sim::run(__func__, sim::kWrite, [&](Call& c) {
    c.what = "iSCSI targets of port " + str(a) + "/" + str(b);
    c.session(unit, session, sim::kRightHosts);
    sim::init_targets(c.db, a, b);
  });
}

int KX_ChangeiSCSITargetSecurity(const char* unit, const KXSessionInfoRec* session, int a, int b,
                                 int c) {
  return sim::run(__func__, sim::kWrite, [&](Call& call) {
    call.what = "target security of iSCSI port " + str(a) + "/" + str(b);
    call.session(unit, session, sim::kRightSecurity);
    sim::set_port_security(call.db, a, b, c);
  });
}

// ---- registered initiators

int KX_GetiSCSIInitiatorInformationAll(const char* unit, const KXSessionInfoRec* session,
                                       KXiSCSIInitiatorInformationAllRec* all) {
  return sim::run(__func__, sim::kRead, [&](Call& c) {
    c.session(unit, session);
    auto& r = out(all, "iSCSI initiator information");
    r.option = 1;
    auto s = c.db.sql(
        "SELECT p.ctl, p.port, p.security, i.slot, i.ctrl_flag, i.alias, i.iscsi_name, i.bits "
        "FROM iscsi_ports p LEFT JOIN iscsi_initiators i ON i.ctl=p.ctl AND i.port=p.port "
        "ORDER BY p.ctl, p.port, i.slot");
    while (s.step()) {
      auto* pp = port_of(r, s);
      if (!pp) continue;
      auto& p = *pp;
      p.security = s.i(2);
      p.initiator_max_count = sim::kIscsiInitiators;
      int slot = slot_of(s, 3, sim::kIscsiInitiators);
      if (slot < 0) continue;
      auto& i = p.initiator[slot];
      ++p.initiator_count;
      i.initiator_valid = 1;
      i.ctrl_flag = s.i(4);
      out_text(i.initiator_name, s.text(5));
      out_text(i.iscsi_name, s.text(6));
      out_bits(i.target_bitmap, s.bytes(7));
    }
  });
}

int KX_SetiSCSIInitiatortInformation(const char* unit, const KXSessionInfoRec* session, int a, int b,
                                     const KXiSCSIInitiatorPortInfoRec* port) {
  return sim::run(__func__, sim::kWrite, [&](Call& c) {
    c.what = "iSCSI initiators of port " + str(a) + "/" + str(b);
    c.session(unit, session, sim::kRightHosts);
    const auto& r = in(port, "iSCSI initiator port");
    sim::need_iscsi_port(c.db, a, b);
    std::vector<sim::IscsiInitiator> list;
    for (int n = 0; n < sim::kIscsiInitiators; ++n) {
      const auto& i = r.initiator[n];
      flag(i.initiator_valid, "initiator_valid of initiator " + str(n));
      if (!i.initiator_valid) continue;
      sim::IscsiInitiator x;
      x.slot = n;
      x.ctrl_flag = i.ctrl_flag;
      x.alias = in_text(i.initiator_name, "initiator_name");
      x.iscsi_name = in_text(i.iscsi_name, "iscsi_name");
      x.bits = in_bits(i.target_bitmap);
      list.push_back(std::move(x));
    }
    sim::set_initiators(c.db, a, b, list);
  });
}

int KX_GetiSCSILoginInitiatorInformationAll(const char* unit, const KXSessionInfoRec* session,
                                            KXiSCSILoginInitiatorInformationAllRec* all) {
  return sim::run(__func__, sim::kRead, [&](Call& c) {
    c.session(unit, session);
    auto& r = out(all, "iSCSI login information");
    // The hosts attached to each port; with security on, only those registered there.
    auto s = c.db.sql(
        "SELECT p.ctl, p.port, h.name FROM iscsi_ports p LEFT JOIN iscsi_hosts h ON h.ctl=p.ctl AND h.port=p.port "
        "AND (p.security=0 OR EXISTS(SELECT 1 FROM iscsi_initiators i WHERE i.ctl=h.ctl AND i.port=h.port "
        "AND i.iscsi_name=h.name)) ORDER BY p.ctl, p.port, h.seq");
    while (s.step()) {
      auto* pp = port_of(r, s);
      if (!pp) continue;
      auto& p = *pp;
      p.initiator_max_count = sim::kIscsiInitiators;
      if (s.is_null(2) || p.initiator_count >= sim::kIscsiInitiators) continue;
      auto& i = p.initiator[p.initiator_count++];
      i.initiator_valid = 1;
      out_text(i.iscsi_name, s.text(2));
    }
  });
}

// ---- CHAP users

int KX_GetiSCSICHAPUserInformationAll(const char* unit, const KXSessionInfoRec* session,
                                      KXiSCSICHAPUserInformationAllRec* all) {
  return sim::run(__func__, sim::kRead, [&](Call& c) {
    c.session(unit, session);
    auto& r = out(all, "CHAP user information");
    r.option = 1;
    auto s = c.db.sql(
        "SELECT p.ctl, p.port, p.security, u.slot, u.ctrl_flag, u.name, u.bits "
        "FROM iscsi_ports p LEFT JOIN chap_users u ON u.ctl=p.ctl AND u.port=p.port "
        "ORDER BY p.ctl, p.port, u.slot");
    while (s.step()) {
      auto* pp = port_of(r, s);
      if (!pp) continue;
      auto& p = *pp;
      p.security = s.i(2);
      p.user_max_count = sim::kChapUsers;
      int slot = slot_of(s, 3, sim::kChapUsers);
      if (slot < 0) continue;
      auto& u = p.user[slot];
      ++p.user_count;
      u.user_valid = 1;
      u.ctrl_flag = s.i(4);
      out_text(u.user_name, s.text(5));
      out_bits(u.target_bitmap, s.bytes(6));
      // u.secret stays empty: secrets are never read back.
    }
  });
}

int KX_SetiSCSICHAPUserInformation(const char* unit, const KXSessionInfoRec* session, int a, int b,
                                   const KXiSCSICHAPUserPortInfoRec* port) {
  return sim::run(__func__, sim::kWrite, [&](Call& c) {
    c.what = "CHAP users of iSCSI port " + str(a) + "/" + str(b);
    c.session(unit, session, sim::kRightSecurity);
    const auto& r = in(port, "CHAP user port");
    sim::need_iscsi_port(c.db, a, b);
    std::vector<sim::ChapInput> list;
    for (int n = 0; n < sim::kChapUsers; ++n) {
      const auto& u = r.user[n];
      flag(u.user_valid, "user_valid of CHAP user " + str(n));
      if (!u.user_valid) continue;
      sim::ChapInput x;
      x.user.slot = n;
      x.user.ctrl_flag = u.ctrl_flag;
      x.user.name = in_text(u.user_name, "user_name");
      x.user.bits = in_bits(u.target_bitmap);
      in_secret(u.secret, x.secret, "secret of CHAP user " + str(n));
      list.push_back(std::move(x));
    }
    sim::set_chap_users(c.db, a, b, list, false);
  });
}

int KX_iSCSICHAPUserImport(const char* unit, const KXSessionInfoRec* session, const char* file) {
  return sim::run(__func__, sim::kWrite, [&](Call& c) {
    c.what = "CHAP users from a file";
    c.session(unit, session, sim::kRightSecurity);
    std::string path = in_text(file, 1024, "file name");
    c.what = "CHAP users from " + path;
    FileText f(path);
    auto entries = sim::parse_chap_file(f.text);
    // One call per port, the port's users in the order of the file.
    std::map<std::pair<int, int>, std::vector<sim::ChapInput>> by_port;
    for (auto& e : entries) by_port[{e.ctl, e.port}].push_back(std::move(e.in));
    try {
      for (auto& [where, list] : by_port) sim::set_chap_users(c.db, where.first, where.second, list, true);
    } catch (const sim::Error& e) {
      // What the file asks for cannot be: the file is wrong, and nothing changes.
      if (e.code == kBadParameter || e.code == sim::kExists || e.code == sim::kNoSuchObject)
        fail(sim::kBadFile, e.what);
      throw;
    }
  });
}

// ---- iSNS

int KX_GetiSNSInformation(const char* unit, const KXSessionInfoRec* session, KXiSNSInformationRec* info) {
  return sim::run(__func__, sim::kRead, [&](Call& c) {
    c.session(unit, session);
    auto& r = out(info, "iSNS information");
    for (const auto& p : sim::iscsi_ports(c.db)) {
      auto& o = r.ctl[p.ctl].port[p.port];
      o.port_valid = 1;
      o.set_valid = 1;
      o.isns_use = p.isns_use;
      out_text(o.ip_address, p.isns_ip);
      o.port_num = p.isns_port;
    }
  });
}

int KX_SetiSNSInformation(const char* unit, const KXSessionInfoRec* session,
                          const KXiSNSInformationRec* info) {
  return sim::run(__func__, sim::kWrite, [&](Call& c) {
    c.what = "iSNS settings";
    c.session(unit, session, sim::kRightHosts);
    const auto& r = in(info, "iSNS information");
    std::vector<sim::IscsiPort> changed;
    for (int ctl = 0; ctl < sim::kIscsiCtls; ++ctl)
      for (int port = 0; port < sim::kIscsiPortSlots; ++port) {
        const auto& p = r.ctl[ctl].port[port];
        flag(p.set_valid, "set_valid of " + sim::port_label(ctl, port));
        if (!p.set_valid) continue;
        sim::IscsiPort x = sim::iscsi_port(c.db, ctl, port);
        x.isns_use = p.isns_use;
        x.isns_ip = in_text(p.ip_address, "iSNS ip_address");
        x.isns_port = p.port_num;
        changed.push_back(std::move(x));
      }
    if (changed.empty()) fail(kBadParameter, "no port selected (set_valid)");
    for (const auto& x : changed) sim::set_port_isns(c.db, x);
  });
}

// ---- ping

int KX_RequestiSCSIPing(const char* unit, const KXSessionInfoRec* session, const KXiSCSIPingRec* ping) {
  return sim::run(__func__, sim::kWrite, [&](Call& c) {
    c.what = "iSCSI ping";
    c.session(unit, session, sim::kRightHosts);
    const auto& r = in(ping, "iSCSI ping");
    int requests = 0;
    for (int ctl = 0; ctl < sim::kIscsiCtls; ++ctl)
      for (int port = 0; port < sim::kIscsiPortSlots; ++port) {
        const auto& p = r.ctl[ctl].port[port];
        flag(p.request_valid, "request_valid of " + sim::port_label(ctl, port));
        if (!p.request_valid) continue;
        std::string ip = in_text(p.ip_address, "ping ip_address");
        sim::request_ping(c.db, ctl, port, ip, p.schedule_count, c.now);
        ++requests;
      }
    if (!requests) fail(kBadParameter, "no port selected (request_valid)");
  });
}

int KX_GetiSCSIPingStatus(const char* unit, const KXSessionInfoRec* session, KXiSCSIPingRec* ping) {
  return sim::run(__func__, sim::kRead, [&](Call& c) {
    c.session(unit, session);
    auto& r = out(ping, "iSCSI ping");
    for (const auto& p : sim::iscsi_ports(c.db)) {
      auto& o = r.ctl[p.ctl].port[p.port];
      o.port_valid = 1;
      if (p.ping_ip.empty()) continue;
      auto st = sim::ping_state(c.db, p, c.now);
      o.request_valid = 1;
      out_text(o.ip_address, p.ping_ip);
      o.status = st.status;
      o.execute_count = st.executed;
      o.success_count = st.succeeded;
      o.schedule_count = p.ping_count;
    }
  });
}

}  // extern "C"
