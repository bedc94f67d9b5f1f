// Fibre Channel ports, WWN security and target IDs: port settings and the
// hosts logged in, the WWN permission table in its two shapes (the port
// information's security records and the older WWN table), WWN-to-host-group
// assignments, port option words, target ID tables and the two target-ID
// imports, and the import of a WWN permission file.
//
// Slots of ports the array lacks read back as zero and are ignored by the
// setters.
#include <algorithm>
#include <cstring>
#include <string>
#include <vector>

#include "account.h"
#include "host.h"
#include "raid.h"
#include "sim/core/call.h"
#include "sim/core/text.h"
#include "sim/model/hosts.h"
#include "sim/model/model.h"
#include "sim/model/pools.h"
#include "sim/model/storage.h"

namespace {

using sim::fail;

constexpr size_t kFileLimit = 4 << 20;  // bytes of an import file

std::string port_name(int ctl, int port) { return "port " + std::to_string(ctl) + "/" + std::to_string(port); }

const char* kSfc[] = {"B0100", "S0200", "F0310", "P0310", "E0100"};

void fill_fibre(sim::Db& db, int ctl, FibreInformationRec& r) {
  r.lun_security = static_cast<int8_t>(sim::lun_security(db));
  sim::out_text(r.product_number, "FC8");
  for (int p = 0; p < sim::kHostPorts; ++p) {
    if (!sim::port_exists(db, ctl, p)) continue;
    r.port_valid |= 1 << p;
    auto fp = sim::fc_port(db, ctl, p);
    auto logins = sim::fc_logins(db, ctl, p);
    bool up = !logins.empty();
    int ref = fp.topology != 0 ? fp.topology : (up ? 1 : 0);
    r.topology[p] = fp.topology;
    r.topology_ref[p] = up ? ref : 0;
    auto& pr = r.port[p];
    sim::out_text(pr.node_name, sim::array_node_name(db));
    sim::out_text(pr.port_name, sim::array_port_name(db, ctl, p));
    if (up) {
      char id[7];
      std::snprintf(id, sizeof id, "01%02X00", (ctl * sim::kHostPorts + p + 1) & 0xff);
      sim::out_text(pr.n_port_id, id);
      sim::out_text(pr.get_address, id);
    }
    pr.frame_size = static_cast<uint8_t>(fp.frame_size);
    pr.if_board = 1;
    pr.support_speed = 1 | 2 | 4 | 8;
    pr.set_speed = static_cast<uint8_t>(fp.speed);
    pr.refer_speed = static_cast<uint8_t>(up ? (fp.speed ? fp.speed : 8) : 0);
    pr.connect_valid = 1;
    pr.connect[0].topology_ref = r.topology_ref[p];
    auto& sfc = r.sfc[p];
    sim::out_text(sfc.biu, kSfc[0]);
    sim::out_text(sfc.sequence, kSfc[1]);
    sim::out_text(sfc.oper_firmware, kSfc[2]);
    sim::out_text(sfc.post_firmware, kSfc[3]);
    sim::out_text(sfc.endec, kSfc[4]);
    sim::out_text(sfc.fc_ph, "4.3");
    auto& sec = r.security[p];
    sec.access_guard = static_cast<int8_t>(fp.security);
    sec.all_lun_security = static_cast<int8_t>(fp.all_lun_security);
    sec.security_chk_lv = fp.check_level;
    auto perms = sim::wwn_permissions(db, ctl, p);
    int n = 0;
    for (const auto& w : perms) {
      if (n >= sim::kPortWwns) break;
      auto& o = sec.permission[n++];
      sim::out_text(o.node_name, w.node);
      sim::out_text(o.port_name, w.wwpn);
      sim::out_text(o.n_port_id, w.n_port_id);
      std::memcpy(o.lun_security_bitmap, w.bitmap.data(), sizeof o.lun_security_bitmap);
    }
    sec.permission_count = n;
  }
}

int count_in(int n, const std::string& what) {
  if (n < 0 || n > sim::kPortWwns)
    fail(sim::kBadParameter, what + ": count " + std::to_string(n) + " is not within 0..128");
  return n;
}

void apply_fibre(sim::Db& db, int ctl, const FibreInformationRec& r) {
  for (int p = 0; p < sim::kHostPorts; ++p) {
    if (!sim::port_exists(db, ctl, p)) continue;
    auto fp = sim::fc_port(db, ctl, p);
    const auto& sec = r.security[p];
    fp.topology = r.topology[p];
    fp.speed = r.port[p].set_speed;
    fp.frame_size = r.port[p].frame_size;
    fp.security = sec.access_guard;
    fp.all_lun_security = sec.all_lun_security;
    fp.check_level = sec.security_chk_lv;
    sim::set_fc_port(db, ctl, p, fp);
    int n = count_in(sec.permission_count, port_name(ctl, p));
    std::vector<sim::WwnPermission> perms;
    for (int i = 0; i < n; ++i) {
      const auto& in = sec.permission[i];
      sim::WwnPermission w;
      w.node = sim::in_text(in.node_name, "node_name");
      w.wwpn = sim::in_text(in.port_name, "port_name");
      w.n_port_id = sim::in_text(in.n_port_id, "n_port_id");
      std::memcpy(w.bitmap.data(), in.lun_security_bitmap, w.bitmap.size());
      perms.push_back(std::move(w));
    }
    sim::set_wwn_permissions(db, ctl, p, perms);
  }
}

// Records of the target-ID layout (TargetIdRec and WZTargetIdRec alike).
template <class Rec>
sim::TargetTable table_of(const Rec& r) {
  sim::TargetTable t;
  t.mode = r.target_id_mode;
  for (int p = 0; p < sim::kHostPorts; ++p) {
    const auto& in = r.target_config[p];
    auto& tp = t.port[static_cast<size_t>(p)];
    tp.single = in.single;
    std::memcpy(tp.multi.data(), in.multi, tp.multi.size());
    for (int tg = 0; tg < 16; ++tg) std::memcpy(tp.lun[static_cast<size_t>(tg)].data(), in.mapping[tg].lun, 128);
  }
  return t;
}

template <class Rec>
void rec_of(const sim::TargetTable& t, int port_only, Rec& r) {
  r.ctrl_flag = 1;
  r.target_id_mode = t.mode;
  for (int p = 0; p < sim::kHostPorts; ++p) {
    if (port_only >= 0 && p != port_only) continue;
    const auto& tp = t.port[static_cast<size_t>(p)];
    auto& o = r.target_config[p];
    o.single = static_cast<int8_t>(tp.single);
    std::memcpy(o.multi, tp.multi.data(), sizeof o.multi);
    for (int tg = 0; tg < 16; ++tg) std::memcpy(o.mapping[tg].lun, tp.lun[static_cast<size_t>(tg)].data(), 128);
  }
}

// Ports the array lacks keep their defaults in a table.
sim::TargetTable present_ports(sim::Db& db, int ctl, const sim::TargetTable& in, const sim::TargetTable& base) {
  sim::TargetTable t = base;
  t.mode = in.mode;
  for (int p = 0; p < sim::kHostPorts; ++p)
    if (sim::port_exists(db, ctl, p)) t.port[static_cast<size_t>(p)] = in.port[static_cast<size_t>(p)];
  return t;
}

void port_selector(sim::Db& db, int ctl, int port) {
  if (port == -1) return;
  sim::need_port(db, ctl, port);
}

sim::TargetFile read_target_file(const char* path, const char* what) {
  std::string file = sim::in_text(path, PERNIX_PATH_SIZE, what);
  return sim::parse_target_file(sim::read_file(file, kFileLimit));
}

}  // namespace

