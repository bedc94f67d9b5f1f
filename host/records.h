// Host access: record descriptions.
#pragma once

#include "core/native.h"
#include "host.h"
#include "session/records.h"

// ==== host groups and LU mapping ====

// The identifier tables deliver each name twice, from the same bytes: the raw
// buffer as byte[] under the member's name, and a String made with the JVM's
// default charset under "<member>_str".
#define KX_HG_NAME_STRING(m) \
  ::kx::field::bytes<KX_MEMBER_T(m)>(#m "_str", ::kx::Kind::StringUnicode, offsetof(kx_rec_t, m))

// ---- host-group names: 2 controllers of 4 ports of 128 host groups, always
// built in full; read over the Java arrays, never past those capacities.
KX_RECORD(HGInfo, HGInfoRec,
          KX_BYTE(valid),
          KX_STRING(hgname));
KX_RECORD(HGPortInfo, HGPortInfoRec,
          KX_BYTE(security),
          KX_RECORDS(hg, kx::rec::HGInfo));
KX_RECORD(HGCtlInfo, HGCtlInfoRec,
          KX_RECORDS(port, kx::rec::HGPortInfo));
KX_RECORD(HGList, HGListRec,
          KX_BYTE(lun_manage),
          KX_RECORDS(ctl, kx::rec::HGCtlInfo));
KX_RECORD(HGConfig, HGConfigRec,
          KX_STRING(hgname));

// ---- selections to delete or reset: one byte per host group, 128 per port.
KX_RECORD(DeleteHGPortList, DeleteHGPortListRec,
          KX_BYTES(hg));
KX_RECORD(DeleteHGCtlList, DeleteHGCtlListRec,
          KX_RECORDS(port, kx::rec::DeleteHGPortList));
KX_RECORD(DeleteHGList, DeleteHGListRec,
          KX_RECORDS(ctl, kx::rec::DeleteHGCtlList));
KX_RECORD(InitHGPortList, InitHGPortListRec,
          KX_BYTES(hg));
KX_RECORD(InitHGCtlList, InitHGCtlListRec,
          KX_RECORDS(port, kx::rec::InitHGPortList));
KX_RECORD(InitHGList, InitHGListRec,
          KX_RECORDS(ctl, kx::rec::InitHGCtlList));

// ---- host-connection options: 255 host groups per port.  The pad bytes
// behind `security` are never touched.  A null support_index ends the
// reading at once, so the library gets the record as allocated.
KX_RECORD(HGOptionValidIndex, HGOptionValidIndexRec,
          KX_INT(option_valid_index),
          KX_INTS(option2_valid_index),
          KX_INT(option3_valid_index));
KX_RECORD(HGOptionInfo, HGOptionInfoRec,
          KX_INT(option),
          KX_INTS(option2),
          KX_INT(option3),
          KX_INT(platform_id),
          KX_INT(alternate_path_id),
          KX_INT(failover_id),
          KX_INT(special_mode_id));
KX_RECORD(HGOptionPortInfo, HGOptionPortInfoRec,
          KX_BYTE(security),
          KX_INT(hg_tg_max_count),
          KX_RECORDS(hg, kx::rec::HGOptionInfo));
KX_RECORD(HGOptionCtlInfo, HGOptionCtlInfoRec,
          KX_RECORDS(port, kx::rec::HGOptionPortInfo));
KX_RECORD(HGOption, HGOptionRec,
          KX_NESTED(support_index, kx::rec::HGOptionValidIndex),
          KX_NESTED(valid_index, kx::rec::HGOptionValidIndex),
          KX_INT(HostGroupValid),
          KX_RECORDS(ctl, kx::rec::HGOptionCtlInfo));

// ---- LU mapping: 2 x 4 x 255 tables of 256 LU numbers (over 2 MB), built in
// full on every read.
KX_RECORD(LuMappingHGInfo, LuMappingHGInfoRec,
          KX_INTS(lu));
KX_RECORD(LuMappingPortInfo, LuMappingPortInfoRec,
          KX_BYTE(security),
          KX_INT(hg_tg_max_count),
          KX_RECORDS(hg, kx::rec::LuMappingHGInfo));
KX_RECORD(LuMappingCtlInfo, LuMappingCtlInfoRec,
          KX_RECORDS(port, kx::rec::LuMappingPortInfo));
KX_RECORD(LuMapping, LuMappingRec,
          KX_INT(HostGroupValid),
          KX_INT(ctrl_flag),
          KX_INT(mapping_mode),
          KX_RECORDS(ctl, kx::rec::LuMappingCtlInfo));
KX_RECORD(MappingGuardList, MappingGuardListRec,
          KX_BYTES(lumap_guard));

// ---- parameter tables the options are chosen from (written only).  Every
// table is built at its capacity (20 or 30); the counts say how many
// entries are meaningful.
KX_RECORD(PlatFormID, PlatFormIDRec,
          KX_INT(platform_id),
          KX_BYTES(platform_name),
          KX_HG_NAME_STRING(platform_name));
KX_RECORD(AlternatePathID, AlternatePathIDRec,
          KX_INT(alternate_path_id),
          KX_BYTES(alternate_path_name),
          KX_HG_NAME_STRING(alternate_path_name));
KX_RECORD(FailOverID, FailOverIDRec,
          KX_INT(failover_id),
          KX_BYTES(failover_name),
          KX_HG_NAME_STRING(failover_name));
KX_RECORD(SpecialModeID, SpecialModeIDRec,
          KX_INT(specialmode_id),
          KX_BYTES(specialmode_name),
          KX_HG_NAME_STRING(specialmode_name));
KX_RECORD(HGParameterID, HGParameterIDRec,
          KX_INT(plat_id_count),
          KX_RECORDS(platform, kx::rec::PlatFormID),
          KX_INT(altpath_id_count),
          KX_RECORDS(alternatepath, kx::rec::AlternatePathID),
          KX_INT(fail_id_count),
          KX_RECORDS(failover, kx::rec::FailOverID),
          KX_INT(special_id_count),
          KX_RECORDS(specialmode, kx::rec::SpecialModeID));
KX_RECORD(FailoverInfo, FailoverInfoRec,
          KX_INT(failover_id),
          KX_NESTED(hgoptinfo, kx::rec::HGOptionInfo));
KX_RECORD(AlternatePathInfo, AlternatePathInfoRec,
          KX_INT(alternate_path_id),
          KX_INT(failover_count),
          KX_RECORDS(failinfo, kx::rec::FailoverInfo));
KX_RECORD(PlatformInfo, PlatformInfoRec,
          KX_INT(platform_id),
          KX_INT(alternate_path_count),
          KX_RECORDS(altpathinfo, kx::rec::AlternatePathInfo));
KX_RECORD(SpecialmodeInfo, SpecialmodeInfoRec,
          KX_INT(specialmode_id),
          KX_NESTED(hgoptinfo, kx::rec::HGOptionInfo));
KX_RECORD(HGParameterList, HGParameterListRec,
          KX_INT(platform_count),
          KX_RECORDS(platinfo, kx::rec::PlatformInfo),
          KX_INT(special_mode_count),
          KX_RECORDS(specialinfo, kx::rec::SpecialmodeInfo));

#undef KX_HG_NAME_STRING

KX_CONVERTERS(HGInfo, HGInfo, HGInfoRec)
KX_CONVERTERS(HGPortInfo, HGPortInfo, HGPortInfoRec)
KX_CONVERTERS(HGCtlInfo, HGCtlInfo, HGCtlInfoRec)
KX_CONVERTERS(HGList, HGList, HGListRec)
KX_CONVERTERS(HGConfig, HGConfig, HGConfigRec)
KX_CONVERTERS(DeleteHGPortList, DeleteHGPortList, DeleteHGPortListRec)
KX_CONVERTERS(DeleteHGCtlList, DeleteHGCtlList, DeleteHGCtlListRec)
KX_CONVERTERS(DeleteHGList, DeleteHGList, DeleteHGListRec)
KX_CONVERTERS(InitHGPortList, InitHGPortList, InitHGPortListRec)
KX_CONVERTERS(InitHGCtlList, InitHGCtlList, InitHGCtlListRec)
KX_CONVERTERS(InitHGList, InitHGList, InitHGListRec)
KX_CONVERTERS(HGOptionValidIndex, HGOptionValidIndex, HGOptionValidIndexRec)
KX_CONVERTERS(HGOptionInfo, HGOptionInfo, HGOptionInfoRec)
KX_CONVERTERS(HGOptionPortInfo, HGOptionPortInfo, HGOptionPortInfoRec)
KX_CONVERTERS(HGOptionCtlInfo, HGOptionCtlInfo, HGOptionCtlInfoRec)
KX_CONVERTERS(HGOption, HGOption, HGOptionRec)
KX_CONVERTERS(LuMappingHGInfo, LuMappingHGInfo, LuMappingHGInfoRec)
KX_CONVERTERS(LuMappingPortInfo, LuMappingPortInfo, LuMappingPortInfoRec)
KX_CONVERTERS(LuMappingCtlInfo, LuMappingCtlInfo, LuMappingCtlInfoRec)
KX_CONVERTERS(LuMapping, LuMapping, LuMappingRec)
KX_CONVERTERS(MappingGuardList, MappingGuardList, MappingGuardListRec)
KX_WRITER(PlatFormID, PlatFormIDRec)
KX_WRITER(AlternatePathID, AlternatePathIDRec)
KX_WRITER(FailOverID, FailOverIDRec)
KX_WRITER(SpecialModeID, SpecialModeIDRec)
KX_WRITER(HGParameterID, HGParameterIDRec)
KX_WRITER(FailoverInfo, FailoverInfoRec)
KX_WRITER(AlternatePathInfo, AlternatePathInfoRec)
KX_WRITER(PlatformInfo, PlatformInfoRec)
KX_WRITER(SpecialmodeInfo, SpecialmodeInfoRec)
KX_WRITER(HGParameterList, HGParameterListRec)

// ==== end of host groups and LU mapping ====

// ==== Fibre Channel ports, WWN security and target IDs ====

KX_RECORD(FibreInformationPermission, FibreInformationPermissionRec,
          KX_STRING(node_name),
          KX_STRING(port_name),
          KX_STRING(n_port_id),
          KX_BYTES(lun_security_bitmap));

KX_CONVERTERS(FibreInformationPermission, FibreInformationPermission, FibreInformationPermissionRec)

// ==== end of Fibre Channel ports, WWN security and target IDs ====

// ==== iSCSI ports, targets, initiators and CHAP ====

// ==== end of iSCSI ports, targets, initiators and CHAP ====

// ==== LU guard and retention ====

// ==== end of LU guard and retention ====
