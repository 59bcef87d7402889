#include "import/output_choice.h"

#include "import/column_assignment.h"
#include "shared/workspace.h"

namespace brooklander {
namespace {

void enable_clear_buttons(FrmImportFileDisplay& import, bool enabled) {
    for (const Category& category : categories) (import.*category.clear).set_enabled(enabled);
}

void clear_options(FrmPreferences& preferences) {
    preferences.optBrookLanderEdit.set_on(false);
    preferences.optBrooklanderNew.set_on(false);
    preferences.optVox.set_on(false);
    preferences.optUseConfig.set_on(false);
}

void forget_existing_file(FrmImportFileDisplay& import) {
    import.cmdExistingFileDelete.disable();
    import.frameExistingFile.hide();
    import.lblDeletedFile.clear_text();
}

}  // namespace

void cmdYes_Click(Screens& screens) {
    FrmImportFileDisplay& import = screens.frmImportFileDisplay;
    import.chkYes.set_ticked(true);
    import.frameImportConfirm.hide();
    import.hide();
    FrmPreferences& preferences = screens.frmPreferences;
    preferences.show();

    preferences.frameOptions.show();
    clear_options(preferences);
    preferences.optVox.enable();
    preferences.optUseConfig.enable();
    preferences.frameFileConverted.hide();
    preferences.frameFiles.hide();
    preferences.frameConfirm.hide();
    preferences.frameConfirmDelete.hide();
    preferences.frameDescription.hide();
    preferences.lblDescription.hide();
    preferences.lblDefaults.hide();
    preferences.frameNewFile.hide();
    preferences.frameView.hide();
    preferences.frameFileOptions.hide();
    preferences.frameUseFile.hide();
    preferences.set_text("Select Configuration File");
    preferences.set_pointer(Pointer::normal);
    preferences.filePreferences.deselect();

    const std::string output =
        std::string(workspace::converted_files) + screens.frmStart.lblSelectedFile.text();
    import.lblSelectedFile.set_text(output);
    import.txtSave.set_text(output);
}

void cmdNo_Click(Screens& screens) {
    FrmImportFileDisplay& import = screens.frmImportFileDisplay;
    import.chkYes.set_ticked(false);
    import.hide();
    FrmStart& start = screens.frmStart;
    start.show();
    start.optLogNo.set_on(false);
    start.optLogYes.set_on(false);
    start.chkPreferences.set_ticked(false);
}

void cmdSave_Click(Screens& screens, Files& files) {
    FrmImportFileDisplay& import = screens.frmImportFileDisplay;
    if (import.lblStationVis.empty()) {
        import.frameSameSelections.hide();
        import.cmdFormatConfirm.disable();
    }
    if (screens.frmPreferences.optVox.on()) import.txtSave.set_text(import.lblSelectedFile.text());
    // The list holds bare names, so that only a bare name in the box can be found there.
    if (import.fileConvertedFiles.find(import.txtSave.text())) {
        import.frameOutputFile.show();
        import.frameExistingFile.show();
    }
    import.cmdSave.disable();
    files.create(import.txtSave.text())->close();
    import.lblDeletedFile.clear_text();
    import.fileConvertedFiles.refresh();

    import.frameActivity.show();
    import.txtActivityID.set_focus();
    import.cmdActivityContinue.disable();
    import.frameCategoryResults.hide();
    import.frameOutputFile.hide();
    import.frameImportedFile.show();
    import.MSFlexKeldarIN.set_selection(Selection::by_column);
}

void txtSave_Change(FrmImportFileDisplay& import) {
    if (import.txtSave.empty()) {
        import.cmdSave.disable();
        import.frameExistingFile.hide();
        return;
    }
    import.cmdSave.enable();
    forget_existing_file(import);
}

void txtSave_Click(FrmImportFileDisplay& import) { forget_existing_file(import); }

void leave_activity_filler(FrmImportFileDisplay& import) {
    import.frameActivity.hide();
    import.mnuExit.disable();
    const bool selections_remain = !import.lblStationVis.empty();
    import.frameSameSelections.set_visible(selections_remain);
    import.frameCategoryResults.show();
    import.cmdContinue.disable();
    enable_clear_buttons(import, !selections_remain);
}

void cmdColumnYes_Click(FrmImportFileDisplay& import) {
    import.frameCategoryResults.show();
    import.cmdContinue.enable();
    import.cmdRowContinue.enable();
    enable_clear_buttons(import, false);
}

void cmdColumnNo_Click(FrmImportFileDisplay& import) {
    import.frameSameSelections.hide();
    import.frameCategoryResults.show();
    import.cmdContinue.enable();
    import.cmdRowContinue.disable();
    for (const Category& category : categories) (import.*category.button).enable();
    enable_clear_buttons(import, true);
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

}  // namespace brooklander