extern "C" {

int KX_GetFibreInformation(const char* unit, const KXSessionInfoRec* session, FibreInformationRec* ctl0,
                           FibreInformationRec* ctl1) {
  return sim::run(__func__, sim::kRead, [&](sim::Call& c) {
    c.session(unit, session);
    fill_fibre(c.db, 0, sim::out(ctl0, "controller 0 ports"));
    fill_fibre(c.db, 1, sim::out(ctl1, "controller 1 ports"));
  });
}

int KX_SetFibreInformation(const char* unit, const KXSessionInfoRec* session, const FibreInformationRec* ctl0,
                           const FibreInformationRec* ctl1) {
  return sim::run(__func__, sim::kWrite, [&](sim::Call& c) {
    c.what = "Fibre Channel ports";
    c.session(unit, session, sim::kRightHosts);
    const auto& r0 = sim::in(ctl0, "controller 0 ports");
    const auto& r1 = sim::in(ctl1, "controller 1 ports");
    if (r0.lun_security != r1.lun_security)
      fail(sim::kBadParameter, "lun_security differs between the controllers' records");
    sim::set_lun_security(c.db, r0.lun_security);
    apply_fibre(c.db, 0, r0);
    apply_fibre(c.db, 1, r1);
  });
}

int KX_GetWWNInformation(const char* unit, WWNInformationRec* info) {
  return sim::run(__func__, sim::kRead, [&](sim::Call& c) {
    c.unit_login(unit);
    auto& r = sim::out(info, "WWN information");
    r.lun_security_opt = sim::lun_security(c.db);
    for (int a = 0; a < sim::kHostCtls; ++a)
      for (int p = 0; p < sim::kHostPorts; ++p) {
        if (!sim::port_exists(c.db, a, p)) continue;
        auto fp = sim::fc_port(c.db, a, p);
        auto& o = r.ctl[a].port[p];
        o.lun_security = fp.security;
        o.security_chk_lv = fp.check_level;
        int n = 0;
        for (const auto& w : sim::wwn_permissions(c.db, a, p)) {
          if (n >= sim::kPortWwns) break;
          auto& e = o.permission[n++];
          sim::out_text(e.node_name, w.node);
          sim::out_text(e.port_name, w.wwpn);
          std::memcpy(e.lun_security_bitmap, w.bitmap.data(), sizeof e.lun_security_bitmap);
        }
        o.permission_count = n;
      }
  });
}

int KX_SetWWNInformation(const char* unit, const WWNInformationRec* info) {
  return sim::run(__func__, sim::kWrite, [&](sim::Call& c) {
    c.what = "WWN permissions";
    c.unit_login(unit, sim::kRightHosts);
    const auto& r = sim::in(info, "WWN information");
    sim::set_lun_security(c.db, r.lun_security_opt);
    for (int a = 0; a < sim::kHostCtls; ++a)
      for (int p = 0; p < sim::kHostPorts; ++p) {
        if (!sim::port_exists(c.db, a, p)) continue;
        const auto& in = r.ctl[a].port[p];
        auto fp = sim::fc_port(c.db, a, p);
        fp.security = in.lun_security;
        fp.check_level = in.security_chk_lv;
        sim::set_fc_port(c.db, a, p, fp);
        int n = count_in(in.permission_count, port_name(a, p));
        // This table has no N_Port IDs: a WWN keeps the one it had, or takes
        // that of the host logged in with it.
        auto old = sim::wwn_permissions(c.db, a, p);
        auto logins = sim::fc_logins(c.db, a, p);
        std::vector<sim::WwnPermission> perms;
        for (int i = 0; i < n; ++i) {
          const auto& e = in.permission[i];
          sim::WwnPermission w;
          w.node = sim::in_text(e.node_name, "node_name");
          w.wwpn = sim::in_text(e.port_name, "port_name");
          std::memcpy(w.bitmap.data(), e.lun_security_bitmap, w.bitmap.size());
          std::string key = sim::check_wwn(w.wwpn, "port name");
          for (const auto& o : old)
            if (o.wwpn == key) w.n_port_id = o.n_port_id;
          if (w.n_port_id.empty())
            for (const auto& l : logins)
              if (l.wwpn == key) w.n_port_id = l.n_port_id;
          perms.push_back(std::move(w));
        }
        sim::set_wwn_permissions(c.db, a, p, perms);
      }
  });
}

int KX_GetWWNHGInformation(const char* unit, const KXSessionInfoRec* session, WWNHGInformationRec* info) {
  return sim::run(__func__, sim::kRead, [&](sim::Call& c) {
    c.session(unit, session);
    auto& r = sim::out(info, "WWN host groups");
    r.lun_manage = static_cast<uint8_t>(sim::mapping_mode(c.db));
    for (int a = 0; a < sim::kHostCtls; ++a)
      for (int p = 0; p < sim::kHostPorts; ++p) {
        if (!sim::port_exists(c.db, a, p)) continue;
        auto& o = r.ctl[a].port[p];
        o.security = static_cast<uint8_t>(sim::fc_port(c.db, a, p).security);
        auto logins = sim::fc_logins(c.db, a, p);
        auto assigned = sim::wwn_assignments(c.db, a, p);
        auto logged_in = [&](const std::string& wwpn) {
          return std::any_of(logins.begin(), logins.end(), [&](const sim::FcLogin& l) { return l.wwpn == wwpn; });
        };
        int n = 0;
        for (const auto& w : assigned) {
          if (n >= sim::kPortWwns) break;
          auto& e = o.wwn[n++];
          sim::out_text(e.node_name, w.node);
          sim::out_text(e.port_name, w.wwpn);
          e.hostflag = logged_in(w.wwpn) ? 1 : 0;
          e.hg_number = w.hg;
          sim::out_text(e.wname, w.nickname);
        }
        for (const auto& l : logins) {
          if (n >= sim::kPortWwns) break;
          if (std::any_of(assigned.begin(), assigned.end(), [&](const sim::WwnAssignment& w) { return w.wwpn == l.wwpn; }))
            continue;
          auto& e = o.wwn[n++];
          sim::out_text(e.node_name, l.node);
          sim::out_text(e.port_name, l.wwpn);
          e.hostflag = 1;
          e.hg_number = -1;
        }
        o.wwn_count = n;
      }
  });
}

int KX_SetWWNHGInformation(const char* unit, const KXSessionInfoRec* session, const WWNHGInformationRec* info) {
  return sim::run(__func__, sim::kWrite, [&](sim::Call& c) {
    c.what = "WWN host groups";
    c.session(unit, session, sim::kRightHosts);
    const auto& r = sim::in(info, "WWN host groups");
    for (int a = 0; a < sim::kHostCtls; ++a)
      for (int p = 0; p < sim::kHostPorts; ++p) {
        if (!sim::port_exists(c.db, a, p)) continue;
        const auto& in = r.ctl[a].port[p];
        auto fp = sim::fc_port(c.db, a, p);
        fp.security = in.security;
        sim::set_fc_port(c.db, a, p, fp);
        int n = count_in(in.wwn_count, port_name(a, p));
        std::vector<sim::WwnAssignment> list;
        for (int i = 0; i < n; ++i) {
          const auto& e = in.wwn[i];
          if (e.hg_number == -1) continue;  // a host logged in, not assigned
          sim::WwnAssignment w;
          w.node = sim::in_text(e.node_name, "node_name");
          w.wwpn = sim::in_text(e.port_name, "port_name");
          w.nickname = sim::in_text(e.wname, "wname");
          w.hg = e.hg_number;
          list.push_back(std::move(w));
        }
        sim::set_wwn_assignments(c.db, a, p, list);
      }
  });
}

int KX_GetPortOption(const char* unit, const KXSessionInfoRec* session, PortOptionRec* opt) {
  return sim::run(__func__, sim::kRead, [&](sim::Call& c) {
    c.session(unit, session);
    auto& r = sim::out(opt, "port options");
    r.support_index = {1, 1};
    r.valid_index = {1, 1};
    for (int a = 0; a < sim::kHostCtls; ++a)
      for (int p = 0; p < sim::kHostPorts; ++p) {
        if (!sim::port_exists(c.db, a, p)) continue;
        auto fp = sim::fc_port(c.db, a, p);
        r.ctl[a].lip_mode[p] = fp.lip_mode;
        r.ctl[a].port_common_opt[p] = fp.common_opt;
      }
  });
}

int KX_SetPortOption(const char* unit, const KXSessionInfoRec* session, const PortOptionRec* opt) {
  return sim::run(__func__, sim::kWrite, [&](sim::Call& c) {
    c.what = "port options";
    c.session(unit, session, sim::kRightHosts);
    const auto& r = sim::in(opt, "port options");
    int lip = r.valid_index.lip_mode_valid_index, common = r.valid_index.port_common_opt_valid_index;
    if (lip < 0 || lip > 1 || common < 0 || common > 1) fail(sim::kBadParameter, "valid_index fields are 0 or 1");
    for (int a = 0; a < sim::kHostCtls; ++a)
      for (int p = 0; p < sim::kHostPorts; ++p) {
        if (!sim::port_exists(c.db, a, p)) continue;
        auto fp = sim::fc_port(c.db, a, p);
        if (lip) fp.lip_mode = r.ctl[a].lip_mode[p];
        if (common) fp.common_opt = r.ctl[a].port_common_opt[p];
        sim::set_fc_port(c.db, a, p, fp);
      }
  });
}

int KX_GetTargetId(const char* unit, int a, TargetIdRec* ctl0, TargetIdRec* ctl1) {
  return sim::run(__func__, sim::kRead, [&](sim::Call& c) {
    c.unit_login(unit);
    if (a < -1 || a >= sim::kHostPorts) fail(sim::kBadParameter, "port " + std::to_string(a) + " is not -1 or 0..3");
    if (a >= 0 && !sim::port_exists(c.db, 0, a)) fail(sim::kNoSuchObject, "the array has no port " + std::to_string(a));
    auto& r0 = sim::out(ctl0, "controller 0 target IDs");
    auto& r1 = sim::out(ctl1, "controller 1 target IDs");
    int only = a;
    rec_of(sim::target_table(c.db, 0), only, r0);
    rec_of(sim::target_table(c.db, 1), only, r1);
    for (auto* r : {&r0, &r1})
      for (int p = 0; p < sim::kHostPorts; ++p)
        if (!sim::port_exists(c.db, 0, p)) std::memset(&r->target_config[p], 0, sizeof r->target_config[p]);
  });
}

int KX_SetTargetId(const char* unit, int a, const TargetIdRec* target, int b) {
  return sim::run(__func__, sim::kWrite, [&](sim::Call& c) {
    c.what = "target IDs of controller " + std::to_string(a);
    c.unit_login(unit, sim::kRightHosts);
    if (a < 0 || a >= sim::kHostCtls) fail(sim::kBadParameter, "controller " + std::to_string(a) + " is not 0 or 1");
    if (b < -1 || b >= sim::kHostPorts) fail(sim::kBadParameter, "port " + std::to_string(b) + " is not -1 or 0..3");
    port_selector(c.db, a, b);
    auto in = table_of(sim::in(target, "target IDs"));
    auto cur = sim::target_table(c.db, a);
    sim::TargetTable next = cur;
    next.mode = in.mode;
    if (b == -1)
      next = present_ports(c.db, a, in, cur);
    else
      next.port[static_cast<size_t>(b)] = in.port[static_cast<size_t>(b)];
    sim::check_target_table(c.db, next, true);
    sim::set_target_table(c.db, a, next);
  });
}

int KX_TargetIdImport(const char* unit, const char* file, TargetIdRec* ctl0, TargetIdRec* ctl1) {
  return sim::run(__func__, sim::kWrite, [&](sim::Call& c) {
    c.what = "target IDs";
    c.unit_login(unit, sim::kRightHosts);
    if (!ctl0 || !ctl1) fail(sim::kBadParameter, "target ID records: null");
    c.what = "target IDs from " + sim::in_text(file, PERNIX_PATH_SIZE, "file");
    auto f = read_target_file(file, "file");
    for (int a = 0; a < sim::kHostCtls; ++a) {
      if (!f.present[static_cast<size_t>(a)]) continue;
      auto next = present_ports(c.db, a, f.table[static_cast<size_t>(a)], sim::default_target_table());
      sim::check_target_table(c.db, next, true);
      sim::set_target_table(c.db, a, next);
    }
    auto& r0 = sim::out(ctl0, "controller 0 target IDs");
    auto& r1 = sim::out(ctl1, "controller 1 target IDs");
    rec_of(sim::target_table(c.db, 0), -1, r0);
    rec_of(sim::target_table(c.db, 1), -1, r1);
  });
}

int KX_WZTargetIdImport(const char* unit, const char* file1, const char* file2, int a, struct WZTargetIdRec* ctl0,
                        struct WZTargetIdRec* ctl1) {
  return sim::run(__func__, sim::kRead, [&](sim::Call& c) {
    c.unit_login(unit);
    if (a != 0 && a != 1) fail(sim::kBadParameter, "a is 0 (two files) or 1 (the first file only)");
    if (!ctl0 || !ctl1) fail(sim::kBadParameter, "target ID records: null");
    std::array<sim::TargetTable, 2> t{sim::default_target_table(), sim::default_target_table()};
    for (int k = 0; k < (a == 0 ? 2 : 1); ++k) {
      auto f = read_target_file(k == 0 ? file1 : file2, k == 0 ? "file1" : "file2");
      if (!f.present[static_cast<size_t>(k)] || f.present[static_cast<size_t>(1 - k)])
        fail(sim::kBadFile, std::string(k == 0 ? "file1" : "file2") + " must describe controller " + std::to_string(k) + " only");
      t[static_cast<size_t>(k)] = f.table[static_cast<size_t>(k)];
    }
    rec_of(t[0], -1, sim::out(ctl0, "controller 0 target IDs"));
    rec_of(t[1], -1, sim::out(ctl1, "controller 1 target IDs"));
  });
}

int KX_FibreInfoPermissionImport(const char* unit, const char* path, int a, int b, int* count,
                                 FibreInformationPermissionRec* perms) {
  return sim::run(__func__, sim::kRead, [&](sim::Call& c) {
    c.unit_login(unit);
    sim::need_port(c.db, a, b);
    if (!count || !perms) fail(sim::kBadParameter, "count or permission records: null");
    std::string file = sim::in_text(path, PERNIX_PATH_SIZE, "path");
    auto entries = sim::parse_permission_file(sim::read_file(file, kFileLimit));
    std::vector<const sim::WwnPermission*> mine;
    for (const auto& e : entries)
      if (e.ctl == a && e.port == b) mine.push_back(&e.perm);
    if (mine.size() > static_cast<size_t>(PERNIX_MAX_PERMISSIONS))
      fail(sim::kCapacity, file + " holds " + std::to_string(mine.size()) + " permissions for " + port_name(a, b) +
                               "; a port takes 128");
    std::memset(static_cast<void*>(perms), 0, sizeof(FibreInformationPermissionRec) * PERNIX_MAX_PERMISSIONS);
    int n = 0;
    for (const auto* w : mine) {
      auto& o = perms[n++];
      sim::out_text(o.node_name, w->node);
      sim::out_text(o.port_name, w->wwpn);
      sim::out_text(o.n_port_id, w->n_port_id);
      std::memcpy(o.lun_security_bitmap, w->bitmap.data(), sizeof o.lun_security_bitmap);
    }
    *count = n;
  });
}

}  // extern "C"
