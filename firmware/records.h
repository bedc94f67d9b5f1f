// Controller and enclosure microcode, boot options: record descriptions.
#pragma once

#include "core/native.h"
#include "firmware.h"
#include "session/records.h"

// ---- controller microcode

// The three bytes behind the revision text are not converted.
KX_RECORD(MicroFileInformation, MicroFileInformationRec,
          KX_STRING(micro), KX_INT(valid), KX_INT(booting_wait));

KX_RECORD(MicroReplaceInformation, MicroReplaceInformationRec,
          KX_INT(valid), KX_INT(WaitCancelreq), KX_INT(ReplaceCTL));

KX_CONVERTERS(MicroFileInformation, MicroFileInformation, MicroFileInformationRec)
KX_CONVERTERS(MicroReplaceInformation, MicroReplaceInformation, MicroReplaceInformationRec)

// ---- enclosure microcode

KX_RECORD(ENCRevision, ENCRevisionRec,
          KX_INT(valid_index), KX_STRING(rev_main), KX_STRING(rev_boot), KX_STRING(rev_ectl),
          KX_STRING(rev_rtr), KX_STRING(rev_ses));

// ext_rev_plus is an array of exactly one revision.
KX_RECORD(ENCMicroRevision, ENCMicroRevisionRec,
          KX_NESTED(bas_rev, kx::rec::ENCRevision),
          KX_NESTED(ext_rev, kx::rec::ENCRevision),
          KX_RECORDS(ext_rev_plus, kx::rec::ENCRevision));

KX_RECORD(ENCMicroInformation, ENCMicroInformationRec,
          KX_INT(kx_type), KX_INT(device_type), KX_INT(micro_type),
          KX_NESTED(read_rev, kx::rec::ENCMicroRevision));

KX_RECORD(ENCReplaceTime, ENCReplaceTimeRec,
          KX_INT(year), KX_INT(month), KX_INT(day), KX_INT(hour), KX_INT(minute), KX_INT(second));

KX_RECORD(ENCStatus, ENCStatusRec,
          KX_INT(status), KX_NESTED(enc_rev, kx::rec::ENCRevision));

KX_RECORD(ENCCTUStatus, ENCCTUStatusRec,
          KX_RECORDS(enc, kx::rec::ENCStatus));

KX_RECORD(ENCUnitStatus, ENCUnitStatusRec,
          KX_RECORDS(enc, kx::rec::ENCStatus));

// All 30 drive enclosures are built, whatever the unit has.
KX_RECORD(ENCStatusList, ENCStatusListRec,
          KX_NESTED(download_rev, kx::rec::ENCMicroRevision),
          KX_INT(exec_status),
          KX_NESTED(start_time, kx::rec::ENCReplaceTime),
          KX_NESTED(now_time, kx::rec::ENCReplaceTime),
          KX_INT(replacetime_min), KX_INT(replacetime_max), KX_INT(validCTU),
          KX_NESTED(ctu, kx::rec::ENCCTUStatus),
          KX_RECORDS(unit, kx::rec::ENCUnitStatus));

KX_RECORD(ENCDownloadOption, ENCDownloadOptionRec,
          KX_INT(auto_download_mode));

KX_WRITER(ENCRevision, ENCRevisionRec)
KX_WRITER(ENCMicroRevision, ENCMicroRevisionRec)
KX_WRITER(ENCMicroInformation, ENCMicroInformationRec)
KX_WRITER(ENCReplaceTime, ENCReplaceTimeRec)
KX_WRITER(ENCStatus, ENCStatusRec)
KX_WRITER(ENCCTUStatus, ENCCTUStatusRec)
KX_WRITER(ENCUnitStatus, ENCUnitStatusRec)
KX_WRITER(ENCStatusList, ENCStatusListRec)
KX_CONVERTERS(ENCDownloadOption, ENCDownloadOption, ENCDownloadOptionRec)

// ---- boot options

KX_RECORD(BootOption, BootOptionRec,
          KX_INT(support_index), KX_INT(valid_index), KX_INT(startup_attr), KX_INT(data_share),
          KX_INT(delay_time), KX_INT(drvdetachmode),
          KX_STRING(vendor), KX_STRING(product), KX_STRING(rom_micro), KX_STRING(ram_micro));

KX_CONVERTERS(BootOption, BootOption, BootOptionRec)
