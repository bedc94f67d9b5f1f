// Drives, RAID groups, LUs and the settings kept beside them.
#include "sim/model/model.h"

namespace sim {

void create_storage(Db&, const Options&) {}

}  // namespace sim
