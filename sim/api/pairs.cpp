// Copy pairs as the array reports them (local mirrors, remote synchronous and
// asynchronous pairs with their consistency groups), the split of a local
// mirror, command devices, DMLUs, the remote array's identity and the
// secondary-volume guard.
#include <ctime>
#include <map>
#include <string>
#include <vector>

#include "replication.h"
#include "sim/core/call.h"
#include "sim/core/text.h"
#include "sim/model/model.h"
#include "sim/model/pools.h"
#include "sim/model/replication.h"
#include "sim/model/storage.h"

namespace {

using sim::Call;
using sim::fail;
using sim::in_text;
using sim::kBadParameter;
using sim::out_text;

constexpr const char* kCmdKey = "replication.command_device";
constexpr const char* kDmluKey = "replication.dmlu";
constexpr const char* kRemoteKey = "replication.remote";
constexpr const char* kAsyncKey = "replication.async_option";
enum { kAttrPrimary = 0, kAttrSecondary = 1 };

using sim::range;

using sim::fill_time;

void fill_span(KXApiTimeRec& r, int64_t secs) {
  if (secs < 0) secs = 0;
  r.hour = static_cast<int32_t>(secs / 3600 > 2147483647 ? 2147483647 : secs / 3600);
  r.minute = static_cast<int32_t>(secs / 60 % 60);
  r.second = static_cast<int32_t>(secs % 60);
}

int changed_rate(const sim::Pair& p, int64_t now) { return 100 - p.percent(now); }

int32_t mb(int64_t blocks) {
  int64_t v = blocks * sim::kBlockBytes / 1000000;
  return static_cast<int32_t>(v > 2147483647 ? 2147483647 : v);
}

std::string printable_text(const char* field, size_t cap, const char* what) {
  std::string s = in_text(field, cap, what);
  for (char ch : s)
    if (ch < 0x20 || ch > 0x7e) fail(kBadParameter, std::string(what) + " holds a character that is not printable");
  return s;
}

// ---- kept records and their defaults

CommandDeviceRec cmd_defaults() {
  CommandDeviceRec r{};
  r.lu[0] = r.lu[1] = -1;
  for (auto& d : r.cmddev) d.cmd_lu = -1;
  return r;
}

DMLUInformationRec dmlu_defaults() {
  DMLUInformationRec r{};
  for (auto& d : r.dmlu) d.dmlu_lu = -1;
  return r;
}

FarsyncAsyncOptionRec async_defaults() { return {1, 1, 1, 0, 0, 300}; }

FarsyncAsyncOptionRec async_option(sim::Db& db) {
  return sim::setting_or(db, kAsyncKey, async_defaults());
}

void pair_lines(Call& c, int kind, std::vector<sim::Pair>& out) {
  for (auto& p : sim::pairs(c.db))
    if (p.kind == kind) out.push_back(p);
}

}  // namespace

