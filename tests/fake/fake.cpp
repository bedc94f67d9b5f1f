// Call log, scripts and the allocation seam of the test double, and the
// natives of kxtest.FakePernix through which the JVM tests drive them.
//
// Page mode of the seam: with KX_SEAM_PAGES=1 in the environment when the
// double loads (or after FakePernix.seamPages(true)), every block is a mapping
// of its own that ends exactly where an inaccessible page begins, with one
// more before it; the rest of its first page holds guard bytes, checked on
// release like the usual front guard.  Sizes are not rounded, so a block may
// start unaligned (x86 reads it all the same).  A released block's pages are
// dropped and its addresses stay inaccessible, in a quarantine of the last
// kQuarantineBlocks blocks, before they are given back to the system: a read
// one byte past a block, or of a released one, kills the process with SIGSEGV
// where it happens.  Every check of the seam (leaks, guards, wiping, release
// states, failed allocations) works as without it; nothing is reused, so it
// costs a system call or two and fresh pages per block.
#include "fake.h"

#include <jni.h>

#include <dlfcn.h>
#include <sys/mman.h>
#include <unistd.h>

#ifdef __SANITIZE_ADDRESS__
#include <sanitizer/asan_interface.h>
#endif

#include <algorithm>
#include <cstdlib>
#include <deque>
#include <iterator>
#include <map>
#include <mutex>
#include <sstream>

