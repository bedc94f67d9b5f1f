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

KX_RECORD(FibreInformationConnector, FibreInformationConnectorRec,
          KX_INT(topology_ref));

// Speeds and frame size are unsigned bytes: 0xFF reads 255.
KX_RECORD(FibreInformationPort, FibreInformationPortRec,
          KX_STRING(node_name),
          KX_STRING(port_name),
          KX_STRING(n_port_id),
          KX_STRING(get_address),
          KX_BYTE(frame_size),
          KX_BYTE(if_board),
          KX_BYTE(support_speed),
          KX_BYTE(set_speed),
          KX_BYTE(refer_speed),
          KX_INT(connect_valid),
          KX_RECORDS(connect, kx::rec::FibreInformationConnector));

KX_RECORD(FibreInformationSfc, FibreInformationSfcRec,
          KX_STRING(biu),
          KX_STRING(sequence),
          KX_STRING(oper_firmware),
          KX_STRING(post_firmware),
          KX_STRING(endec),
          KX_STRING(fc_ph));

// The guard flags are signed bytes: 0xFF reads -1.  Always 128 permissions,
// whatever permission_count says.
KX_RECORD(FibreInformationSecurity, FibreInformationSecurityRec,
          KX_BYTE(access_guard),
          KX_BYTE(all_lun_security),
          KX_INT(permission_count),
          KX_INT(security_chk_lv),
          KX_RECORDS(permission, kx::rec::FibreInformationPermission));

// One controller: 4 ports of 2 connectors, 4 interface records and 4 security
// tables.  lun_security is a signed byte.
KX_RECORD(FibreInformation, FibreInformationRec,
          KX_BYTE(lun_security),
          KX_INT(port_valid),
          KX_INTS(topology),
          KX_INTS(topology_ref),
          KX_RECORDS(port, kx::rec::FibreInformationPort),
          KX_RECORDS(sfc, kx::rec::FibreInformationSfc),
          KX_RECORDS(security, kx::rec::FibreInformationSecurity),
          KX_STRING(product_number));

// ---- the older WWN permission table: 2 controllers of 4 ports of 128 names

KX_RECORD(WWNPermInfo, WWNPermInfoRec,
          KX_STRING(node_name),
          KX_STRING(port_name),
          KX_BYTES(lun_security_bitmap));

KX_RECORD(WWNPortInfo, WWNPortInfoRec,
          KX_INT(lun_security),
          KX_INT(permission_count),
          KX_INT(security_chk_lv),
          KX_RECORDS(permission, kx::rec::WWNPermInfo));

KX_RECORD(WWNCtlInfo, WWNCtlInfoRec,
          KX_RECORDS(port, kx::rec::WWNPortInfo));

KX_RECORD(WWNInformation, WWNInformationRec,
          KX_INT(lun_security_opt),
          KX_RECORDS(ctl, kx::rec::WWNCtlInfo));

// ---- world wide names in host groups: the one-byte flags are unsigned

KX_RECORD(WWNHostInfo, WWNHostInfoRec,
          KX_STRING(node_name),
          KX_STRING(port_name),
          KX_BYTE(hostflag),
          KX_INT(hg_number),
          KX_STRING(wname));

KX_RECORD(WWNHGPortInfo, WWNHGPortInfoRec,
          KX_BYTE(security),
          KX_INT(wwn_count),
          KX_RECORDS(wwn, kx::rec::WWNHostInfo));

KX_RECORD(WWNHGCtlInfo, WWNHGCtlInfoRec,
          KX_RECORDS(port, kx::rec::WWNHGPortInfo));

KX_RECORD(WWNHGInformation, WWNHGInformationRec,
          KX_BYTE(lun_manage),
          KX_RECORDS(ctl, kx::rec::WWNHGCtlInfo));

// ---- port option words

KX_RECORD(PortOptionValidIndex, PortOptionValidIndexRec,
          KX_INT(lip_mode_valid_index),
          KX_INT(port_common_opt_valid_index));

KX_RECORD(PortOptionCtlInfo, PortOptionCtlInfoRec,
          KX_INTS(lip_mode),
          KX_INTS(port_common_opt));

KX_RECORD(PortOption, PortOptionRec,
          KX_NESTED(support_index, kx::rec::PortOptionValidIndex),
          KX_NESTED(valid_index, kx::rec::PortOptionValidIndex),
          KX_RECORDS(ctl, kx::rec::PortOptionCtlInfo));

// ---- target IDs: `single` is a signed byte; every configuration carries
// its 16 LUN lists.  The WZ classes imported from a pair of files are the
// set-up wizard's own records (raid/records.h), of the same layout.

KX_RECORD(TargetLunList, TargetLunListRec,
          KX_BYTES(lun));

