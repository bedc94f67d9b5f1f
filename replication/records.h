// Copy pairs, command devices, differential-management LUs and volume
// migration: record descriptions.
#pragma once

#include "core/native.h"
#include "replication.h"
#include "session/records.h"

namespace kx {
// The sequence number of a command device: read from Java with a limit of 5
// (four characters and a NUL, the reserved bytes behind them untouched),
// written to Java from the whole eight-byte field.
int read_sequence_no(JNIEnv* env, jobject obj, const Field& f, void* rec);
int write_sequence_no(JNIEnv* env, jobject obj, const Field& f, const void* rec);
}  // namespace kx

// ---- snapshot pairs

KX_RECORD(PoolDetailCapa, PoolDetailCapaRec,
          KX_INT(pool_no), KX_INT(poolcapa_h), KX_INT(poolcapa_l));

KX_RECORD(PoolCtlCapa, PoolCtlCapaRec,
          KX_INT(pool_enable_count), KX_RECORDS(pool, kx::rec::PoolDetailCapa));

KX_RECORD(PairCreateTime, PairCreateTimeRec,
          KX_INT(year), KX_INT(month), KX_INT(day), KX_INT(hour), KX_INT(minute), KX_INT(second));

KX_RECORD(MirrorLUInfo, MirrorLUInfoRec,
          KX_INT(mirror_no), KX_INT(lun), KX_INT(ctl_no), KX_INT(pool_no), KX_INT(pair_status),
          KX_INT(usedcapa), KX_INT(changed_rate), KX_NESTED(time, kx::rec::PairCreateTime));

// All 15 mirrors, whatever mirror_count says.
KX_RECORD(PairLUInfo, PairLUInfoRec,
          KX_INT(lun), KX_INT(capacity), KX_INT(pool_usedcapa_h), KX_INT(pool_usedcapa_l),
          KX_INT(pool_usedrate), KX_INT(mirror_count), KX_RECORDS(m_info, kx::rec::MirrorLUInfo));

// All 2046 LUs, whatever pair_count says.
KX_RECORD(PairInfo, PairInfoRec,
          KX_INT(option), KX_RECORDS(ctl, kx::rec::PoolCtlCapa), KX_INT(pair_count),
          KX_RECORDS(lu, kx::rec::PairLUInfo));

// ---- in-array volume copies

KX_RECORD(MirrexLuInfo, MirrexLuInfoRec,
          KX_INT(lun), KX_INT(pair_status), KX_INT(pair_attr), KX_INT(changed_rate),
          KX_STRING(remote_type), KX_STRING(remote_serial), KX_STRING(remote_ldev));

KX_RECORD(MirrexInformation, MirrexInformationRec,
          KX_INT(option), KX_INT(pair_count), KX_RECORDS(lu, kx::rec::MirrexLuInfo));

// ---- remote pairs

KX_RECORD(FarsyncLuInfo, FarsyncLuInfoRec,
          KX_INT(support_index), KX_INT(valid_index), KX_INT(lun), KX_INT(pair_status),
          KX_INT(pair_attr), KX_INT(changed_rate), KX_STRING(remote_serial), KX_INT(remote_lu));

KX_RECORD(FarsyncPairInformation, FarsyncPairInformationRec,
          KX_INT(option), KX_INT(pair_count), KX_RECORDS(lu, kx::rec::FarsyncLuInfo));

KX_RECORD(DateTime, DateTimeRec,
          KX_INT(year), KX_INT(month), KX_INT(day), KX_INT(hour), KX_INT(minute), KX_INT(second));

KX_RECORD(FarsyncAsyncLuInfo, FarsyncAsyncLuInfoRec,
          KX_INT(lun), KX_INT(pair_status), KX_INT(pair_attr), KX_INT(ctg_num), KX_INT(lu_capacity),
          KX_INT(remote_lu), KX_STRING(remote_serial), KX_INT(member_valid),
          KX_INT(synchronized_rate), KX_INT(difference_capacity), KX_INT(difference_rate),
          KX_NESTED(synchronized_time, kx::rec::DateTime));

