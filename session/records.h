// Session token and unit-login credentials.
#pragma once

#include "core/native.h"
#include "session.h"

KX_RECORD(KXSessionInfo, KXSessionInfoRec,
          KX_UNCHECKED(KX_BYTES(session_id)));

KX_RECORD(KXUserInfo, KXUserInfoRec,
          KX_STRING(user),
          KX_STRING(passwd));

KX_CONVERTERS(KXSessionInfo, KXSessionInfo, KXSessionInfoRec)
KX_CONVERTERS(KXUserInfo, KXUserInfo, KXUserInfoRec)

namespace kx {
// The 32-byte session record every session-taking native hands the library.
inline In<KXSessionInfoRec> Session(jobject session) { return {session, rec::KXSessionInfo}; }
}  // namespace kx

// The two commonest natives: KX_<Name>(unit, session, record) that fills one
// record returned as a new Java object of `Class`, and one that hands over a
// record read from a Java object of `Class`.
#define KX_SESSION_GETTER(Name, Class)                                                      \
  KX_NATIVE(jobject, Name, jstring unit, jobject session) {                                 \
    return ::kx::call(env, KX_##Name, ::kx::Unit(unit), ::kx::Session(session),             \
                      ::kx::Out(::kx::rec::Class));                                         \
  }
#define KX_SESSION_SETTER(Name, Class)                                                      \
  KX_NATIVE(void, Name, jstring unit, jobject session, jobject record) {                    \
    ::kx::call(env, KX_##Name, ::kx::Unit(unit), ::kx::Session(session),                    \
               ::kx::In(record, ::kx::rec::Class));                                         \
  }

// ---- unit registry and discovery

KX_RECORD(KXUnitParam, KXUnitParamRec,
          KX_STRING(unit_name),
          KX_STRING(group_name),
          KX_BYTE(connect_type),
          KX_BYTE(kx_type),
          KX_BYTE(device_type),
          KX_BYTE(unit_conf),
          KX_BYTE(alert),
          KX_STRING(ctl0),
          KX_STRING(ctl1),
          KX_STRING(serial));

KX_RECORD(DiscoverEntry, DiscoverEntryRec,
          KX_BYTE(connect_type),
          KX_STRING(ip_dev));

KX_RECORD(DiscoverUnit, DiscoverUnitRec,
          KX_BYTE(connect_type),
          KX_STRING(ip_dev),
          KX_BYTE(kx_type),
          KX_BYTE(device_type),
          KX_BYTE(unit_conf),
          KX_BYTE(ctlno),
          KX_STRING(serial));

KX_CONVERTERS(UnitParam, KXUnitParam, KXUnitParamRec)
KX_CONVERTERS(DiscoverEntry, DiscoverEntry, DiscoverEntryRec)
KX_CONVERTERS(DiscoverUnit, DiscoverUnit, DiscoverUnitRec)

// ---- unit identity

KX_RECORD(ControllerInfo, ControllerInfoRec,
          KX_INT(ctrl_name_mode),
          KX_STRING(id_front),
          KX_STRING(id_rear));

KX_RECORD(UnitIdentifier, UnitIdentifierRec,
          KX_STRING(equipment_id),
          KX_RECORDS(ctl, kx::rec::ControllerInfo));

KX_RECORD(GUIInitialize, GUIInitializeRec,
          KX_STRING(damp_path));

KX_CONVERTERS(ControllerInfo, ControllerInfo, ControllerInfoRec)
KX_CONVERTERS(UnitIdentifier, UnitIdentifier, UnitIdentifierRec)
KX_READER(GUIInitialize, GUIInitialize, GUIInitializeRec)

// ---- unit condition report

namespace kx {
// Writes the connector bytes of a unit condition as a new byte[2][4][2]
// (controller, port, byte), the bytes kept as they are.
int write_connector_table(JNIEnv* env, jobject obj, const Field& f, const void* rec);
}  // namespace kx

KX_RECORD(CacheStatus, CacheStatusRec,
          KX_INT(option),
          KX_INT(condition));

KX_RECORD(NNCExtensionSlotStatus, NNCExtensionSlotStatusRec,
          KX_INT(valid_index),
          KX_BYTE(card_state),
          KX_BYTE(card_type),
          KX_BYTE_TABLE(connector_state));

KX_RECORD(NNCPartsStatus, NNCPartsStatusRec,
          KX_INT(valid_index),
          KX_BYTE_TABLE(dimm),
          KX_BYTE_TABLE(ps),
          KX_BYTE_TABLE(fan),
          KX_BYTE_TABLE(connector),
          KX_BYTE(nnc_type),
          KX_RECORDS(ext_slot, kx::rec::NNCExtensionSlotStatus),
          KX_BYTE(nnc_base));

KX_RECORD(UnitCondition, UnitConditionRec,
          KX_STRING(micro),
          KX_STRING(micro_pair),
          KX_INT(max_slot),
          KX_RECORDS(cache, kx::rec::CacheStatus),
          KX_RECORDS(cache2, kx::rec::CacheStatus),
          KX_BYTE_TABLE(ps),
          KX_BYTE_TABLE(fan),
          KX_BYTE_TABLE(ac),
          KX_BYTE_TABLE(batt),
          KX_BYTE_TABLE(batt_bk),
          KX_BYTE_TABLE(optionBoard_2port),
          KX_BYTE_TABLE(ctl0_port),
          KX_BYTE_TABLE(ctl1_port),
          KX_BYTE_TABLE(ctl0_port_type),
          KX_BYTE_TABLE(ctl1_port_type),
          KX_CUSTOM(connector, nullptr, kx::write_connector_table),
          KX_BYTE(device_type),
          KX_BYTE(device_type_KXM_sub_code),
          KX_STRING(ctl0_flush),
          KX_STRING(ctl1_flush),
          KX_STRING(ctl0_ip),
          KX_STRING(ctl1_ip),
          KX_STRING(ctl0_subnet),
          KX_STRING(ctl1_subnet),
          KX_STRING(ctl0_gateway),
          KX_STRING(ctl1_gateway),
          KX_BYTE(controller_condition),
          KX_BYTE_TABLE(enclosure),
          KX_BYTE_TABLE(loop),
          KX_STRING(serial),
          KX_INT(add_info_index),
          KX_INT(unit_count),
          KX_BYTE_TABLE(unit_type),
          KX_BYTE_TABLE(unit_type_sub_code),
          KX_BYTE_TABLE(unit_kind),
          KX_BYTE_TABLE(nnc),
          KX_RECORDS(nnc_parts, kx::rec::NNCPartsStatus),
          KX_BYTE_TABLE(function_revision),
          KX_INT(ctl_num));

KX_WRITER(CacheStatus, CacheStatusRec)
KX_WRITER(NNCExtensionSlotStatus, NNCExtensionSlotStatusRec)
KX_WRITER(NNCPartsStatus, NNCPartsStatusRec)
KX_WRITER(UnitCondition, UnitConditionRec)