KX_RECORD(TargetConfig, TargetConfigRec,
          KX_BYTE(single),
          KX_BYTES(multi),
          KX_RECORDS(mapping, kx::rec::TargetLunList));

KX_RECORD(TargetId, TargetIdRec,
          KX_INT(ctrl_flag),
          KX_INT(target_id_mode),
          KX_RECORDS(target_config, kx::rec::TargetConfig));

KX_CONVERTERS(FibreInformationConnector, FibreInformationConnector, FibreInformationConnectorRec)
KX_CONVERTERS(FibreInformationPort, FibreInformationPort, FibreInformationPortRec)
KX_CONVERTERS(FibreInformationSfc, FibreInformationSfc, FibreInformationSfcRec)
KX_CONVERTERS(FibreInformationSecurity, FibreInformationSecurity, FibreInformationSecurityRec)
KX_CONVERTERS(FibreInformation, FibreInformation, FibreInformationRec)
KX_CONVERTERS(WWNPermInfo, WWNPermInfo, WWNPermInfoRec)
KX_CONVERTERS(WWNPortInfo, WWNPortInfo, WWNPortInfoRec)
KX_CONVERTERS(WWNCtlInfo, WWNCtlInfo, WWNCtlInfoRec)
KX_CONVERTERS(WWNInformation, WWNInformation, WWNInformationRec)
KX_CONVERTERS(WWNHostInfo, WWNHostInfo, WWNHostInfoRec)
KX_CONVERTERS(WWNHGPortInfo, WWNHGPortInfo, WWNHGPortInfoRec)
KX_CONVERTERS(WWNHGCtlInfo, WWNHGCtlInfo, WWNHGCtlInfoRec)
KX_CONVERTERS(WWNHGInformation, WWNHGInformation, WWNHGInformationRec)
KX_CONVERTERS(PortOptionValidIndex, PortOptionValidIndex, PortOptionValidIndexRec)
KX_CONVERTERS(PortOptionCtlInfo, PortOptionCtlInfo, PortOptionCtlInfoRec)
KX_CONVERTERS(PortOption, PortOption, PortOptionRec)
KX_CONVERTERS(TargetLunList, TargetLunList, TargetLunListRec)
KX_CONVERTERS(TargetConfig, TargetConfig, TargetConfigRec)
KX_CONVERTERS(TargetId, TargetId, TargetIdRec)

// ==== end of Fibre Channel ports, WWN security and target IDs ====

// ==== iSCSI ports, targets, initiators and CHAP ====

KX_RECORD(KXiSCSIPortPortInfo, KXiSCSIPortPortInfoRec,
          KX_INT(port_valid),
          KX_INT(set_valid),
          KX_STRING(ip_address),
          KX_STRING(subnet),
          KX_STRING(gateway),
          KX_INT(port_num),
          KX_STRING(ether),
          KX_INT(keep_alive_timer),
          KX_INT(mtu),
          KX_INT(set_status));

KX_RECORD(KXiSCSIPortCTLInfo, KXiSCSIPortCTLInfoRec,
          KX_RECORDS(port, kx::rec::KXiSCSIPortPortInfo));

KX_RECORD(KXiSCSIPortInformation, KXiSCSIPortInformationRec,
          KX_RECORDS(ctl, kx::rec::KXiSCSIPortCTLInfo));

// `secret` is a CHAP secret: a record holding one is cleared before release.
KX_RECORD(KXiSCSITargetInfo, KXiSCSITargetInfoRec,
          KX_INT(target_valid),
          KX_STRING(target_name),
          KX_STRING(iscsi_name),
          KX_INT(authmethod),
          KX_INT(algorithm),
          KX_INT(auth),
          KX_STRING(user_name),
          KX_STRING(secret));

// Always 255 target slots per port, whatever target_count says.
KX_RECORD(KXiSCSITargetPortInfo, KXiSCSITargetPortInfoRec,
          KX_INT(port_valid),
          KX_INT(security),
          KX_INT(target_max_count),
          KX_INT(target_count),
          KX_RECORDS(target, kx::rec::KXiSCSITargetInfo));

KX_RECORD(KXiSCSITargetCTLInfo, KXiSCSITargetCTLInfoRec,
          KX_RECORDS(port, kx::rec::KXiSCSITargetPortInfo));

KX_RECORD(KXiSCSITargetInformationAll, KXiSCSITargetInformationAllRec,
          KX_INT(option),
          KX_RECORDS(ctl, kx::rec::KXiSCSITargetCTLInfo));

KX_RECORD(DeleteiSCSITarget, DeleteiSCSITargetRec,
          KX_INTS(delete_target));

KX_RECORD(KXiSCSIInitiatorInfo, KXiSCSIInitiatorInfoRec,
          KX_INT(initiator_valid),
          KX_INT(ctrl_flag),
          KX_STRING(initiator_name),
          KX_STRING(iscsi_name),
          KX_BYTES(target_bitmap));

