#include "configuration/configuration_use.h"

#include "configuration/group_statements.h"
#include "platform/fatal_failure.h"
#include "shared/text.h"
#include "shared/workspace.h"
#include "sweeps/keldar.h"

namespace brooklander {
namespace {

// The rows of a group from this one on are taken; row 0 is the heading.
constexpr int first_group_row = 2;

// Where the two habitat statements have the row id.
constexpr int row_id_column = 7;

void go_on_importing(FrmImportFileDisplay& display) {
    display.frameOutputFile.hide();
    display.frameImportedFile.hide();
    display.show();
    display.cmdSave.enable();
    display.cmdSave.set_focus();
}

void show_configuration_in_use(Screens& screens) {
    FrmPreferences& preferences = screens.frmPreferences;
    FrmImport& values = screens.frmImport;
    preferences.bring_forward();
    screens.frmCharacteristics.lblOrgID.set_text(trim(preferences.lblOrganization.text()));
    preferences.frameDescription.show();
    preferences.set_text("Create or View Configuration Files");
    screens.frmImportFileDisplay.frameFileBeingConverted.show();
    screens.frmImportFileDisplay.frameOutputFile.hide();
    values.frameUsePreferences.hide();
    values.frameSelections.show();
    values.lblOrganization.set_text(preferences.lblOrganization.text());
}

void keep_activity_values(const FrmPreferences& preferences, FrmImport& values) {
    values.lblActivityType.set_text(preferences.lblActivityType.text());
    values.lblActivityCategory.set_text(preferences.lblActivityCategory.text());
    values.lblMedium.set_text(preferences.lblMedium.text());
    values.lblSamplingGear.set_text(preferences.lblFieldGearID.text());
    values.lblGearConfiguration.set_text(preferences.lblGearConfiguration.text());
}

void follow_activity(Screens& screens) {
    const std::string_view type = trim(screens.frmPreferences.lblActivityType.text());
    if (type == "Sample" || type == "Field") {
        screens.frmPreferencesSampleOption.frameSampleTransportID.hide();
    }
    const std::string_view category = trim(screens.frmPreferences.lblActivityCategory.text());
    if (category == "Routine Msr/Obs" || category == "Routine Habitat Assessment" ||
        category.empty()) {
        screens.frmImport.cmdActivityNext.enable();
    }
}

// A file of persons may go with the configuration. Nothing is taken from it, and nobody misses it.
void look_for_persons(const FrmPreferences& preferences, const Files& files) {
    try {
        files.read(std::string(workspace::persons) + preferences.lblSelectedFile.text());
    } catch (const FatalFailure&) {
    }
}

// Which statement asks for a group, and the grid that its rows go to.
struct GroupQuery {
    DataSource& source;
    Grid& grid;
    std::string statement;
};

GroupQuery group_query(FrmImport& values, std::string_view group, std::string_view organization) {
    if (group == "S") {
        return {values.AdodcSystemHabitat, values.MSHFlexSystemHabitat,
                system_group_statement(organization, group)};
    }
    if (group == "U") {
        return {values.AdodcUserHabitat, values.MSHFlexUserHabitat,
                user_group_statement(organization, group)};
    }
    return {values.AdodcCharacteristicGroup, values.MSHFlexCharacteristics,
            characteristic_group_statement(organization, group)};
}

void list_group(Screens& screens, Database& database) {
    FrmPreferences& preferences = screens.frmPreferences;
    FrmImport& values = screens.frmImport;
    const std::string group = screens.frmPreferencesCharacteristics.lblChar.text();
    const GroupQuery query = group_query(values, group, trim(preferences.lblOrganization.text()));
    ask_keldar(query.source, screens.frmStart, query.statement, database);

    const bool of_habitat = group == "S" || group == "U";
    if (of_habitat) {
        preferences.hide();
        values.frameSelections.hide();
        values.show();
    }
    const int column = of_habitat ? row_id_column : query.grid.current().column;
    for (int row = first_group_row; row < query.grid.rows(); ++row) {
        screens.frmImportFileDisplay.lstRows.add(query.grid.cell(row, column));
    }
}

}  // namespace

void cmdConfirm_Click(Screens& screens, Platform& platform) {
    FrmPreferences& preferences = screens.frmPreferences;
    FrmImportFileDisplay& display = screens.frmImportFileDisplay;
    preferences.lblWait.show();
    display.frameConfiguration.show();
    display.lblConfiguration.set_text(preferences.lblViewFileName.text());
    display.frameVOX.hide();
    if (preferences.chkYes.ticked()) show_configuration_in_use(screens);
    keep_activity_values(preferences, screens.frmImport);
    follow_activity(screens);
    look_for_persons(preferences, platform.files);
    display.lstRows.clear();
    display.frameImportedFile.hide();
    list_group(screens, platform.database);
    preferences.hide();
    go_on_importing(display);
}

void optVox_Click(Screens& screens) {
    FrmPreferences& preferences = screens.frmPreferences;
    preferences.frameFiles.hide();
    preferences.frameNoFile.hide();
    preferences.lblOption.set_text(
        "Attach data converted by Brooklander to a Configuration File created in VOX.  Click HELP "
        "for step by step procedures.");
    preferences.hide();

    FrmImportFileDisplay& display = screens.frmImportFileDisplay;
    display.frameFileBeingConverted.show();
    display.frameVOX.show();
    display.frameConfiguration.hide();
    go_on_importing(display);
    display.mnuExit.enable();
}

}  // namespace brooklander
