// The set-up wizard: the unit's initial configuration, the current port
// options and controller identifier, and the LU set-up text written to a file.
#include <arpa/inet.h>

#include <cstring>
#include <string>

#include "raid.h"
#include "sim/core/call.h"
#include "sim/core/text.h"
#include "sim/model/model.h"
#include "sim/model/pools.h"

namespace {

using sim::fail;
using sim::kBadParameter;

constexpr const char* kParamKey = "wizard.param";
// A parameter file: this line, then the record's bytes.
constexpr std::string_view kParamMagic = "pernix-sim wizard parameters 1\n";

using sim::range;

template <size_t N>
std::string text(const char (&field)[N], const char* what) {
  return sim::in_text(field, what);
}

void address(const char (&field)[16], const char* what) {
  std::string a = text(field, what);
  in_addr ignored;
  if (!a.empty() && inet_pton(AF_INET, a.c_str(), &ignored) != 1)
    fail(kBadParameter, std::string(what) + " '" + a + "' is not an IPv4 address");
}

// Everything a unit accepts as its initial configuration.
void check(const WizardParamRec& p) {
  range(p.fd_backup, 0, 1, "fd_backup");
  const auto& d = p.dual_conf;
  range(d.startup_attr, 0, 1, "startup_attr");
  range(d.data_share, 0, 1, "data_share");
  range(d.spare_disk, 0, PERNIX_SPARE_DISKS, "spare_disk");
  range(d.connection_mode, 0, 1, "connection_mode");
  text(d.serial, "serial");
  for (uint8_t b : d.port_d_ctl) range(b, 0, 1, "port_d_ctl");
  range(d.id_taking_over, 0, 1, "id_taking_over");
  for (const auto& row : d.port_cnnct_mode1)
    for (int v : row) range(v, 0, 3, "port_cnnct_mode1");
  for (const auto& row : d.port_cnnct_mode2)
    for (int v : row) range(v, 0, 3, "port_cnnct_mode2");
  range(d.delay_time, 0, 3600, "delay_time");
  range(d.hp2_support, 0, 1, "hp2_support");
  range(d.add_bat_unit, 0, 1, "add_bat_unit");
  for (int v : p.drive_capacity.row) range(v, 0, 450, "drive_capacity row");
  range(p.drive_capacity.spare, 0, PERNIX_SPARE_DISKS, "drive_capacity spare");
  for (const auto& t : p.target_id) {
    range(t.ctrl_flag, 0, 1, "ctrl_flag");
    range(t.target_id_mode, 0, 1, "target_id_mode");
  }
  const auto& m = p.mode_param;
  range(m.striping, 0, 3, "striping");
  range(m.buzzer, 0, 1, "buzzer");
  range(m.lu_size_report, 0, 1, "lu_size_report");
  range(m.reset, 0, 1, "reset");
  range(m.failures, 0, 1, "failures");
  const auto& q = p.inquiry;
  range(q.command_que, 0, 1, "command_que");
  range(q.ansi_version, 0, 7, "ansi_version");
  range(q.cache_mode, 0, 1, "cache_mode");
  text(q.vendor, "vendor");
  text(q.product, "product");
  text(q.rom_micro, "rom_micro");
  text(q.ram_micro, "ram_micro");
  text(q.web_title, "web_title");
  range(q.link_separation, 0, 1, "link_separation");
  for (const auto& t : p.port_type) {
    range(t.port_type, 0, 2, "port_type");
    for (int v : t.port_mode) range(v, 0, 3, "port_mode");
  }
  for (const auto& r : p.rom_response) range(r.mode, 0, 1, "rom_response mode");
  for (const auto& o : p.ctl_opt) {
    range(o.id_mode, 0, 1, "id_mode");
    text(o.id_front, "id_front");
    text(o.id_rear, "id_rear");
    range(o.error_out_mode, 0, 1, "error_out_mode");
    range(o.write_verify_mode, 0, 1, "write_verify_mode");
  }
  for (const auto& l : p.lan_conf) {
    address(l.ip_address, "ip_address");
    address(l.subnet, "subnet");
    address(l.gateway, "gateway");
    text(l.ether, "ether");
  }
}

// What a unit holds before anybody ran the wizard on it.
void defaults(sim::Db& db, WizardParamRec& p) {
  std::memset(&p, 0, sizeof p);
  auto& d = p.dual_conf;
  d.data_share = 1;
  d.connection_mode = 1;
  sim::out_text(d.serial, sim::meta(db, "array_serial"));
  d.id_taking_over = 1;
  auto& q = p.inquiry;
  q.command_que = 1;
  q.ansi_version = 3;
  q.cache_mode = 1;
  sim::out_text(q.vendor, "PERNIX");
  sim::out_text(q.product, "SIM-ARRAY");
  sim::out_text(q.rom_micro, "01");
  sim::out_text(q.ram_micro, "01");
  sim::out_text(q.web_title, "pernix simulated array");
  for (int k = 0; k < 2; ++k) {
    p.port_type[k].port_type = 2;
    auto& o = p.ctl_opt[k];
    sim::out_text(o.id_front, k == 0 ? "CTL0" : "CTL1");
    sim::out_text(o.id_rear, "00");
    auto& l = p.lan_conf[k];
    l.lan_connect = 1;
    sim::out_text(l.ip_address, sim::meta(db, k == 0 ? "array_ip0" : "array_ip1"));
    sim::out_text(l.subnet, "255.255.255.0");
    sim::out_text(l.gateway, "192.0.2.1");
    sim::out_text(l.ether, k == 0 ? "00:00:5e:00:53:10" : "00:00:5e:00:53:11");
  }
}

void kept(sim::Db& db, WizardParamRec& p) {
  if (!sim::load_setting(db, kParamKey, &p, sizeof p)) defaults(db, p);
}

// x: 0 the unit itself, 1 a parameter file at the path.
void need_target(int x) {
  if (x != 0 && x != 1) fail(kBadParameter, "wizard target " + std::to_string(x) + " is not 0 or 1");
}

std::string now_key(int ctl) { return "wizard.now." + std::to_string(ctl); }

void check_now(const NowWZParameterRec& n) {
  range(n.fd_backup, 0, 1, "fd_backup");
  for (const auto& row : n.port_option.mode)
    for (int v : row) range(v, 0, 3, "port option mode");
  range(n.port_option.hp2_support, 0, 1, "hp2_support");
  text(n.ctrl_id.id_front, "id_front");
  text(n.ctrl_id.id_rear, "id_rear");
  range(n.ctrl_id.ctrl_name_mode, 0, 1, "ctrl_name_mode");
}

}  // namespace

