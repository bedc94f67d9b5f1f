// RAID groups, logical units, formatting and drives: record descriptions.
#pragma once

#include "core/native.h"
#include "raid.h"
#include "session/records.h"

// ==== RAID groups and logical units ====

// ==== end of RAID groups and logical units ====


// ==== formatting, parity correction and drives ====

// ==== end of formatting, parity correction and drives ====
