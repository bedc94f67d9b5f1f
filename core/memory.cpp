#include "core/memory.h"

#include <cstdint>
#include <cstdlib>
#include <cstring>

#ifdef KX_ALLOC_SEAM
// Test builds take every record's raw memory from the test double of the
// array library, which can fail a chosen allocation, hands out blocks full of
// garbage (so only the clearing below shows zeros), checks guard bytes around
// each block on release and that a block released with `wipe` was cleared.
// Weak, so that a test build also runs against an array library without the
// seam (plain malloc and free then).
extern "C" void* pernix_seam_alloc(size_t bytes) __attribute__((weak));
extern "C" void pernix_seam_free(void* block, size_t bytes, int wipe) __attribute__((weak));
#endif

namespace kx {

namespace {

void* raw_block(std::size_t bytes) {
#ifdef KX_ALLOC_SEAM
  if (pernix_seam_alloc != nullptr) return pernix_seam_alloc(bytes);  // GCOVR_EXCL_BR_LINE: tests always have the seam
#endif
  return std::malloc(bytes == 0 ? 1 : bytes);  // GCOVR_EXCL_LINE: the shipped library's path (tests use the seam)
}

}  // namespace

void* allocate(std::ptrdiff_t count, std::size_t size) {
  if (count < 0) return nullptr;
  auto n = static_cast<std::size_t>(count);
  // A jsize count of records overflows only where size_t has 32 bits.
  if (n != 0 && size > SIZE_MAX / n) return nullptr;  // GCOVR_EXCL_BR_LINE: the i386 builds' case
  std::size_t bytes = n * size;
  void* block = raw_block(bytes);
  // Records reach the library zero-filled: the clearing is ours, whatever
  // the memory held before.
  if (block != nullptr) std::memset(block, 0, bytes);
  return block;
}

void release(void* block, std::size_t bytes, bool wipe) {
  if (wipe) {
    // One memset (records with secrets run to megabytes: byte-wise volatile
    // stores cost a millisecond there); the barrier tells the compiler that
    // the cleared memory is read, so the clearing of a secret is never
    // dropped as a dead store before the free.
    std::memset(block, 0, bytes);
    asm volatile("" : : "r"(block) : "memory");
  }
#ifdef KX_ALLOC_SEAM
  if (pernix_seam_free != nullptr) return pernix_seam_free(block, bytes, wipe ? 1 : 0);  // GCOVR_EXCL_BR_LINE: tests always have the seam
#endif
  (void)bytes;
  std::free(block);  // GCOVR_EXCL_LINE: the shipped library's path (tests use the seam)
}

}  // namespace kx
