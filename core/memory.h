// Scratch records: zero-filled heap blocks owned by one native call.
#pragma once

#include <cstddef>
#include <utility>

namespace kx {

// Zero-filled block of count * size bytes (size > 0); null when it cannot be
// had (including a negative or overflowing count).
void* allocate(std::ptrdiff_t count, std::size_t size);
// Releases a block (not null) from allocate(); `wipe` clears it first (secrets).
void release(void* block, std::size_t bytes, bool wipe);

// Owns one block and releases it exactly once.
class Block {
 public:
  Block() = default;
  Block(std::ptrdiff_t count, std::size_t size, bool wipe = false)
      : data_(allocate(count, size)),
        bytes_(data_ ? static_cast<std::size_t>(count) * size : 0),
        wipe_(wipe) {}
  Block(const Block&) = delete;
  Block& operator=(const Block&) = delete;
  Block(Block&& other) noexcept
      : data_(std::exchange(other.data_, nullptr)), bytes_(other.bytes_), wipe_(other.wipe_) {}
  // A block moved into itself ends up empty (its memory released).
  Block& operator=(Block&& other) noexcept {
    reset();
    data_ = std::exchange(other.data_, nullptr);
    bytes_ = other.bytes_;
    wipe_ = other.wipe_;
    return *this;
  }
  ~Block() { reset(); }

  void reset() {
    if (data_ != nullptr) release(std::exchange(data_, nullptr), bytes_, wipe_);
  }
  void* get() const { return data_; }
  std::size_t bytes() const { return bytes_; }
  explicit operator bool() const { return data_ != nullptr; }

 private:
  void* data_ = nullptr;
  std::size_t bytes_ = 0;
  bool wipe_ = false;
};

// A block holding `count` records of type R.
template <typename R>
class Records : public Block {
 public:
  Records() = default;  // holds nothing yet
  explicit Records(std::ptrdiff_t count, bool wipe = false) : Block(count, sizeof(R), wipe) {}
  R* get() const { return static_cast<R*>(Block::get()); }
  R& operator[](std::size_t i) const { return get()[i]; }
};

// A record kept in the native's own frame that holds a secret: cleared when
// the frame is left.
template <typename R>
class ScrubbedRecord {
 public:
  ScrubbedRecord() = default;
  ScrubbedRecord(const ScrubbedRecord&) = delete;
  ScrubbedRecord& operator=(const ScrubbedRecord&) = delete;
  ~ScrubbedRecord() {
    auto* p = reinterpret_cast<volatile unsigned char*>(&rec_);
    for (std::size_t i = 0; i < sizeof rec_; ++i) p[i] = 0;
  }
  R* get() { return &rec_; }
  R* operator->() { return &rec_; }

 private:
  R rec_{};
};

}  // namespace kx