KX_RECORD(KXiSCSIInitiatorPortInfo, KXiSCSIInitiatorPortInfoRec,
          KX_INT(port_valid),
          KX_INT(security),
          KX_INT(initiator_max_count),
          KX_INT(initiator_count),
          KX_RECORDS(initiator, kx::rec::KXiSCSIInitiatorInfo));

KX_RECORD(KXiSCSIInitiatorCTLInfo, KXiSCSIInitiatorCTLInfoRec,
          KX_RECORDS(port, kx::rec::KXiSCSIInitiatorPortInfo));

KX_RECORD(KXiSCSIInitiatorInformationAll, KXiSCSIInitiatorInformationAllRec,
          KX_INT(option),
          KX_RECORDS(ctl, kx::rec::KXiSCSIInitiatorCTLInfo));

KX_RECORD(KXiSCSILoginInitiatorInfo, KXiSCSILoginInitiatorInfoRec,
          KX_INT(initiator_valid),
          KX_STRING(iscsi_name));

KX_RECORD(KXiSCSILoginInitiatorPortInfo, KXiSCSILoginInitiatorPortInfoRec,
          KX_INT(port_valid),
          KX_INT(initiator_max_count),
          KX_INT(initiator_count),
          KX_RECORDS(initiator, kx::rec::KXiSCSILoginInitiatorInfo));

KX_RECORD(KXiSCSILoginInitiatorCTLInfo, KXiSCSILoginInitiatorCTLInfoRec,
          KX_RECORDS(port, kx::rec::KXiSCSILoginInitiatorPortInfo));

KX_RECORD(KXiSCSILoginInitiatorInformationAll, KXiSCSILoginInitiatorInformationAllRec,
          KX_RECORDS(ctl, kx::rec::KXiSCSILoginInitiatorCTLInfo));

// `secret` is a CHAP secret, as for targets.
KX_RECORD(KXiSCSICHAPUserInfo, KXiSCSICHAPUserInfoRec,
          KX_INT(user_valid),
          KX_INT(ctrl_flag),
          KX_STRING(user_name),
          KX_STRING(secret),
          KX_BYTES(target_bitmap));

KX_RECORD(KXiSCSICHAPUserPortInfo, KXiSCSICHAPUserPortInfoRec,
          KX_INT(port_valid),
          KX_INT(security),
          KX_INT(user_max_count),
          KX_INT(user_count),
          KX_RECORDS(user, kx::rec::KXiSCSICHAPUserInfo));

KX_RECORD(KXiSCSICHAPUserCTLInfo, KXiSCSICHAPUserCTLInfoRec,
          KX_RECORDS(port, kx::rec::KXiSCSICHAPUserPortInfo));

KX_RECORD(KXiSCSICHAPUserInformationAll, KXiSCSICHAPUserInformationAllRec,
          KX_INT(option),
          KX_RECORDS(ctl, kx::rec::KXiSCSICHAPUserCTLInfo));

KX_RECORD(KXiSNSPortInfo, KXiSNSPortInfoRec,
          KX_INT(port_valid),
          KX_INT(set_valid),
          KX_INT(isns_use),
          KX_STRING(ip_address),
          KX_INT(port_num));

KX_RECORD(KXiSNSCTLInfo, KXiSNSCTLInfoRec,
          KX_RECORDS(port, kx::rec::KXiSNSPortInfo));

KX_RECORD(KXiSNSInformation, KXiSNSInformationRec,
          KX_RECORDS(ctl, kx::rec::KXiSNSCTLInfo));

KX_RECORD(KXiSCSIPingPort, KXiSCSIPingPortRec,
          KX_INT(port_valid),
          KX_INT(request_valid),
          KX_STRING(ip_address),
          KX_INT(status),
          KX_INT(execute_count),
          KX_INT(success_count),
          KX_INT(schedule_count));

KX_RECORD(KXiSCSIPingCTL, KXiSCSIPingCTLRec,
          KX_RECORDS(port, kx::rec::KXiSCSIPingPort));

KX_RECORD(KXiSCSIPing, KXiSCSIPingRec,
          KX_RECORDS(ctl, kx::rec::KXiSCSIPingCTL));