extern "C" {

int KX_GetPairInformation(const char* unit, const KXSessionInfoRec* session, PairInfoRec* info) {
  return sim::run(__func__, sim::kRead, [&](Call& c) {
    c.session(unit, session);
    auto& r = sim::out(info, "information");
    r.option = 1;
    std::vector<sim::Pair> v;
    pair_lines(c, sim::kPairMirror, v);
    int n = -1, last = -1;
    for (const auto& p : v) {
      if (p.pvol != last) {
        if (n + 1 >= PERNIX_PAIR_LUS) break;
        last = p.pvol;
        auto& l = r.lu[++n];
        l.lun = p.pvol;
        l.capacity = static_cast<int32_t>(p.blocks);
      }
      auto& l = r.lu[n];
      if (l.mirror_count >= 15) continue;
      auto& m = l.m_info[l.mirror_count++];
      m.mirror_no = p.mirror_no;
      m.lun = p.svol;
      auto place = sim::lu_place(c.db, p.svol);
      m.ctl_no = place ? place->ctl : 0;
      m.pool_no = -1;
      m.pair_status = p.status(c.now);
      m.changed_rate = changed_rate(p, c.now);
      fill_time(m.time, p.created);
    }
    r.pair_count = n + 1;
  });
}

int KX_GetMirrexInformation(const char* unit, MirrexInformationRec* info) {
  return sim::run(__func__, sim::kRead, [&](Call& c) {
    c.unit_login(unit);
    auto& r = sim::out(info, "information");
    r.option = 1;
    std::string serial = sim::meta(c.db, "array_serial");
    std::vector<sim::Pair> v;
    pair_lines(c, sim::kPairMirror, v);
    std::multimap<int, std::pair<const sim::Pair*, int>> lines;  // by LU number
    for (const auto& p : v) {
      lines.emplace(p.pvol, std::make_pair(&p, kAttrPrimary));
      lines.emplace(p.svol, std::make_pair(&p, kAttrSecondary));
    }
    int n = 0;
    for (const auto& [lun, e] : lines) {
      if (n >= 4096) break;
      auto& l = r.lu[n++];
      const sim::Pair& p = *e.first;
      l.lun = lun;
      l.pair_status = p.status(c.now);
      l.pair_attr = e.second;
      l.changed_rate = changed_rate(p, c.now);
      out_text(l.remote_type, "SIM-ARRAY");
      out_text(l.remote_serial, serial);
      out_text(l.remote_ldev, std::to_string(e.second == kAttrPrimary ? p.svol : p.pvol));
    }
    r.pair_count = n;
  });
}

int KX_SplitMirrexPair(const char* unit, int value) {
  return sim::run(__func__, sim::kWrite, [&](Call& c) {
    c.unit_login(unit, sim::kRightReplication);
    c.what = "mirror of secondary LU " + std::to_string(value);
    sim::split_pair(c.db, c.now, sim::kPairMirror, value);
  });
}

int KX_GetFarsyncPairInformation(const char* unit, const KXSessionInfoRec* session, FarsyncPairInformationRec* info) {
  return sim::run(__func__, sim::kRead, [&](Call& c) {
    c.session(unit, session);
    auto& r = sim::out(info, "information");
    r.option = 1;
    std::vector<sim::Pair> v;
    pair_lines(c, sim::kPairSync, v);
    int n = 0;
    for (const auto& p : v) {
      if (n >= 4096) break;
      auto& l = r.lu[n++];
      l.support_index = 1;
      l.valid_index = 1;
      l.lun = p.pvol;
      l.pair_status = p.status(c.now);
      l.pair_attr = kAttrPrimary;
      l.changed_rate = changed_rate(p, c.now);
      out_text(l.remote_serial, p.remote_serial);
      l.remote_lu = p.remote_lu;
    }
    r.pair_count = n;
  });
}

int KX_GetFarsyncAsyncPairInformation(const char* unit, const KXSessionInfoRec* session,
                                      FarsyncAsyncPairInformationRec* info) {
  return sim::run(__func__, sim::kRead, [&](Call& c) {
    c.session(unit, session);
    auto& r = sim::out(info, "information");
    r.option = 1;
    int64_t cycle = async_option(c.db).cycle_time;
    if (cycle < 1) cycle = 300;
    std::vector<sim::Pair> v;
    pair_lines(c, sim::kPairAsync, v);
    // The last cycle that carried the differences over, for a pair in step.
    auto synced_at = [&](const sim::Pair& p) -> int64_t {
      if (p.split_at) return *p.split_at;
      if (c.now < p.copy_end) return p.copy_start;
      return p.copy_end + (c.now - p.copy_end) / cycle * cycle;
    };
    int n = 0;
    for (const auto& p : v) {
      if (n >= 4096) break;
      auto& l = r.lu[n++];
      int pct = p.percent(c.now);
      l.lun = p.pvol;
      l.pair_status = p.status(c.now);
      l.pair_attr = kAttrPrimary;
      l.ctg_num = p.ctg;
      l.lu_capacity = static_cast<int32_t>(p.blocks);
      l.remote_lu = p.remote_lu;
      out_text(l.remote_serial, p.remote_serial);
      l.member_valid = 1;
      l.synchronized_rate = pct;
      l.difference_capacity = mb(p.blocks * (100 - pct) / 100);
      l.difference_rate = 100 - pct;
      fill_time(l.synchronized_time, synced_at(p));
      if (p.ctg < 0 || p.ctg >= PERNIX_CONSISTENCY_GROUPS) continue;
      for (auto& g : r.ctg[p.ctg].ctl) {
        bool copying = p.status(c.now) == sim::kPairCopy;
        if (!g.ctg_valid) fill_span(g.lapsed_time, c.now - synced_at(p));
        g.ctg_valid = 1;
        g.remains_difference += l.difference_capacity;
        if (copying) {
          g.rate_status = 1;
          g.transfer_rate = static_cast<int32_t>(sim::kRemoteRate * sim::kBlockBytes / 1000000);
          g.prediction_status = 1;
          int64_t left = p.copy_end - c.now;
          int64_t have = static_cast<int64_t>(g.prediction_time.hour) * 3600 + g.prediction_time.minute * 60 +
                         g.prediction_time.second;
          if (left > have) fill_span(g.prediction_time, left);
        }
      }
    }
    r.pair_count = n;
  });
}

int KX_GetFarsyncAsyncOption(const char* unit, const KXSessionInfoRec* session, FarsyncAsyncOptionRec* option) {
  return sim::run(__func__, sim::kRead, [&](Call& c) {
    c.session(unit, session);
    auto& r = sim::out(option, "option");
    r = async_option(c.db);
  });
}

int KX_SetFarsyncAsyncOption(const char* unit, const KXSessionInfoRec* session, const FarsyncAsyncOptionRec* option) {
  return sim::run(__func__, sim::kWrite, [&](Call& c) {
    c.session(unit, session, sim::kRightReplication);
    c.what = "asynchronous remote copy option";
    const auto& o = sim::in(option, "option");
    range(o.option, 0, 1, "option");
    range(o.support_index, 0, 1, "support_index");
    range(o.valid_index, 0, 1, "valid_index");
    range(o.ctrl_flag, 0, 1, "ctrl_flag");
    range(o.set_index, 0, 1, "set_index");
    range(o.cycle_time, 30, 3600, "cycle_time");
    sim::save_setting(c.db, kAsyncKey, &o, sizeof o);
  });
}

int KX_GetCommandDevice(const char* unit, const KXSessionInfoRec* session, CommandDeviceRec* dev) {
  return sim::run(__func__, sim::kRead, [&](Call& c) {
    c.session(unit, session);
    auto& r = sim::out(dev, "command device");
    r = sim::setting_or(c.db, kCmdKey, cmd_defaults());
  });
}

int KX_SetCommandDevice(const char* unit, const KXSessionInfoRec* session, const CommandDeviceRec* dev) {
  return sim::run(__func__, sim::kWrite, [&](Call& c) {
    c.session(unit, session, sim::kRightReplication);
    c.what = "command devices";
    CommandDeviceRec r = sim::in(dev, "command device");
    range(r.volk_lite, 0, 1, "volk_lite");
    range(r.mode, 0, 1, "mode");
    for (int i = 0; i < 2; ++i) {
      range(r.valid[i], 0, 1, "valid[" + std::to_string(i) + "]");
      range(r.lu[i], -1, sim::kMaxLus - 1, "lu[" + std::to_string(i) + "]");
      range(r.security[i], 0, 1, "security[" + std::to_string(i) + "]");
    }
    std::string seq = printable_text(r.sequence_no, sizeof r.sequence_no, "sequence_no");
    if (seq.size() > 4) fail(kBadParameter, "sequence_no is longer than 4 characters");
    out_text(r.sequence_no, seq);
    std::vector<int> luns;
    for (int i = 0; i < 2; ++i) {
      const auto& d = r.cmddev[i];
      std::string w = "cmddev[" + std::to_string(i) + "]";
      range(d.cmd_valid, 0, 1, w + ".cmd_valid");
      range(d.set_valid, 0, 1, w + ".set_valid");
      range(d.rm_security, 0, 1, w + ".rm_security");
      range(d.cmd_lu, d.cmd_valid ? 0 : -1, sim::kMaxLus - 1, w + ".cmd_lu");
      if (d.cmd_valid) luns.push_back(d.cmd_lu);
    }
    if (r.cmd_count != static_cast<int>(luns.size()))
      fail(kBadParameter, "cmd_count " + std::to_string(r.cmd_count) + " is not the number of command devices (" +
                              std::to_string(luns.size()) + ")");
    sim::set_command_devices(c.db, luns);
    sim::save_setting(c.db, kCmdKey, &r, sizeof r);
  });
}

int KX_GetDMLU(const char* unit, const KXSessionInfoRec* session, DMLUInformationRec* dmlu) {
  return sim::run(__func__, sim::kRead, [&](Call& c) {
    c.session(unit, session);
    auto& r = sim::out(dmlu, "DMLU");
    r = sim::setting_or(c.db, kDmluKey, dmlu_defaults());
  });
}

int KX_SetDMLU(const char* unit, const KXSessionInfoRec* session, const DMLUInformationRec* dmlu) {
  return sim::run(__func__, sim::kWrite, [&](Call& c) {
    c.session(unit, session, sim::kRightReplication);
    c.what = "DMLUs";
    const auto& r = sim::in(dmlu, "DMLU");
    range(r.mode, 0, 1, "mode");
    std::vector<int> luns;
    for (int i = 0; i < 2; ++i) {
      const auto& d = r.dmlu[i];
      std::string w = "dmlu[" + std::to_string(i) + "]";
      range(d.dmlu_valid, 0, 1, w + ".dmlu_valid");
      range(d.set_valid, 0, 1, w + ".set_valid");
      range(d.dmlu_lu, d.dmlu_valid ? 0 : -1, sim::kMaxLus - 1, w + ".dmlu_lu");
      if (d.dmlu_valid) luns.push_back(d.dmlu_lu);
    }
    if (r.dmlu_count != static_cast<int>(luns.size()))
      fail(kBadParameter, "dmlu_count " + std::to_string(r.dmlu_count) + " is not the number of DMLUs (" +
                              std::to_string(luns.size()) + ")");
    sim::set_dmlus(c.db, luns);
    sim::save_setting(c.db, kDmluKey, &r, sizeof r);
  });
}

int KX_GetCouplingInfo(const char* unit, const KXSessionInfoRec* session, CouplingInfoRec* info) {
  return sim::run(__func__, sim::kRead, [&](Call& c) {
    c.session(unit, session);
    auto& r = sim::out(info, "information");
    std::vector<sim::Pair> v;
    pair_lines(c, sim::kPairMirror, v);
    int n = 0;
    for (const auto& p : v) {
      if (n >= 4096) break;
      auto& l = r.coupling[n++];
      l.primary_stat = l.second_stat = p.status(c.now);
      l.primary_lu = p.pvol;
      l.second_lu = p.svol;
      l.mirror_no = p.mirror_no;
    }
    r.coupling_num = n;
  });
}

int KX_GetRemoteDeviceInformation(const char* unit, const KXSessionInfoRec* session, RemoteDeviceInformationRec* info) {
  return sim::run(__func__, sim::kRead, [&](Call& c) {
    c.session(unit, session);
    auto& r = sim::out(info, "information");
    r = sim::setting_or(c.db, kRemoteKey, RemoteDeviceInformationRec{});
  });
}

int KX_SetRemoteDeviceInformation(const char* unit, const KXSessionInfoRec* session,
                                  const RemoteDeviceInformationRec* info) {
  return sim::run(__func__, sim::kWrite, [&](Call& c) {
    c.session(unit, session, sim::kRightReplication);
    c.what = "remote array";
    const auto& in = sim::in(info, "information");
    range(in.valid, 0, 1, "valid");
    RemoteDeviceInformationRec r{};
    r.valid = in.valid;
    out_text(r.equipment_id, printable_text(in.equipment_id, sizeof in.equipment_id, "equipment_id"));
    std::string serial = printable_text(in.serial, sizeof in.serial, "serial");
    if (r.valid && serial.empty()) fail(kBadParameter, "a remote array needs its serial number");
    out_text(r.serial, serial);
    RemoteDeviceInformationRec old = sim::setting_or(c.db, kRemoteKey, RemoteDeviceInformationRec{});
    if (sim::remote_pairs_exist(c.db) && (old.valid != r.valid || std::string(old.serial) != serial))
      fail(sim::kBusy, "remote pairs use the remote array");
    sim::save_setting(c.db, kRemoteKey, &r, sizeof r);
  });
}

int KX_SetSvolDisableMode(const char* unit, const KXSessionInfoRec* session, int a, int b) {
  return sim::run(__func__, sim::kWrite, [&](Call& c) {
    c.session(unit, session, sim::kRightReplication);
    c.what = "LU " + std::to_string(a);
    range(b, 0, 1, "mode");
    sim::set_svol_disabled(c.db, a, b == 1);
  });
}

}  // extern "C"
