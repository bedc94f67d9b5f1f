// Controller microcode: joining the part files into an image, downloading it
// in transfers, putting it in force and completing the replacement.
#include <string>

#include "firmware.h"
#include "sim/core/call.h"
#include "sim/core/text.h"
#include "sim/model/firmware.h"

namespace {

using sim::Call;
using sim::fail;
using sim::in_text;
using sim::kBadParameter;
using sim::out_text;

constexpr size_t kPathCap = 1024;

// Joining for the calls that carry a session.  Returns the parts joined.
int concat(Call& c, const char* unit, const KXSessionInfoRec* session, const char* path, bool check_only) {
  c.session(unit, session, sim::kRightFirmware);
  std::string p = in_text(path, kPathCap, "path");
  c.what = "controller microcode " + p;
  return sim::join_micro(c.db, c.now, sim::kControllerMicro, p, check_only);
}

int64_t chunk_of(int kib) {
  if (kib == 0) return sim::kDefaultChunk;
  if (kib < 1 || kib > 65536) fail(kBadParameter, "transfer size " + std::to_string(kib) + " KiB is not within 1..65536");
  return static_cast<int64_t>(kib) * 1024;
}

void download(Call& c, const char* unit, const KXSessionInfoRec* session, int number, int count, int force,
              int64_t chunk) {
  c.session(unit, session, sim::kRightFirmware);
  c.what = "controller microcode transfer " + std::to_string(number);
  if (force != 0 && force != 1) fail(kBadParameter, "force must be 0 or 1");
  sim::take_transfer(c.db, c.now, sim::kControllerMicro, number, count, chunk, force == 1);
}

}  // namespace

extern "C" {

int KX_MicroFileConcat(const char* unit, const KXSessionInfoRec* session, const char* path, int value,
                       int* result) {
  return sim::run(__func__, sim::kWrite, [&](Call& c) {
    if (!result) fail(kBadParameter, "result: null");
    *result = 0;
    if (value != 0 && value != 1) fail(kBadParameter, "mode must be 0 (join) or 1 (check only)");
    *result = concat(c, unit, session, path, value == 1);
  });
}

int KX_MicroFileConcat2(const char* unit, const KXSessionInfoRec* session, const char* path) {
  return sim::run(__func__, sim::kWrite, [&](Call& c) { concat(c, unit, session, path, false); });
}

int KX_MicroFileConcatEx(const char* unit, const KXSessionInfoRec* session, const char* path) {
  return sim::run(__func__, sim::kWrite, [&](Call& c) { concat(c, unit, session, path, false); });
}

int KX_CancelMicroFileConcat(void) {
  return sim::run(__func__, sim::kWrite, [&](Call& c) {
    c.what = "controller microcode image";
    sim::cancel_micro(c.db, c.now, sim::kControllerMicro);
  });
}

int KX_GetMicroFileInformation(MicroFileInformationRec* info) {
  return sim::run(__func__, sim::kRead, [&](Call& c) {
    auto& r = sim::out(info, "information");
    auto img = sim::micro_image(c.db, sim::kControllerMicro);
    if (!img || !img->joined(c.now)) return;
    out_text(r.micro, img->revision);
    r.valid = 1;
    r.booting_wait = img->boot_wait;
  });
}

int KX_GetNewMicroRevision(char* revision) {
  return sim::run(__func__, sim::kRead, [&](Call& c) {
    if (!revision) fail(kBadParameter, "revision: null");
    auto img = sim::micro_image(c.db, sim::kControllerMicro);
    out_text(revision, PERNIX_MICRO_REVISION_SIZE,
             img && img->joined(c.now) ? img->revision : sim::micro_revision(c.db));
  });
}

int KX_GetMicroDownloadCount(const char* unit, int* count) {
  return sim::run(__func__, sim::kRead, [&](Call& c) {
    c.unit_login(unit);
    if (!count) fail(kBadParameter, "count: null");
    *count = 0;
    *count = sim::ready_image(c.db, c.now, sim::kControllerMicro).transfers(sim::kDefaultChunk);
  });
}

int KX_GetMicroDownloadCountEx(const char* unit, int value, int* count) {
  return sim::run(__func__, sim::kRead, [&](Call& c) {
    c.unit_login(unit);
    if (!count) fail(kBadParameter, "count: null");
    *count = 0;
    int64_t chunk = chunk_of(value);
    *count = sim::ready_image(c.db, c.now, sim::kControllerMicro).transfers(chunk);
  });
}

int KX_MicroDownload(const char* unit, const KXSessionInfoRec* session, int a, int b, int c) {
  return sim::run(__func__, sim::kWrite,
                  [&](Call& call) { download(call, unit, session, a, b, c, sim::kDefaultChunk); });
}

int KX_MicroDownloadEx(const char* unit, const KXSessionInfoRec* session, int a, int b, int c, int d) {
  return sim::run(__func__, sim::kWrite, [&](Call& call) {
    int64_t chunk = chunk_of(d);
    download(call, unit, session, a, b, c, chunk);
  });
}

int KX_MicroReplace(const char* unit, const KXSessionInfoRec* session, int value) {
  return sim::run(__func__, sim::kWrite, [&](Call& c) {
    c.session(unit, session, sim::kRightFirmware);
    c.what = "controller microcode";
    sim::begin_replace(c.db, c.now, sim::kControllerMicro, value);
  });
}

int KX_MicroReplaceEx(const char* unit, const KXSessionInfoRec* session, int value,
                      MicroReplaceInformationRec* info) {
  return sim::run(__func__, sim::kWrite, [&](Call& c) {
    auto& r = sim::out(info, "information");
    c.session(unit, session, sim::kRightFirmware);
    c.what = "controller microcode";
    sim::begin_replace(c.db, c.now, sim::kControllerMicro, value);
    r.valid = 1;
    r.WaitCancelreq = 1;
    r.ReplaceCTL = value == 1 ? 2 : 0;
  });
}

int KX_CompleteMicroReplace(const char* unit, const KXSessionInfoRec* session, int value) {
  return sim::run(__func__, sim::kWrite, [&](Call& c) {
    c.session(unit, session, sim::kRightFirmware);
    c.what = "controller microcode";
    if (value != 0) fail(kBadParameter, "value must be 0");
    sim::complete_replace(c.db, c.now);
  });
}

}  // extern "C"