namespace fake {
namespace {

constexpr size_t kGuard = 32;
constexpr uint8_t kGuardByte = 0x5A;
// Fresh blocks hold this byte throughout: only the bridge's own clearing
// shows zeros.  Released blocks are overwritten with it too (what the bridge
// might still read there is garbage), so a block taken again from the spare
// ones already holds it.
constexpr uint8_t kPoisonByte = 0xA5;
// A run this long of the poison byte in a block handed to the library means
// the block was not cleared.
constexpr size_t kPoisonRun = 8;

// In an AddressSanitizer build the guard bytes and the released blocks kept
// for reuse are unaddressable to ASan as well: a read or write of them is
// reported where it happens, with its stack, not only by the checks on
// release.  The seam itself makes a region addressable before it touches it.
#ifdef __SANITIZE_ADDRESS__
void hide(const void* p, size_t n) { ASAN_POISON_MEMORY_REGION(p, n); }
void show(const void* p, size_t n) { ASAN_UNPOISON_MEMORY_REGION(p, n); }
#else
void hide(const void*, size_t) {}
void show(const void*, size_t) {}
#endif

bool env_on(const char* name) {
  const char* v = std::getenv(name);
  return v != nullptr && std::strcmp(v, "1") == 0;
}

struct Block {
  size_t bytes = 0;
  long call = -1;  // the call that was handed the block, and as which argument
  size_t arg = 0;
  // Page mode: the block's own mapping, inaccessible pages included (null:
  // the block sits kGuard bytes into a malloc'd one).
  uint8_t* map = nullptr;
  size_t map_bytes = 0;
};

struct Mapping {
  uint8_t* at;
  size_t bytes;
};

struct State {
  std::recursive_mutex mu;
  std::vector<Call> calls;
  std::map<std::string, int> results;
  std::map<std::pair<std::string, size_t>, std::vector<uint8_t>> outputs;
  // seam
  long allocations = 0;
  long fail_at = 0;  // 1-based index of the allocation that fails; 0: none
  std::map<const void*, Block> live;
  size_t live_bytes = 0;
  size_t peak_bytes = 0;  // most bytes live at once since reset
  // Kept across reset(): only takeFaults() forgets them, so a fault is never
  // lost to a test that resets the double midway.
  std::vector<std::string> faults;
  std::map<size_t, long> unwiped;  // released blocks that still held non-zero bytes, by size
  // Memory kept for reuse: records and their recorded copies run to
  // megabytes, and memory fresh from the system at every call would cost more
  // page faults than the call itself.  Released blocks (filled with kPoisonByte)
  // by their raw size, and the byte buffers of the calls forgotten by reset().
  std::multimap<size_t, uint8_t*> spare_blocks;
  size_t spare_block_bytes = 0;
  std::vector<std::vector<uint8_t>> spare_copies;
  // Hostile mode: every output gets seeded random bytes and every call a
  // random result code, whatever was scripted.  Off after reset().
  bool hostile = false;
  uint64_t rng = 0;
  int last_result = 0;
  // Page mode (see the top of this file); reset() leaves it as it is.
  bool pages = env_on("KX_SEAM_PAGES");
  std::deque<Mapping> quarantine;  // released blocks' mappings, oldest first
  size_t quarantine_bytes = 0;
};

constexpr size_t kSpareMax = size_t{64} << 20;  // bytes of released blocks kept at most
// Page mode: released blocks' address ranges kept inaccessible at most (they
// hold no memory, only addresses; a 32-bit process has few to spare).
constexpr size_t kQuarantineBlocks = 4096;
constexpr size_t kQuarantineBytes = size_t{1} << (sizeof(void*) == 8 ? 30 : 26);
constexpr size_t kSpareCopyMin = size_t{64} << 10;  // smaller copies are not worth keeping
constexpr size_t kSpareCopies = 16;

State& state() {
  static State s;
  return s;
}

// Blocks run to megabytes: the scans below compare whole chunks with the
// library's memcmp/memchr and look at single bytes only where a chunk differs.
constexpr size_t kChunk = 4096;
constexpr uint8_t kZeros[kChunk] = {};

// Index of the first non-zero byte of p[0, n), or n.
size_t first_nonzero(const uint8_t* p, size_t n) {
  size_t i = 0;
  while (i < n && std::memcmp(p + i, kZeros, std::min(kChunk, n - i)) == 0) i += kChunk;
  for (; i < n; ++i) {
    if (p[i] != 0) return i;
  }
  return n;
}

// Whether p[0, n) holds kPoisonRun poison bytes in a row.
bool has_poison_run(const uint8_t* p, size_t n) {
  static constexpr uint8_t kRun[kPoisonRun] = {kPoisonByte, kPoisonByte, kPoisonByte, kPoisonByte,
                                               kPoisonByte, kPoisonByte, kPoisonByte, kPoisonByte};
  for (size_t i = 0; i + kPoisonRun <= n;) {
    const void* hit = std::memchr(p + i, kPoisonByte, n - i - (kPoisonRun - 1));
    if (hit == nullptr) return false;
    i = static_cast<size_t>(static_cast<const uint8_t*>(hit) - p);
    if (std::memcmp(p + i, kRun, kPoisonRun) == 0) return true;
    ++i;
  }
  return false;
}

// Whether p[0, n) holds nothing but `byte`.
bool holds_only(const uint8_t* p, size_t n, uint8_t byte) {
  return std::all_of(p, p + n, [byte](uint8_t b) { return b == byte; });
}

size_t page_size() {
  static const auto page = static_cast<size_t>(sysconf(_SC_PAGESIZE));
  return page;
}

// The guard bytes around a block: kGuard bytes each side of a malloc'd one;
// the rest of the first page before a mapped one (its end is an inaccessible
// page).
struct Guards {
  uint8_t* front;
  size_t front_bytes;
  size_t rear_bytes;
};

Guards guards_of(const Block& b, void* block) {
  auto* p = static_cast<uint8_t*>(block);
  if (b.map == nullptr) return {p - kGuard, kGuard, kGuard};
  uint8_t* first = b.map + page_size();
  return {first, static_cast<size_t>(p - first), 0};
}

// Page mode: a block of its own mapping, between inaccessible pages, filled
// with kPoisonByte; null when the system has no room for it.
uint8_t* mapped_block(size_t bytes, Block& b) {
  const size_t page = page_size();
  const size_t body = (kGuard + bytes + page - 1) / page * page;
  // Reserved with the kernel's accounting, like malloc's memory: a block no
  // machine can hold (a hostile count) fails at the mprotect below instead
  // of being poison-filled into the out-of-memory killer.
  void* m = mmap(nullptr, body + 2 * page, PROT_NONE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
  if (m == MAP_FAILED) return nullptr;
  auto* map = static_cast<uint8_t*>(m);
  if (mprotect(map + page, body, PROT_READ | PROT_WRITE) != 0) {
    munmap(map, body + 2 * page);
    return nullptr;
  }
  b.map = map;
  b.map_bytes = body + 2 * page;
  uint8_t* block = map + page + body - bytes;
  std::memset(map + page, kGuardByte, body - bytes);
  std::memset(block, kPoisonByte, bytes);
  hide(map + page, body - bytes);
  return block;
}

// A block from the spare ones or from malloc, filled with kPoisonByte, with
// kGuard guard bytes each side; null when malloc fails.
uint8_t* heap_block(State& s, size_t bytes) {
  uint8_t* raw = nullptr;
  auto spare = s.spare_blocks.find(bytes + 2 * kGuard);
  if (spare != s.spare_blocks.end()) {
    raw = spare->second;
    s.spare_block_bytes -= spare->first;
    s.spare_blocks.erase(spare);
    show(raw, bytes + 2 * kGuard);
  } else {
    raw = static_cast<uint8_t*>(std::malloc(bytes + 2 * kGuard));
    if (raw == nullptr) return nullptr;
    std::memset(raw + kGuard, kPoisonByte, bytes);
  }
  std::memset(raw, kGuardByte, kGuard);
  std::memset(raw + kGuard + bytes, kGuardByte, kGuard);
  hide(raw, kGuard);
  hide(raw + kGuard + bytes, kGuard);
  return raw + kGuard;
}

void unmap(const Mapping& m) {
  show(m.at, m.bytes);
  munmap(m.at, m.bytes);
}

// A released mapped block: its pages go back to the system, its addresses
// stay reserved and inaccessible until kQuarantineBlocks later releases (or
// kQuarantineBytes of them) push it out.
void quarantine(State& s, const Block& b) {
  if (mmap(b.map, b.map_bytes, PROT_NONE, MAP_PRIVATE | MAP_ANONYMOUS | MAP_NORESERVE | MAP_FIXED, -1, 0) ==
      MAP_FAILED) {
    mprotect(b.map, b.map_bytes, PROT_NONE);  // keeps the pages, never the access
  }
  hide(b.map, b.map_bytes);
  s.quarantine.push_back({b.map, b.map_bytes});
  s.quarantine_bytes += b.map_bytes;
  while (s.quarantine.size() > kQuarantineBlocks || s.quarantine_bytes > kQuarantineBytes) {
    unmap(s.quarantine.front());
    s.quarantine_bytes -= s.quarantine.front().bytes;
    s.quarantine.pop_front();
  }
}

// A block that is never coming back (leaked, forgotten by reset()).
void discard(const Block& b, void* block) {
  if (b.map != nullptr) {
    unmap({b.map, b.map_bytes});
    return;
  }
  auto* raw = static_cast<uint8_t*>(block) - kGuard;
  show(raw, b.bytes + 2 * kGuard);
  std::free(raw);
}

uint64_t next(State& s) {  // splitmix64
  uint64_t z = (s.rng += 0x9E3779B97F4A7C15ull);
  z = (z ^ (z >> 30)) * 0xBF58476D1CE4E5B9ull;
  z = (z ^ (z >> 27)) * 0x94D049BB133111EBull;
  return z ^ (z >> 31);
}

// Fills p[0, n) the way a broken library might: random bytes, random bytes
// without a single NUL (no string ends in its field), all 0xFF (every count
// -1), all zeros, or int-sized words each a small count, a count far beyond
// any table, a negative one, or random.
void hostile_fill(State& s, uint8_t* p, size_t n) {
  switch (next(s) % 5) {
    case 0:
    case 1: {
      const bool no_nul = next(s) % 2 == 0;
      for (size_t i = 0; i < n; i += 8) {
        uint64_t w = next(s);
        if (no_nul) w |= 0x0101010101010101ull & ~((w & 0x7F7F7F7F7F7F7F7Full) + 0x7F7F7F7F7F7F7F7Full);
        std::memcpy(p + i, &w, std::min<size_t>(8, n - i));
      }
      if (no_nul) {
        for (size_t i = 0; i < n; ++i) p[i] = p[i] == 0 ? 1 : p[i];
      }
      break;
    }
    case 2:
      std::memset(p, 0xFF, n);
      break;
    case 3:
      std::memset(p, 0, n);
      break;
    default:
      for (size_t i = 0; i < n; i += 4) {
        static constexpr int32_t kWords[] = {0, 1, 2, -1, -2, INT32_MAX, INT32_MIN, 0x7FFF, 65536, 1 << 24};
        const uint64_t r = next(s);
        int32_t w = 0;
        switch (r % 4) {
          case 0: w = static_cast<int32_t>((r >> 8) % 200); break;
          case 1: w = kWords[(r >> 8) % std::size(kWords)]; break;
          default: w = static_cast<int32_t>(r >> 32); break;
        }
        std::memcpy(p + i, &w, std::min<size_t>(4, n - i));
      }
      break;
  }
}

int hostile_result(State& s) {
  const uint64_t r = next(s);
  switch (r % 16) {
    case 0: return 256;
    case 1: return static_cast<int32_t>(r >> 32);
    case 2: return -1;
    case 3: return 2817;
    case 4: return 65535;
    case 5: return 258;
    case 6: return 1;
    default: return 0;
  }
}

}  // namespace

long stdout_flushes() {
  using Counter = long (*)();
  static const auto counter = reinterpret_cast<Counter>(dlsym(RTLD_DEFAULT, "kx_stdout_flushes"));
  return counter == nullptr ? -1 : counter();
}

Call& begin(const char* fn) {
  State& s = state();
  s.mu.lock();
  s.calls.push_back(Call{fn, {}, stdout_flushes()});
  return s.calls.back();
}

void record(Call& call, const void* p, size_t size) {
  State& s = state();
  Arg a;
  if (p == nullptr) {
    a.is_null = true;
  } else {
    auto it = s.live.find(p);
    if (it != s.live.end()) {
      if (it->second.bytes < size) {
        s.faults.push_back(call.fn + ": argument " + std::to_string(call.args.size()) +
                           " is a block of " + std::to_string(it->second.bytes) + " bytes, " +
                           std::to_string(size) + " expected");
        size = it->second.bytes;
      }
      it->second.call = static_cast<long>(s.calls.size()) - 1;
      it->second.arg = call.args.size();
      a.release = Arg::Live;
      if (has_poison_run(static_cast<const uint8_t*>(p), size)) {
        s.faults.push_back(call.fn + ": argument " + std::to_string(call.args.size()) +
                           " handed over without being cleared");
      }
    }
    const auto* b = static_cast<const uint8_t*>(p);
    if (size >= kSpareCopyMin) {
      for (auto& spare : s.spare_copies) {
        if (spare.capacity() >= size) {
          a.bytes = std::move(spare);
          std::swap(spare, s.spare_copies.back());
          s.spare_copies.pop_back();
          break;
        }
      }
    }
    a.bytes.assign(b, b + size);
  }
  call.args.push_back(std::move(a));
}

void record_pointee(Call& call, const void* p, size_t size) {
  Call scratch{call.fn, {}};
  record(scratch, p, size);
  call.args.back().pointees.push_back(std::move(scratch.args.back()));
}

void record_int(Call& call, int32_t value) {
  Arg a;
  a.value = value;
  call.args.push_back(std::move(a));
}

void serve(const char* fn, size_t index, void* p, size_t size) {
  if (state().hostile) {
    if (p != nullptr) hostile_fill(state(), static_cast<uint8_t*>(p), size);
    return;
  }
  auto it = state().outputs.find({fn, index});
  if (it == state().outputs.end() || p == nullptr) return;
  std::memcpy(p, it->second.data(), std::min(size, it->second.size()));
}

void serve_at(const char* fn, size_t index, size_t offset, void* p, size_t size) {
  if (state().hostile) {
    serve(fn, index, p, size);
    return;
  }
  auto it = state().outputs.find({fn, index});
  if (it == state().outputs.end() || p == nullptr || it->second.size() <= offset) return;
  std::memcpy(p, it->second.data() + offset, std::min(size, it->second.size() - offset));
}

int finish(const char* fn) {
  State& s = state();
  auto it = s.results.find(fn);
  int rc = it == s.results.end() ? 0 : it->second;
  if (s.hostile) rc = s.last_result = hostile_result(s);
  s.mu.unlock();
  return rc;
}

}  // namespace fake

// ---------------------------------------------------------------- the seam

extern "C" __attribute__((visibility("default"))) void* pernix_seam_alloc(size_t bytes) {
  using namespace fake;
  State& s = state();
  std::lock_guard<std::recursive_mutex> lock(s.mu);
  if (++s.allocations == s.fail_at) return nullptr;
  Block b{bytes};
  uint8_t* block = s.pages ? mapped_block(bytes, b) : heap_block(s, bytes);
  if (block == nullptr) return nullptr;
  s.live[block] = b;
  s.live_bytes += bytes;
  s.peak_bytes = std::max(s.peak_bytes, s.live_bytes);
  return block;
}

extern "C" __attribute__((visibility("default"))) void pernix_seam_free(void* block, size_t bytes,
                                                                        int wipe) {
  using namespace fake;
  State& s = state();
  std::lock_guard<std::recursive_mutex> lock(s.mu);
  auto it = s.live.find(block);
  if (it == s.live.end()) {
    s.faults.push_back("release of a block that is not live (double or foreign release)");
    return;
  }
  const Block b = it->second;
  if (b.bytes != bytes) {
    s.faults.push_back("block of " + std::to_string(b.bytes) + " bytes released as " +
                       std::to_string(bytes));
  }
  auto* p = static_cast<uint8_t*>(block);
  const Guards g = guards_of(b, block);
  show(g.front, g.front_bytes + b.bytes + g.rear_bytes);
  if (!holds_only(g.front, g.front_bytes, kGuardByte) || !holds_only(p + b.bytes, g.rear_bytes, kGuardByte)) {
    s.faults.push_back("guard bytes of a " + std::to_string(b.bytes) + "-byte block overwritten");
  }
  const size_t data_at = first_nonzero(p, b.bytes);
  if (data_at < b.bytes) ++s.unwiped[b.bytes];
  s.live_bytes -= b.bytes;
  if (wipe != 0 && data_at < b.bytes) {
    s.faults.push_back("a " + std::to_string(b.bytes) +
                       "-byte block released as wiped still holds data at byte " +
                       std::to_string(data_at));
  }
  if (b.call >= 0 && static_cast<size_t>(b.call) < s.calls.size()) {
    auto& args = s.calls[static_cast<size_t>(b.call)].args;
    if (b.arg < args.size()) args[b.arg].release = wipe != 0 ? Arg::ReleasedWiped : Arg::Released;
  }
  s.live.erase(it);
  if (b.map != nullptr) {
    quarantine(s, b);
    return;
  }
  uint8_t* raw = g.front;
  std::memset(raw, kPoisonByte, b.bytes + 2 * kGuard);
  if (s.spare_block_bytes + b.bytes + 2 * kGuard <= kSpareMax) {
    s.spare_blocks.emplace(b.bytes + 2 * kGuard, raw);
    s.spare_block_bytes += b.bytes + 2 * kGuard;
    hide(raw, b.bytes + 2 * kGuard);
  } else {
    std::free(raw);
  }
}

// ---------------------------------------------------------------- JVM control

namespace {

using fake::state;

std::string utf(JNIEnv* env, jstring s) {
  if (s == nullptr) return {};
  const char* c = env->GetStringUTFChars(s, nullptr);
  std::string out = c ? c : "";
  if (c) env->ReleaseStringUTFChars(s, c);
  return out;
}

// The call'th call of fn (0-based), or null after throwing IllegalArgumentException.
const fake::Call* find_call(JNIEnv* env, const std::string& fn, jint call) {
  jint seen = 0;
  for (const auto& c : state().calls) {
    if (c.fn == fn && seen++ == call) return &c;
  }
  std::string msg = fn + " was not called " + std::to_string(call + 1) + " time(s)";
  env->ThrowNew(env->FindClass("java/lang/IllegalArgumentException"), msg.c_str());
  return nullptr;
}

const fake::Arg* find_arg(JNIEnv* env, jstring fn, jint call, jint arg) {
  const fake::Call* c = find_call(env, utf(env, fn), call);
  if (c == nullptr) return nullptr;
  if (arg < 0 || static_cast<size_t>(arg) >= c->args.size()) {
    env->ThrowNew(env->FindClass("java/lang/IllegalArgumentException"), "no such argument");
    return nullptr;
  }
  return &c->args[static_cast<size_t>(arg)];
}

}  // namespace

// Keeps the large byte buffers of calls about to be forgotten for record().
static void keep_copies(std::vector<fake::Call>& calls) {
  auto& spare = state().spare_copies;
  auto keep = [&](auto& self, std::vector<fake::Arg>& args) -> void {
    for (auto& a : args) {
      if (spare.size() < fake::kSpareCopies && a.bytes.capacity() >= fake::kSpareCopyMin) {
        spare.push_back(std::move(a.bytes));
      }
      self(self, a.pointees);
    }
  };
  for (auto& c : calls) keep(keep, c.args);
}

#define FAKE_JNI(ret, name) \
  extern "C" __attribute__((visibility("default"))) JNIEXPORT ret JNICALL Java_kxtest_FakePernix_##name

FAKE_JNI(void, reset)(JNIEnv*, jclass) {
  auto& s = state();
  std::lock_guard<std::recursive_mutex> lock(s.mu);
  keep_copies(s.calls);
  s.calls.clear();
  s.results.clear();
  s.outputs.clear();
  s.allocations = 0;
  s.fail_at = 0;
  s.hostile = false;
  // Blocks still live were leaked by whatever ran before: a fault, kept
  // until the test's own check takes it.
  if (!s.live.empty()) {
    s.faults.push_back(std::to_string(s.live.size()) + " block(s) never released");
    for (auto& [block, b] : s.live) fake::discard(b, const_cast<void*>(block));
    s.live.clear();
  }
  s.unwiped.clear();
  s.live_bytes = 0;
  s.peak_bytes = 0;
}

FAKE_JNI(void, willReturn)(JNIEnv* env, jclass, jstring fn, jint code) {
  std::lock_guard<std::recursive_mutex> lock(state().mu);
  state().results[utf(env, fn)] = code;
}

FAKE_JNI(void, hostile)(JNIEnv*, jclass, jlong seed) {
  std::lock_guard<std::recursive_mutex> lock(state().mu);
  state().hostile = true;
  state().rng = static_cast<uint64_t>(seed);
  state().last_result = 0;
}

FAKE_JNI(jint, hostileResult)(JNIEnv*, jclass) {
  std::lock_guard<std::recursive_mutex> lock(state().mu);
  return state().last_result;
}

FAKE_JNI(void, willWrite)(JNIEnv* env, jclass, jstring fn, jint arg, jbyteArray data) {
  std::vector<uint8_t> bytes(static_cast<size_t>(env->GetArrayLength(data)));
  env->GetByteArrayRegion(data, 0, static_cast<jsize>(bytes.size()), reinterpret_cast<jbyte*>(bytes.data()));
  std::lock_guard<std::recursive_mutex> lock(state().mu);
  state().outputs[{utf(env, fn), static_cast<size_t>(arg)}] = std::move(bytes);
}

FAKE_JNI(jint, calls)(JNIEnv* env, jclass, jstring fn) {
  std::lock_guard<std::recursive_mutex> lock(state().mu);
  std::string name = utf(env, fn);
  jint n = 0;
  for (const auto& c : state().calls) n += c.fn == name;
  return n;
}

FAKE_JNI(jobjectArray, log)(JNIEnv* env, jclass) {
  std::lock_guard<std::recursive_mutex> lock(state().mu);
  const auto& calls = state().calls;
  jobjectArray arr = env->NewObjectArray(static_cast<jsize>(calls.size()), env->FindClass("java/lang/String"), nullptr);
  for (size_t i = 0; i < calls.size(); ++i) {
    jstring s = env->NewStringUTF(calls[i].fn.c_str());
    env->SetObjectArrayElement(arr, static_cast<jsize>(i), s);
    env->DeleteLocalRef(s);
  }
  return arr;
}

FAKE_JNI(jbyteArray, arg)(JNIEnv* env, jclass, jstring fn, jint call, jint arg) {
  std::lock_guard<std::recursive_mutex> lock(state().mu);
  const fake::Arg* a = find_arg(env, fn, call, arg);
  if (a == nullptr || a->is_null) return nullptr;
  jbyteArray out = env->NewByteArray(static_cast<jsize>(a->bytes.size()));
  env->SetByteArrayRegion(out, 0, static_cast<jsize>(a->bytes.size()),
                          reinterpret_cast<const jbyte*>(a->bytes.data()));
  return out;
}

FAKE_JNI(jbyteArray, pointee)(JNIEnv* env, jclass, jstring fn, jint call, jint arg, jint k) {
  std::lock_guard<std::recursive_mutex> lock(state().mu);
  const fake::Arg* a = find_arg(env, fn, call, arg);
  if (a == nullptr) return nullptr;
  if (k < 0 || static_cast<size_t>(k) >= a->pointees.size()) {
    env->ThrowNew(env->FindClass("java/lang/IllegalArgumentException"), "no such pointee");
    return nullptr;
  }
  const fake::Arg& p = a->pointees[static_cast<size_t>(k)];
  if (p.is_null) return nullptr;
  jbyteArray out = env->NewByteArray(static_cast<jsize>(p.bytes.size()));
  env->SetByteArrayRegion(out, 0, static_cast<jsize>(p.bytes.size()),
                          reinterpret_cast<const jbyte*>(p.bytes.data()));
  return out;
}

FAKE_JNI(jint, intArg)(JNIEnv* env, jclass, jstring fn, jint call, jint arg) {
  std::lock_guard<std::recursive_mutex> lock(state().mu);
  const fake::Arg* a = find_arg(env, fn, call, arg);
  return a == nullptr ? 0 : a->value;
}

FAKE_JNI(jboolean, isNull)(JNIEnv* env, jclass, jstring fn, jint call, jint arg) {
  std::lock_guard<std::recursive_mutex> lock(state().mu);
  const fake::Arg* a = find_arg(env, fn, call, arg);
  return a != nullptr && a->is_null ? JNI_TRUE : JNI_FALSE;
}

FAKE_JNI(void, failAllocationAt)(JNIEnv*, jclass, jint k) {
  std::lock_guard<std::recursive_mutex> lock(state().mu);
  state().fail_at = k;
}

FAKE_JNI(jint, allocationCount)(JNIEnv*, jclass) {
  std::lock_guard<std::recursive_mutex> lock(state().mu);
  return static_cast<jint>(state().allocations);
}

FAKE_JNI(jint, liveBlocks)(JNIEnv*, jclass) {
  std::lock_guard<std::recursive_mutex> lock(state().mu);
  return static_cast<jint>(state().live.size());
}

// Bytes of memory the double keeps for reuse: released blocks and the byte
// buffers of forgotten calls.
FAKE_JNI(jlong, keptBytes)(JNIEnv*, jclass) {
  std::lock_guard<std::recursive_mutex> lock(state().mu);
  size_t kept = state().spare_block_bytes;
  for (const auto& copy : state().spare_copies) kept += copy.capacity();
  return static_cast<jlong>(kept);
}

FAKE_JNI(jlong, peakBytes)(JNIEnv*, jclass) {
  std::lock_guard<std::recursive_mutex> lock(state().mu);
  return static_cast<jlong>(state().peak_bytes);
}

FAKE_JNI(jstring, faults)(JNIEnv* env, jclass) {
  std::lock_guard<std::recursive_mutex> lock(state().mu);
  std::ostringstream out;
  for (const auto& f : state().faults) out << f << '\n';
  return env->NewStringUTF(out.str().c_str());
}

FAKE_JNI(jint, unwipedCount)(JNIEnv*, jclass, jint size) {
  std::lock_guard<std::recursive_mutex> lock(state().mu);
  auto it = state().unwiped.find(static_cast<size_t>(size));
  return it == state().unwiped.end() ? 0 : static_cast<jint>(it->second);
}

FAKE_JNI(jstring, takeFaults)(JNIEnv* env, jclass) {
  std::lock_guard<std::recursive_mutex> lock(state().mu);
  std::ostringstream out;
  for (const auto& f : state().faults) out << f << '\n';
  state().faults.clear();
  return env->NewStringUTF(out.str().c_str());
}

FAKE_JNI(jlong, flushes)(JNIEnv*, jclass) {
  return static_cast<jlong>(fake::stdout_flushes());
}

FAKE_JNI(jlong, flushesAtCall)(JNIEnv* env, jclass, jstring fn, jint call) {
  std::lock_guard<std::recursive_mutex> lock(state().mu);
  const fake::Call* c = find_call(env, utf(env, fn), call);
  return c == nullptr ? -1 : static_cast<jlong>(c->flushes);
}

// Per argument of the call'th call of fn: 0 not a block of the seam, 1 still
// live, 2 released, 3 released wiped.
FAKE_JNI(jintArray, releaseStates)(JNIEnv* env, jclass, jstring fn, jint call) {
  std::lock_guard<std::recursive_mutex> lock(state().mu);
  const fake::Call* c = find_call(env, utf(env, fn), call);
  if (c == nullptr) return nullptr;
  std::vector<jint> r;
  for (const auto& a : c->args) r.push_back(static_cast<jint>(a.release));
  jintArray out = env->NewIntArray(static_cast<jsize>(r.size()));
  if (out != nullptr) env->SetIntArrayRegion(out, 0, static_cast<jsize>(r.size()), r.data());
  return out;
}

// Switches the seam's page mode (see the top of this file) for the blocks
// allocated from now on; answers whether it was on.
FAKE_JNI(jboolean, seamPages)(JNIEnv*, jclass, jboolean on) {
  std::lock_guard<std::recursive_mutex> lock(state().mu);
  const bool was = state().pages;
  state().pages = on != JNI_FALSE;
  return was ? JNI_TRUE : JNI_FALSE;
}

// ---------------------------------------------------------------- kxtest.SeamPagesTest
// Blocks taken from the seam directly, and reads and writes wherever the test
// plants them: past a block, before it, after its release.  The accesses are
// left unchecked by AddressSanitizer, so that in every build the memory
// itself answers (a guard byte, or SIGSEGV).

#define SEAM_JNI(ret, name)                                                     \
  extern "C" __attribute__((visibility("default"), no_sanitize_address)) JNIEXPORT ret JNICALL \
      Java_kxtest_SeamPagesTest_##name

namespace {
uint8_t* at(jlong block, jint offset) {
  return reinterpret_cast<uint8_t*>(static_cast<uintptr_t>(block)) + offset;
}
}  // namespace

SEAM_JNI(jlong, take)(JNIEnv*, jclass, jint bytes) {
  return static_cast<jlong>(reinterpret_cast<uintptr_t>(pernix_seam_alloc(static_cast<size_t>(bytes))));
}

SEAM_JNI(void, give)(JNIEnv*, jclass, jlong block, jint bytes, jboolean wipe) {
  pernix_seam_free(at(block, 0), static_cast<size_t>(bytes), wipe != JNI_FALSE ? 1 : 0);
}

SEAM_JNI(jint, peek)(JNIEnv*, jclass, jlong block, jint offset) {
  return *static_cast<volatile uint8_t*>(at(block, offset));
}

SEAM_JNI(void, poke)(JNIEnv*, jclass, jlong block, jint offset, jint value) {
  *static_cast<volatile uint8_t*>(at(block, offset)) = static_cast<uint8_t>(value);
}

SEAM_JNI(jlong, pageSize)(JNIEnv*, jclass) { return static_cast<jlong>(fake::page_size()); }
