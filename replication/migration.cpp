// Volume migration: reserve LUs, migration requests and their progress.
#include "replication/records.h"

using namespace kx;

KX_SESSION_SETTER(AddLuMigrationReserveLU, LuMigrationReserveLU)

KX_SESSION_SETTER(DeleteLuMigrationReserveLU, LuMigrationReserveLU)

KX_NATIVE(void, StartLuMigration, jstring unit, jobject session, jobject request) {
  call(env, KX_StartLuMigration, Unit(unit), Session(session), In(request, rec::RequestLuMigration));
}

KX_NATIVE(void, CancelLuMigration, jstring unit, jobject session, jobject request) {
  call(env, KX_CancelLuMigration, Unit(unit), Session(session), In(request, rec::RequestLuMigration));
}

KX_NATIVE(void, SplitLuMigration, jstring unit, jobject session, jobject request) {
  call(env, KX_SplitLuMigration, Unit(unit), Session(session), In(request, rec::RequestLuMigration));
}

KX_NATIVE(void, SplitLuMigrationFreeOwner, jstring unit, jobject session, jobject request) {
  call(env, KX_SplitLuMigrationFreeOwner, Unit(unit), Session(session),
       In(request, rec::RequestLuMigration));
}

KX_NATIVE(void, ChangeCopyPace, jstring unit, jobject session, jobject request) {
  call(env, KX_ChangeCopyPace, Unit(unit), Session(session), In(request, rec::RequestLuMigration));
}

KX_SESSION_GETTER(GetLuMigrationState, LuMigrationState)

// Converted before the record is released, and released once.
KX_SESSION_GETTER(GetLuMigrationInformation, LuMigrationInformation)
