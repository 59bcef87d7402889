#include "configuration/configuration_edit.h"

#include <array>
#include <initializer_list>
#include <string_view>

#include "characteristics/defaults_file.h"
#include "characteristics/details_lists.h"
#include "characteristics/source_selection.h"
#include "configuration/activity_boxes.h"
#include "configuration/configuration_file.h"
#include "configuration/time_zones.h"
#include "platform/code_page.h"
#include "platform/fatal_failure.h"
#include "shared/text.h"
#include "shared/workspace.h"
#include "sweeps/reset_screens.h"

namespace brooklander {
namespace {

// A value of the file that ticks a box, and the panel that the box lies in.
struct BoxOfValue {
    Label ConfigurationPanel::*value;
    std::string_view text;
    ActivityBox box;
    Panel FrmPreferencesSettings::*panel;
};

using View = ConfigurationPanel;
using Settings = FrmPreferencesSettings;

// In this order. A tick acts as a user's: that of the field activity empties the category, which
// the tick behind it sets to a measurement, so that a habitat assessment of the field comes back
// as one. Soil and biological come back without a tick.
constexpr std::array<BoxOfValue, 8> boxes_of_values{{
    {&View::lblActivityType, "Sample", &Settings::chkSample, &Settings::frameActivityType},
    {&View::lblActivityType, "Field Msr/Obs", &Settings::chkField, &Settings::frameActivityType},
    {&View::lblActivityType, "Field Msr/Obs", &Settings::chkRoutine, &Settings::frameActivityType},
    {&View::lblActivityCategory, "Routine Msr/Obs", &Settings::chkRoutine,
     &Settings::frameActivityCategory},
    {&View::lblActivityCategory, "Routine Habitat Assessment", &Settings::chkHabitat,
     &Settings::frameActivityCategory},
    {&View::lblMedium, "Air", &Settings::chkAir, &Settings::frameMedium},
    {&View::lblMedium, "Sediment", &Settings::chkSediment, &Settings::frameMedium},
    {&View::lblMedium, "Water", &Settings::chkWater, &Settings::frameMedium},
}};

void tick_boxes(Screens& screens) {
    Settings& settings = screens.frmPreferencesSettings;
    for (const BoxOfValue& row : boxes_of_values) {
        if ((screens.frmPreferences.*row.value).text() != row.text) continue;
        (settings.*row.box).set_ticked(true);
        (settings.*row.panel).show();
    }
}

void begin_editing(Screens& screens) {
    Settings& settings = screens.frmPreferencesSettings;
    fill_time_zones(settings);
    screens.frmPreferences.chkEdit.set_ticked(true);
    screens.frmCharacteristicDetails.cmdSave.enable();
    screens.frmPreferencesCharacteristics.cmdSaveAs.enable();
    for (const ActivityBox box : activity_boxes) (settings.*box).set_ticked(false);
}

void read_again(Screens& screens, const Files& files) {
    FrmPreferences& preferences = screens.frmPreferences;
    const FileText text =
        files.read(std::string(workspace::configurations) + preferences.lblSelectedFile.text());
    read_configuration(text.view(), {.panel = preferences}, screens.frmPreferencesCharacteristics);
}

void name_edited_file(Screens& screens) {
    FrmPreferences& preferences = screens.frmPreferences;
    preferences.frameView.show();
    for (Label* const label : std::initializer_list<Label*>{
             &preferences.lblViewFileName, &screens.frmPreferencesCharacteristics.lblFileName,
             &screens.frmPreferencesSamples.lblFileName,
             &screens.frmPreferencesSampleOption.lblFileName}) {
        label->set_text(preferences.lblSelectedFile.text());
    }
}

// The organization is shown as the file has it, and not looked up.
void lead_to_settings(Screens& screens) {
    FrmPreferences& preferences = screens.frmPreferences;
    Settings& settings = screens.frmPreferencesSettings;
    preferences.hide();
    settings.show();
    settings.lblFileName.set_text(preferences.lblSelectedFile.text());
    settings.lblSelectedOrganization.set_text(preferences.lblOrganization.text());
    settings.lblOrganizationName.set_text(preferences.lblOrganizationName.text());
    settings.MSHFlexOrganization.set_highlight(Highlight::never);
    settings.MSHFlexTrip.hide();
    settings.lblTrip.hide();
    settings.lblTripCaption.hide();
    settings.lblTripName.hide();
    settings.frameActivity.show();
    settings.lblTimeZone.set_text(preferences.lblTimeZone.text());
    settings.cmdSave.enable();
}

// Any other unit leaves the boxes as they were.
void tick_depth_unit(FrmPreferencesSampleOption& options, std::string_view unit) {
    if (unit != "ft" && unit != "m" && !unit.empty()) return;
    options.chkFeet.set_ticked(unit == "ft");
    options.chkMeters.set_ticked(unit == "m");
}

// Two projects come as one value, which goes into the first place whole; the second stays free.
void fill_following_screens(Screens& screens) {
    const FrmPreferences& preferences = screens.frmPreferences;
    FrmPreferencesSamples& samples = screens.frmPreferencesSamples;
    FrmPreferencesSampleOption& options = screens.frmPreferencesSampleOption;
    samples.lblSampleCollectionProcedureID.set_text(preferences.lblSampleCollectionID.text());
    samples.lblFieldGearIDSelected.set_text(preferences.lblFieldGearID.text());
    samples.lblFieldGearID.set_text(preferences.lblGearType.text());
    samples.lblGearConfiguration.set_text(preferences.lblGearConfiguration.text());
    options.lblDepthUnits.set_text(preferences.lblDepthUnits.text());
    options.lblSelectedProject.set_text(preferences.lblProjectID.text());
    options.lblProjectName.set_text(preferences.lblProjectName.text());
    options.lblSelectedProjectTwo.clear_text();
    options.lblProjectNameTwo.clear_text();
    options.lblSampleTransportID.set_text(preferences.lblSampleTransport.text());
    options.lblSelectedName.set_text(preferences.lblPerson.text());

    tick_depth_unit(options, preferences.lblDepthUnits.text());
    options.cmdNext.set_enabled(!options.lblSelectedProject.empty());
    samples.cmdContinue.enable();
}

// Whole lines, as rows whose names they are: the sample options read the file anew before anyone
// sees them. False when the file cannot be read.
bool load_whole_lines(Screens& screens, const Files& files) {
    Grid& details = screens.frmCharacteristicDetails.MSFlexDetails;
    try {
        const FileText text = files.read(std::string(workspace::characteristics) +
                                         screens.frmPreferences.lblSelectedFile.text());
        details.set_rows(1);
        for (LineReader lines(text.view()); !lines.at_end();) details.add_row(lines.next());
    } catch (const FatalFailure&) {
        return false;
    }
    set_defaults_headings(details);
    return true;
}

}  // namespace

void cmdOpen_Click(Screens& screens, Platform& platform) {
    FrmPreferences& preferences = screens.frmPreferences;
    if (preferences.MSFlexCharacteristics.rows() == 1) {
        preferences.frameNoChar.show();
        return;
    }
    begin_editing(screens);
    read_again(screens, platform.files);
    name_edited_file(screens);
    lead_to_settings(screens);
    tick_boxes(screens);
    fill_following_screens(screens);
    if (!load_whole_lines(screens, platform.files)) {
        screens.frmPreferencesSettings.hide();
        preferences.show();
        preferences.frameNoChar.show();
        return;
    }
    prepare_details(screens, platform, upper(trim(preferences.lblOrganization.text())));
}

void cmdContinue_Click(Screens& screens, FrmPreferences& preferences) {
    FrmPreferencesSampleOption& options = screens.frmPreferencesSampleOption;
    preferences.frameNoChar.hide();
    preferences.chkEdit.set_ticked(false);
    // What another configuration has left there is not this one's.
    reset(options);
    options.lblFileName.set_text(preferences.lblViewFileName.text());
    options.chkChar.set_ticked(true);
    screens.frmCharSource.lblFile.set_text(preferences.lblViewFileName.text());
    preferences.hide();
    offer_sample_files(screens.frmCharSource);
}

}  // namespace brooklander
