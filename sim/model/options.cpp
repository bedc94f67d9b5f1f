#include "sim/model/options.h"

#include <cstdlib>
#include <fstream>
#include <functional>
#include <map>

namespace sim {

namespace {

std::string trim(const std::string& s) {
  auto b = s.find_first_not_of(" \t\r");
  if (b == std::string::npos) return {};
  auto e = s.find_last_not_of(" \t\r");
  return s.substr(b, e - b + 1);
}

}  // namespace

Options Options::load(std::vector<std::string>* errors) {
  Options o;
  auto bad = [&](const std::string& what) {
    if (errors) errors->push_back(what);
  };
  auto number = [&](int& field, int lo, int hi) {
    return [&field, lo, hi, &bad](const std::string& name, const std::string& v) {
      char* end = nullptr;
      long n = std::strtol(v.c_str(), &end, 10);
      if (v.empty() || *end || n < lo || n > hi) {
        bad(name + ": '" + v + "' is not a number from " + std::to_string(lo) + " to " + std::to_string(hi));
        return;
      }
      field = static_cast<int>(n);
    };
  };
  auto text = [&](std::string& field, size_t max) {
    return [&field, max, &bad](const std::string& name, const std::string& v) {
      if (v.empty() || v.size() > max) {
        bad(name + ": '" + v + "' must have 1 to " + std::to_string(max) + " bytes");
        return;
      }
      field = v;
    };
  };
  std::map<std::string, std::function<void(const std::string&, const std::string&)>> keys = {
      {"unit", text(o.unit, 64)},
      {"admin_user", text(o.admin_user, 256)},
      {"admin_password", text(o.admin_password, 256)},
      {"ip0", text(o.ip0, 79)},
      {"ip1", text(o.ip1, 79)},
      {"serial", text(o.serial, 8)},
      {"discover",
       [&o](const std::string&, const std::string& v) {
         o.discover.clear();
         size_t at = 0;
         while (at <= v.size()) {
           auto comma = v.find(',', at);
           auto one = trim(v.substr(at, comma == std::string::npos ? std::string::npos : comma - at));
           if (!one.empty() && one.size() < 80) o.discover.push_back(one);
           if (comma == std::string::npos) break;
           at = comma + 1;
         }
       }},
      {"clock",
       [&o, &bad](const std::string& name, const std::string& v) {
         if (v == "real" || v == "frozen") {
           o.frozen_clock = v == "frozen";
         } else {
           bad(name + ": '" + v + "' is neither real nor frozen");
         }
       }},
      {"ports", number(o.ports, 1, 4)},
      {"enclosures", number(o.enclosures, 1, 30)},
      {"drives", number(o.drives, 1, 450)},
      {"drive_gb", number(o.drive_gb, 1, 100000)},
      {"raid_groups", number(o.raid_groups, 0, 90)},
      {"lus", number(o.lus, 0, 4096)},
      {"session_timeout", number(o.session_timeout, 10, 86400 * 30)},
      {"password_min_length", number(o.password_min_length, 1, 256)},
  };
  if (const char* file = std::getenv("PERNIX_SIM_CONFIG"); file && *file) {
    std::ifstream in(file);
    if (!in) bad(std::string("PERNIX_SIM_CONFIG: cannot read ") + file);
    std::string line;
    int no = 0;
    while (std::getline(in, line)) {
      ++no;
      line = trim(line.substr(0, line.find('#')));
      if (line.empty()) continue;
      auto eq = line.find('=');
      std::string name = eq == std::string::npos ? line : trim(line.substr(0, eq));
      auto it = keys.find(name);
      if (eq == std::string::npos || it == keys.end()) {
        bad(std::string(file) + ":" + std::to_string(no) + ": unknown setting '" + name + "'");
        continue;
      }
      it->second(name, trim(line.substr(eq + 1)));
    }
  }
  for (auto& [name, set] : keys) {
    std::string env = "PERNIX_SIM_";
    for (char ch : name) env += static_cast<char>(ch >= 'a' && ch <= 'z' ? ch - 32 : ch);
    if (const char* v = std::getenv(env.c_str())) set(env, v);
  }
  if (o.drives < o.enclosures) bad("drives: fewer drives than enclosures");
  return o;
}

}  // namespace sim
