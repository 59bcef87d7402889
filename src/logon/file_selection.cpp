#include "logon/file_selection.h"

#include "import/column_assignment.h"
#include "import/import_table.h"
#include "import/output_choice.h"
#include "sweeps/reset_screens.h"

namespace brooklander {
namespace {

void reset_selection(FrmStart& start) {
    clear_logger_options(start);
    start.frameLog.hide();
    start.lblSelectedFile.clear_text();
    start.cmdView.disable();
}

// The depth's Clear button is left as it is.
void enable_categories(FrmImportFileDisplay& display) {
    for (const Category& category : categories) {
        (display.*category.button).enable();
        if (category.clear != &FrmImportFileDisplay::cmdDepthClear) {
            (display.*category.clear).enable();
        }
    }
}

}  // namespace

void mnuImport_Click(Screens& screens) {
    FrmStart& start = screens.frmStart;
    start.frameFiles.show();
    start.frameAbout.hide();
    start.frameLog.hide();
    start.chkPreferences.set_ticked(false);

    FrmImportFileDisplay& display = screens.frmImportFileDisplay;
    display.frameSameSelections.hide();
    display.frameVOX.hide();
    enable_categories(display);

    FrmPreferences& preferences = screens.frmPreferences;
    preferences.optBrookLanderEdit.disable();
    preferences.optBrooklanderNew.disable();
    preferences.optVox.enable();
    preferences.optVox.set_on(false);
    preferences.optUseConfig.disable();

    start.Dir1.set_path("c:\\");
    if (display.lblStationVis.empty()) display.frameSameSelections.hide();
}

void Drive1_Change(FrmStart& start) {
    start.Dir1.set_path(start.Drive1.text());
    reset_selection(start);
}

void Dir1_Change(FrmStart& start) {
    start.lstImportFileBox.set_path(start.Dir1.path());
    reset_selection(start);
}

void Dir1_Click(FrmStart& start) {
    start.lblAvailableFiles.show();
    start.lstImportFileBox.show();
    start.lstImportFileBox.enable();
    start.Dir1.open_selected();
}

void lstImportFileBox_Click(Screens& screens) {
    FrmStart& start = screens.frmStart;
    FrmImportFileDisplay& display = screens.frmImportFileDisplay;
    const std::string name = start.lstImportFileBox.text();
    start.lblSelectedFile.set_text(name);
    display.lblSelectedFile.set_text(name);
    screens.frmPreferences.lblFileConverted.set_text(name);
    display.MSFlexKeldarIN.clear();

    start.frameLog.hide();
    start.optLogYes.set_on(false);
    start.optLogNo.set_on(true);
    start.cmdView.enable();
}

void cmdView_Click(Screens& screens, const Files& files) {
    FrmStart& start = screens.frmStart;
    FrmImportFileDisplay& display = screens.frmImportFileDisplay;
    const bool for_configuration = start.chkPreferences.ticked();
    start.cmdView.disable();
    display.frameChar.set_visible(for_configuration);
    display.frameImportConfirm.set_visible(!for_configuration);
    display.frameCharColumn.hide();
    display.cmdCharContinue.disable();
    screens.frmPreferences.mnuExit.enable();
    display.MSFlexResults.set_rows(0);
    display.MSFlexKeldarIN.clear();

    start.hide();
    display.show();
    display.mnuExit.disable();
    display.cmdSave.disable();
    display.frameImportedFile.show();

    ask_what_file_is_for(screens);
    const std::string path = start.lstImportFileBox.path() + "\\" + start.lblSelectedFile.text();
    display.lblSelectedFile.set_text(path);
    load_import_table(screens, files, path);
}

}  // namespace brooklander
