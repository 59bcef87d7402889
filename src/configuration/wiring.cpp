#include "configuration/wiring.h"

#include "configuration/activity_boxes.h"
#include "configuration/activity_settings.h"
#include "configuration/configuration_choice.h"
#include "configuration/configuration_edit.h"
#include "configuration/configuration_manager.h"
#include "configuration/configuration_name.h"
#include "configuration/configuration_use.h"
#include "configuration/sample_collection.h"
#include "configuration/sample_options.h"
#include "shared/workspace.h"

namespace brooklander {
namespace {

void wire_manager(Screens& screens, Platform& platform) {
    FrmPreferences& preferences = screens.frmPreferences;
    preferences.on_load = [&] { load_configuration_manager(preferences); };
    preferences.mnuExit.on_click = [&] { mnuExit_Click(screens, preferences); };
    preferences.mnuHelp.on_click = [&] { platform.help.show(workspace::help_file); };

    preferences.optBrookLanderEdit.on_click = [&] { optBrookLanderEdit_Click(screens); };
    preferences.optBrooklanderNew.on_click = [&] { optBrooklanderNew_Click(screens); };
    preferences.optUseConfig.on_click = [&] { optUseConfig_Click(screens); };
    preferences.optVox.on_click = [&] { optVox_Click(screens); };

    preferences.cmdCreate.on_click = [&] { cmdCreate_Click(preferences); };
    preferences.txtFileName.on_change = [&] { txtFileName_Change(preferences); };
    preferences.txtFileName.on_click = [&] { txtFileName_Click(preferences); };
    preferences.cmdNewFileSave.on_click = [&] { cmdNewFileSave_Click(screens, platform.files); };
    preferences.cmdReplaceNo.on_click = [&] { cmdReplaceNo_Click(preferences); };
    preferences.cmdReplaceYes.on_click = [&] { preferences.frameConfirm.show(); };
    preferences.cmdYes.on_click = [&] { cmdYes_Click(screens, platform); };
    preferences.cmdNo.on_click = [&] { preferences.frameConfirm.hide(); };

    preferences.filePreferences.on_click = [&] { filePreferences_Click(screens, platform.files); };
    preferences.cmdClose.on_click = [&] { cmdClose_Click(preferences); };
    preferences.cmdOpen.on_click = [&] { cmdOpen_Click(screens, platform); };
    preferences.cmdContinue.on_click = [&] { cmdContinue_Click(screens, preferences); };
    preferences.cmdDelete.on_click = [&] { cmdDelete_Click(preferences); };
    preferences.cmdFileDeleteYes.on_click = [&] {
        cmdFileDeleteYes_Click(preferences, platform.files);
    };
    preferences.cmdFileDeleteNo.on_click = [&] { preferences.frameConfirmDelete.hide(); };

    preferences.chkYes.on_click = [&] {
        preferences.cmdConfirm.set_enabled(preferences.chkYes.ticked());
    };
    preferences.cmdConfirm.on_click = [&] { cmdConfirm_Click(screens, platform); };
}

void wire_activity_settings(Screens& screens, Platform& platform) {
    FrmPreferencesSettings& settings = screens.frmPreferencesSettings;
    settings.on_load = [&] { load_activity_settings(screens, platform.database); };
    settings.mnuExit.on_click = [&] { mnuExit_Click(screens, settings); };
    settings.mnuHelp.on_click = [&] { platform.help.show(workspace::help_file); };
    settings.MSHFlexOrganization.on_click = [&] {
        MSHFlexOrganization_Click(screens, platform.database);
    };
    for (const ActivityBox box : activity_boxes) {
        (settings.*box).on_click = [&screens, box] { activity_box_Click(screens, box); };
    }
    settings.lstTimeZone.on_click = [&] { lstTimeZone_Click(settings); };
    settings.cmdSave.on_click = [&] { cmdSave_Click(screens, settings, platform.database); };

    settings.MSHFlexTrip.on_click = [&] { MSHFlexTrip_Click(settings); };
    settings.cmdPrint.on_click = [&] { cmdPrint_Click(settings, platform.files); };
    settings.cmdStationCheck.on_click = [&] { cmdStationCheck_Click(settings); };
}

void wire_sample_collection(Screens& screens, Platform& platform) {
    FrmPreferencesSamples& samples = screens.frmPreferencesSamples;
    samples.mnuExit.on_click = [&] { mnuExit_Click(screens, samples); };
    samples.mnuHelp.on_click = [&] { platform.help.show(workspace::help_file); };
    samples.MSHFlexSampleCollection.on_click = [&] {
        MSHFlexSampleCollection_Click(screens, platform.database);
    };
    samples.MSHFlexGear.on_click = [&] { MSHFlexGear_Click(screens, platform.database); };
    samples.MSHFlexGearConfiguration.on_click = [&] { MSHFlexGearConfiguration_Click(samples); };
    samples.cmdChange.on_click = [&] { cmdChange_Click(samples); };
    samples.cmdKeep.on_click = [&] { cmdKeep_Click(screens, platform.database); };
    samples.cmdContinue.on_click = [&] { cmdContinue_Click(screens, platform.database); };
}

void wire_sample_options(Screens& screens, Platform& platform) {
    FrmPreferencesSampleOption& options = screens.frmPreferencesSampleOption;
    options.mnuExit.on_click = [&] { mnuExit_Click(screens, options); };
    options.chkFeet.on_click = [&] { chkFeet_Click(options); };
    options.chkMeters.on_click = [&] { chkMeters_Click(options); };
    options.MSHFlexProjects.on_click = [&] { MSHFlexProjects_Click(options); };
    options.cmdProjectClear.on_click = [&] { cmdProjectClear_Click(options); };
    options.cmdProjectTwoClear.on_click = [&] { cmdProjectTwoClear_Click(options); };
    options.MSHFlexPerson.on_click = [&] { MSHFlexPerson_Click(options); };
    options.cmdNameDelete.on_click = [&] { options.lblSelectedName.clear_text(); };
    options.MSHFlexSampleTransportation.on_click = [&] {
        MSHFlexSampleTransportation_Click(options);
    };
    options.cmdSampleTransportClear.on_click = [&] { cmdSampleTransportClear_Click(options); };
    options.cmdNext.on_click = [&] { cmdNext_Click(screens, platform.files); };
}

}  // namespace

void wire_configuration(Screens& screens, Platform& platform) {
    wire_manager(screens, platform);
    wire_activity_settings(screens, platform);
    wire_sample_collection(screens, platform);
    wire_sample_options(screens, platform);
}

}  // namespace brooklander
