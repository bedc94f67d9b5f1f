// Host access: record descriptions.
#pragma once

#include "core/native.h"
#include "host.h"
#include "session/records.h"

// ==== host groups and LU mapping ====

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
