#include "sweeps/reset_screens.h"

#include <initializer_list>

namespace brooklander {
namespace {

void empty(std::initializer_list<Label*> value_labels) {
    for (Label* label : value_labels) label->clear_text();
}

void untick(std::initializer_list<TickBox*> boxes) {
    for (TickBox* box : boxes) box->set_ticked(false);
}

}  // namespace

void reset(FrmPreferencesSettings& settings) {
    empty({&settings.lblFileName, &settings.lblSelectedOrganization, &settings.lblOrganizationName,
           &settings.lblTrip, &settings.lblTripName, &settings.lblTripNumber,
           &settings.lblTimeZone});
    untick({&settings.chkSample, &settings.chkField, &settings.chkRoutine, &settings.chkHabitat,
            &settings.chkWater, &settings.chkAir, &settings.chkSediment, &settings.chkSoil,
            &settings.chkBiological});
    settings.cmdSave.disable();
}

void reset(FrmPreferencesSamples& samples) {
    empty({&samples.lblFileName, &samples.lblSampleCollectionProcedureID, &samples.lblFieldGearID,
           &samples.lblFieldGearIDSelected, &samples.lblGearConfiguration});
    samples.cmdContinue.disable();
}

void reset(FrmPreferencesSampleOption& options) {
    empty({&options.lblFileName, &options.lblDepthUnits, &options.lblSelectedProject,
           &options.lblProjectName, &options.lblSelectedProjectTwo, &options.lblProjectNameTwo,
           &options.lblLastName, &options.lblFirstName, &options.lblSelectedName,
           &options.lblSampleTransportID, &options.lblSampleTransportName});
    untick({&options.chkFeet, &options.chkMeters, &options.chkChar});
    options.cmdNext.disable();
}

void clear_logger_options(FrmStart& start) {
    start.optLogYes.set_on(false);
    start.optLogNo.set_on(false);
}

void clear_options(FrmPreferences& preferences) {
    preferences.optBrookLanderEdit.set_on(false);
    preferences.optBrooklanderNew.set_on(false);
    preferences.optUseConfig.set_on(false);
    preferences.optVox.set_on(false);
}

void hide_files(FrmPreferences& preferences) {
    preferences.frameFileConverted.hide();
    preferences.frameDescription.hide();
    preferences.lblDefaults.hide();
    preferences.frameFiles.hide();
    preferences.frameNewFile.hide();
    preferences.frameView.hide();
    preferences.frameUseFile.hide();
    preferences.frameFileOptions.hide();
    preferences.frameNoFile.hide();
    preferences.frameFileExistsWarning.hide();
    preferences.frameConfirm.hide();
    preferences.frameConfirmDelete.hide();
    preferences.lblWait.hide();
}

}  // namespace brooklander
