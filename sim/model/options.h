// What the default array looks like: read once, when a database is seeded,
// from the environment (PERNIX_SIM_<NAME>) over an optional config file
// (PERNIX_SIM_CONFIG, lines "name = value"; '#' starts a comment).
#pragma once

#include <string>
#include <vector>

namespace sim {

struct Options {
  std::string unit = "SIM01";                // the registered unit's name
  std::string admin_user = "admin";          // the administrator account
  std::string admin_password = "pernix-sim";
  std::string ip0 = "192.0.2.10";            // controller addresses of the array
  std::string ip1 = "192.0.2.11";
  std::string serial = "93000001";
  std::vector<std::string> discover;         // further arrays that answer discovery only
  int ports = 4;         // host ports per controller (1-4)
  int enclosures = 4;    // drive enclosures (1-30)
  int drives = 60;       // drives, spread over the enclosures (1-450)
  int drive_gb = 600;    // capacity of each drive in GB
  int raid_groups = 2;   // RAID groups made at seeding (0-90)
  int lus = 8;           // LUs made at seeding, spread over the RAID groups (0-4096)
  bool frozen_clock = false;   // clock = frozen: time stands still but for steps
  int session_timeout = 1800;  // seconds a session lives without KX_KeepSession
  int password_min_length = 6;

  // Reads the file and the environment; a bad value is named in errors and
  // the default kept.
  static Options load(std::vector<std::string>* errors = nullptr);
};

}  // namespace sim
