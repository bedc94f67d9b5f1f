/* Host access: host groups and LU mapping, Fibre Channel ports, WWN security,
 * target IDs, iSCSI and LU guard. */
#ifndef PERNIX_HOST_H
#define PERNIX_HOST_H

#include "pernix_common.h"
#include "session.h"

/* ==== host groups and LU mapping ==== */

/* ==== end of host groups and LU mapping ==== */

/* ==== Fibre Channel ports, WWN security and target IDs ==== */

#pragma pack(push, 1)

/* One host world wide name allowed on a port, with the LUs it may reach. */
typedef struct FibreInformationPermissionRec {
  char node_name[17];
  char port_name[17];
  char n_port_id[7];
  uint8_t lun_security_bitmap[256]; /* 2048 bits, one per LU */
} FibreInformationPermissionRec;
PERNIX_SIZE(FibreInformationPermissionRec, 297);
PERNIX_OFFSET(FibreInformationPermissionRec, node_name, 0);
PERNIX_OFFSET(FibreInformationPermissionRec, port_name, 17);
PERNIX_OFFSET(FibreInformationPermissionRec, n_port_id, 34);
PERNIX_OFFSET(FibreInformationPermissionRec, lun_security_bitmap, 41);

#pragma pack(pop)

/* ==== end of Fibre Channel ports, WWN security and target IDs ==== */

/* ==== iSCSI ports, targets, initiators and CHAP ==== */

/* ==== end of iSCSI ports, targets, initiators and CHAP ==== */

/* ==== LU guard and retention ==== */

/* ==== end of LU guard and retention ==== */

#endif
