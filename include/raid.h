/* RAID groups, logical units, formatting and parity correction, drives. */
#ifndef PERNIX_RAID_H
#define PERNIX_RAID_H

#include "pernix_common.h"
#include "session.h"

/* ==== RAID groups and logical units ==== */

/* ==== end of RAID groups and logical units ==== */


/* ==== formatting, parity correction and drives ==== */

/* ==== end of formatting, parity correction and drives ==== */

#endif
