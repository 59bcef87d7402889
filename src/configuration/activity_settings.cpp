#include "configuration/activity_settings.h"

#include <initializer_list>
#include <string>

#include "configuration/database_lists.h"
#include "configuration/time_zones.h"
#include "shared/text.h"
#include "shared/workspace.h"
#include "sweeps/keldar.h"
#include "sweeps/reset_screens.h"

namespace brooklander {
namespace {

void blank(std::initializer_list<Field*> fields) {
    for (Field* const field : fields) field->clear_text();
}

void forget_samples(FrmPreferencesSamples& samples) {
    blank({&samples.lblFieldGearID, &samples.lblFieldGearIDSelected,
           &samples.lblSampleCollectionProcedureID, &samples.lblGearConfiguration,
           &samples.txtGearDeploymentComments});
    samples.cmdContinue.disable();
}

void forget_sample_options(FrmPreferencesSampleOption& options) {
    blank({&options.lblProjectName, &options.lblSelectedProject, &options.lblSampleTransportID,
           &options.lblSampleTransportName, &options.lblSelectedName, &options.lblLastName,
           &options.lblFirstName, &options.lblDepthUnits});
    options.chkFeet.set_ticked(false);
    options.chkMeters.set_ticked(false);
    options.cmdNext.disable();
}

void close_group_display(FrmPreferencesCharacteristics& characteristics) {
    characteristics.frameCharacteristicGroupDisplay.hide();
    characteristics.cmdSave.disable();
    characteristics.cmdSaveAs.disable();
}

// A new configuration begins with the choice of a procedure; one that is edited, with what its
// file holds.
void prepare_sample_collection(Screens& screens) {
    const FrmPreferences& preferences = screens.frmPreferences;
    const bool edits = !preferences.lblSelectedFile.empty();
    FrmPreferencesSamples& samples = screens.frmPreferencesSamples;
    samples.frameSampleCollection.set_visible(!edits);
    samples.cmdChange.set_visible(edits);
    samples.cmdKeep.set_visible(edits);

    const std::string& name =
        edits ? preferences.lblSelectedFile.text() : preferences.txtFileName.text();
    for (Label* const label :
         {&samples.lblFileName, &screens.frmPreferencesSampleOption.lblFileName,
          &screens.frmCharacteristics.lblFile, &screens.frmCharacteristicDetails.lblFileName}) {
        label->set_text(name);
    }
}

// The file that is chosen there next is one for a configuration.
void prepare_start_screen(FrmStart& start) {
    start.chkPreferences.set_ticked(true);
    start.frameLog.hide();
    clear_logger_options(start);
    start.cmdView.enable();
}

void go_to_sample_collection(Screens& screens, Database& database) {
    FrmPreferencesSampleOption& options = screens.frmPreferencesSampleOption;
    options.frameSampleSpecifications.show();
    options.frameSampleTransportID.show();
    // Gear is offered for a procedure, and none of an earlier one for none.
    FrmPreferencesSamples& samples = screens.frmPreferencesSamples;
    if (samples.lblSampleCollectionProcedureID.empty()) {
        samples.MSHFlexGear.set_rows(0);
        samples.MSHFlexGearConfiguration.set_rows(0);
    }
    list_procedures(screens, organization_id(screens.frmPreferencesSettings), database);
    screens.frmPreferencesSettings.hide();
    screens.frmPreferencesSamples.show();
}

// Here all projects are offered, whatever the trip.
void go_to_sample_options(Screens& screens, Database& database) {
    FrmPreferencesSampleOption& options = screens.frmPreferencesSampleOption;
    options.frameSampleSpecifications.show();
    options.frameSampleTransportID.hide();
    options.framePerson.show();
    options.FrameProject.show();
    const std::string organization = organization_id(screens.frmPreferencesSettings);
    list_projects(screens, organization, {}, database);
    list_persons(screens, organization, database);
    screens.frmPreferencesSettings.hide();
    options.show();
}

}  // namespace

void load_activity_settings(Screens& screens, Database& database) {
    connect_to_keldar(screens.frmPreferencesSettings.AdodcStations, screens.frmStart);
    list_organizations(screens, database);
}

void MSHFlexOrganization_Click(Screens& screens, Database& database) {
    FrmPreferencesSettings& settings = screens.frmPreferencesSettings;
    settings.lblTrip.clear_text();
    settings.lblTripName.clear_text();

    const Grid& organizations = settings.MSHFlexOrganization;
    const int row = organizations.current().row;
    const std::string id(trim(organizations.cell(row, 0)));
    settings.lblSelectedOrganization.set_text(id);
    screens.frmImportContinue.lblOrganization.set_text(id);
    screens.frmPreferences.lblOrganization.set_text(id);
    settings.lblOrganizationName.set_text(trim(organizations.cell(row, 1)));

    forget_samples(screens.frmPreferencesSamples);
    forget_sample_options(screens.frmPreferencesSampleOption);
    close_group_display(screens.frmPreferencesCharacteristics);

    list_trips(screens, id, database);
    settings.lstStations.clear();
    settings.frameStations.hide();
    settings.frameActivity.show();
    settings.frameTripOptions.show();
}

void lstTimeZone_Click(FrmPreferencesSettings& settings) {
    const List& zones = settings.lstTimeZone;
    settings.lblTimeZone.set_text(time_zone_code(zones.entry(*zones.selected())));
    settings.cmdSave.enable();
}

void cmdSave_Click(Screens& screens, FrmPreferencesSettings& settings, Database& database) {
    prepare_sample_collection(screens);
    prepare_start_screen(screens.frmStart);
    if (settings.chkSample.ticked()) {
        go_to_sample_collection(screens, database);
    } else {
        go_to_sample_options(screens, database);
    }
}

void mnuExit_Click(Screens& screens, FrmPreferencesSettings& settings) {
    settings.hide();
    FrmPreferences& preferences = screens.frmPreferences;
    preferences.show();
    preferences.chkYes.set_ticked(false);
    preferences.cmdConfirm.disable();
    preferences.frameConfirm.hide();
    preferences.frameConfirmDelete.hide();
    preferences.frameFileExistsWarning.hide();
    preferences.frameOptions.show();
    for (Option* const option : {&preferences.optBrookLanderEdit, &preferences.optBrooklanderNew}) {
        option->enable();
        option->set_on(false);
    }
    preferences.optVox.disable();
    preferences.optUseConfig.disable();
}

void MSHFlexTrip_Click(FrmPreferencesSettings& settings) {
    const Grid& trips = settings.MSHFlexTrip;
    const int row = trips.current().row;
    settings.lblTrip.set_text(trips.cell(row, 0));
    settings.lblTripNumber.set_text(trips.cell(row, 2));
    settings.lblTripName.set_text(trips.cell(row, 1));
    settings.frameActivity.show();
    settings.frameActivityType.show();
}

void cmdPrint_Click(const FrmPreferencesSettings& settings, Files& files) {
    const Grid& stations = settings.MSHFlexStations;
    std::string text = settings.lblTrip.text() + "\r\n";
    for (int row = stations.fixed_rows(); row < stations.rows(); ++row) {
        text.append(stations.cell(row, 0)).append("\r\n");
    }
    const auto file = files.create(std::string(workspace::root) + "\\" + settings.lblTrip.text() +
                                   "_stations.txt");
    file->write(text);
    file->close();
}

void cmdStationCheck_Click(FrmPreferencesSettings& settings) {
    settings.frameStations.hide();
    settings.frameActivityType.show();
}

}  // namespace brooklander
