// Host access: the host ports of both controllers, host groups and their
// connection options, the mapping of host LU numbers to LUs, the mapping
// guard, the Fibre Channel side of each port (settings, the hosts logged in,
// WWN permissions, WWN-to-host-group assignments), target ID tables and the
// LU guard.  The tables are described at the top of hosts.cpp.  Every
// operation runs inside the caller's transaction and throws sim::Error with
// the simulator's code when it refuses.
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "sim/core/store.h"

namespace sim {

constexpr int kHostCtls = 2;
constexpr int kHostPorts = 4;        // port slots per controller in every record
constexpr int kHostGroups = 128;     // host groups per port (0..127)
constexpr int kHostGroupSlots = 255; // slots per port in the option and mapping tables
constexpr int kHostLuns = 256;       // host LU numbers of one host group
constexpr int kPortWwns = 128;       // WWN permissions or assignments per port
constexpr int kHgNameMax = 16;       // bytes of a host-group name
constexpr const char* kMappingHolder = "host mapping";
constexpr const char* kGuardHolder = "LU guard";

// The ports each controller has (options.ports when the array was seeded).
int host_ports(Db& db);
bool port_exists(Db& db, int ctl, int port);
// kBadParameter outside 0..1 / 0..3, kNoSuchObject for a port the array lacks.
void need_port(Db& db, int ctl, int port);

// ---- host groups

struct HgOptions {
  int32_t option = 0, option2[2] = {0, 0}, option3 = 0;
  int32_t platform = 0, altpath = 0, failover = 0, special = 0;
};

struct HostGroup {
  int ctl = 0, port = 0, number = 0;
  std::string name;
  HgOptions opt;
};

std::optional<HostGroup> find_hg(Db& db, int ctl, int port, int hg);
// kNoSuchObject when the group is not there (kBadParameter out of range).
HostGroup need_hg(Db& db, int ctl, int port, int hg);
std::vector<HostGroup> host_groups(Db& db);  // every group, ordered ctl, port, number
// number -1: the lowest free.  Returns the number made.
int create_hg(Db& db, int ctl, int port, int number, const std::string& name);
void rename_hg(Db& db, int ctl, int port, int hg, const std::string& name);
// Removes a group with its mappings and WWN assignments; group 0 stays (kBusy).
void delete_hg(Db& db, int ctl, int port, int hg);
// Back to a new group's state: default options, no mappings, no WWNs.
void init_hg(Db& db, int ctl, int port, int hg);
void set_hg_options(Db& db, int ctl, int port, int hg, const HgOptions& o);
// kBadParameter unless every id is in the catalogue, the platform admits the
// alternate path, and the bits lie within the supported masks.
void check_hg_options(const HgOptions& o);
// A name of 1..16 bytes of printable ASCII.
void check_hg_name(const std::string& name);

// ---- the catalogue of host-connection parameters

struct CatalogueEntry {
  int id;
  const char* name;
};
const std::vector<CatalogueEntry>& platforms();
const std::vector<CatalogueEntry>& alternate_paths();
const std::vector<CatalogueEntry>& failovers();
const std::vector<CatalogueEntry>& special_modes();
bool platform_admits(int platform, int altpath);
// The options a combination sets, and the bit a special mode adds.
HgOptions combination_options(int platform, int altpath, int failover);
HgOptions special_mode_options(int special);
constexpr int32_t kOptionMask = 0xff;  // bits of option, option2[0..1], option3 supported

// ---- LU mapping

// lu[h] = the LU at host LU number h, -1 when none.
std::array<int, kHostLuns> hg_mapping(Db& db, int ctl, int port, int hg);
// Replaces the group's mapping: each LU must exist (kNoSuchObject), appear at
// most once (kExists); LUs under the mapping guard must keep their host LU
// numbers (kBusy).  Holds every LU mapped, releases those no longer mapped.
void set_hg_mapping(Db& db, int ctl, int port, int hg, const std::array<int, kHostLuns>& lu);
int mapping_mode(Db& db);
void set_mapping_mode(Db& db, int mode);
std::vector<uint8_t> mapping_guard(Db& db);  // kMaxLus flags
void set_mapping_guard(Db& db, const std::vector<uint8_t>& guard);

// ---- Fibre Channel ports

struct FcPort {
  int topology = 0;     // 0 automatic, 1 point to point, 2 loop
  int speed = 0;        // 0 automatic, 1, 2, 4, 8 Gbit/s
  int frame_size = 3;   // 0 512, 1 1024, 2 2048, 3 2112 bytes
  int security = 0;     // WWN security (host-group security) of the port
  int all_lun_security = 0;
  int check_level = 0;  // security_chk_lv 0..2
  int lip_mode = 0;     // 0..2
  int common_opt = 0;   // option bits 0..7
};
FcPort fc_port(Db& db, int ctl, int port);
void set_fc_port(Db& db, int ctl, int port, const FcPort& p);
int lun_security(Db& db);  // the array-wide LUN security switch
void set_lun_security(Db& db, int on);

// A host port that is logged in to an array port now (seeded).
struct FcLogin {
  std::string node, wwpn, n_port_id;
};
std::vector<FcLogin> fc_logins(Db& db, int ctl, int port);

struct WwnPermission {
  std::string node, wwpn, n_port_id;
  std::array<uint8_t, 256> bitmap{};
};
std::vector<WwnPermission> wwn_permissions(Db& db, int ctl, int port);
void set_wwn_permissions(Db& db, int ctl, int port, const std::vector<WwnPermission>& perms);

struct WwnAssignment {
  std::string node, wwpn, nickname;
  int hg = 0;
};
std::vector<WwnAssignment> wwn_assignments(Db& db, int ctl, int port);
void set_wwn_assignments(Db& db, int ctl, int port, const std::vector<WwnAssignment>& list);

// A world wide name: 16 hex digits (kBadParameter naming `what` otherwise);
// returned in capitals.
std::string check_wwn(const std::string& s, const char* what);
// 6 hex digits or empty.
std::string check_port_id(const std::string& s, const char* what);
// The array's own names of a port.
std::string array_node_name(Db& db);
std::string array_port_name(Db& db, int ctl, int port);

// ---- target IDs: one table per controller

struct TargetPort {
  int single = 0;                          // the port's target ID in single mode, 0..127
  std::array<uint8_t, 16> multi{};         // target IDs in multi mode, 0..127 or 255 unused
  std::array<std::array<uint8_t, 128>, 16> lun{};  // 1: LU i is reached through target t
};
struct TargetTable {
  int mode = 0;  // 0 single, 1 multi
  std::array<TargetPort, kHostPorts> port{};
};
TargetTable target_table(Db& db, int ctl);
void set_target_table(Db& db, int ctl, const TargetTable& t);
// Range checks; with need_lus the LUs named must exist (kNoSuchObject).
void check_target_table(Db& db, const TargetTable& t, bool need_lus);
TargetTable default_target_table();

// The target-ID file: both controllers or one (present[c]).  kBadFile naming
// the line when the text is not such a file.
constexpr const char* kTargetIdHeader = "pernix-sim target-id 1";
struct TargetFile {
  std::array<bool, kHostCtls> present{};
  std::array<TargetTable, kHostCtls> table{};
};
TargetFile parse_target_file(std::string_view text);
std::string render_target_file(const TargetFile& f);

// The WWN permission file: each entry names a controller and port.
constexpr const char* kPermissionHeader = "pernix-sim wwn-permissions 1";
struct PermissionEntry {
  int ctl = 0, port = 0;
  WwnPermission perm;
};
std::vector<PermissionEntry> parse_permission_file(std::string_view text);

// ---- LU guard

struct LuGuard {
  int level = 0;         // 0 read/write, 1 read only, 2 protect, 3 read only and no copy target
  int64_t expiry = 0;    // seconds of the clock when the retention ends; 0 none, -1 unlimited
};
constexpr int kSecondsPerDay = 86400;
constexpr int kMaxRetentionDays = 21900;  // 60 years
std::vector<LuGuard> lu_guards(Db& db);    // kMaxLus entries
LuGuard lu_guard(Db& db, int lun);
void set_lu_guard(Db& db, int lun, const LuGuard& g);
// Days left of a term at `now`: 0 none or over, -1 unlimited.
int retention_days(const LuGuard& g, int64_t now);
int expiration_lock(Db& db);
void set_expiration_lock(Db& db, int on);

}  // namespace sim
