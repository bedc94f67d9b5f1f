// The core tables and the default array's registry entries.
#include <cstring>

#include "sim/model/model.h"

namespace sim {

void create_model(Db& db) {
  Options o = Options::load();
  create_core(db, o);
  create_accounts(db, o);
  create_storage(db, o);
  create_pools(db, o);
  create_hosts(db, o);
  create_perf(db, o);
  create_firmware(db, o);
  create_replication(db, o);
  create_iscsi(db, o);
}

void create_core(Db& db, const Options& o) {
  db.exec(R"(
    CREATE TABLE meta(key TEXT PRIMARY KEY, value TEXT NOT NULL);
    -- The registry of units the management application knows.
    CREATE TABLE units(
      name TEXT PRIMARY KEY, group_name TEXT NOT NULL, connect_type INT NOT NULL,
      kx_type INT NOT NULL, device_type INT NOT NULL, unit_conf INT NOT NULL, alert INT NOT NULL,
      ctl0 TEXT NOT NULL, ctl1 TEXT NOT NULL, serial TEXT NOT NULL, by_ip INT NOT NULL,
      seq INTEGER NOT NULL);
    -- Addresses that answer a discovery; simulated=1 for the array itself.
    CREATE TABLE discover(
      ip TEXT PRIMARY KEY, serial TEXT NOT NULL, kx_type INT NOT NULL, device_type INT NOT NULL,
      unit_conf INT NOT NULL, ctlno INT NOT NULL, simulated INT NOT NULL);
    CREATE TABLE audit(
      id INTEGER PRIMARY KEY, time INT NOT NULL, unit TEXT NOT NULL, user TEXT NOT NULL,
      function TEXT NOT NULL, object TEXT NOT NULL, result INT NOT NULL);
    CREATE TABLE faults(
      id INTEGER PRIMARY KEY, function TEXT NOT NULL, code INT NOT NULL, mode TEXT NOT NULL,
      n INT NOT NULL DEFAULT 0, prob REAL NOT NULL DEFAULT 0, seed INT NOT NULL DEFAULT 0,
      calls INT NOT NULL DEFAULT 0, fired INT NOT NULL DEFAULT 0);
    CREATE INDEX faults_by_function ON faults(function);
    CREATE TABLE settings(key TEXT PRIMARY KEY, value BLOB NOT NULL);
  )");
  set_meta(db, "array_ip0", o.ip0);
  set_meta(db, "array_ip1", o.ip1);
  set_meta(db, "array_serial", o.serial);
  set_meta(db, "clock_offset", "0");
  if (o.frozen_clock) set_meta(db, "clock_frozen", std::to_string(static_cast<long long>(time(nullptr))));
  set_meta(db, "created", std::to_string(static_cast<long long>(time(nullptr))));
  set_meta(db, "session_timeout", std::to_string(o.session_timeout));
  set_meta(db, "password_min_length", std::to_string(o.password_min_length));
  // The default unit is registered, so a client can log in at once.
  auto u = db.sql(
      "INSERT INTO units VALUES(?1, 'default', 1, 1, 2, 1, 0, ?2, ?3, ?4, 1, 1)");
  u.bind(o.unit).bind(o.ip0).bind(o.ip1).bind(o.serial).run();
  // One borrow of the cached statement at a time: a second borrow of the same
  // text while the first lives would share its bindings.
  for (int ctl = 0; ctl < 2; ++ctl) {
    auto d = db.sql("INSERT OR IGNORE INTO discover VALUES(?1, ?2, 1, 2, 1, ?3, ?4)");
    d.bind(ctl == 0 ? o.ip0 : o.ip1).bind(o.serial).bind(ctl).bind(1).run();
  }
  int n = 0;
  for (const auto& ip : o.discover) {
    auto x = db.sql("INSERT OR IGNORE INTO discover VALUES(?1, ?2, 1, 2, 1, 0, 0)");
    x.bind(ip).bind(std::to_string(93100001 + n++)).run();
  }
}

bool load_setting(Db& db, std::string_view key, void* rec, size_t size) {
  auto s = db.sql("SELECT value FROM settings WHERE key=?1");
  s.bind(key);
  if (!s.step()) return false;
  auto b = s.bytes(0);
  if (b.size() != size) fail(kDbCorrupt, "setting " + std::string(key) + " has the wrong size");
  std::memcpy(rec, b.data(), size);
  return true;
}

void save_setting(Db& db, std::string_view key, const void* rec, size_t size) {
  auto s = db.sql("INSERT OR REPLACE INTO settings(key, value) VALUES(?1, ?2)");
  s.bind(key).blob(rec, size).run();
}

std::string meta(Db& db, std::string_view key, std::string_view fallback) {
  auto s = db.sql("SELECT value FROM meta WHERE key=?1");
  s.bind(key);
  return s.step() ? s.text(0) : std::string(fallback);
}

void set_meta(Db& db, std::string_view key, std::string_view value) {
  auto s = db.sql("INSERT OR REPLACE INTO meta(key, value) VALUES(?1, ?2)");
  s.bind(key).bind(value).run();
}

}  // namespace sim
