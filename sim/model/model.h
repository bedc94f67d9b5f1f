// The simulated array's model: its tables, the default array seeded into a
// new database, and the operations shared by more than one family.  One
// database is one array; every registered unit whose controller address is
// the array's reaches it.
#pragma once

#include <cstdint>
#include <ctime>
#include <string>
#include <string_view>

#include "sim/core/store.h"
#include "sim/model/options.h"

namespace sim {

// Each family creates its tables and seeds its part of the default array.
void create_core(Db& db, const Options& o);      // units, discovery, audit, faults, settings
void create_accounts(Db& db, const Options& o);  // roles, accounts, sessions
void create_storage(Db& db, const Options& o);   // drives, RAID groups, LUs, formatting
void create_pools(Db& db, const Options& o);     // pools, unified LUs, wizard, LU cache
void create_hosts(Db& db, const Options& o);     // host groups, mapping, FC ports, LU guard
void create_perf(Db& db, const Options& o);      // workload seed of the statistics
void create_firmware(Db& db, const Options& o);     // microcode images and revisions
void create_replication(Db& db, const Options& o);  // copy pairs, command devices, DMLUs, migration
void create_iscsi(Db& db, const Options& o);     // iSCSI ports, targets, initiators, CHAP

// Records kept whole: a setter stores the record it was given under a key, its
// getter reads it back (or finds nothing and leaves its default).
bool load_setting(Db& db, std::string_view key, void* rec, size_t size);
void save_setting(Db& db, std::string_view key, const void* rec, size_t size);

// The record kept under key, or fallback when none is kept.
template <class Rec>
Rec setting_or(Db& db, std::string_view key, Rec fallback) {
  load_setting(db, key, &fallback, sizeof fallback);
  return fallback;
}

// A calendar time record (year, month, day, hour, minute, second) in UTC.
template <class T>
void fill_time(T& r, int64_t t) {
  time_t tt = static_cast<time_t>(t);
  struct tm tm {};
  gmtime_r(&tt, &tm);
  r.year = tm.tm_year + 1900;
  r.month = tm.tm_mon + 1;
  r.day = tm.tm_mday;
  r.hour = tm.tm_hour;
  r.minute = tm.tm_min;
  r.second = tm.tm_sec;
}

// A value of the meta table (array addresses, clock offset, options seeded).
std::string meta(Db& db, std::string_view key, std::string_view fallback = {});
void set_meta(Db& db, std::string_view key, std::string_view value);

}  // namespace sim
