// iSCSI host ports: their network settings, the targets on each port, the
// initiators registered per port, the simulated hosts logged in, CHAP users,
// iSNS settings and ping tests.  What sim/api/iscsi.cpp needs of the model.
//
// CHAP secrets are kept only sealed (libsodium's crypto_secretbox, a random
// nonce each, under a key kept in meta): reading the database file does not
// show them, holding the whole file does.  Plain copies live in a Plain and
// are wiped when it goes.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "sim/core/store.h"

namespace sim {

constexpr int kIscsiCtls = 2;
constexpr int kIscsiPortSlots = 4;     // port slots of a controller's record
constexpr int kIscsiTargets = 255;     // target slots of a port
constexpr int kIscsiInitiators = 256;  // registered (or logged-in) initiators of a port
constexpr int kChapUsers = 512;        // CHAP users of a port
constexpr int kChapSecretMin = 12;     // CHAP secret length, bytes
constexpr int kChapSecretMax = 32;
constexpr int kPingDefaultCount = 4;
constexpr int kPingMaxCount = 100;

using TargetBitmap = std::array<uint8_t, 32>;  // bit n (byte n/8, 1 << n%8) = target slot n

// A plain secret, held in a buffer of its own (never reallocated) and wiped
// when it goes; a move wipes the source.  Longer than kPlainMax bytes it is
// only marked too long.
class Plain {
 public:
  static constexpr size_t kPlainMax = 64;
  Plain() = default;
  explicit Plain(std::string_view s) { assign(s); }
  Plain(Plain&& o) noexcept;
  Plain& operator=(Plain&& o) noexcept;
  Plain(const Plain&) = delete;
  Plain& operator=(const Plain&) = delete;
  ~Plain();
  void assign(std::string_view s);
  std::string_view view() const { return {b_, n_}; }
  bool empty() const { return n_ == 0 && !too_long_; }
  bool too_long() const { return too_long_; }

 private:
  char b_[kPlainMax] = {};
  size_t n_ = 0;
  bool too_long_ = false;
};

// Seals a secret for the database (nonce followed by the box) and opens one.
std::vector<uint8_t> seal_secret(Db& db, const Plain& secret);
void open_secret(Db& db, const std::vector<uint8_t>& sealed, Plain& out);

// ---- checks of untrusted values (kBadParameter naming what)

// Dotted-decimal IPv4, four decimal numbers 0..255 without leading zeros.
bool parse_ipv4(std::string_view s, uint32_t& out);
// A subnet mask of 8..30 leading ones.
bool parse_mask(std::string_view s, uint32_t& out);
// An iSCSI name: iqn.yyyy-mm.reversed.domain[:anything], eui. + 16 hex digits
// or naa. + 16/32 hex digits; at most 223 bytes; iqn names in lower case.
bool valid_iscsi_name(std::string_view s);
// An alias (target or initiator name): 1..32 printable ASCII bytes.
void check_alias(const std::string& s, const char* what);
// A CHAP user name (1..256) or secret (12..32): printable ASCII without spaces.
void check_chap_name(const std::string& s, const char* what);
void check_chap_secret(const Plain& s, const char* what);

// ---- ports

struct IscsiPort {
  int ctl = 0, port = 0;
  std::string ip, subnet, gateway, ether;
  int port_num = 3260, keep_alive = 60, mtu = 1500;
  int security = 0;
  int isns_use = 0;
  std::string isns_ip;
  int isns_port = 3205;
  // The latest ping request ("" when none).
  std::string ping_ip;
  int ping_count = 0;
  int64_t ping_start = 0;
};

// Ports present per controller (the option `ports`).
int iscsi_port_count(Db& db);
// ctl 0/1 and port 0..3 (else kBadParameter); a port not present kNoSuchObject.
void need_iscsi_port(Db& db, int ctl, int port);
std::string port_label(int ctl, int port);  // "iSCSI port 0/1"
// Every present port, in controller and port order.
std::vector<IscsiPort> iscsi_ports(Db& db);
IscsiPort iscsi_port(Db& db, int ctl, int port);
// Checks the network settings of the ports given (addresses, mask, gateway in
// the subnet, TCP port, keep-alive, MTU; no two ports nor a controller's LAN
// address alike) against the others and stores them.
void set_port_network(Db& db, const std::vector<IscsiPort>& changed);
void set_port_isns(Db& db, const IscsiPort& p);
void set_port_security(Db& db, int ctl, int port, int security);

// ---- targets

struct IscsiTarget {
  int slot = 0;
  std::string alias, iscsi_name;
  int authmethod = 0, algorithm = 0, auth = 0;
  std::string user_name;
  std::vector<uint8_t> sealed;  // the mutual-CHAP secret, sealed; empty when none
};

std::vector<IscsiTarget> targets_of(Db& db, int ctl, int port);
bool target_exists(Db& db, int ctl, int port, int slot);
// The name a target gets when it is made without one.
std::string default_target_name(Db& db, int ctl, int port, int slot);
// Checks and stores a target (made or changed).  secret: a new secret, or
// empty to keep the one kept (a change).  Names unique on the port
// (kExists); a secret equal to a CHAP user's of the port kBadParameter.
void put_target(Db& db, int ctl, int port, const IscsiTarget& t, const Plain& secret, bool create);
void delete_targets(Db& db, int ctl, int port, const std::vector<int>& slots);
// Back to one target, slot 0, with its defaults; security off.
void init_targets(Db& db, int ctl, int port);
// The bitmap refused when it names a target that does not exist.
void check_bitmap(Db& db, int ctl, int port, const TargetBitmap& bits, const char* what);

// ---- registered initiators

struct IscsiInitiator {
  int slot = 0, ctrl_flag = 0;
  std::string alias, iscsi_name;
  TargetBitmap bits{};
};
// Replaces the port's whole list.
void set_initiators(Db& db, int ctl, int port, const std::vector<IscsiInitiator>& list);

// The simulated hosts logged in to a port now (iscsi_hosts): those attached to
// it, and when the port's security is on, only those registered on it.  The
// getter reads them in one query.

// ---- CHAP users

struct ChapUser {
  int slot = 0, ctrl_flag = 0;
  std::string name;
  TargetBitmap bits{};
  std::vector<uint8_t> sealed;  // filled by set_chap_users from the secret given or kept
};
struct ChapInput {
  ChapUser user;
  Plain secret;  // empty: keep the secret of the port's user of that name
};
// Replaces the port's whole list (replace) or adds to it, a user of the
// same name being replaced in its slot (merge).
void set_chap_users(Db& db, int ctl, int port, std::vector<ChapInput>& list, bool merge);

// ---- the CHAP user file

constexpr const char* kChapFileHeader = "pernix-sim chap-users 1";
struct ChapFileEntry {
  int ctl = 0, port = 0;
  ChapInput in;
};
// kBadFile naming the line when the text is not such a file.
std::vector<ChapFileEntry> parse_chap_file(std::string_view text);

// ---- ping

struct PingState {
  int status = 0;  // 0 none, 1 running, 2 every ping answered, 3 done, some unanswered
  int executed = 0, succeeded = 0;
};
// One ping a second from the request on; computed at time now.
PingState ping_state(Db& db, const IscsiPort& p, int64_t now);
void request_ping(Db& db, int ctl, int port, const std::string& ip, int count, int64_t now);

}  // namespace sim