KX_CONVERTERS(KXiSCSIPortPortInfo, KXiSCSIPortPortInfo, KXiSCSIPortPortInfoRec)
KX_CONVERTERS(KXiSCSIPortCTLInfo, KXiSCSIPortCTLInfo, KXiSCSIPortCTLInfoRec)
KX_CONVERTERS(KXiSCSIPortInformation, KXiSCSIPortInformation, KXiSCSIPortInformationRec)
KX_CONVERTERS(KXiSCSITargetInfo, KXiSCSITargetInfo, KXiSCSITargetInfoRec)
KX_CONVERTERS(KXiSCSITargetPortInfo, KXiSCSITargetPortInfo, KXiSCSITargetPortInfoRec)
KX_CONVERTERS(KXiSCSITargetCTLInfo, KXiSCSITargetCTLInfo, KXiSCSITargetCTLInfoRec)
KX_CONVERTERS(KXiSCSITargetInformationAll, KXiSCSITargetInformationAll, KXiSCSITargetInformationAllRec)
KX_CONVERTERS(DeleteiSCSITarget, DeleteiSCSITarget, DeleteiSCSITargetRec)
KX_CONVERTERS(KXiSCSIInitiatorInfo, KXiSCSIInitiatorInfo, KXiSCSIInitiatorInfoRec)
KX_CONVERTERS(KXiSCSIInitiatorPortInfo, KXiSCSIInitiatorPortInfo, KXiSCSIInitiatorPortInfoRec)
KX_CONVERTERS(KXiSCSIInitiatorCTLInfo, KXiSCSIInitiatorCTLInfo, KXiSCSIInitiatorCTLInfoRec)
KX_CONVERTERS(KXiSCSIInitiatorInformationAll, KXiSCSIInitiatorInformationAll,
              KXiSCSIInitiatorInformationAllRec)
KX_CONVERTERS(KXiSCSILoginInitiatorInfo, KXiSCSILoginInitiatorInfo, KXiSCSILoginInitiatorInfoRec)
KX_CONVERTERS(KXiSCSILoginInitiatorPortInfo, KXiSCSILoginInitiatorPortInfo,
              KXiSCSILoginInitiatorPortInfoRec)
KX_CONVERTERS(KXiSCSILoginInitiatorCTLInfo, KXiSCSILoginInitiatorCTLInfo,
              KXiSCSILoginInitiatorCTLInfoRec)
KX_CONVERTERS(KXiSCSILoginInitiatorInformationAll, KXiSCSILoginInitiatorInformationAll,
              KXiSCSILoginInitiatorInformationAllRec)
KX_CONVERTERS(KXiSCSICHAPUserInfo, KXiSCSICHAPUserInfo, KXiSCSICHAPUserInfoRec)
KX_CONVERTERS(KXiSCSICHAPUserPortInfo, KXiSCSICHAPUserPortInfo, KXiSCSICHAPUserPortInfoRec)
KX_CONVERTERS(KXiSCSICHAPUserCTLInfo, KXiSCSICHAPUserCTLInfo, KXiSCSICHAPUserCTLInfoRec)
KX_CONVERTERS(KXiSCSICHAPUserInformationAll, KXiSCSICHAPUserInformationAll,
              KXiSCSICHAPUserInformationAllRec)
KX_CONVERTERS(KXiSNSPortInfo, KXiSNSPortInfo, KXiSNSPortInfoRec)
KX_CONVERTERS(KXiSNSCTLInfo, KXiSNSCTLInfo, KXiSNSCTLInfoRec)
KX_CONVERTERS(KXiSNSInformation, KXiSNSInformation, KXiSNSInformationRec)
KX_CONVERTERS(KXiSCSIPingPort, KXiSCSIPingPort, KXiSCSIPingPortRec)
KX_CONVERTERS(KXiSCSIPingCTL, KXiSCSIPingCTL, KXiSCSIPingCTLRec)
KX_CONVERTERS(KXiSCSIPing, KXiSCSIPing, KXiSCSIPingRec)

// ==== end of iSCSI ports, targets, initiators and CHAP ====

// ==== LU guard and retention ====

KX_RECORD(LuGuard, LuGuardRec,
          KX_INT(lu_valid),
          KX_INT(capacity),
          KX_INT(access_level_valid),
          KX_INT(access_level_status),
          KX_INT(access_level),
          KX_INT(svol_disable),
          KX_INT(access_inhibit_mode),
          KX_INT(access_attr),
          KX_INT(changeable_attr),
          KX_INT(retention_term));

// Always all 4096 LUs.
KX_RECORD(LuGuardInformation, LuGuardInformationRec,
          KX_INT(option),
          KX_INT(expirationlock),
          KX_RECORDS(lu, kx::rec::LuGuard));

KX_RECORD(LuAccessLevel, LuAccessLevelRec,
          KX_INT(lu),
          KX_INT(access_level),
          KX_INT(retention_term));

KX_CONVERTERS(LuGuard, LuGuard, LuGuardRec)
KX_CONVERTERS(LuGuardInformation, LuGuardInformation, LuGuardInformationRec)
KX_CONVERTERS(LuAccessLevel, LuAccessLevel, LuAccessLevelRec)

// ==== end of LU guard and retention ====
