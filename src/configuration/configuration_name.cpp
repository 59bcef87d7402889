#include "configuration/configuration_name.h"

#include <initializer_list>

#include "configuration/configuration_file.h"
#include "configuration/time_zones.h"
#include "shared/text.h"
#include "shared/workspace.h"
#include "sweeps/keldar.h"
#include "sweeps/reset_screens.h"

namespace brooklander {
namespace {

void name_new_file_everywhere(Screens& screens) {
    for (Label* label : std::initializer_list<Label*>{
             &screens.frmPreferencesSettings.lblFileName,
             &screens.frmPreferencesSamples.lblFileName,
             &screens.frmPreferencesSampleOption.lblFileName,
             &screens.frmPreferencesCharacteristics.lblFileName,
             &screens.frmCharacteristicDetails.lblFileName,
             &screens.frmImportFileDisplay.lblSelectedFile, &screens.frmCharSource.lblFile,
             &screens.frmCharacteristics.lblFile}) {
        label->set_text(screens.frmPreferences.txtFileName.text());
    }
}

// With nothing chosen, whatever an edit that was left has put on the screens: the organization
// comes first.
void begin_new_file(Screens& screens) {
    reset(screens.frmPreferencesSettings);
    reset(screens.frmPreferencesSamples);
    reset(screens.frmPreferencesSampleOption);
    screens.frmPreferencesSettings.frameActivity.hide();
    screens.frmCharacteristicDetails.cmdSave.enable();
    screens.frmPreferencesCharacteristics.cmdSaveAs.disable();
    name_new_file_everywhere(screens);
    screens.frmPreferences.hide();
    screens.frmPreferencesSettings.show();
}

}  // namespace

void ask_for_name(FrmPreferences& preferences) {
    preferences.frameNewFile.show();
    preferences.txtFileName.clear_text();
    preferences.txtFileName.set_focus();
    preferences.cmdNewFileSave.disable();
}

void cmdCreate_Click(FrmPreferences& preferences) {
    preferences.frameNoFile.hide();
    ask_for_name(preferences);
}

void txtFileName_Change(FrmPreferences& preferences) {
    if (preferences.txtFileName.empty()) return;
    preferences.cmdNewFileSave.enable();
    preferences.frameFileExistsWarning.hide();
    preferences.frameConfirm.hide();
    preferences.frameConfirmDelete.hide();
    preferences.frameView.hide();
    preferences.lblSelectedFile.clear_text();
}

void txtFileName_Click(FrmPreferences& preferences) {
    preferences.frameView.hide();
    preferences.filePreferences.deselect();
    preferences.lblSelectedFile.clear_text();
}

void cmdNewFileSave_Click(Screens& screens, Files& files) {
    FrmPreferences& preferences = screens.frmPreferences;
    const std::string& name = preferences.txtFileName.text();
    const std::string compared = std::string(trim(name)) + ".txt";
    for (const std::string& entry : preferences.filePreferences.entries()) {
        if (trim(entry) == compared) preferences.frameFileExistsWarning.show();
    }
    preferences.chkEdit.set_ticked(false);
    fill_time_zones(screens.frmPreferencesSettings);
    if (preferences.frameFileExistsWarning.visible()) return;

    files.create(std::string(workspace::configurations) + name + ".txt")->close();
    begin_new_file(screens);
}

void cmdReplaceNo_Click(FrmPreferences& preferences) {
    preferences.frameFileExistsWarning.hide();
    preferences.frameConfirm.hide();
    ask_for_name(preferences);
}

void cmdYes_Click(Screens& screens, Platform& platform) {
    FrmPreferences& preferences = screens.frmPreferences;
    const std::string file = preferences.txtFileName.text() + ".txt";
    if (preferences.filePreferences.find(file)) {
        platform.files.remove(std::string(workspace::configurations) + file);
    }
    preferences.filePreferences.refresh();

    // Nothing comes of the rows: the step tries whether the database can be reached.
    platform.database.try_connect(keldar_connect_string(screens.frmStart));
    platform.database.run(keldar_query(screens.frmStart, "SELECT org_id FROM KELDAR1.TSMORGAN"));

    begin_new_file(screens);
}

}  // namespace brooklander
