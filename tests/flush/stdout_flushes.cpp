// Preloaded into the test JVM: counts the bridge's flushes of stdout and
// passes every fflush on to the C library.  The test double reads the count
// through kx_stdout_flushes().  With KX_FLUSH_FROM naming the bridge (a path
// or file name), calls from any other shared object (the JVM's own, say) are
// not counted; calls from the bridge are, and so are calls whose return
// address lies in no shared object: a flush the bridge makes as its last act
// may be a tail call, returning straight into the JVM's generated code.
#include <dlfcn.h>

#include <atomic>
#include <cstdio>
#include <cstdlib>
#include <cstring>

namespace {

std::atomic<long> flushes{0};

using Fflush = int (*)(FILE*);

Fflush next_fflush() {
  static const auto next = reinterpret_cast<Fflush>(dlsym(RTLD_NEXT, "fflush"));
  return next;
}

const char* base_name(const char* path) {
  const char* slash = std::strrchr(path, '/');
  return slash == nullptr ? path : slash + 1;
}

bool counted(const void* caller) {
  static const char* const from = [] {
    const char* v = std::getenv("KX_FLUSH_FROM");
    return v == nullptr || *v == '\0' ? nullptr : base_name(v);
  }();
  if (from == nullptr) return true;
  Dl_info info;
  if (dladdr(caller, &info) == 0 || info.dli_fname == nullptr) return true;
  return std::strcmp(base_name(info.dli_fname), from) == 0;
}

}  // namespace

extern "C" __attribute__((visibility("default"))) int fflush(FILE* stream) {
  if (stream != nullptr && stream == stdout && counted(__builtin_return_address(0))) ++flushes;
  Fflush next = next_fflush();
  return next == nullptr ? 0 : next(stream);
}

extern "C" __attribute__((visibility("default"))) long kx_stdout_flushes() { return flushes.load(); }
