// Controller and enclosure microcode, boot options and their file, called
// straight into the library.  Microcode files are written here by a writer of
// the test's own, so a fault in the simulator's reader shows.
#include <sys/stat.h>

#include <cstdint>
#include <cstdio>
#include <string>

#include "firmware.h"
#include "session_support.h"

namespace {

using namespace t;

std::string hex8(uint32_t v) {
  char b[16];
  std::snprintf(b, sizeof b, "%08x", v);
  return b;
}

uint32_t fnv(const std::string& s) {
  uint32_t h = 2166136261u;
  for (unsigned char ch : s) h = (h ^ ch) * 16777619u;
  return h;
}

std::string micro_file(const std::string& head, int part, int parts, const std::string& payload) {
  return "pernix-microcode 1\n" + head + "piece " + std::to_string(part) + "/" + std::to_string(parts) +
         "\nlength " + std::to_string(payload.size()) + "\nchecksum " + hex8(fnv(payload)) + "\n\n" + payload;
}

std::string ctl_head(const std::string& rev) { return "kind controller\nrevision " + rev + "\nboot-wait 30\n"; }
const std::string kEncHead = "kind enclosure\nmain A0970\nboot 02\nectl 03\nrtr R0970\nses S0970\n";

void write(const std::string& path, const std::string& data) {
  std::ofstream f(path, std::ios::binary);
  f << data;
}

std::string condition_micro(const KXSessionInfoRec& s) {
  UnitConditionRec r{};
  CHECK_EQ(KX_GetUnitCondition(kUnit, &s, 0, &r), 0);
  return r.micro;
}

std::string new_revision() {
  char b[PERNIX_MICRO_REVISION_SIZE];
  CHECK_EQ(KX_GetNewMicroRevision(b), 0);
  return b;
}

// A controller image in a folder of two parts: 200 KiB + 100 KiB, two
// transfers of 256 KiB.
std::string two_part_image(const std::string& name, const std::string& rev) {
  std::string d = dir().path + "/" + name;
  mkdir(d.c_str(), 0755);
  write(d + "/a.pxm", micro_file(ctl_head(rev), 1, 2, std::string(200 * 1024, 'x')));
  write(d + "/b.pxm", micro_file(ctl_head(rev), 2, 2, std::string(100 * 1024, 'y')));
  write(d + "/readme.txt", "not a part");
  return d;
}

void controller_update() {
  fresh_db("controller");
  KXSessionInfoRec s = admin();
  CHECK_EQ(unit_login(kAdmin, kAdminPassword), 0);
  CHECK_EQ(condition_micro(s), std::string("0950/A"));
  int count = -1, parts = -1;
  CHECK_EQ(KX_GetMicroDownloadCount(kUnit, &count), kNoSuchObject);

  std::string d = two_part_image("img", "0960/A");
  CHECK_EQ(KX_MicroFileConcat(kUnit, &s, d.c_str(), 1, &parts), 0);  // check only
  CHECK_EQ(parts, 2);
  MicroFileInformationRec info{};
  CHECK_EQ(KX_GetMicroFileInformation(&info), 0);
  CHECK_EQ(info.valid, 0);
  CHECK_EQ(KX_MicroFileConcat(kUnit, &s, d.c_str(), 0, &parts), 0);
  // Joining takes a second: until then there is nothing to download.
  CHECK_EQ(KX_GetMicroFileInformation(&info), 0);
  CHECK_EQ(info.valid, 0);
  CHECK_EQ(KX_GetMicroDownloadCount(kUnit, &count), kBusy);
  step_clock(6);
  CHECK_EQ(KX_GetMicroFileInformation(&info), 0);
  CHECK_EQ(info.valid, 1);
  CHECK_EQ(std::string(info.micro), std::string("0960/A"));
  CHECK_EQ(info.booting_wait, 30);
  CHECK_EQ(new_revision(), std::string("0960/A"));
  CHECK_EQ(KX_GetMicroDownloadCount(kUnit, &count), 0);
  CHECK_EQ(count, 2);
  CHECK_EQ(KX_GetMicroDownloadCountEx(kUnit, 64, &count), 0);
  CHECK_EQ(count, 5);

  CHECK_EQ(KX_MicroDownload(kUnit, &s, 2, 2, 0), kBadParameter);  // out of order
  CHECK_EQ(KX_MicroDownload(kUnit, &s, 1, 3, 0), kBadParameter);  // wrong count
  CHECK_EQ(KX_MicroDownload(kUnit, &s, 1, 2, 0), 0);
  CHECK_EQ(KX_MicroReplace(kUnit, &s, 0), kBusy);  // one transfer missing
  CHECK_EQ(KX_MicroDownloadEx(kUnit, &s, 2, 5, 0, 64), kBadParameter);  // size changed mid-way
  CHECK_EQ(KX_MicroDownload(kUnit, &s, 2, 2, 0), 0);
  CHECK_EQ(KX_MicroDownload(kUnit, &s, 3, 2, 0), kBusy);
  CHECK_EQ(KX_CompleteMicroReplace(kUnit, &s, 0), kBusy);  // not replaced yet
  CHECK_EQ(KX_MicroReplace(kUnit, &s, 2), kBadParameter);

  MicroReplaceInformationRec ri{};
  CHECK_EQ(KX_MicroReplaceEx(kUnit, &s, 0, &ri), 0);
  CHECK_EQ(ri.valid, 1);
  CHECK_EQ(ri.ReplaceCTL, 0);
  CHECK_EQ(KX_MicroReplace(kUnit, &s, 0), kBusy);
  step_clock(55);  // two controllers one after the other: 60 s
  CHECK_EQ(KX_CompleteMicroReplace(kUnit, &s, 0), kBusy);
  CHECK_EQ(condition_micro(s), std::string("0950/A"));
  step_clock(5);
  CHECK_EQ(KX_CompleteMicroReplace(kUnit, &s, 1), kBadParameter);
  CHECK_EQ(KX_CompleteMicroReplace(kUnit, &s, 0), 0);
  CHECK_EQ(condition_micro(s), std::string("0960/A"));
  CHECK_EQ(new_revision(), std::string("0960/A"));
  CHECK_EQ(KX_GetMicroFileInformation(&info), 0);
  CHECK_EQ(info.valid, 0);

  // The same revision again is refused unless forced.
  CHECK_EQ(KX_MicroFileConcat2(kUnit, &s, d.c_str()), 0);
  step_clock(6);
  CHECK_EQ(KX_MicroDownload(kUnit, &s, 1, 2, 0), kExists);
  CHECK_EQ(KX_MicroDownload(kUnit, &s, 1, 2, 1), 0);

  // Cancelling, even after the replacement began, leaves the old revision.
  std::string d2 = two_part_image("img2", "0970/B");
  CHECK_EQ(KX_MicroFileConcatEx(kUnit, &s, d2.c_str()), kBusy);  // a download is under way
  CHECK_EQ(KX_CancelMicroFileConcat(), 0);
  CHECK_EQ(KX_MicroFileConcatEx(kUnit, &s, d2.c_str()), 0);
  step_clock(6);
  CHECK_EQ(KX_MicroDownload(kUnit, &s, 1, 2, 0), 0);
  CHECK_EQ(KX_MicroDownload(kUnit, &s, 2, 2, 0), 0);
  CHECK_EQ(KX_MicroReplace(kUnit, &s, 1), 0);
  CHECK_EQ(KX_CancelMicroFileConcat(), 0);
  step_clock(100);
  CHECK_EQ(KX_CompleteMicroReplace(kUnit, &s, 0), kNoSuchObject);
  CHECK_EQ(condition_micro(s), std::string("0960/A"));
  CHECK_EQ(new_revision(), std::string("0960/A"));
  CHECK_EQ(KX_CancelMicroFileConcat(), 0);  // nothing to cancel is fine

  // Rights: a monitor reads but does not update.
  CHECK_EQ(create_account(s, "watcher", "watcher-pw-1", 2), 0);
  KXSessionInfoRec m{};
  CHECK_EQ(login("watcher", "watcher-pw-1", &m), 0);
  CHECK_EQ(KX_MicroFileConcat2(kUnit, &m, d2.c_str()), kPermission);
  CHECK_EQ(condition_micro(m), std::string("0960/A"));
}

void bad_files() {
  fresh_db("bad_files");
  KXSessionInfoRec s = admin();
  std::string good = dir().path + "/good.pxm";
  write(good, micro_file(ctl_head("0961/A"), 1, 1, "payload"));
  CHECK_EQ(KX_MicroFileConcat2(kUnit, &s, good.c_str()), 0);
  step_clock(6);

  auto refused = [&](const std::string& name, const std::string& text, int code) {
    std::string p = dir().path + "/" + name;
    write(p, text);
    int parts = -1;
    int rc = KX_MicroFileConcat(kUnit, &s, p.c_str(), 0, &parts);
    if (rc != code) std::fprintf(stderr, "case %s\n", name.c_str());
    CHECK_EQ(rc, code);
  };
  std::string ok = micro_file(ctl_head("0962/A"), 1, 1, "payload");
  std::string flipped = ok;
  flipped.back() = 'X';
  refused("checksum.pxm", flipped, kBadFile);
  refused("short.pxm", ok.substr(0, ok.size() - 1), kBadFile);
  refused("long.pxm", ok + "!", kBadFile);
  refused("header.pxm", "pernix-microcode 2" + ok.substr(ok.find('\n')), kBadFile);
  refused("no_blank.pxm", "pernix-microcode 1\nkind controller\n", kBadFile);
  refused("twice.pxm", micro_file(ctl_head("0962/A") + "revision 0963/A\n", 1, 1, "p"), kBadFile);
  refused("unknown.pxm", micro_file(ctl_head("0962/A") + "colour blue\n", 1, 1, "p"), kBadFile);
  refused("long_rev.pxm", micro_file(ctl_head("0962/AAAAA"), 1, 1, "p"), kBadFile);
  refused("part_missing.pxm", micro_file(ctl_head("0962/A"), 1, 2, "p"), kBadFile);
  refused("enclosure.pxm", micro_file(kEncHead, 1, 1, "p"), kBadFile);
  refused("empty.pxm", "", kBadFile);
  int parts = -1;
  CHECK_EQ(KX_MicroFileConcat(kUnit, &s, (dir().path + "/missing.pxm").c_str(), 0, &parts), kFileError);
  std::string empty_dir = dir().path + "/empty";
  mkdir(empty_dir.c_str(), 0755);
  CHECK_EQ(KX_MicroFileConcat(kUnit, &s, empty_dir.c_str(), 0, &parts), kFileError);
  // Parts of different images in one folder.
  std::string mixed = dir().path + "/mixed";
  mkdir(mixed.c_str(), 0755);
  write(mixed + "/1.pxm", micro_file(ctl_head("0962/A"), 1, 2, "p"));
  write(mixed + "/2.pxm", micro_file(ctl_head("0962/B"), 2, 2, "q"));
  CHECK_EQ(KX_MicroFileConcat(kUnit, &s, mixed.c_str(), 0, &parts), kBadFile);
  // A path without a NUL within its 1024 bytes.
  std::string unterminated(1024, 'a');
  CHECK_EQ(KX_MicroFileConcat2(kUnit, &s, unterminated.data()), kBadParameter);
  CHECK_EQ(KX_MicroFileConcat(kUnit, &s, good.c_str(), 0, nullptr), kBadParameter);

  // None of it touched the image joined first.
  MicroFileInformationRec info{};
  CHECK_EQ(KX_GetMicroFileInformation(&info), 0);
  CHECK_EQ(info.valid, 1);
  CHECK_EQ(std::string(info.micro), std::string("0961/A"));
  CHECK_EQ(KX_GetMicroFileInformation(nullptr), kBadParameter);
  CHECK_EQ(KX_GetNewMicroRevision(nullptr), kBadParameter);
}

std::string rev_main(const ENCRevisionRec& r) { return r.rev_main; }

void enclosure_update() {
  fresh_db("enclosure");
  KXSessionInfoRec s = admin();
  ENCMicroInformationRec mi{};
  CHECK_EQ(KX_GetENCMicroInformationEx(kUnit, &s, &mi), 0);
  CHECK_EQ(rev_main(mi.read_rev.bas_rev), std::string("A0950"));

  std::string p = dir().path + "/enc.pxm";
  write(p, micro_file(kEncHead, 1, 1, std::string(300 * 1024, 'e')));
  CHECK_EQ(KX_ENCMicroFileConcatEx(kUnit, &s, p.c_str(), 2), kBadParameter);
  std::string ctl = dir().path + "/ctl.pxm";
  write(ctl, micro_file(ctl_head("0960/A"), 1, 1, "c"));
  CHECK_EQ(KX_ENCMicroFileConcat(kUnit, &s, ctl.c_str()), kBadFile);
  CHECK_EQ(KX_ENCMicroFileConcat(kUnit, &s, p.c_str()), 0);
  ENCStatusListRec st{};
  CHECK_EQ(KX_GetENCStatusList(kUnit, &s, &st), 0);
  CHECK_EQ(st.exec_status, 1);  // joining
  step_clock(6);
  CHECK_EQ(KX_GetENCMicroInformation(&mi), 0);
  CHECK_EQ(mi.micro_type, 1);
  CHECK_EQ(rev_main(mi.read_rev.bas_rev), std::string("A0970"));
  CHECK_EQ(std::string(mi.read_rev.bas_rev.rev_ses), std::string("S0970"));
  int count = -1, left = -1;
  CHECK_EQ(KX_GetENCMicroDownloadCount(kUnit, &s, &count), 0);
  CHECK_EQ(count, 2);
  CHECK_EQ(KX_ENCMicroReplace(kUnit, &s, 0), kBusy);
  CHECK_EQ(KX_ENCMicroDownload(kUnit, &s, 1, 2, &left), 0);
  CHECK_EQ(left, 1);
  CHECK_EQ(KX_ENCMicroDownload(kUnit, &s, 2, 2, &left), 0);
  CHECK_EQ(left, 0);
  CHECK_EQ(KX_GetENCStatusList(kUnit, &s, &st), 0);
  CHECK_EQ(st.exec_status, 3);
  CHECK_EQ(KX_ENCMicroReplace(kUnit, &s, 0), 0);

  // The controller enclosure first, then drive enclosures 0..3, 20 s each.
  step_clock(25);
  CHECK_EQ(KX_GetENCStatusList(kUnit, &s, &st), 0);
  CHECK_EQ(st.exec_status, 4);
  CHECK_EQ(st.validCTU, 1);
  CHECK_EQ(st.ctu.enc[0].status, 4);
  CHECK_EQ(rev_main(st.ctu.enc[1].enc_rev), std::string("A0970"));
  CHECK_EQ(st.unit[0].enc[0].status, 3);
  CHECK_EQ(rev_main(st.unit[0].enc[0].enc_rev), std::string("A0950"));
  CHECK_EQ(st.unit[1].enc[0].status, 2);
  CHECK_EQ(st.unit[4].enc[0].status, 0);  // no such enclosure
  CHECK_EQ(st.replacetime_min, 2);        // 100 s
  CHECK_EQ(rev_main(st.download_rev.bas_rev), std::string("A0970"));
  CHECK_EQ(KX_CancelENCMicroFileConcat(), kBusy);
  CHECK_EQ(KX_GetENCMicroInformationEx(kUnit, &s, &mi), 0);
  CHECK_EQ(rev_main(mi.read_rev.bas_rev), std::string("A0950"));

  step_clock(80);
  CHECK_EQ(KX_GetENCStatusList(kUnit, &s, &st), 0);
  CHECK_EQ(st.exec_status, 5);
  CHECK_EQ(st.unit[3].enc[1].status, 4);
  CHECK_EQ(KX_GetENCMicroInformationEx(kUnit, &s, &mi), 0);
  CHECK_EQ(rev_main(mi.read_rev.bas_rev), std::string("A0970"));
  CHECK_EQ(std::string(mi.read_rev.bas_rev.rev_ectl), std::string("03"));
  // The finished replacement stays in force when its image is dropped.
  CHECK_EQ(KX_CancelENCMicroFileConcat(), 0);
  CHECK_EQ(KX_GetENCMicroInformationEx(kUnit, &s, &mi), 0);
  CHECK_EQ(rev_main(mi.read_rev.bas_rev), std::string("A0970"));
  CHECK_EQ(KX_GetENCMicroInformation(&mi), 0);
  CHECK_EQ(mi.micro_type, 0);
  // The same revision again is refused at the first transfer.
  CHECK_EQ(KX_ENCMicroFileConcat(kUnit, &s, p.c_str()), 0);
  step_clock(6);
  CHECK_EQ(KX_ENCMicroDownload(kUnit, &s, 1, 2, &left), kExists);
}

void boot_options() {
  fresh_db("boot");
  KXSessionInfoRec s = admin();
  BootOptionRec b{};
  CHECK_EQ(KX_GetBootOption(kUnit, &s, &b), 0);
  CHECK_EQ(std::string(b.vendor), std::string("PERNIX"));
  CHECK_EQ(b.valid_index, 1);

  BootOptionRec want = b;
  want.startup_attr = 2;
  want.delay_time = 120;
  want.drvdetachmode = 1;
  put(want.vendor, "ACME");
  put(want.product, "BIG-BOX 9000");
  put(want.ram_micro, "07");
  CHECK_EQ(KX_TestBootOption(kUnit, &s, &want), 0);
  CHECK_EQ(KX_GetBootOption(kUnit, &s, &b), 0);
  CHECK_EQ(std::string(b.vendor), std::string("PERNIX"));  // a test changes nothing
  CHECK_EQ(KX_SetBootOption(kUnit, &s, &want), 0);
  CHECK_EQ(KX_GetBootOption(kUnit, &s, &b), 0);
  CHECK(std::memcmp(&b, &want, sizeof b) == 0);

  auto refused = [&](auto change) {
    BootOptionRec x = want;
    change(x);
    CHECK_EQ(KX_TestBootOption(kUnit, &s, &x), kBadParameter);
    CHECK_EQ(KX_SetBootOption(kUnit, &s, &x), kBadParameter);
  };
  refused([](BootOptionRec& x) { x.delay_time = 3601; });
  refused([](BootOptionRec& x) { x.startup_attr = 4; });
  refused([](BootOptionRec& x) { x.data_share = -1; });
  refused([](BootOptionRec& x) { std::memset(x.vendor, 'V', sizeof x.vendor); });
  refused([](BootOptionRec& x) { put(x.product, ""); });
  refused([](BootOptionRec& x) { put(x.vendor, "A\tB"); });
  CHECK_EQ(KX_SetBootOption(kUnit, &s, nullptr), kBadParameter);

  ENCDownloadOptionRec e{1};
  CHECK_EQ(KX_SetENCDownloadOption(kUnit, &s, &e), 0);
  e.auto_download_mode = 2;
  CHECK_EQ(KX_SetENCDownloadOption(kUnit, &s, &e), kBadParameter);
  CHECK_EQ(KX_GetENCDownloadOption(kUnit, &s, &e), 0);
  CHECK_EQ(e.auto_download_mode, 1);

  // Export, change, import: the exported state comes back whole.
  std::string f = dir().path + "/boot.txt";
  CHECK_EQ(KX_BootOptionExport(kUnit, &s, f.c_str()), 0);
  std::string text = read_file(f);
  CHECK(text.rfind("pernix-sim boot-option 1\n", 0) == 0);
  CHECK(text.find("\nvendor=ACME\n") != std::string::npos);
  CHECK(text.find("\nenc_auto_download=1\n") != std::string::npos);
  BootOptionRec other = want;
  put(other.vendor, "OTHER");
  CHECK_EQ(KX_SetBootOption(kUnit, &s, &other), 0);
  e.auto_download_mode = 0;
  CHECK_EQ(KX_SetENCDownloadOption(kUnit, &s, &e), 0);
  CHECK_EQ(KX_BootOptionImport(kUnit, &s, f.c_str()), 0);
  CHECK_EQ(KX_GetBootOption(kUnit, &s, &b), 0);
  CHECK(std::memcmp(&b, &want, sizeof b) == 0);
  CHECK_EQ(KX_GetENCDownloadOption(kUnit, &s, &e), 0);
  CHECK_EQ(e.auto_download_mode, 1);

  // Malformed files change nothing.
  CHECK_EQ(KX_SetBootOption(kUnit, &s, &other), 0);
  auto bad = [&](const std::string& name, const std::string& t) {
    std::string p = dir().path + "/" + name;
    write(p, t);
    int rc = KX_BootOptionImport(kUnit, &s, p.c_str());
    if (rc != kBadFile) std::fprintf(stderr, "case %s\n", name.c_str());
    CHECK_EQ(rc, kBadFile);
  };
  auto replace = [&](const std::string& from, const std::string& to) {
    std::string t2 = text;
    t2.replace(t2.find(from), from.size(), to);
    return t2;
  };
  bad("b1", replace("delay_time=120", "delay_time=9999"));
  bad("b2", replace("delay_time=120\n", ""));
  bad("b3", replace("delay_time=120", "delay_time=12x"));
  bad("b4", replace("end\n", ""));
  bad("b5", text + "extra\n");
  bad("b6", replace("vendor=ACME", "vendor=ACMEACMEACME"));
  bad("b7", replace("vendor=ACME", "vendor=ACME\nvendor=ACME"));
  bad("b8", replace("pernix-sim boot-option 1", "boot 1"));
  bad("b9", replace("enc_auto_download=1", "enc_auto_download=3"));
  CHECK_EQ(KX_BootOptionImport(kUnit, &s, (dir().path + "/none.txt").c_str()), kFileError);
  CHECK_EQ(KX_BootOptionExport(kUnit, &s, (dir().path + "/no/such/dir/x").c_str()), kFileError);
  CHECK_EQ(KX_GetBootOption(kUnit, &s, &b), 0);
  CHECK_EQ(std::string(b.vendor), std::string("OTHER"));
  CHECK_EQ(KX_GetENCDownloadOption(kUnit, &s, &e), 0);
  CHECK_EQ(e.auto_download_mode, 1);
}

}  // namespace

int main() {
  controller_update();
  bad_files();
  enclosure_update();
  boot_options();
  return t::finish("firmware_test");
}