KX_RECORD(KXApiTime, KXApiTimeRec,
          KX_INT(hour), KX_INT(minute), KX_INT(second));

KX_RECORD(FarsyncAsyncCTGCTLInfo, FarsyncAsyncCTGCTLInfoRec,
          KX_INT(ctg_valid), KX_NESTED(lapsed_time, kx::rec::KXApiTime), KX_INT(remains_difference),
          KX_INT(rate_status), KX_INT(transfer_rate), KX_INT(prediction_status),
          KX_NESTED(prediction_time, kx::rec::KXApiTime));

KX_RECORD(FarsyncAsyncCTGInfo, FarsyncAsyncCTGInfoRec,
          KX_RECORDS(ctl, kx::rec::FarsyncAsyncCTGCTLInfo));

KX_RECORD(FarsyncAsyncPairInformation, FarsyncAsyncPairInformationRec,
          KX_INT(option), KX_INT(pair_count), KX_RECORDS(lu, kx::rec::FarsyncAsyncLuInfo),
          KX_RECORDS(ctg, kx::rec::FarsyncAsyncCTGInfo));

KX_RECORD(FarsyncAsyncOption, FarsyncAsyncOptionRec,
          KX_INT(option), KX_INT(support_index), KX_INT(valid_index), KX_INT(ctrl_flag),
          KX_INT(set_index), KX_INT(cycle_time));

// ---- coupled LUs

KX_RECORD(CouplingLU, CouplingLURec,
          KX_INT(primary_stat), KX_INT(second_stat), KX_INT(primary_lu), KX_INT(second_lu),
          KX_INT(primary_switch_stat), KX_INT(second_switch_stat), KX_INT(mirror_no));

KX_RECORD(CouplingInfo, CouplingInfoRec,
          KX_INT(volk_lite), KX_INT(coupling_num), KX_RECORDS(coupling, kx::rec::CouplingLU));

// ---- command devices, DMLUs and the remote array

KX_RECORD(CmdDevInfo, CmdDevInfoRec,
          KX_INT(cmd_valid), KX_INT(set_valid), KX_INT(cmd_lu), KX_INT(rm_security));

// cmddev is read over the Java array's length, never past its two slots.
KX_RECORD(CommandDevice, CommandDeviceRec,
          KX_INT(volk_lite), KX_INT(mode), KX_INTS(valid), KX_INTS(lu), KX_INTS(security),
          KX_UNCHECKED(KX_CUSTOM(sequence_no, kx::read_sequence_no, kx::write_sequence_no)),
          KX_INT(cmd_count), KX_RECORDS(cmddev, kx::rec::CmdDevInfo));

KX_RECORD(DMLUDetail, DMLUDetailRec,
          KX_INT(dmlu_valid), KX_INT(set_valid), KX_INT(dmlu_lu));

// dmlu is read over the Java array's length, never past its two slots.
KX_RECORD(DMLUInformation, DMLUInformationRec,
          KX_INT(mode), KX_INT(dmlu_count), KX_RECORDS(dmlu, kx::rec::DMLUDetail));

// The two bytes behind the serial are not converted.
KX_RECORD(RemoteDeviceInformation, RemoteDeviceInformationRec,
          KX_INT(valid), KX_STRING(equipment_id), KX_STRING(serial));

