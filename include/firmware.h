/* Controller and enclosure microcode, boot options. */
#ifndef PERNIX_FIRMWARE_H
#define PERNIX_FIRMWARE_H

#include "pernix_common.h"
#include "session.h"

#pragma pack(push, 1)

/* ---- controller microcode ---- */

/* Description of the joined microcode image. */
typedef struct MicroFileInformationRec {
  char micro[9];
  uint8_t reserved[3];
  int32_t valid;
  int32_t booting_wait;
} MicroFileInformationRec;
PERNIX_SIZE(MicroFileInformationRec, 20);
PERNIX_OFFSET(MicroFileInformationRec, micro, 0);
PERNIX_OFFSET(MicroFileInformationRec, reserved, 9);
PERNIX_OFFSET(MicroFileInformationRec, valid, 12);
PERNIX_OFFSET(MicroFileInformationRec, booting_wait, 16);

typedef struct MicroReplaceInformationRec {
  int32_t valid;
  int32_t WaitCancelreq;
  int32_t ReplaceCTL;
} MicroReplaceInformationRec;
PERNIX_SIZE(MicroReplaceInformationRec, 12);
PERNIX_OFFSET(MicroReplaceInformationRec, valid, 0);
PERNIX_OFFSET(MicroReplaceInformationRec, WaitCancelreq, 4);
PERNIX_OFFSET(MicroReplaceInformationRec, ReplaceCTL, 8);

/* Buffer of the new revision text. */
enum { PERNIX_MICRO_REVISION_SIZE = 12 };

/* ---- enclosure microcode ---- */

/* Revisions of one enclosure controller's microcode components; each text runs up
 * to the next field. */
typedef struct ENCRevisionRec {
  int32_t valid_index;
  char rev_main[7];
  char rev_boot[3];
  char rev_ectl[3];
  char rev_rtr[7];
  char rev_ses[8];
} ENCRevisionRec;
PERNIX_SIZE(ENCRevisionRec, 32);
PERNIX_OFFSET(ENCRevisionRec, valid_index, 0);
PERNIX_OFFSET(ENCRevisionRec, rev_main, 4);
PERNIX_OFFSET(ENCRevisionRec, rev_boot, 11);
PERNIX_OFFSET(ENCRevisionRec, rev_ectl, 14);
PERNIX_OFFSET(ENCRevisionRec, rev_rtr, 17);
PERNIX_OFFSET(ENCRevisionRec, rev_ses, 24);

typedef struct ENCMicroRevisionRec {
  ENCRevisionRec bas_rev;
  ENCRevisionRec ext_rev;
  ENCRevisionRec ext_rev_plus[1];
} ENCMicroRevisionRec;
PERNIX_SIZE(ENCMicroRevisionRec, 96);
PERNIX_OFFSET(ENCMicroRevisionRec, bas_rev, 0);
PERNIX_OFFSET(ENCMicroRevisionRec, ext_rev, 32);
PERNIX_OFFSET(ENCMicroRevisionRec, ext_rev_plus, 64);

typedef struct ENCMicroInformationRec {
  int32_t kx_type;
  int32_t device_type;
  int32_t micro_type;
  ENCMicroRevisionRec read_rev;
} ENCMicroInformationRec;
PERNIX_SIZE(ENCMicroInformationRec, 108);
PERNIX_OFFSET(ENCMicroInformationRec, kx_type, 0);
PERNIX_OFFSET(ENCMicroInformationRec, device_type, 4);
PERNIX_OFFSET(ENCMicroInformationRec, micro_type, 8);
PERNIX_OFFSET(ENCMicroInformationRec, read_rev, 12);

typedef struct ENCReplaceTimeRec {
  int32_t year;
  int32_t month;
  int32_t day;
  int32_t hour;
  int32_t minute;
  int32_t second;
} ENCReplaceTimeRec;
PERNIX_SIZE(ENCReplaceTimeRec, 24);
PERNIX_OFFSET(ENCReplaceTimeRec, year, 0);
PERNIX_OFFSET(ENCReplaceTimeRec, month, 4);
PERNIX_OFFSET(ENCReplaceTimeRec, day, 8);
PERNIX_OFFSET(ENCReplaceTimeRec, hour, 12);
PERNIX_OFFSET(ENCReplaceTimeRec, minute, 16);
PERNIX_OFFSET(ENCReplaceTimeRec, second, 20);

/* One enclosure controller. */
typedef struct ENCStatusRec {
  int32_t status;
  ENCRevisionRec enc_rev;
} ENCStatusRec;
PERNIX_SIZE(ENCStatusRec, 36);
PERNIX_OFFSET(ENCStatusRec, status, 0);
PERNIX_OFFSET(ENCStatusRec, enc_rev, 4);

/* The controller enclosure and a drive enclosure: two enclosure controllers each. */
typedef struct ENCCTUStatusRec {
  ENCStatusRec enc[2];
} ENCCTUStatusRec;
PERNIX_SIZE(ENCCTUStatusRec, 72);
PERNIX_OFFSET(ENCCTUStatusRec, enc, 0);

typedef struct ENCUnitStatusRec {
  ENCStatusRec enc[2];
} ENCUnitStatusRec;
PERNIX_SIZE(ENCUnitStatusRec, 72);
PERNIX_OFFSET(ENCUnitStatusRec, enc, 0);

enum { PERNIX_DRIVE_ENCLOSURES = 30 };

