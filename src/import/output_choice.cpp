#include "import/output_choice.h"

#include "import/column_assignment.h"
#include "shared/workspace.h"
#include "sweeps/reset_screens.h"

namespace brooklander {
namespace {

void enable_clear_buttons(FrmImportFileDisplay& display, bool enabled) {
    for (const Category& category : categories) (display.*category.clear).set_enabled(enabled);
}

void forget_existing_file(FrmImportFileDisplay& display) {
    display.cmdExistingFileDelete.disable();
    display.frameExistingFile.hide();
    display.lblDeletedFile.clear_text();
}

}  // namespace

void ask_what_file_is_for(Screens& screens) {
    FrmImportFileDisplay& display = screens.frmImportFileDisplay;
    const bool for_characteristics = screens.frmPreferencesSampleOption.chkChar.ticked();
    if (!for_characteristics || display.optAnotherFile.on()) {
        display.frameImportConfirm.show();
        display.frameChar.hide();
    }
    if (for_characteristics) {
        display.frameImportConfirm.hide();
        display.frameChar.show();
    }
}

void cmdYes_Click(Screens& screens) {
    FrmImportFileDisplay& display = screens.frmImportFileDisplay;
    display.chkYes.set_ticked(true);
    display.frameImportConfirm.hide();
    display.hide();
    FrmPreferences& preferences = screens.frmPreferences;
    preferences.show();

    preferences.frameOptions.show();
    clear_options(preferences);
    preferences.optVox.enable();
    preferences.optUseConfig.enable();
    hide_files(preferences);
    preferences.frameConfirm.hide();
    preferences.frameConfirmDelete.hide();
    preferences.lblDescription.hide();
    preferences.set_text("Select Configuration File");
    preferences.set_pointer(Pointer::normal);
    preferences.filePreferences.deselect();

    const std::string output =
        std::string(workspace::converted_files) + screens.frmStart.lblSelectedFile.text();
    display.lblSelectedFile.set_text(output);
    display.txtSave.set_text(output);
}

void forget_file_kind(FrmStart& start) {
    clear_logger_options(start);
    start.chkPreferences.set_ticked(false);
}

void cmdNo_Click(Screens& screens) {
    FrmImportFileDisplay& display = screens.frmImportFileDisplay;
    display.chkYes.set_ticked(false);
    display.hide();
    screens.frmStart.show();
    forget_file_kind(screens.frmStart);
}

void cmdSave_Click(Screens& screens, Files& files) {
    FrmImportFileDisplay& display = screens.frmImportFileDisplay;
    if (display.lblStationVis.empty()) {
        display.frameSameSelections.hide();
        display.cmdFormatConfirm.disable();
    }
    if (screens.frmPreferences.optVox.on())
        display.txtSave.set_text(display.lblSelectedFile.text());
    // The list holds bare names, so that only a bare name in the box can be found there.
    if (display.fileConvertedFiles.find(display.txtSave.text())) {
        display.frameOutputFile.show();
        display.frameExistingFile.show();
    }
    display.cmdSave.disable();
    files.create(display.txtSave.text())->close();
    display.lblDeletedFile.clear_text();
    display.fileConvertedFiles.refresh();

    display.frameActivity.show();
    display.txtActivityID.set_focus();
    display.cmdActivityContinue.disable();
    display.frameCategoryResults.hide();
    display.frameOutputFile.hide();
    display.frameImportedFile.show();
    display.MSFlexKeldarIN.set_selection(Selection::by_column);
}

void txtSave_Change(FrmImportFileDisplay& display) {
    if (display.txtSave.empty()) {
        display.cmdSave.disable();
        display.frameExistingFile.hide();
        return;
    }
    display.cmdSave.enable();
    forget_existing_file(display);
}

void txtSave_Click(FrmImportFileDisplay& display) { forget_existing_file(display); }

void leave_activity_filler(FrmImportFileDisplay& display) {
    display.frameActivity.hide();
    display.mnuExit.disable();
    const bool selections_remain = !display.lblStationVis.empty();
    display.frameSameSelections.set_visible(selections_remain);
    display.frameCategoryResults.show();
    display.cmdContinue.disable();
    enable_clear_buttons(display, !selections_remain);
}

void cmdColumnYes_Click(FrmImportFileDisplay& display) {
    display.frameCategoryResults.show();
    display.cmdContinue.enable();
    display.cmdRowContinue.enable();
    enable_clear_buttons(display, false);
}

void cmdColumnNo_Click(FrmImportFileDisplay& display) {
    display.frameSameSelections.hide();
    display.frameCategoryResults.show();
    display.cmdContinue.enable();
    display.cmdRowContinue.disable();
    for (const Category& category : categories) (display.*category.button).enable();
    enable_clear_buttons(display, true);
}

void cmdFormatContinue_Click(FrmImportFileDisplay& display) {
    display.frameFormat.hide();
    display.frameOutputFile.show();
    display.chkView.set_ticked(true);
    display.txtSave.set_focus();
}

void mnuExit_Click(Screens& screens) {
    screens.frmImportFileDisplay.hide();
    FrmPreferences& preferences = screens.frmPreferences;
    preferences.show();
    clear_options(preferences);
    preferences.frameFiles.hide();
    preferences.frameFileExistsWarning.hide();
    preferences.frameConfirm.hide();
    preferences.frameNewFile.hide();
    preferences.frameView.hide();
    preferences.lblWait.hide();
}

void chkNoPreferences_Click(FrmImport& values) {
    if (values.chkNoPreferences.ticked()) {
        values.chkPreferences.set_ticked(false);
        values.cmdConfirm.show();
    } else if (!values.chkPreferences.ticked()) {
        values.cmdConfirm.hide();
    }
}

}  // namespace brooklander
