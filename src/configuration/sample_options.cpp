#include "configuration/sample_options.h"

#include <string>

#include "characteristics/defaults_file.h"
#include "characteristics/defaults_layout.h"
#include "characteristics/source_selection.h"
#include "configuration/configuration_file.h"
#include "configuration/import_notice.h"
#include "platform/fatal_failure.h"
#include "shared/workspace.h"

namespace brooklander {
namespace {

void set_depth_unit(FrmPreferencesSampleOption& options, const TickBox& clicked, TickBox& other,
                    std::string_view unit) {
    if (clicked.ticked()) {
        other.set_ticked(false);
        options.lblDepthUnits.set_text(unit);
    }
    if (!options.chkFeet.ticked() && !options.chkMeters.ticked()) {
        options.lblDepthUnits.clear_text();
    }
}

void forget_project(FrmPreferencesSampleOption& options, Label& id, Label& name) {
    id.clear_text();
    name.clear_text();
    if (options.lblSelectedProject.empty() && options.lblSelectedProjectTwo.empty()) {
        options.cmdNext.disable();
    }
}

std::string_view clicked(const Grid& grid, int column) {
    return grid.cell(grid.current().row, column);
}

void write_files(Screens& screens, Files& files) {
    FrmPreferences& preferences = screens.frmPreferences;
    const std::string name = configuration_name(preferences);
    const auto configuration = files.create(std::string(workspace::configurations) + name);
    const auto notice = files.create(std::string(workspace::notices) + name);
    write_configuration(screens, *configuration);
    configuration->close();
    // The typed name alone counts here, so that an edited file shows as the ending of none.
    screens.frmImportFileDisplay.lblConfiguration.set_text(std::string(workspace::configurations) +
                                                           preferences.txtFileName.text() + ".txt");
    notice->write(import_notice(preferences));
    notice->close();
}

void add_names(Grid& names, std::string_view file_text) {
    LineReader lines(file_text);
    for (int count = 0; !lines.at_end() && count < most_shown_lines; ++count) {
        names.add_row(display_value(lines.next(), defaults_field::name));
    }
}

// From row 1 on a row for each line of the file. Without one both grids keep their one row, as
// wherever characteristics are read.
void take_up_characteristics(Screens& screens, const Files& files) {
    Grid& names = screens.frmCharacteristics.MSFlexChar;
    Grid& details = screens.frmCharacteristicDetails.MSFlexDetails;
    for (Grid* const grid : {&names, &details}) grid->set_rows(1);
    try {
        const FileText text = files.read(std::string(workspace::characteristics) +
                                         screens.frmPreferences.lblSelectedFile.text());
        add_names(names, text.view());
        add_defaults_rows(details, text.view(), most_shown_lines);
    } catch (const FatalFailure&) {
    }
    set_defaults_headings(details);
}

}  // namespace

void chkFeet_Click(FrmPreferencesSampleOption& options) {
    set_depth_unit(options, options.chkFeet, options.chkMeters, "ft");
}

void chkMeters_Click(FrmPreferencesSampleOption& options) {
    set_depth_unit(options, options.chkMeters, options.chkFeet, "m");
}

void MSHFlexProjects_Click(FrmPreferencesSampleOption& options) {
    const bool is_first = options.lblSelectedProject.empty();
    Label& id = is_first ? options.lblSelectedProject : options.lblSelectedProjectTwo;
    Label& name = is_first ? options.lblProjectName : options.lblProjectNameTwo;
    id.set_text(clicked(options.MSHFlexProjects, 0));
    name.set_text(clicked(options.MSHFlexProjects, 1));
    if (!id.empty()) options.cmdNext.enable();
}

void cmdProjectClear_Click(FrmPreferencesSampleOption& options) {
    forget_project(options, options.lblSelectedProject, options.lblProjectName);
}

void cmdProjectTwoClear_Click(FrmPreferencesSampleOption& options) {
    forget_project(options, options.lblSelectedProjectTwo, options.lblProjectNameTwo);
}

void MSHFlexPerson_Click(FrmPreferencesSampleOption& options) {
    options.lblLastName.set_text(clicked(options.MSHFlexPerson, 0));
    options.lblFirstName.set_text(clicked(options.MSHFlexPerson, 1));
    options.lblSelectedName.set_text(options.lblLastName.text() + " " +
                                     options.lblFirstName.text());
}

void MSHFlexSampleTransportation_Click(FrmPreferencesSampleOption& options) {
    options.lblSampleTransportID.set_text(clicked(options.MSHFlexSampleTransportation, 0));
    options.lblSampleTransportName.set_text(clicked(options.MSHFlexSampleTransportation, 1));
}

void cmdSampleTransportClear_Click(FrmPreferencesSampleOption& options) {
    options.lblSampleTransportID.clear_text();
    options.lblSampleTransportName.clear_text();
}

void cmdNext_Click(Screens& screens, Files& files) {
    FrmPreferencesSampleOption& options = screens.frmPreferencesSampleOption;
    FrmPreferences& preferences = screens.frmPreferences;
    screens.frmCharacteristicDetails.frameProc.hide();
    write_files(screens, files);
    preferences.filePreferences.refresh();
    if (!preferences.filePreferences.entry(0).empty()) screens.frmStart.mnuFiles.enable();
    options.chkChar.set_ticked(true);
    options.hide();
    if (preferences.chkEdit.ticked()) {
        screens.frmCharSource.frameFile.hide();
        screens.frmCharacteristicDetails.show();
        take_up_characteristics(screens, files);
    } else {
        offer_sample_files(screens.frmCharSource);
        screens.frmImportFileDisplay.frameFileBeingConverted.hide();
    }
}

void mnuExit_Click(Screens& screens, FrmPreferencesSampleOption& options) {
    options.hide();
    if (screens.frmPreferencesSettings.chkField.ticked()) {
        screens.frmPreferencesSettings.show();
        return;
    }
    FrmPreferencesSamples& samples = screens.frmPreferencesSamples;
    samples.show();
    if (samples.frameSampleCollection.visible()) {
        samples.cmdChange.show();
        samples.cmdKeep.show();
    }
}

}  // namespace brooklander
