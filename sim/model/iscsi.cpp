// iSCSI ports, targets, initiators, the simulated hosts, CHAP users, iSNS and
// ping.
//
//   iscsi_ports(ctl, port, ...)        network settings, security, iSNS and the
//                                      latest ping request of each present port
//   iscsi_targets(ctl, port, slot)     targets; `secret` the sealed mutual-CHAP
//                                      secret (NULL when none)
//   iscsi_initiators(ctl, port, slot)  initiators registered on a port and the
//                                      targets each may reach (`bits`, 32 bytes)
//   chap_users(ctl, port, slot)        CHAP users, their sealed secret and targets
//   iscsi_hosts(ctl, port, name, ip)   the simulated hosts attached to each port
//
// meta 'iscsi_secret_key' holds the key the secrets are sealed with (hex).
#include "sim/model/iscsi.h"

#include <sodium.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <map>
#include <set>

#include "sim/model/model.h"

namespace sim {

namespace {

struct Host {
  const char* name;
  int octet;  // its address in a port's subnet: 192.168.<port>.<octet>
  int ports;  // attached to ports 0..ports-1 of both controllers
};
constexpr Host kHosts[] = {
    {"iqn.1991-05.com.microsoft:sim-win-01", 11, 1},
    {"iqn.1994-05.com.redhat:sim-linux-02", 12, 2},
    {"iqn.1998-01.com.vmware:sim-esx-03", 13, 4},
};

constexpr const char* kKeyMeta = "iscsi_secret_key";

void start_sodium() {
  if (sodium_init() < 0) fail(kDbError, "libsodium did not start");
}

struct Key {
  unsigned char k[crypto_secretbox_KEYBYTES];
  explicit Key(Db& db) {
    std::string hex = meta(db, kKeyMeta);
    size_t n = 0;
    int rc = sodium_hex2bin(k, sizeof k, hex.c_str(), hex.size(), nullptr, &n, nullptr);
    sodium_memzero(hex.data(), hex.size());
    if (rc != 0 || n != sizeof k) fail(kDbCorrupt, "the key of the CHAP secrets is missing or damaged");
  }
  Key(const Key&) = delete;
  Key& operator=(const Key&) = delete;
  ~Key() { sodium_memzero(k, sizeof k); }
};

std::string str(int v) { return std::to_string(v); }

std::string target_label(int ctl, int port, int slot) {
  return "target " + str(slot) + " of " + port_label(ctl, port);
}

TargetBitmap bits_of(std::span<const uint8_t> b) {
  TargetBitmap t{};
  if (b.size() != t.size()) fail(kDbCorrupt, "a target bitmap has the wrong size");
  std::copy(b.begin(), b.end(), t.begin());
  return t;
}

std::vector<uint8_t> bytes_of(std::span<const uint8_t> b) { return {b.begin(), b.end()}; }

bool has_bit(const TargetBitmap& b, int n) { return b[static_cast<size_t>(n / 8)] & (1u << (n % 8)); }

bool same_secret(const Plain& a, const Plain& b) {
  auto x = a.view(), y = b.view();
  return x.size() == y.size() && sodium_memcmp(x.data(), y.data(), x.size()) == 0;
}

// The sealed mutual-CHAP secrets of the port's targets.
std::vector<std::vector<uint8_t>> target_secrets(Db& db, int ctl, int port) {
  std::vector<std::vector<uint8_t>> v;
  auto s = db.sql("SELECT secret FROM iscsi_targets WHERE ctl=?1 AND port=?2 AND secret IS NOT NULL");
  s.bind(ctl).bind(port);
  while (s.step()) v.push_back(bytes_of(s.bytes(0)));
  return v;
}

std::vector<std::vector<uint8_t>> user_secrets(Db& db, int ctl, int port) {
  std::vector<std::vector<uint8_t>> v;
  auto s = db.sql("SELECT secret FROM chap_users WHERE ctl=?1 AND port=?2");
  s.bind(ctl).bind(port);
  while (s.step()) v.push_back(bytes_of(s.bytes(0)));
  return v;
}

// A secret must not open any of the sealed ones: one secret serves one
// direction of CHAP only.
bool among(Db& db, const Plain& secret, const std::vector<std::vector<uint8_t>>& sealed) {
  for (const auto& s : sealed) {
    Plain p;
    open_secret(db, s, p);
    if (same_secret(p, secret)) return true;
  }
  return false;
}

// Keeps only the bits of `keep` in the bitmaps of a table's rows on a port.
void mask_bits(Db& db, const char* select, const char* update, int ctl, int port, const TargetBitmap& keep) {
  std::vector<std::pair<int, TargetBitmap>> rows;
  {
    auto s = db.sql(select);
    s.bind(ctl).bind(port);
    while (s.step()) rows.emplace_back(s.i(0), bits_of(s.bytes(1)));
  }
  for (auto& [slot, bits] : rows) {
    TargetBitmap b = bits;
    for (size_t i = 0; i < b.size(); ++i) b[i] &= keep[i];
    if (b == bits) continue;
    auto u = db.sql(update);
    u.blob(b.data(), b.size()).bind(ctl).bind(port).bind(slot).run();
  }
}

void keep_only_targets(Db& db, int ctl, int port, const TargetBitmap& keep) {
  mask_bits(db, "SELECT slot, bits FROM iscsi_initiators WHERE ctl=?1 AND port=?2",
            "UPDATE iscsi_initiators SET bits=?1 WHERE ctl=?2 AND port=?3 AND slot=?4", ctl, port, keep);
  mask_bits(db, "SELECT slot, bits FROM chap_users WHERE ctl=?1 AND port=?2",
            "UPDATE chap_users SET bits=?1 WHERE ctl=?2 AND port=?3 AND slot=?4", ctl, port, keep);
}

void insert_target(Db& db, int ctl, int port, const IscsiTarget& t) {
  auto s = db.sql(
      "INSERT OR REPLACE INTO iscsi_targets(ctl, port, slot, alias, iscsi_name, authmethod, algorithm, auth, "
      "user_name, secret) VALUES(?1,?2,?3,?4,?5,?6,?7,?8,?9,?10)");
  s.bind(ctl).bind(port).bind(t.slot).bind(t.alias).bind(t.iscsi_name).bind(t.authmethod).bind(t.algorithm)
      .bind(t.auth).bind(t.user_name);
  if (t.sealed.empty())
    s.null();
  else
    s.blob(t.sealed.data(), t.sealed.size());
  s.run();
}

IscsiTarget default_target(Db& db, int ctl, int port, int slot) {
  IscsiTarget t;
  t.slot = slot;
  char alias[8];
  std::snprintf(alias, sizeof alias, "T%03d", slot);
  t.alias = alias;
  t.iscsi_name = default_target_name(db, ctl, port, slot);
  return t;
}

bool printable(std::string_view s, bool spaces) {
  return std::all_of(s.begin(), s.end(), [&](char ch) {
    return (ch > 0x20 && ch < 0x7f) || (spaces && ch == ' ');
  });
}

bool hex_digits(std::string_view s) {
  return std::all_of(s.begin(), s.end(), [](char ch) {
    return (ch >= '0' && ch <= '9') || (ch >= 'A' && ch <= 'F');
  });
}

bool in_subnet(uint32_t a, uint32_t net_addr, uint32_t mask) { return (a & mask) == (net_addr & mask); }

struct Net {
  uint32_t ip = 0, mask = 0, gw = 0;
  bool has_gw = false;
};

// The port's settings checked on their own.
Net check_network(const IscsiPort& p) {
  std::string at = " of " + port_label(p.ctl, p.port);
  Net n;
  if (!parse_ipv4(p.ip, n.ip)) fail(kBadParameter, "ip_address" + at + " is not an IPv4 address");
  uint32_t first = n.ip >> 24;
  if (first == 0 || first == 127 || first >= 224)
    fail(kBadParameter, "ip_address" + at + " is not a unicast host address");
  if (!parse_mask(p.subnet, n.mask)) fail(kBadParameter, "subnet" + at + " is not a mask of 8 to 30 bits");
  uint32_t host = n.ip & ~n.mask;
  if (host == 0 || host == ~n.mask)
    fail(kBadParameter, "ip_address" + at + " is its subnet's network or broadcast address");
  if (!p.gateway.empty()) {
    if (!parse_ipv4(p.gateway, n.gw)) fail(kBadParameter, "gateway" + at + " is not an IPv4 address");
    uint32_t gh = n.gw & ~n.mask;
    if (!in_subnet(n.gw, n.ip, n.mask) || gh == 0 || gh == ~n.mask || n.gw == n.ip)
      fail(kBadParameter, "gateway" + at + " is not another host of the port's subnet");
    n.has_gw = true;
  }
  if (p.port_num < 1 || p.port_num > 65535) fail(kBadParameter, "port_num" + at + " is not 1..65535");
  if (p.keep_alive < 30 || p.keep_alive > 64800) fail(kBadParameter, "keep_alive_timer" + at + " is not 30..64800");
  if (p.mtu != 1500 && p.mtu != 4500 && p.mtu != 9000) fail(kBadParameter, "mtu" + at + " is not 1500, 4500 or 9000");
  return n;
}

IscsiPort port_row(Stmt& s) {
  IscsiPort p;
  p.ctl = s.i(0);
  p.port = s.i(1);
  p.ip = s.text(2);
  p.subnet = s.text(3);
  p.gateway = s.text(4);
  p.port_num = s.i(5);
  p.ether = s.text(6);
  p.keep_alive = s.i(7);
  p.mtu = s.i(8);
  p.security = s.i(9);
  p.isns_use = s.i(10);
  p.isns_ip = s.text(11);
  p.isns_port = s.i(12);
  p.ping_ip = s.text(13);
  p.ping_count = s.i(14);
  p.ping_start = s.i64(15);
  return p;
}

constexpr const char* kPortColumns =
    "SELECT ctl, port, ip, subnet, gateway, port_num, ether, keep_alive, mtu, security, isns_use, isns_ip, "
    "isns_port, ping_ip, ping_count, ping_start FROM iscsi_ports";

}  // namespace

void create_iscsi(Db& db, const Options& o) {
  db.exec(R"(
    CREATE TABLE iscsi_ports(ctl INT NOT NULL, port INT NOT NULL, ip TEXT NOT NULL, subnet TEXT NOT NULL,
      gateway TEXT NOT NULL, port_num INT NOT NULL, ether TEXT NOT NULL, keep_alive INT NOT NULL,
      mtu INT NOT NULL, security INT NOT NULL DEFAULT 0, isns_use INT NOT NULL DEFAULT 0,
      isns_ip TEXT NOT NULL DEFAULT '', isns_port INT NOT NULL DEFAULT 3205,
      ping_ip TEXT NOT NULL DEFAULT '', ping_count INT NOT NULL DEFAULT 0, ping_start INT NOT NULL DEFAULT 0,
      PRIMARY KEY(ctl, port));
    CREATE TABLE iscsi_targets(ctl INT NOT NULL, port INT NOT NULL, slot INT NOT NULL, alias TEXT NOT NULL,
      iscsi_name TEXT NOT NULL, authmethod INT NOT NULL, algorithm INT NOT NULL, auth INT NOT NULL,
      user_name TEXT NOT NULL, secret BLOB, PRIMARY KEY(ctl, port, slot));
    CREATE TABLE iscsi_initiators(ctl INT NOT NULL, port INT NOT NULL, slot INT NOT NULL,
      alias TEXT NOT NULL, iscsi_name TEXT NOT NULL, ctrl_flag INT NOT NULL, bits BLOB NOT NULL,
      PRIMARY KEY(ctl, port, slot));
    CREATE TABLE chap_users(ctl INT NOT NULL, port INT NOT NULL, slot INT NOT NULL, name TEXT NOT NULL,
      ctrl_flag INT NOT NULL, bits BLOB NOT NULL, secret BLOB NOT NULL, PRIMARY KEY(ctl, port, slot));
    CREATE TABLE iscsi_hosts(ctl INT NOT NULL, port INT NOT NULL, name TEXT NOT NULL, ip TEXT NOT NULL,
      seq INT NOT NULL, PRIMARY KEY(ctl, port, name));
  )");
  start_sodium();
  unsigned char key[crypto_secretbox_KEYBYTES];
  crypto_secretbox_keygen(key);
  char hex[crypto_secretbox_KEYBYTES * 2 + 1];
  sodium_bin2hex(hex, sizeof hex, key, sizeof key);
  set_meta(db, kKeyMeta, hex);
  sodium_memzero(key, sizeof key);
  sodium_memzero(hex, sizeof hex);

  unsigned serial_byte = static_cast<unsigned>(std::atoll(o.serial.c_str()) & 255);
  for (int ctl = 0; ctl < kIscsiCtls; ++ctl)
    for (int port = 0; port < o.ports && port < kIscsiPortSlots; ++port) {
      char ether[18];
      std::snprintf(ether, sizeof ether, "02:50:58:%02X:%02X:%02X", serial_byte, static_cast<unsigned>(ctl),
                    static_cast<unsigned>(port));
      {
        auto s = db.sql(
            "INSERT INTO iscsi_ports(ctl, port, ip, subnet, gateway, port_num, ether, keep_alive, mtu) "
            "VALUES(?1, ?2, ?3, '255.255.255.0', '', 3260, ?4, 60, 1500)");
        s.bind(ctl).bind(port).bind("192.168." + str(port) + "." + str(200 + ctl)).bind(ether).run();
      }
      insert_target(db, ctl, port, default_target(db, ctl, port, 0));
      int seq = 0;
      for (const auto& h : kHosts) {
        if (port >= h.ports) continue;
        auto s = db.sql("INSERT INTO iscsi_hosts VALUES(?1, ?2, ?3, ?4, ?5)");
        s.bind(ctl).bind(port).bind(h.name).bind("192.168." + str(port) + "." + str(h.octet)).bind(seq++).run();
      }
    }
}

// ---- secrets

Plain::Plain(Plain&& o) noexcept { *this = std::move(o); }

Plain& Plain::operator=(Plain&& o) noexcept {
  if (this != &o) {
    std::memcpy(b_, o.b_, sizeof b_);
    n_ = o.n_;
    too_long_ = o.too_long_;
    sodium_memzero(o.b_, sizeof o.b_);
    o.n_ = 0;
    o.too_long_ = false;
  }
  return *this;
}

Plain::~Plain() { sodium_memzero(b_, sizeof b_); }

void Plain::assign(std::string_view s) {
  sodium_memzero(b_, sizeof b_);
  too_long_ = s.size() > kPlainMax;
  n_ = too_long_ ? 0 : s.size();
  if (n_) std::memcpy(b_, s.data(), n_);
}

std::vector<uint8_t> seal_secret(Db& db, const Plain& secret) {
  start_sodium();
  Key key(db);
  auto m = secret.view();
  std::vector<uint8_t> out(crypto_secretbox_NONCEBYTES + crypto_secretbox_MACBYTES + m.size());
  randombytes_buf(out.data(), crypto_secretbox_NONCEBYTES);
  crypto_secretbox_easy(out.data() + crypto_secretbox_NONCEBYTES, reinterpret_cast<const unsigned char*>(m.data()),
                        m.size(), out.data(), key.k);
  return out;
}

void open_secret(Db& db, const std::vector<uint8_t>& sealed, Plain& out) {
  start_sodium();
  constexpr size_t head = crypto_secretbox_NONCEBYTES + crypto_secretbox_MACBYTES;
  if (sealed.size() < head || sealed.size() > head + Plain::kPlainMax)
    fail(kDbCorrupt, "a sealed CHAP secret is damaged");
  Key key(db);
  unsigned char m[Plain::kPlainMax];
  size_t n = sealed.size() - head;
  int rc = crypto_secretbox_open_easy(m, sealed.data() + crypto_secretbox_NONCEBYTES,
                                      sealed.size() - crypto_secretbox_NONCEBYTES, sealed.data(), key.k);
  if (rc == 0) out.assign(std::string_view(reinterpret_cast<const char*>(m), n));
  sodium_memzero(m, sizeof m);
  if (rc != 0) fail(kDbCorrupt, "a sealed CHAP secret does not open");
}

// ---- checks

bool parse_ipv4(std::string_view s, uint32_t& out) {
  uint32_t a = 0;
  int parts = 0;
  size_t i = 0;
  while (parts < 4) {
    size_t start = i;
    unsigned v = 0;
    while (i < s.size() && s[i] >= '0' && s[i] <= '9' && i - start < 3) v = v * 10 + static_cast<unsigned>(s[i++] - '0');
    size_t len = i - start;
    if (len == 0 || v > 255 || (len > 1 && s[start] == '0')) return false;
    a = (a << 8) | v;
    ++parts;
    if (parts < 4) {
      if (i >= s.size() || s[i] != '.') return false;
      ++i;
    }
  }
  if (i != s.size()) return false;
  out = a;
  return true;
}

bool parse_mask(std::string_view s, uint32_t& out) {
  uint32_t m;
  if (!parse_ipv4(s, m)) return false;
  int ones = 0;
  while (ones < 32 && (m & (0x80000000u >> ones))) ++ones;
  uint32_t canonical = ones == 0 ? 0 : ~0u << (32 - ones);
  if (m != canonical || ones < 8 || ones > 30) return false;
  out = m;
  return true;
}

bool valid_iscsi_name(std::string_view s) {
  if (s.size() > 223) return false;
  if (s.starts_with("eui.")) return s.size() == 20 && hex_digits(s.substr(4));
  if (s.starts_with("naa.")) return (s.size() == 20 || s.size() == 36) && hex_digits(s.substr(4));
  if (!s.starts_with("iqn.")) return false;
  // iqn.yyyy-mm.<reversed domain>[:<anything>]
  auto d = s.substr(4);
  if (d.size() < 9) return false;
  for (int i : {0, 1, 2, 3, 5, 6})
    if (d[static_cast<size_t>(i)] < '0' || d[static_cast<size_t>(i)] > '9') return false;
  int month = (d[5] - '0') * 10 + (d[6] - '0');
  if (d[4] != '-' || d[7] != '.' || month < 1 || month > 12) return false;
  auto rest = d.substr(8);
  auto colon = rest.find(':');
  auto domain = rest.substr(0, colon);
  if (domain.empty() || domain.front() == '.' || domain.back() == '.') return false;
  return std::all_of(rest.begin(), rest.end(), [](char ch) {
    return (ch >= 'a' && ch <= 'z') || (ch >= '0' && ch <= '9') || ch == '-' || ch == '.' || ch == ':';
  });
}

void check_alias(const std::string& s, const char* what) {
  if (s.empty() || s.size() > 32 || !printable(s, true))
    fail(kBadParameter, std::string(what) + " is not 1..32 printable characters");
}

void check_chap_name(const std::string& s, const char* what) {
  if (s.empty() || s.size() > 256 || !printable(s, false))
    fail(kBadParameter, std::string(what) + " is not 1..256 printable characters without spaces");
}

void check_chap_secret(const Plain& s, const char* what) {
  auto v = s.view();
  if (s.too_long() || v.size() < kChapSecretMin || v.size() > kChapSecretMax || !printable(v, false))
    fail(kBadParameter, std::string(what) + " is not 12..32 printable characters without spaces");
}

// ---- ports

std::string port_label(int ctl, int port) { return "iSCSI port " + str(ctl) + "/" + str(port); }

int iscsi_port_count(Db& db) {
  auto s = db.sql("SELECT count(*) FROM iscsi_ports WHERE ctl=0");
  return s.step() ? s.i(0) : 0;
}

void need_iscsi_port(Db& db, int ctl, int port) {
  if (ctl < 0 || ctl >= kIscsiCtls) fail(kBadParameter, "controller " + str(ctl) + " is not 0 or 1");
  if (port < 0 || port >= kIscsiPortSlots) fail(kBadParameter, "port " + str(port) + " is not 0..3");
  auto s = db.sql("SELECT 1 FROM iscsi_ports WHERE ctl=?1 AND port=?2");
  s.bind(ctl).bind(port);
  if (!s.step()) fail(kNoSuchObject, "the array has no " + port_label(ctl, port));
}

std::vector<IscsiPort> iscsi_ports(Db& db) {
  std::vector<IscsiPort> v;
  auto s = db.sql((std::string(kPortColumns) + " ORDER BY ctl, port").c_str());
  while (s.step()) {
    auto p = port_row(s);
    if (p.ctl >= 0 && p.ctl < kIscsiCtls && p.port >= 0 && p.port < kIscsiPortSlots) v.push_back(std::move(p));
  }
  return v;
}

IscsiPort iscsi_port(Db& db, int ctl, int port) {
  need_iscsi_port(db, ctl, port);
  auto s = db.sql((std::string(kPortColumns) + " WHERE ctl=?1 AND port=?2").c_str());
  s.bind(ctl).bind(port);
  if (!s.step()) fail(kNoSuchObject, "the array has no " + port_label(ctl, port));
  return port_row(s);
}

void set_port_network(Db& db, const std::vector<IscsiPort>& changed) {
  auto all = iscsi_ports(db);
  for (const auto& c : changed) {
    check_network(c);
    for (auto& p : all)
      if (p.ctl == c.ctl && p.port == c.port) {
        p.ip = c.ip, p.subnet = c.subnet, p.gateway = c.gateway;
        p.port_num = c.port_num, p.keep_alive = c.keep_alive, p.mtu = c.mtu;
      }
  }
  // The ports as they would be: addresses all different, none a controller's
  // LAN address, and the ports of one controller in subnets of their own.
  std::string lan0 = meta(db, "array_ip0"), lan1 = meta(db, "array_ip1");
  for (size_t i = 0; i < all.size(); ++i) {
    Net a = check_network(all[i]);
    if (all[i].ip == lan0 || all[i].ip == lan1)
      fail(kExists, "ip_address of " + port_label(all[i].ctl, all[i].port) + " is a controller's LAN address");
    for (size_t j = i + 1; j < all.size(); ++j) {
      Net b = check_network(all[j]);
      if (a.ip == b.ip)
        fail(kExists, port_label(all[i].ctl, all[i].port) + " and " + port_label(all[j].ctl, all[j].port) +
                          " have one address");
      uint32_t m = a.mask & b.mask;
      if (all[i].ctl == all[j].ctl && (a.ip & m) == (b.ip & m))
        fail(kBadParameter, port_label(all[i].ctl, all[i].port) + " and " + port_label(all[j].ctl, all[j].port) +
                                " share a subnet");
    }
  }
  for (const auto& c : changed) {
    auto s = db.sql(
        "UPDATE iscsi_ports SET ip=?1, subnet=?2, gateway=?3, port_num=?4, keep_alive=?5, mtu=?6 "
        "WHERE ctl=?7 AND port=?8");
    s.bind(c.ip).bind(c.subnet).bind(c.gateway).bind(c.port_num).bind(c.keep_alive).bind(c.mtu).bind(c.ctl)
        .bind(c.port).run();
  }
}

void set_port_isns(Db& db, const IscsiPort& p) {
  std::string at = " of " + port_label(p.ctl, p.port);
  if (p.isns_use != 0 && p.isns_use != 1) fail(kBadParameter, "isns_use" + at + " is not 0 or 1");
  uint32_t a;
  if (!p.isns_ip.empty() && !parse_ipv4(p.isns_ip, a)) fail(kBadParameter, "iSNS ip_address" + at + " is not IPv4");
  if (p.isns_use == 1 && (p.isns_ip.empty() || a == 0)) fail(kBadParameter, "iSNS in use" + at + " needs a server");
  if (p.isns_port < 1 || p.isns_port > 65535) fail(kBadParameter, "iSNS port_num" + at + " is not 1..65535");
  auto s = db.sql("UPDATE iscsi_ports SET isns_use=?1, isns_ip=?2, isns_port=?3 WHERE ctl=?4 AND port=?5");
  s.bind(p.isns_use).bind(p.isns_ip).bind(p.isns_port).bind(p.ctl).bind(p.port).run();
}

void set_port_security(Db& db, int ctl, int port, int security) {
  need_iscsi_port(db, ctl, port);
  if (security != 0 && security != 1) fail(kBadParameter, "security " + str(security) + " is not 0 or 1");
  auto s = db.sql("UPDATE iscsi_ports SET security=?1 WHERE ctl=?2 AND port=?3");
  s.bind(security).bind(ctl).bind(port).run();
}

// ---- targets

std::vector<IscsiTarget> targets_of(Db& db, int ctl, int port) {
  std::vector<IscsiTarget> v;
  auto s = db.sql(
      "SELECT slot, alias, iscsi_name, authmethod, algorithm, auth, user_name, secret FROM iscsi_targets "
      "WHERE ctl=?1 AND port=?2 ORDER BY slot");
  s.bind(ctl).bind(port);
  while (s.step()) {
    IscsiTarget t;
    t.slot = s.i(0);
    t.alias = s.text(1);
    t.iscsi_name = s.text(2);
    t.authmethod = s.i(3);
    t.algorithm = s.i(4);
    t.auth = s.i(5);
    t.user_name = s.text(6);
    if (!s.is_null(7)) t.sealed = bytes_of(s.bytes(7));
    v.push_back(std::move(t));
  }
  return v;
}

bool target_exists(Db& db, int ctl, int port, int slot) {
  auto s = db.sql("SELECT 1 FROM iscsi_targets WHERE ctl=?1 AND port=?2 AND slot=?3");
  s.bind(ctl).bind(port).bind(slot);
  return s.step();
}

std::string default_target_name(Db& db, int ctl, int port, int slot) {
  std::string serial = meta(db, "array_serial", "0");
  std::string clean;
  for (char ch : serial)
    if ((ch >= '0' && ch <= '9') || (ch >= 'a' && ch <= 'z')) clean += ch;
  char tail[32];
  std::snprintf(tail, sizeof tail, ".c%dp%d.t%03d", ctl, port, slot);
  return "iqn.2014-04.com.pernix:sim." + clean + tail;
}

void put_target(Db& db, int ctl, int port, const IscsiTarget& t0, const Plain& secret, bool create) {
  need_iscsi_port(db, ctl, port);
  if (t0.slot < 0 || t0.slot >= kIscsiTargets) fail(kBadParameter, "target slot " + str(t0.slot) + " is not 0..254");
  std::string label = target_label(ctl, port, t0.slot);
  bool exists = target_exists(db, ctl, port, t0.slot);
  if (create && exists) fail(kExists, label + " exists");
  if (!create && !exists) fail(kNoSuchObject, label + " does not exist");
  IscsiTarget t = t0;
  if (t.iscsi_name.empty() && create) t.iscsi_name = default_target_name(db, ctl, port, t.slot);
  check_alias(t.alias, "target_name");
  if (!valid_iscsi_name(t.iscsi_name)) fail(kBadParameter, "iscsi_name of " + label + " is not an iSCSI name");
  if (t.authmethod < 0 || t.authmethod > 2) fail(kBadParameter, "authmethod " + str(t.authmethod) + " is not 0..2");
  if (t.algorithm != 0) fail(kBadParameter, "algorithm " + str(t.algorithm) + " is not 0 (MD5)");
  if (t.auth != 0 && t.auth != 1) fail(kBadParameter, "auth " + str(t.auth) + " is not 0 or 1");
  t.sealed.clear();
  if (t.auth == 1) {
    if (t.authmethod == 0) fail(kBadParameter, "mutual authentication needs CHAP (authmethod 1 or 2)");
    check_chap_name(t.user_name, "user_name");
    if (!secret.empty()) {
      check_chap_secret(secret, "secret");
      if (among(db, secret, user_secrets(db, ctl, port)))
        fail(kBadParameter, "the mutual secret of " + label + " is a CHAP user's secret of its port");
      t.sealed = seal_secret(db, secret);
    } else {
      if (!create)
        for (auto& old : targets_of(db, ctl, port))
          if (old.slot == t.slot) t.sealed = std::move(old.sealed);
      if (t.sealed.empty()) fail(kBadParameter, "mutual authentication of " + label + " needs a secret");
    }
  } else if (!t.user_name.empty() || !secret.empty()) {
    fail(kBadParameter, "user_name and secret of " + label + " are for mutual authentication (auth 1) only");
  }
  for (const auto& o : targets_of(db, ctl, port)) {
    if (o.slot == t.slot) continue;
    if (o.alias == t.alias) fail(kExists, "target_name " + t.alias + " is taken on " + port_label(ctl, port));
    if (o.iscsi_name == t.iscsi_name) fail(kExists, "iscsi_name " + t.iscsi_name + " is taken on " + port_label(ctl, port));
  }
  insert_target(db, ctl, port, t);
}

void delete_targets(Db& db, int ctl, int port, const std::vector<int>& slots) {
  need_iscsi_port(db, ctl, port);
  if (slots.empty()) fail(kBadParameter, "no target selected");
  TargetBitmap keep;
  keep.fill(0xff);
  for (int slot : slots) {
    if (slot == 0) fail(kBusy, "target 0 of a port stays (initialise it instead)");
    if (!target_exists(db, ctl, port, slot)) fail(kNoSuchObject, target_label(ctl, port, slot) + " does not exist");
    keep[static_cast<size_t>(slot / 8)] &= static_cast<uint8_t>(~(1u << (slot % 8)));
  }
  for (int slot : slots) {
    auto s = db.sql("DELETE FROM iscsi_targets WHERE ctl=?1 AND port=?2 AND slot=?3");
    s.bind(ctl).bind(port).bind(slot).run();
  }
  keep_only_targets(db, ctl, port, keep);
}

void init_targets(Db& db, int ctl, int port) {
  need_iscsi_port(db, ctl, port);
  {
    auto s = db.sql("DELETE FROM iscsi_targets WHERE ctl=?1 AND port=?2");
    s.bind(ctl).bind(port).run();
  }
  insert_target(db, ctl, port, default_target(db, ctl, port, 0));
  TargetBitmap keep{};
  keep[0] = 1;
  keep_only_targets(db, ctl, port, keep);
  set_port_security(db, ctl, port, 0);
}

void check_bitmap(Db& db, int ctl, int port, const TargetBitmap& bits, const char* what) {
  if (has_bit(bits, kIscsiTargets)) fail(kBadParameter, std::string(what) + " names target 255 (targets are 0..254)");
  std::set<int> made;
  {
    auto s = db.sql("SELECT slot FROM iscsi_targets WHERE ctl=?1 AND port=?2");
    s.bind(ctl).bind(port);
    while (s.step()) made.insert(s.i(0));
  }
  for (int n = 0; n < kIscsiTargets; ++n)
    if (has_bit(bits, n) && !made.count(n))
      fail(kNoSuchObject, std::string(what) + " names " + target_label(ctl, port, n) + ", which does not exist");
}

// ---- registered initiators

void set_initiators(Db& db, int ctl, int port, const std::vector<IscsiInitiator>& list) {
  need_iscsi_port(db, ctl, port);
  std::set<std::string> names, aliases;
  for (const auto& i : list) {
    std::string what = "initiator " + str(i.slot);
    if (i.slot < 0 || i.slot >= kIscsiInitiators) fail(kBadParameter, what + " is not 0..255");
    if (i.ctrl_flag != 0 && i.ctrl_flag != 1) fail(kBadParameter, "ctrl_flag of " + what + " is not 0 or 1");
    check_alias(i.alias, ("initiator_name of " + what).c_str());
    if (!valid_iscsi_name(i.iscsi_name)) fail(kBadParameter, "iscsi_name of " + what + " is not an iSCSI name");
    if (!names.insert(i.iscsi_name).second) fail(kExists, "iscsi_name " + i.iscsi_name + " is registered twice");
    if (!aliases.insert(i.alias).second) fail(kExists, "initiator_name " + i.alias + " is given twice");
    check_bitmap(db, ctl, port, i.bits, ("target_bitmap of " + what).c_str());
  }
  {
    auto s = db.sql("DELETE FROM iscsi_initiators WHERE ctl=?1 AND port=?2");
    s.bind(ctl).bind(port).run();
  }
  for (const auto& i : list) {
    auto s = db.sql("INSERT INTO iscsi_initiators VALUES(?1, ?2, ?3, ?4, ?5, ?6, ?7)");
    s.bind(ctl).bind(port).bind(i.slot).bind(i.alias).bind(i.iscsi_name).bind(i.ctrl_flag)
        .blob(i.bits.data(), i.bits.size()).run();
  }
}

// ---- CHAP users

void set_chap_users(Db& db, int ctl, int port, std::vector<ChapInput>& list, bool merge) {
  need_iscsi_port(db, ctl, port);
  // What the port has now, by name.
  std::map<std::string, ChapUser> now;
  {
    auto s = db.sql("SELECT slot, name, ctrl_flag, bits, secret FROM chap_users WHERE ctl=?1 AND port=?2");
    s.bind(ctl).bind(port);
    while (s.step()) {
      ChapUser u;
      u.slot = s.i(0);
      u.name = s.text(1);
      u.ctrl_flag = s.i(2);
      u.bits = bits_of(s.bytes(3));
      u.sealed = bytes_of(s.bytes(4));
      now[u.name] = std::move(u);
    }
  }
  std::set<std::string> names;
  std::set<int> slots;
  auto targets = target_secrets(db, ctl, port);
  for (auto& in : list) {
    auto& u = in.user;
    std::string what = "CHAP user " + str(u.slot);
    if (!merge && (u.slot < 0 || u.slot >= kChapUsers)) fail(kBadParameter, what + " is not 0..511");
    if (u.ctrl_flag != 0 && u.ctrl_flag != 1) fail(kBadParameter, "ctrl_flag of " + what + " is not 0 or 1");
    check_chap_name(u.name, ("user_name of " + what).c_str());
    if (!names.insert(u.name).second) fail(kExists, "CHAP user " + u.name + " is given twice");
    check_bitmap(db, ctl, port, u.bits, ("target_bitmap of CHAP user " + u.name).c_str());
    auto was = now.find(u.name);
    if (!in.secret.empty()) {
      check_chap_secret(in.secret, ("secret of CHAP user " + u.name).c_str());
      if (among(db, in.secret, targets))
        fail(kBadParameter, "the secret of CHAP user " + u.name + " is a target's mutual secret");
      u.sealed = seal_secret(db, in.secret);
    } else if (was != now.end()) {
      u.sealed = was->second.sealed;
    } else {
      fail(kBadParameter, "new CHAP user " + u.name + " needs a secret");
    }
    if (merge) u.slot = was != now.end() ? was->second.slot : -1;
    if (u.slot >= 0) slots.insert(u.slot);
  }
  if (merge) {
    // Users not named keep their slots; new ones take the lowest free.
    for (const auto& [name, u] : now)
      if (!names.count(name)) slots.insert(u.slot);
    int next = 0;
    for (auto& in : list) {
      if (in.user.slot >= 0) continue;
      while (slots.count(next)) ++next;
      if (next >= kChapUsers) fail(kCapacity, port_label(ctl, port) + " holds 512 CHAP users already");
      in.user.slot = next;
      slots.insert(next);
    }
    for (const auto& in : list) {
      auto s = db.sql("DELETE FROM chap_users WHERE ctl=?1 AND port=?2 AND slot=?3");
      s.bind(ctl).bind(port).bind(in.user.slot).run();
    }
  } else {
    auto s = db.sql("DELETE FROM chap_users WHERE ctl=?1 AND port=?2");
    s.bind(ctl).bind(port).run();
  }
  for (const auto& in : list) {
    const auto& u = in.user;
    auto s = db.sql("INSERT INTO chap_users VALUES(?1, ?2, ?3, ?4, ?5, ?6, ?7)");
    s.bind(ctl).bind(port).bind(u.slot).bind(u.name).bind(u.ctrl_flag).blob(u.bits.data(), u.bits.size())
        .blob(u.sealed.data(), u.sealed.size()).run();
  }
}

// ---- the CHAP user file

namespace {

[[noreturn]] void bad_line(size_t line, const std::string& why) {
  fail(kBadFile, "line " + std::to_string(line) + ": " + why);
}

bool number(std::string_view v, int lo, int hi, int& out) {
  if (v.empty() || v.size() > 4) return false;
  int n = 0;
  for (char ch : v) {
    if (ch < '0' || ch > '9') return false;
    n = n * 10 + (ch - '0');
  }
  if (n < lo || n > hi) return false;
  out = n;
  return true;
}

}  // namespace

std::vector<ChapFileEntry> parse_chap_file(std::string_view text) {
  std::vector<ChapFileEntry> out;
  bool header = false, ended = false;
  size_t line_no = 0;
  std::set<std::string> seen;
  while (!text.empty()) {
    auto nl = text.find('\n');
    auto line = text.substr(0, nl);
    text = nl == std::string_view::npos ? std::string_view{} : text.substr(nl + 1);
    ++line_no;
    if (!line.empty() && line.back() == '\r') line.remove_suffix(1);
    auto first = line.find_first_not_of(" \t");
    if (first == std::string_view::npos || line[first] == '#') continue;
    line = line.substr(first);
    while (!line.empty() && (line.back() == ' ' || line.back() == '\t')) line.remove_suffix(1);
    if (ended) bad_line(line_no, "text after the end line");
    if (!header) {
      if (line != kChapFileHeader) bad_line(line_no, std::string("the first line is not '") + kChapFileHeader + "'");
      header = true;
      continue;
    }
    if (line == "end") {
      ended = true;
      continue;
    }
    if (!line.starts_with("user ") && !line.starts_with("user\t")) bad_line(line_no, "not a user line");
    line.remove_prefix(5);
    ChapFileEntry e;
    bool have_ctl = false, have_port = false, have_name = false, have_secret = false, have_targets = false;
    while (!line.empty()) {
      auto sp = line.find_first_of(" \t");
      auto field = line.substr(0, sp);
      line = sp == std::string_view::npos ? std::string_view{} : line.substr(sp + 1);
      if (field.empty()) continue;
      auto eq = field.find('=');
      if (eq == std::string_view::npos) bad_line(line_no, "a field without '='");
      auto key = field.substr(0, eq), value = field.substr(eq + 1);
      auto once = [&](bool& have) {
        if (have) bad_line(line_no, "field " + std::string(key) + " twice");
        have = true;
      };
      if (key == "ctl") {
        once(have_ctl);
        if (!number(value, 0, kIscsiCtls - 1, e.ctl)) bad_line(line_no, "ctl is not 0 or 1");
      } else if (key == "port") {
        once(have_port);
        if (!number(value, 0, kIscsiPortSlots - 1, e.port)) bad_line(line_no, "port is not 0..3");
      } else if (key == "name") {
        once(have_name);
        e.in.user.name = std::string(value);
        if (value.empty() || value.size() > 256) bad_line(line_no, "name is not 1..256 characters");
      } else if (key == "secret") {
        once(have_secret);
        e.in.secret.assign(value);
        if (value.size() < kChapSecretMin || value.size() > kChapSecretMax)
          bad_line(line_no, "secret is not 12..32 characters");
      } else if (key == "targets") {
        once(have_targets);
        if (value == "none") continue;
        while (!value.empty()) {
          auto comma = value.find(',');
          int t = 0;
          if (!number(value.substr(0, comma), 0, kIscsiTargets - 1, t)) bad_line(line_no, "a target is not 0..254");
          e.in.user.bits[static_cast<size_t>(t / 8)] |= static_cast<uint8_t>(1u << (t % 8));
          value = comma == std::string_view::npos ? std::string_view{} : value.substr(comma + 1);
          if (comma != std::string_view::npos && value.empty()) bad_line(line_no, "a list ending in ','");
        }
      } else {
        bad_line(line_no, "unknown field " + std::string(key));
      }
    }
    if (!(have_ctl && have_port && have_name && have_secret && have_targets))
      bad_line(line_no, "a user line needs ctl, port, name, secret and targets");
    if (!seen.insert(str(e.ctl) + "/" + str(e.port) + "/" + e.in.user.name).second)
      bad_line(line_no, "user " + e.in.user.name + " twice on one port");
    out.push_back(std::move(e));
  }
  if (!header) fail(kBadFile, "not a CHAP user file (no header)");
  if (!ended) fail(kBadFile, "no end line");
  return out;
}

// ---- ping

PingState ping_state(Db& db, const IscsiPort& p, int64_t now) {
  PingState st;
  if (p.ping_ip.empty() || p.ping_count <= 0) return st;
  int64_t elapsed = now - p.ping_start;
  st.executed = static_cast<int>(std::clamp<int64_t>(elapsed, 0, p.ping_count));
  // Addresses that answer: the port itself, its gateway, the simulated hosts
  // and the other iSCSI ports; in the port's subnet, or beyond it only
  // through a gateway.
  uint32_t target = 0, ip = 0, mask = 0;
  bool answers = false;
  if (parse_ipv4(p.ping_ip, target) && parse_ipv4(p.ip, ip) && parse_mask(p.subnet, mask)) {
    std::set<std::string> answering{p.ip};
    if (!p.gateway.empty()) answering.insert(p.gateway);
    {
      auto s = db.sql("SELECT ip FROM iscsi_hosts");
      while (s.step()) answering.insert(s.text(0));
    }
    {
      auto s = db.sql("SELECT ip FROM iscsi_ports");
      while (s.step()) answering.insert(s.text(0));
    }
    answers = answering.count(p.ping_ip) && (in_subnet(target, ip, mask) || !p.gateway.empty());
  }
  st.succeeded = answers ? st.executed : 0;
  st.status = st.executed < p.ping_count ? 1 : (st.succeeded == p.ping_count ? 2 : 3);
  return st;
}

void request_ping(Db& db, int ctl, int port, const std::string& ip, int count, int64_t now) {
  IscsiPort p = iscsi_port(db, ctl, port);
  uint32_t a;
  if (!parse_ipv4(ip, a) || (a >> 24) == 0 || (a >> 24) >= 224)
    fail(kBadParameter, "ping address of " + port_label(ctl, port) + " is not a unicast IPv4 address");
  if (count < 0 || count > kPingMaxCount) fail(kBadParameter, "schedule_count " + str(count) + " is not 0..100");
  if (ping_state(db, p, now).status == 1) fail(kBusy, "a ping runs on " + port_label(ctl, port));
  auto s = db.sql("UPDATE iscsi_ports SET ping_ip=?1, ping_count=?2, ping_start=?3 WHERE ctl=?4 AND port=?5");
  s.bind(ip).bind(count == 0 ? kPingDefaultCount : count).bind(now).bind(ctl).bind(port).run();
}

}  // namespace sim
