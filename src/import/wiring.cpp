#include "import/wiring.h"

#include "import/column_assignment.h"
#include "import/output_choice.h"
#include "shared/workspace.h"

namespace brooklander {

void wire_import(Screens& screens, Platform& platform) {
    FrmImportFileDisplay& display = screens.frmImportFileDisplay;
    display.on_load = [&] {
        display.optVox.set_on(true);
        display.fileConvertedFiles.set_path(workspace::converted_files);
    };
    FrmImport& values = screens.frmImport;
    values.on_load = [&] { values.set_pointer(Pointer::normal); };
    values.mnuExit.on_click = [&] {
        values.hide();
        screens.frmStart.show();
    };
    values.chkNoPreferences.on_click = [&] { chkNoPreferences_Click(values); };

    display.mnuExit.on_click = [&] { mnuExit_Click(screens); };
    display.mnuHelp.on_click = [&] { platform.help.show(workspace::help_file); };

    display.cmdYes.on_click = [&] { cmdYes_Click(screens); };
    display.cmdNo.on_click = [&] { cmdNo_Click(screens); };
    display.cmdSave.on_click = [&] { cmdSave_Click(screens, platform.files); };
    display.txtSave.on_change = [&] { txtSave_Change(display); };
    display.txtSave.on_click = [&] { txtSave_Click(display); };
    display.txtActivityID.on_change = [&] {
        if (!display.txtActivityID.empty()) display.cmdActivityContinue.enable();
    };
    display.cmdActivityContinue.on_click = [&] { leave_activity_filler(display); };
    display.cmdActivitySkip.on_click = [&] { leave_activity_filler(display); };
    display.cmdColumnYes.on_click = [&] { cmdColumnYes_Click(display); };
    display.cmdColumnNo.on_click = [&] { cmdColumnNo_Click(display); };

    display.cmdCharYes.on_click = [&] { cmdCharYes_Click(screens); };
    display.cmdCharNo.on_click = [&] { cmdCharNo_Click(screens); };
    display.cmdFormatContinue.on_click = [&] { cmdFormatContinue_Click(display); };

    for (const Category& category : categories) {
        (display.*category.button).on_click = [&] { choose_category(screens, category); };
        (display.*category.clear).on_click = [&] { clear_category(display, category); };
    }
    display.MSFlexKeldarIN.on_click = [&] { MSFlexKeldarIN_Click(screens); };
    display.cmdContinue.on_click = [&] { cmdContinue_Click(screens); };
    display.cmdCharContinue.on_click = [&] { cmdCharContinue_Click(screens); };
    display.cmdRowClear.on_click = [&] { cmdRowClear_Click(display); };
    display.cmdRowContinue.on_click = [&] { cmdRowContinue_Click(display); };
    display.cmdRowIdBack.on_click = [&] { cmdRowIdBack_Click(display); };
}

}  // namespace brooklander
