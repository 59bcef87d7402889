#include "configuration/configuration_choice.h"

#include <initializer_list>

#include "characteristics/defaults_file.h"
#include "configuration/configuration_file.h"
#include "platform/fatal_failure.h"
#include "shared/workspace.h"

namespace brooklander {
namespace {

std::string path_in(std::string_view folder, const Label& name) {
    return std::string(folder) + name.text();
}

void clear_shown_file(Screens& screens) {
    clear_values(screens.frmPreferences);
    screens.frmImportFileDisplay.lblMedium.clear_text();
    screens.frmPreferencesCharacteristics.lblChar.clear_text();
}

void offer_what_can_be_done(FrmPreferences& preferences) {
    if (preferences.optBrookLanderEdit.on()) {
        preferences.frameFileOptions.show();
        preferences.frameUseFile.hide();
    }
    if (preferences.optUseConfig.on()) {
        preferences.frameFileOptions.hide();
        preferences.frameUseFile.show();
        preferences.chkYes.enable();
    }
}

void name_file_everywhere(Screens& screens, std::string_view name) {
    FrmPreferences& preferences = screens.frmPreferences;
    for (Label* label : std::initializer_list<Label*>{
             &preferences.lblSelectedFile, &preferences.lblViewFileName,
             &screens.frmPreferencesSettings.lblFileName,
             &screens.frmPreferencesSamples.lblFileName,
             &screens.frmPreferencesSampleOption.lblFileName,
             &screens.frmImportFileDisplay.lblConfiguration, &screens.frmCharacteristics.lblFile,
             &screens.frmCharacteristicDetails.lblFileName}) {
        label->set_text(name);
    }
}

void read_selected_configuration(Screens& screens, const Files& files) {
    FrmPreferences& preferences = screens.frmPreferences;
    const std::size_t count = preferences.filePreferences.count();
    if (count > most_configurations) {
        throw FatalFailure("The folder " + preferences.filePreferences.path() + " holds " +
                           std::to_string(count) + " configuration files; " +
                           std::to_string(most_configurations) +
                           " is the most that can be worked with. Move some of them to another "
                           "folder.");
    }
    const FileText text =
        files.read(path_in(workspace::configurations, preferences.lblSelectedFile));
    read_configuration(text.view(),
                       {.panel = preferences, .medium = &screens.frmImportFileDisplay.lblMedium},
                       screens.frmPreferencesCharacteristics);
}

void read_selected_characteristics(Screens& screens, const Files& files) {
    FrmPreferences& preferences = screens.frmPreferences;
    Grid& details = screens.frmCharacteristicDetails.MSFlexDetails;
    for (Grid* grid : {&details, &preferences.MSFlexCharacteristics}) grid->set_rows(1);
    try {
        const FileText text =
            files.read(path_in(workspace::characteristics, preferences.lblSelectedFile));
        for (Grid* grid : {&details, &preferences.MSFlexCharacteristics}) {
            add_defaults_rows(*grid, text.view());
            set_defaults_headings(*grid);
        }
    } catch (const FatalFailure&) {
        // Without characteristics the grids keep their one row.
    }
}

}  // namespace

void filePreferences_Click(Screens& screens, const Files& files) {
    FrmPreferences& preferences = screens.frmPreferences;
    preferences.bring_forward();
    preferences.frameNoChar.hide();
    preferences.chkEdit.set_ticked(false);
    preferences.chkYes.set_ticked(false);
    preferences.cmdConfirm.disable();
    clear_shown_file(screens);
    preferences.frameFileExistsWarning.hide();
    preferences.frameConfirm.hide();
    offer_what_can_be_done(preferences);

    name_file_everywhere(screens, preferences.filePreferences.text());
    preferences.cmdOpen.enable();
    preferences.cmdDelete.enable();
    preferences.frameView.show();
    read_selected_configuration(screens, files);
    read_selected_characteristics(screens, files);
}

void cmdClose_Click(FrmPreferences& preferences) {
    preferences.frameView.hide();
    preferences.frameConfirmDelete.hide();
    preferences.lblSelectedFile.clear_text();
    preferences.chkEdit.set_ticked(false);
}

void cmdDelete_Click(FrmPreferences& preferences) {
    preferences.frameConfirmDelete.show();
    preferences.chkEdit.set_ticked(false);
}

void cmdFileDeleteYes_Click(FrmPreferences& preferences, Files& files) {
    if (preferences.filePreferences.find(preferences.lblSelectedFile.text())) {
        files.remove(path_in(workspace::configurations, preferences.lblSelectedFile));
    }
    preferences.filePreferences.refresh();
    preferences.frameConfirmDelete.hide();
    preferences.frameView.hide();
    preferences.lblSelectedFile.clear_text();
}

}  // namespace brooklander
