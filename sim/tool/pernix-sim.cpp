// pernix-sim: looks after the simulator's database.
#include <cstdio>

#include "sim/core/store.h"

int main(int argc, char** argv) {
  (void)argc;
  (void)argv;
  try {
    std::lock_guard<std::mutex> guard(sim::Db::lock());
    sim::Db& db = sim::Db::open();
    std::printf("%s\n", db.path().c_str());
  } catch (const sim::Error& e) {
    std::fprintf(stderr, "pernix-sim: %s (%d)\n", e.what.c_str(), e.code);
    return 1;
  }
}
