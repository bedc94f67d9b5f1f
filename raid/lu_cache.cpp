// Per-LU cache behaviour: cache partition of each LU, prefetch (staging)
// sizes, prefetch tuning per LU, and the controller-resident ("turbo") LUs.
#include "raid/records.h"
#include "raid/table_kinds.h"

using namespace kx;

KX_SESSION_GETTER(GetPrefetchInformation, PrefetchInformation)

KX_SESSION_SETTER(SetPrefetchInformation, PrefetchInformation)

KX_SESSION_GETTER(GetLuCachePartition, LuCachePartition)

KX_SESSION_SETTER(SetLuCachePartition, LuCachePartition)

KX_SESSION_GETTER(GetPrefetchTuning, PrefetchTuning)

KX_SESSION_SETTER(SetPrefetchTuning, PrefetchTuning)

// Neither turbo-LU native tests the unit name (a null one goes as an empty
// name) or flushes.  The getter keeps its record in this frame and answers a
// record it cannot build with null, reporting nothing.
KX_NATIVE(jobject, GetTurboLU, jstring unit, jobject session) {
  return call(env, kNoFlush, KX_GetTurboLU, UnitUnchecked(unit), Session(session),
              FrameOut(rec::TurboLu, /*quiet=*/true));
}

// The setter refuses to call the library with a record it could not read
// whole: a null object, a null `ctl` or a Java exception left by an element
// reports 2817.  A null element of `ctl` is skipped, its slot left empty.
KX_NATIVE(void, SetTurboLU, jstring unit, jobject session, jobject turbo) {
  call(env, kNoFlush, KX_SetTurboLU, UnitUnchecked(unit), Session(session),
       Required(turbo, rec::TurboLu));
}
