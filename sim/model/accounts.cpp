// Roles, accounts and sessions.
#include "sim/model/model.h"

namespace sim {

void create_accounts(Db& db, const Options&) {
  db.exec(R"(
    CREATE TABLE roles(id INT PRIMARY KEY, name TEXT NOT NULL, rights TEXT NOT NULL);
    CREATE TABLE accounts(user TEXT PRIMARY KEY, hash TEXT NOT NULL, account_type INT NOT NULL,
      role INT NOT NULL, enabled INT NOT NULL, created INT NOT NULL);
    CREATE TABLE sessions(token BLOB PRIMARY KEY, user TEXT NOT NULL, unit TEXT NOT NULL,
      kind INT NOT NULL, created INT NOT NULL, expires INT NOT NULL);
    CREATE TABLE unit_logins(unit TEXT NOT NULL, mode INT NOT NULL, user TEXT NOT NULL,
      expires INT NOT NULL, PRIMARY KEY(unit, mode));
  )");
}

}  // namespace sim
