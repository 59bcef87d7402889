#include "logon/logon.h"

#include "platform/fatal_failure.h"
#include "shared/workspace.h"
#include "sweeps/keldar.h"

namespace brooklander {

void offer_logon(FrmStart& start) {
    start.cmdUIDok.set_visible(!start.txtOracleID.empty() && !start.txtOraclePassWord.empty());
}

void retype(FrmStart& start, TextBox& box) {
    box.clear_text();
    start.cmdUIDok.hide();
}

void cmdUIDok_Click(FrmStart& start, Database& database) {
    start.mnuFiles.enable();
    start.filePreferences.set_path(workspace::configurations);
    start.set_pointer(Pointer::busy);
    start.frameOracleLogon.hide();
    try {
        database.try_connect(keldar_connect_string(start));
        start.set_pointer(Pointer::normal);
    } catch (const FatalFailure&) {
        start.set_pointer(Pointer::normal);
        start.frameOracleError.show();
        start.frameOracleLogon.hide();
        start.frameFiles.hide();
    }
}

void cmdOracleErrorOk_Click(FrmStart& start) {
    start.frameOracleError.hide();
    start.txtOracleID.clear_text();
    start.txtOraclePassWord.clear_text();
    start.frameOracleLogon.show();
    start.cmdUIDok.hide();
    start.txtOracleID.set_focus();
}

}  // namespace brooklander
