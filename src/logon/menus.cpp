#include "logon/menus.h"

#include "sweeps/keldar.h"
#include "sweeps/reset_screens.h"

namespace brooklander {
namespace {

void reset_configuration_screens(Screens& screens) {
    FrmCharacteristicDetails& details = screens.frmCharacteristicDetails;
    details.frameProc.hide();
    details.frameProcedure.hide();
    details.frameUOM.hide();
    reset(screens.frmPreferencesSettings);
    reset(screens.frmPreferencesSamples);
    reset(screens.frmPreferencesSampleOption);
}

// The manager as it first comes up: the options, none of them chosen, and nothing of a file. The
// description is shown in a panel that is hidden here, ready for the step that shows the panel.
void return_to_options(FrmPreferences& preferences) {
    clear_options(preferences);
    hide_files(preferences);
    preferences.frameOptions.show();
    preferences.lblDescription.show();
    preferences.mnuExit.enable();
    preferences.mnuHelp.enable();
    preferences.lblSelectedFile.clear_text();
    preferences.set_text(FrmPreferences::title_from_the_menu);
}

}  // namespace

void mnuPreferences_Click(Screens& screens) {
    FrmStart& start = screens.frmStart;
    FrmPreferences& preferences = screens.frmPreferences;
    start.frameFiles.hide();
    reset_configuration_screens(screens);
    return_to_options(preferences);

    start.chkPreferences.set_ticked(true);
    preferences.optBrookLanderEdit.enable();
    preferences.optBrooklanderNew.enable();
    preferences.optVox.disable();
    preferences.optUseConfig.disable();

    start.hide();
    preferences.show();
    preferences.set_pointer(Pointer::normal);
}

void mnuLogger_Click(Screens& screens, Database& database) {
    FrmStart& start = screens.frmStart;
    FrmDataLogger& logger = screens.frmDataLogger;
    start.hide();
    logger.show();
    connect_to_keldar_by_name(logger.AdodcOrganization, start);
    logger.AdodcOrganization.set_record_source(
        "Select org_id, name From tsmorgan Where org_id <> 'ZZZZZZZZ'");
    logger.AdodcOrganization.refresh(database);
}

}  // namespace brooklander
