// The logon: whether the typed user id and password open the database.
#pragma once

#include "logon/start_screen.h"
#include "platform/database.h"

namespace brooklander {

// Shows OK exactly while both boxes hold something.
void offer_logon(FrmStart& start);

// A click into a box empties it, so that a correction retypes the whole entry.
void retype(FrmStart& start, TextBox& box);

// Tries the connection. Whatever the cause of a failure, the same one sentence tells it. The Files
// menu comes on first and stays on after a failure: queries of later screens then tell it.
void cmdUIDok_Click(FrmStart& start, Database& database);

// Back to the logon after a failure, with both boxes empty.
void cmdOracleErrorOk_Click(FrmStart& start);

}  // namespace brooklander
