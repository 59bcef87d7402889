#include "configuration/configuration_manager.h"

#include "characteristics/defaults_file.h"
#include "configuration/configuration_file.h"
#include "configuration/configuration_name.h"
#include "shared/text.h"
#include "shared/workspace.h"

namespace brooklander {
namespace {

// What any option leaves behind: the offer to make a file, and the question whether to delete one.
void leave_other_options(FrmPreferences& preferences) {
    preferences.frameNoFile.hide();
    preferences.frameConfirmDelete.hide();
}

void offer_files(Screens& screens) {
    FrmPreferences& preferences = screens.frmPreferences;
    leave_other_options(preferences);
    preferences.lblOption.set_text("View or edit a Configuration File created in Brooklander.");
    preferences.frameNewFile.hide();
    preferences.frameView.hide();
    preferences.frameFileExistsWarning.hide();
    preferences.frameConfirm.hide();
    preferences.frameFiles.show();
    preferences.txtFileName.clear_text();
    preferences.lblSelectedFile.clear_text();
    preferences.cmdNewFileSave.disable();
    screens.frmStart.chkPreferences.set_ticked(true);
}

}  // namespace

void load_configuration_manager(FrmPreferences& preferences) {
    preferences.filePreferences.set_path(workspace::configurations);
    set_defaults_headings(preferences.MSFlexCharacteristics);
    if (!preferences.lblSelectedFile.empty()) {
        preferences.lblViewFileName.set_text(preferences.lblSelectedFile.text());
    }
}

void optBrookLanderEdit_Click(Screens& screens) { offer_files(screens); }

void optBrooklanderNew_Click(Screens& screens) {
    FrmPreferences& preferences = screens.frmPreferences;
    leave_other_options(preferences);
    preferences.lblOption.set_text(
        "This Sets Default Values For The KELDAR Activity Information That Will Be Added To The "
        "Files Being Converted.  Click HELP for details.");
    screens.frmStart.chkPreferences.set_ticked(true);
    ask_for_name(preferences);
    preferences.frameFileConverted.hide();
    preferences.frameView.hide();
    preferences.frameFiles.hide();
    preferences.frameFileExistsWarning.hide();
    preferences.frameConfirm.hide();
    clear_values(preferences);
    screens.frmPreferencesCharacteristics.lblChar.clear_text();
    screens.frmPreferencesSettings.lblOrganizationName.clear_text();
}

void optUseConfig_Click(Screens& screens) {
    if (screens.frmPreferences.filePreferences.count() == 0) {
        screens.frmPreferences.frameNoFile.show();
        return;
    }
    offer_files(screens);
    screens.frmImportFileDisplay.frameVOX.hide();
}

void mnuExit_Click(Screens& screens, FrmPreferences& preferences) {
    preferences.lblWait.hide();
    preferences.hide();
    FrmStart& start = screens.frmStart;
    start.show();
    start.cmdView.set_enabled(!trim(start.lblSelectedFile.text()).empty());
}

}  // namespace brooklander
