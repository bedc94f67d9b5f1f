// RAID groups, logical units, formatting and drives: record descriptions.
#pragma once

#include "core/native.h"
#include "raid.h"
#include "session/records.h"

// ==== RAID groups and logical units ====

KX_RECORD(RaidGroup, RaidGroupRec,
          KX_INT(rgnum), KX_INT(level), KX_INT(port), KX_INT(row), KX_INT(width), KX_INT(depth),
          KX_INT(minimum_capa), KX_INT(lastLBASet), KX_INT(lastLBA), KX_INT(rest_h), KX_INT(rest),
          KX_INT(lumaxcapa), KX_INT(unit_type), KX_INT(unit_type_sub_code));

KX_RECORD(CreateRgDrive, CreateRgDriveRec,
          KX_INT(unit_no), KX_INT(hdu_no));

namespace kx::raid {

// The drive list of a planned RAID group, read over the Java array's length
// but never past its 450 slots; a null list leaves the slots empty and a null
// drive its slot.  A drive that cannot be read leaves its error pending, and
// the list ends there: no JNI call is made while an error is pending.
inline int read_create_drives(JNIEnv* env, jobject obj, const Field& f, void* rec) {
  auto* drives = static_cast<CreateRaidGroupRec*>(rec)->rgdrv;
  LocalRef<jobjectArray> arr(
      env, static_cast<jobjectArray>(jni_get_object(env, obj, f.name, rec::CreateRgDrive.array_sig)));
  if (!arr) return kNullRecord;
  jsize length = env->GetArrayLength(arr.get());
  for (jsize i = 0; i < length && i < PERNIX_CREATE_RG_DRIVES; ++i) {
    if (pending(env)) return kMarshal;
    LocalRef<jobject> drive(env, env->GetObjectArrayElement(arr.get(), i));
    if (pending(env)) return kMarshal;
    read_record(env, drive.get(), rec::CreateRgDrive, &drives[i]);
  }
  return kOk;
}

// All 450 slots, whatever was filled in.
inline int write_create_drives(JNIEnv* env, jobject obj, const Field& f, const void* rec) {
  const auto* drives = static_cast<const CreateRaidGroupRec*>(rec)->rgdrv;
  LocalRef<jobjectArray> arr(env, new_object_array(env, rec::CreateRgDrive.cls, PERNIX_CREATE_RG_DRIVES));
  if (!arr) return kMarshal;
  for (jsize i = 0; i < PERNIX_CREATE_RG_DRIVES; ++i) {
    LocalRef<jobject> drive(env, write_record(env, rec::CreateRgDrive, &drives[i]));
    if (!drive) return kMarshal;
    env->SetObjectArrayElement(arr.get(), i, drive.get());
    if (pending(env)) return kMarshal;
  }
  return jni_set_object(env, obj, f.name, rec::CreateRgDrive.array_sig, arr.get());
}

}  // namespace kx::raid

KX_RECORD(CreateRaidGroup, CreateRaidGroupRec,
          KX_INT(create_mode), KX_INT(rgnum), KX_INT(level), KX_INT(drive_type), KX_INT(drive_capa),
          KX_INT(parity_hdu_count), KX_INT(parity_count),
          KX_CUSTOM(rgdrv, kx::raid::read_create_drives, kx::raid::write_create_drives));

KX_RECORD(RgDetail, RgDetailRec,
          KX_INT(valid_index), KX_INT(rgnum), KX_INT(level), KX_INT(start_unit_no),
          KX_INT(start_hdu_no), KX_INT(parity_hdu_count), KX_INT(parity_count),
          KX_INT(minimum_capa), KX_INT(total_capa_h), KX_INT(total_capa_l), KX_INT(rest_capa_h),
          KX_INT(rest_capa_l), KX_INT(rg_type));

KX_RECORD(RgDriveInfo, RgDriveInfoRec,
          KX_INT(valid_index), KX_INT(next_unit_no), KX_INT(next_hdu_no), KX_INT(paritygroup_no));

// Always 90 groups and 30 rows of 15 drive links, whatever rg_count says.
KX_RECORD(RaidGroupInformation, RaidGroupInformationRec,
          KX_INT(rg_count),
          KX_RECORDS(rg, kx::rec::RgDetail),
          KX_RECORDS2(rgdrv, kx::rec::RgDriveInfo));

KX_RECORD(AreaInfo, AreaInfoRec,
          KX_INT(areakind), KX_INT(lun), KX_INT(befor_lun), KX_INT(area_capa_h), KX_INT(area_capa_l));

// Always 8193 areas, whatever area_count says.
KX_RECORD(RGAreaInformation, RGAreaInformationRec,
          KX_INT(rgnum), KX_INT(lumaxcapa), KX_INT(area_count),
          KX_RECORDS(area, kx::rec::AreaInfo));

KX_RECORD(LogicalUnit, LogicalUnitRec,
          KX_INT(luNumber), KX_INT(rgNumber), KX_INT(raid_level), KX_INT(staging), KX_INT(capacity),
          KX_INT(befor_lun), KX_INT(cachepart_no), KX_INT(pair_cachepart_valid),
          KX_INT(pair_cachepart_no), KX_INT(current_cachepart_no), KX_INT(stripe),
          KX_INT(lu_use_type), KX_INT(defaultCTL), KX_INT(currentCTL), KX_INT(status),
          KX_INT(hostblock), KX_INT(lu_valid), KX_INT(qf_status), KX_INT(correction_status),
          KX_INT(rg_last_lu), KX_INT(unit_type), KX_INT(unit_type_sub_code));

KX_RECORD(LUReallocInfo, LUReallocInfoRec,
          KX_INT(lun), KX_INT(lusize), KX_INT(newlun));

KX_CONVERTERS(RaidGroup, RaidGroup, RaidGroupRec)
KX_CONVERTERS(CreateRgDrive, CreateRgDrive, CreateRgDriveRec)
KX_CONVERTERS(CreateRaidGroup, CreateRaidGroup, CreateRaidGroupRec)
KX_WRITER(RgDetail, RgDetailRec)
KX_WRITER(RgDriveInfo, RgDriveInfoRec)
KX_WRITER(RaidGroupInformation, RaidGroupInformationRec)
KX_CONVERTERS(AreaInfo, AreaInfo, AreaInfoRec)
KX_CONVERTERS(RGAreaInformation, RGAreaInformation, RGAreaInformationRec)
KX_CONVERTERS(LogicalUnit, LogicalUnit, LogicalUnitRec)
KX_READER(LUReallocInfo, LUReallocInfo, LUReallocInfoRec)

// ==== end of RAID groups and logical units ====


// ==== formatting, parity correction and drives ====

// ==== end of formatting, parity correction and drives ====
