// Controller and enclosure microcode, boot options: the microcode file
// format, the image being joined, downloaded and put in force, and the
// revisions the array runs.  Every operation runs inside the caller's
// transaction and throws sim::Error with the simulator's code when it refuses.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "sim/core/store.h"

namespace sim {

// ---- the microcode file
//
//   pernix-microcode 1
//   kind controller            (or: enclosure)
//   revision 0960/A            (controller: 1..8 printable characters)
//   main A0960                 (enclosure: main, boot, ectl, rtr, ses instead)
//   boot-wait 60               (controller, optional: seconds a controller restarts)
//   piece 1/2                  (this file is piece 1 of 2)
//   length 1048576
//   checksum 0a1b2c3d          (FNV-1a, 32 bits, of the payload, 8 hex digits)
//   <an empty line>
//   <exactly `length` bytes of payload>

constexpr const char* kMicroHeader = "pernix-microcode 1";
constexpr size_t kMicroFileLimit = 64u << 20;  // bytes of one part file

struct EncRevision {
  std::string main, boot, ectl, rtr, ses;
  bool operator==(const EncRevision&) const = default;
};

struct MicroPart {
  bool enclosure = false;
  std::string revision;  // controller
  EncRevision enc;       // enclosure
  int boot_wait = 60;
  int part = 1, parts = 1;
  std::string payload;
};

uint32_t micro_checksum(std::string_view data);
std::string render_micro(const MicroPart& p);
// kBadFile naming the fault when the text is not such a file.
MicroPart parse_micro(std::string_view text);

// ---- the image

enum MicroKind { kControllerMicro = 0, kEnclosureMicro = 1 };

constexpr int64_t kDefaultChunk = 256 * 1024;  // bytes per transfer
constexpr int kEncSeconds = 20;                // seconds to replace one enclosure's microcode

struct MicroImage {
  std::string revision;  // controller
  EncRevision enc;       // enclosure
  int64_t bytes = 0;
  int parts = 0, boot_wait = 60;
  int64_t ready = 0;     // joining is done at this time
  int64_t chunk = 0;     // bytes per transfer of the download (0: not begun)
  int sent = 0;          // transfers received
  int replace_mode = -1; // -1 not begun
  int64_t replace_start = 0, replace_end = 0;

  bool joined(int64_t now) const { return now >= ready; }
  int transfers(int64_t size) const { return static_cast<int>((bytes + size - 1) / size); }
  bool downloaded() const { return chunk > 0 && sent >= transfers(chunk); }
  bool replacing() const { return replace_mode >= 0; }
};

std::optional<MicroImage> micro_image(Db& db, MicroKind kind);
// Joins the part files at path (one file, or a folder's *.pxm files in name
// order) and keeps them as the image of their kind unless check_only.
// Returns the number of parts.
int join_micro(Db& db, int64_t now, MicroKind kind, const std::string& path, bool check_only);
// Drops the image (nothing when there is none).  An enclosure replacement
// that has begun and not finished cannot be cancelled (kBusy).
void cancel_micro(Db& db, int64_t now, MicroKind kind);
// The image joined and ready for a download (kNoSuchObject / kBusy).
MicroImage ready_image(Db& db, int64_t now, MicroKind kind);
// Takes transfer `number` (1-based, the next one) of `count` at `chunk`
// bytes each; returns the transfers still to come.
int take_transfer(Db& db, int64_t now, MicroKind kind, int number, int count, int64_t chunk, bool force);
// Puts the downloaded image in force: mode 0 one controller (enclosure) after
// another, 1 all at once.  Returns the seconds it takes.
int64_t begin_replace(Db& db, int64_t now, MicroKind kind, int mode);
// Ends a controller replacement whose restart is over: the new revision runs.
void complete_replace(Db& db, int64_t now);

// The revisions running now.
std::string micro_revision(Db& db);
EncRevision enc_revision(Db& db, int64_t now);
// Enclosures of the array (the controller enclosure not counted): those that
// hold drives.
std::vector<int> drive_enclosures(Db& db);

// ---- boot options and the enclosure download option, kept in settings

constexpr const char* kBootHeader = "pernix-sim boot-option 1";

}  // namespace sim
