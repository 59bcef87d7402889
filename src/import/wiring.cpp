#include "import/wiring.h"

#include "import/column_assignment.h"
#include "import/output_choice.h"
#include "shared/workspace.h"

namespace brooklander {

void wire_import(Screens& screens, Platform& platform) {
    FrmImportFileDisplay& import = screens.frmImportFileDisplay;
    import.on_load = [&] {
        import.optVox.set_on(true);
        import.fileConvertedFiles.set_path(workspace::converted_files);
    };
    import.mnuExit.on_click = [&] { mnuExit_Click(screens); };
    import.mnuHelp.on_click = [&] { platform.help.show(workspace::help_file); };

    import.cmdYes.on_click = [&] { cmdYes_Click(screens); };
    import.cmdNo.on_click = [&] { cmdNo_Click(screens); };
    import.cmdSave.on_click = [&] { cmdSave_Click(screens, platform.files); };
    import.txtSave.on_change = [&] { txtSave_Change(import); };
    import.txtSave.on_click = [&] { txtSave_Click(import); };
    import.txtActivityID.on_change = [&] {
        if (!import.txtActivityID.empty()) import.cmdActivityContinue.enable();
    };
    import.cmdActivityContinue.on_click = [&] { leave_activity_filler(import); };
    import.cmdActivitySkip.on_click = [&] { leave_activity_filler(import); };
    import.cmdColumnYes.on_click = [&] { cmdColumnYes_Click(import); };
    import.cmdColumnNo.on_click = [&] { cmdColumnNo_Click(import); };

    for (const Category& category : categories) {
        (import.*category.button).on_click = [&] { choose_category(screens, category); };
        (import.*category.clear).on_click = [&] { clear_category(import, category); };
    }
    import.MSFlexKeldarIN.on_click = [&] { MSFlexKeldarIN_Click(screens); };
    import.cmdContinue.on_click = [&] { cmdContinue_Click(screens); };
    import.cmdCharContinue.on_click = [&] { cmdCharContinue_Click(screens); };
    import.cmdRowClear.on_click = [&] { cmdRowClear_Click(import); };
    import.cmdRowContinue.on_click = [&] { cmdRowContinue_Click(import); };
    import.cmdRowIdBack.on_click = [&] { cmdRowIdBack_Click(import); };
}

}  // namespace brooklander
