#include "configuration/sample_collection.h"

#include <initializer_list>
#include <string>

#include "configuration/database_lists.h"
#include "shared/text.h"

namespace brooklander {
namespace {

std::string clicked(const Grid& grid, int column) {
    return std::string(grid.cell(grid.current().row, column));
}

void highlight_clicked_row(Grid& grid) {
    grid.set_selection(Selection::by_row);
    grid.set_highlight(Highlight::always);
}

// The comments on the gear go nowhere: they are only shown and blanked.
void forget_procedure(FrmPreferencesSamples& samples) {
    samples.txtGearDeploymentComments.clear_text();
    samples.txtGearDeploymentComments.hide();
    samples.lblGearDeploymentComments.hide();
    for (Label* const label : {&samples.lblGearConfiguration, &samples.lblFieldGearIDSelected,
                               &samples.lblSampleCollectionProcedureID, &samples.lblFieldGearID}) {
        label->clear_text();
        label->show();
    }
    samples.lblGearCaption.show();
    samples.cmdContinue.disable();
    samples.cmdKeep.disable();
}

void prepare_sample_options(Screens& screens, Database& database) {
    FrmPreferencesSamples& samples = screens.frmPreferencesSamples;
    samples.cmdKeep.enable();
    samples.cmdKeep.hide();
    samples.cmdChange.hide();

    FrmPreferencesSampleOption& options = screens.frmPreferencesSampleOption;
    options.frameSampleSpecifications.show();
    options.FrameProject.show();
    options.frameSampleTransportID.show();
    options.framePerson.show();

    const FrmPreferencesSettings& settings = screens.frmPreferencesSettings;
    const std::string organization = organization_id(settings);
    list_projects(screens, organization, settings.lblTripNumber.text(), database);
    options.bring_forward();
    list_sample_transports(screens, organization, database);
    list_persons(screens, organization, database);
}

void go_to_sample_options(Screens& screens) {
    screens.frmPreferencesSamples.hide();
    screens.frmPreferencesSampleOption.show();
}

}  // namespace

void MSHFlexSampleCollection_Click(Screens& screens, Database& database) {
    FrmPreferencesSamples& samples = screens.frmPreferencesSamples;
    forget_procedure(samples);
    highlight_clicked_row(samples.MSHFlexSampleCollection);
    samples.frameGearConfigurationError.hide();

    const std::string gear_type = clicked(samples.MSHFlexSampleCollection, 2);
    list_gear(screens, gear_type, database);
    samples.lblSampleCollectionProcedureID.set_text(clicked(samples.MSHFlexSampleCollection, 0));
    samples.lblFieldGearID.set_text(gear_type);

    // The list of configurations stays as an earlier gear has left it while the next is to be
    // chosen.
    const bool needs_gear = !gear_type.empty();
    samples.lblFieldGear.set_visible(needs_gear);
    samples.MSHFlexGear.set_visible(needs_gear);
    if (needs_gear) return;
    samples.lblGearConfigurationList.hide();
    samples.MSHFlexGearConfiguration.hide();
    samples.cmdContinue.enable();
}

void MSHFlexGear_Click(Screens& screens, Database& database) {
    FrmPreferencesSamples& samples = screens.frmPreferencesSamples;
    samples.frameGearConfigurationError.hide();
    samples.lblGearDeploymentComments.show();
    samples.txtGearDeploymentComments.show();
    samples.lblGearConfiguration.clear_text();
    samples.lblGearConfiguration.show();

    const std::string gear_id = clicked(samples.MSHFlexGear, 0);
    samples.lblFieldGearIDSelected.set_text(gear_id);
    list_gear_configurations(screens, organization_id(screens.frmPreferencesSettings),
                             trim(gear_id), database);

    // The caption of the list stands over the word that there is none, and goes when the list
    // comes.
    Grid& configurations = samples.MSHFlexGearConfiguration;
    const bool there_are_some = !configurations.cell(configurations.fixed_rows(), 0).empty();
    configurations.set_visible(there_are_some);
    samples.frameGearConfigurationError.set_visible(!there_are_some);
    samples.lblGearConfigurationList.set_visible(!there_are_some);
    samples.cmdContinue.set_enabled(!there_are_some);
}

void MSHFlexGearConfiguration_Click(FrmPreferencesSamples& samples) {
    highlight_clicked_row(samples.MSHFlexGearConfiguration);
    samples.lblGearConfiguration.show();
    samples.lblGearConfiguration.set_text(clicked(samples.MSHFlexGearConfiguration, 0));
    samples.cmdContinue.enable();
}

void cmdChange_Click(FrmPreferencesSamples& samples) {
    samples.frameSampleCollection.show();
    samples.cmdContinue.disable();
    for (Grid* const grid : {&samples.MSHFlexSampleCollection, &samples.MSHFlexGear,
                             &samples.MSHFlexGearConfiguration}) {
        grid->set_highlight(Highlight::never);
    }
}

void cmdContinue_Click(Screens& screens, Database& database) {
    prepare_sample_options(screens, database);
    go_to_sample_options(screens);
}

void cmdKeep_Click(Screens& screens, Database& database) {
    go_to_sample_options(screens);
    prepare_sample_options(screens, database);
}

void mnuExit_Click(Screens& screens, FrmPreferencesSamples& samples) {
    samples.hide();
    screens.frmPreferencesSettings.show();
}

}  // namespace brooklander
