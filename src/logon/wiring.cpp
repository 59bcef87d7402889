#include "logon/wiring.h"

#include "logon/file_selection.h"
#include "logon/logon.h"
#include "logon/menus.h"
#include "shared/workspace.h"

namespace brooklander {

void wire_logon(Screens& screens, Platform& platform) {
    FrmStart& start = screens.frmStart;
    start.on_load = [&] { enter_workspace(platform.files); };

    start.txtOracleID.on_change = [&] { offer_logon(start); };
    start.txtOraclePassWord.on_change = [&] { offer_logon(start); };
    start.txtOracleID.on_click = [&] { retype(start, start.txtOracleID); };
    start.txtOraclePassWord.on_click = [&] { retype(start, start.txtOraclePassWord); };
    start.txtOracleID.enter_presses = &start.cmdUIDok;
    start.txtOraclePassWord.enter_presses = &start.cmdUIDok;
    start.cmdUIDok.on_click = [&] { cmdUIDok_Click(start, platform.database); };
    start.cmdOracleErrorOk.on_click = [&] { cmdOracleErrorOk_Click(start); };

    start.mnuImport.on_click = [&] { mnuImport_Click(screens); };
    start.Drive1.on_click = [&] { Drive1_Change(start); };
    start.Dir1.on_change = [&] { Dir1_Change(start); };
    start.Dir1.on_click = [&] { Dir1_Click(start); };
    start.lstImportFileBox.on_click = [&] { lstImportFileBox_Click(screens); };
    start.optLogYes.on_click = [&] { start.cmdView.enable(); };
    start.optLogNo.on_click = [&] { start.cmdView.enable(); };
    start.cmdView.on_click = [&] { cmdView_Click(screens, platform.files); };

    start.mnuLogger.on_click = [&] { mnuLogger_Click(screens, platform.database); };
    start.mnuPreferences.on_click = [&] { mnuPreferences_Click(screens); };
    start.mnuHelp.on_click = [&] { platform.help.show(workspace::help_file); };
    start.mnuAbout.on_click = [&] { start.frameAbout.show(); };
    start.mnuAboutClose.on_click = [&] { start.frameAbout.hide(); };
    start.mnuExit.on_click = [&] { start.frameExit.show(); };
    start.cmdNo.on_click = [&] { start.frameExit.hide(); };
    start.cmdYes.on_click = [&] {
        start.frameAbout.hide();
        start.frameExit.hide();
        screens.ended = true;
    };
}

}  // namespace brooklander