KX_WRITER(PoolDetailCapa, PoolDetailCapaRec)
KX_WRITER(PoolCtlCapa, PoolCtlCapaRec)
KX_WRITER(PairCreateTime, PairCreateTimeRec)
KX_WRITER(MirrorLUInfo, MirrorLUInfoRec)
KX_WRITER(PairLUInfo, PairLUInfoRec)
KX_WRITER(PairInfo, PairInfoRec)
KX_WRITER(MirrexLuInfo, MirrexLuInfoRec)
KX_WRITER(MirrexInformation, MirrexInformationRec)
KX_WRITER(FarsyncLuInfo, FarsyncLuInfoRec)
KX_WRITER(FarsyncPairInformation, FarsyncPairInformationRec)
KX_WRITER(DateTime, DateTimeRec)
KX_WRITER(FarsyncAsyncLuInfo, FarsyncAsyncLuInfoRec)
KX_WRITER(KXApiTime, KXApiTimeRec)
KX_WRITER(FarsyncAsyncCTGCTLInfo, FarsyncAsyncCTGCTLInfoRec)
KX_WRITER(FarsyncAsyncCTGInfo, FarsyncAsyncCTGInfoRec)
KX_WRITER(FarsyncAsyncPairInformation, FarsyncAsyncPairInformationRec)
KX_CONVERTERS(FarsyncAsyncOption, FarsyncAsyncOption, FarsyncAsyncOptionRec)
KX_WRITER(CouplingLU, CouplingLURec)
KX_WRITER(CouplingInfo, CouplingInfoRec)
KX_CONVERTERS(CmdDevInfo, CmdDevInfo, CmdDevInfoRec)
KX_CONVERTERS(CommandDevice, CommandDevice, CommandDeviceRec)
KX_CONVERTERS(DMLUDetail, DMLUDetail, DMLUDetailRec)
KX_CONVERTERS(DMLUInformation, DMLUInformation, DMLUInformationRec)
KX_CONVERTERS(RemoteDeviceInformation, RemoteDeviceInformation, RemoteDeviceInformationRec)

// ---- volume migration

KX_RECORD(LuMigrationReserveLU, LuMigrationReserveLURec,
          KX_BYTES(reserve_lu));

KX_RECORD(LuMigrationRequestPairInfo, LuMigrationRequestPairInfoRec,
          KX_INT(pvol_lun), KX_INT(svol_lun), KX_INT(copying_pace));

// The pairs are read over the Java array's length, never past the 2047 slots;
// request_pair_count goes as it is read.
KX_RECORD(RequestLuMigration, RequestLuMigrationRec,
          KX_INT(request_pair_count), KX_INT(owner_id),
          KX_RECORDS(lu, kx::rec::LuMigrationRequestPairInfo));

KX_RECORD(LuMigrationState, LuMigrationStateRec,
          KX_INTS(lun));

KX_RECORD(LuMigrationReserveLUInfo, LuMigrationReserveLUInfoRec,
          KX_INT(lun), KX_INT(lu_state));

KX_RECORD(LuMigrationPairInfo, LuMigrationPairInfoRec,
          KX_INT(pvol_lun), KX_INT(pvol_rg_num), KX_INT(svol_lun), KX_INT(svol_rg_num),
          KX_INT(copying_pace), KX_INT(owner_id), KX_INT(migration_state), KX_INT(percent),
          KX_INT(migration_error));

// All 2047 slots of both lists, whatever the counts say.
KX_RECORD(LuMigrationInformation, LuMigrationInformationRec,
          KX_INT(option), KX_INT(reserve_lu_count), KX_INT(pair_lu_count),
          KX_RECORDS(reserve_lu, kx::rec::LuMigrationReserveLUInfo),
          KX_RECORDS(pair_lu, kx::rec::LuMigrationPairInfo));

KX_CONVERTERS(LuMigrationReserveLU, LuMigrationReserveLU, LuMigrationReserveLURec)
KX_READER(LuMigrationRequestPairInfo, LuMigrationRequestPairInfo, LuMigrationRequestPairInfoRec)
KX_READER(RequestLuMigration, RequestLuMigration, RequestLuMigrationRec)
KX_WRITER(LuMigrationState, LuMigrationStateRec)
KX_CONVERTERS(LuMigrationReserveLUInfo, LuMigrationReserveLUInfo, LuMigrationReserveLUInfoRec)
KX_WRITER(LuMigrationPairInfo, LuMigrationPairInfoRec)
KX_WRITER(LuMigrationInformation, LuMigrationInformationRec)