extern "C" {

int KX_GetWizardParam(const char* unit, const char* path, int x, WizardParamRec* param) {
  return sim::run(__func__, sim::kRead, [&](sim::Call& c) {
    c.unit_login(unit);
    need_target(x);
    auto& p = sim::out(param, "wizard parameters");
    if (x == 0) {
      kept(c.db, p);
      return;
    }
    std::string file = sim::read_file(sim::in_text(path, PERNIX_PATH_SIZE, "path"),
                                      kParamMagic.size() + sizeof(WizardParamRec));
    if (file.size() != kParamMagic.size() + sizeof(WizardParamRec) ||
        file.compare(0, kParamMagic.size(), kParamMagic) != 0)
      fail(sim::kBadFile, "not a wizard parameter file");
    WizardParamRec read;
    std::memcpy(&read, file.data() + kParamMagic.size(), sizeof read);
    try {
      check(read);
    } catch (const sim::Error& e) {
      fail(sim::kBadFile, e.what);
    }
    p = read;
  });
}

int KX_SetWizardParam(const char* unit, const WizardParamRec* param, const char* path, int x) {
  return sim::run(__func__, sim::kWrite, [&](sim::Call& c) {
    c.what = "wizard parameters";
    c.unit_login(unit);
    need_target(x);
    const auto& p = sim::in(param, "wizard parameters");
    check(p);
    if (x == 0) {
      sim::save_setting(c.db, kParamKey, &p, sizeof p);
      return;
    }
    std::string file = sim::in_text(path, PERNIX_PATH_SIZE, "path");
    c.what = "wizard parameters to " + file;
    c.require(sim::kRightMaintenance);
    std::string data(kParamMagic);
    data.append(reinterpret_cast<const char*>(&p), sizeof p);
    sim::write_file(file, data);
  });
}

int KX_TestWizardParam(const char* unit, const WizardParamRec* param, const char* path, int x) {
  return sim::run(__func__, sim::kRead, [&](sim::Call& c) {
    c.unit_login(unit);
    need_target(x);
    if (x == 1) sim::in_text(path, PERNIX_PATH_SIZE, "path");
    check(sim::in(param, "wizard parameters"));
  });
}

int KX_GetNowWZParam(const char* unit, int x, NowWZParameterRec* param) {
  return sim::run(__func__, sim::kRead, [&](sim::Call& c) {
    c.unit_login(unit);
    range(x, 0, 1, "controller");
    auto& n = sim::out(param, "current wizard parameters");
    if (sim::load_setting(c.db, now_key(x), &n, sizeof n)) return;
    // Until set, they follow the unit's configuration.
    WizardParamRec p;
    kept(c.db, p);
    n.fd_backup = p.fd_backup;
    n.port_option.hp2_support = p.dual_conf.hp2_support;
    std::memcpy(n.ctrl_id.id_front, p.ctl_opt[x].id_front, sizeof n.ctrl_id.id_front);
    std::memcpy(n.ctrl_id.id_rear, p.ctl_opt[x].id_rear, sizeof n.ctrl_id.id_rear);
    n.ctrl_id.ctrl_name_mode = p.ctl_opt[x].id_mode;
  });
}

int KX_SetNowWZParam(const char* unit, int x, const NowWZParameterRec* param) {
  return sim::run(__func__, sim::kWrite, [&](sim::Call& c) {
    c.what = "current wizard parameters of controller " + std::to_string(x);
    c.unit_login(unit, sim::kRightMaintenance);
    range(x, 0, 1, "controller");
    const auto& n = sim::in(param, "current wizard parameters");
    check_now(n);
    sim::save_setting(c.db, now_key(x), &n, sizeof n);
  });
}

int KX_LuWizardOutput(const char* unit, const KXSessionInfoRec* session, const char* path,
                      const LuWZSetContentsRec* contents) {
  return sim::run(__func__, sim::kRead, [&](sim::Call& c) {
    c.session(unit, session);
    std::string file = sim::in_text(path, PERNIX_PATH_SIZE, "path");
    const auto& rec = sim::in(contents, "LU set-up contents");
    sim::write_file(file, sim::in_text(rec.setcontens, "LU set-up contents"));
  });
}

}  // extern "C"