typedef struct ENCStatusListRec {
  ENCMicroRevisionRec download_rev;
  int32_t exec_status;
  ENCReplaceTimeRec start_time;
  ENCReplaceTimeRec now_time;
  int32_t replacetime_min;
  int32_t replacetime_max;
  int32_t validCTU;
  ENCCTUStatusRec ctu;
  ENCUnitStatusRec unit[PERNIX_DRIVE_ENCLOSURES];
} ENCStatusListRec;
PERNIX_SIZE(ENCStatusListRec, 2392);
PERNIX_OFFSET(ENCStatusListRec, download_rev, 0);
PERNIX_OFFSET(ENCStatusListRec, exec_status, 96);
PERNIX_OFFSET(ENCStatusListRec, start_time, 100);
PERNIX_OFFSET(ENCStatusListRec, now_time, 124);
PERNIX_OFFSET(ENCStatusListRec, replacetime_min, 148);
PERNIX_OFFSET(ENCStatusListRec, replacetime_max, 152);
PERNIX_OFFSET(ENCStatusListRec, validCTU, 156);
PERNIX_OFFSET(ENCStatusListRec, ctu, 160);
PERNIX_OFFSET(ENCStatusListRec, unit, 232);

typedef struct ENCDownloadOptionRec {
  int32_t auto_download_mode;
} ENCDownloadOptionRec;
PERNIX_SIZE(ENCDownloadOptionRec, 4);
PERNIX_OFFSET(ENCDownloadOptionRec, auto_download_mode, 0);

/* ---- boot options ---- */

typedef struct BootOptionRec {
  int32_t support_index;
  int32_t valid_index;
  int32_t startup_attr;
  int32_t data_share;
  int32_t delay_time;
  int32_t drvdetachmode;
  char vendor[9];
  char product[17];
  char rom_micro[3];
  char ram_micro[3];
} BootOptionRec;
PERNIX_SIZE(BootOptionRec, 56);
PERNIX_OFFSET(BootOptionRec, support_index, 0);
PERNIX_OFFSET(BootOptionRec, valid_index, 4);
PERNIX_OFFSET(BootOptionRec, startup_attr, 8);
PERNIX_OFFSET(BootOptionRec, data_share, 12);
PERNIX_OFFSET(BootOptionRec, delay_time, 16);
PERNIX_OFFSET(BootOptionRec, drvdetachmode, 20);
PERNIX_OFFSET(BootOptionRec, vendor, 24);
PERNIX_OFFSET(BootOptionRec, product, 33);
PERNIX_OFFSET(BootOptionRec, rom_micro, 50);
PERNIX_OFFSET(BootOptionRec, ram_micro, 53);

#pragma pack(pop)

PERNIX_BEGIN_DECLS

/* controller microcode */
int KX_MicroFileConcat(const char* unit, const KXSessionInfoRec* session, const char* path,
                       int value, int* result);
int KX_MicroFileConcat2(const char* unit, const KXSessionInfoRec* session, const char* path);
int KX_MicroFileConcatEx(const char* unit, const KXSessionInfoRec* session, const char* path);
int KX_CancelMicroFileConcat(void);
int KX_GetMicroFileInformation(MicroFileInformationRec* info);
int KX_GetNewMicroRevision(char* revision /* [12] */);
int KX_GetMicroDownloadCount(const char* unit, int* count);
int KX_GetMicroDownloadCountEx(const char* unit, int value, int* count);
int KX_MicroDownload(const char* unit, const KXSessionInfoRec* session, int a, int b, int c);
int KX_MicroDownloadEx(const char* unit, const KXSessionInfoRec* session, int a, int b, int c,
                       int d);
int KX_MicroReplace(const char* unit, const KXSessionInfoRec* session, int value);
int KX_MicroReplaceEx(const char* unit, const KXSessionInfoRec* session, int value,
                      MicroReplaceInformationRec* info);
int KX_CompleteMicroReplace(const char* unit, const KXSessionInfoRec* session, int value);

/* enclosure microcode */
int KX_ENCMicroFileConcat(const char* unit, const KXSessionInfoRec* session, const char* path);
int KX_ENCMicroFileConcatEx(const char* unit, const KXSessionInfoRec* session, const char* path,
                            int value);
int KX_CancelENCMicroFileConcat(void);
int KX_GetENCMicroDownloadCount(const char* unit, const KXSessionInfoRec* session, int* count);
int KX_ENCMicroDownload(const char* unit, const KXSessionInfoRec* session, int a, int b,
                        int* result);
int KX_ENCMicroReplace(const char* unit, const KXSessionInfoRec* session, int value);
int KX_GetENCMicroInformation(ENCMicroInformationRec* info);
int KX_GetENCMicroInformationEx(const char* unit, const KXSessionInfoRec* session,
                                ENCMicroInformationRec* info);
int KX_GetENCStatusList(const char* unit, const KXSessionInfoRec* session, ENCStatusListRec* list);
int KX_GetENCDownloadOption(const char* unit, const KXSessionInfoRec* session,
                            ENCDownloadOptionRec* option);
int KX_SetENCDownloadOption(const char* unit, const KXSessionInfoRec* session,
                            const ENCDownloadOptionRec* option);

/* boot options */
int KX_GetBootOption(const char* unit, const KXSessionInfoRec* session, BootOptionRec* option);
int KX_SetBootOption(const char* unit, const KXSessionInfoRec* session,
                     const BootOptionRec* option);
int KX_TestBootOption(const char* unit, const KXSessionInfoRec* session,
                      const BootOptionRec* option);
int KX_BootOptionExport(const char* unit, const KXSessionInfoRec* session, const char* path);
int KX_BootOptionImport(const char* unit, const KXSessionInfoRec* session, const char* path);

PERNIX_END_DECLS

#endif
