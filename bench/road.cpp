#include "road.h"

#include "import/column_assignment.h"
#include "sample_table.h"

namespace brooklander::bench {
namespace {

void select(EntryList& list, std::string_view entry) { list.click_entry(list.find(entry).value()); }

}  // namespace

Road::Road(const std::filesystem::path& home) : files_(home) { program_.start(); }

void Road::up_to_view() {
    FrmStart& start = screens().frmStart;
    start.txtOracleID.type("user");
    start.txtOraclePassWord.type("password");
    start.cmdUIDok.press();
    start.mnuImport.choose();
    select(start.Dir1, "data");
    select(start.lstImportFileBox, "table.txt");
}

void Road::up_to_configuration() {
    screens().frmImportFileDisplay.cmdYes.press();
    screens().frmPreferences.optUseConfig.choose();
}

void Road::select_configuration() { select(screens().frmPreferences.filePreferences, "bench.txt"); }

void Road::up_to_convert(Under under) {
    FrmImportFileDisplay& display = screens().frmImportFileDisplay;
    FrmPreferences& preferences = screens().frmPreferences;
    if (under == Under::module) {
        display.cmdYes.press();
        preferences.optVox.choose();
    } else {
        up_to_configuration();
        select_configuration();
        preferences.chkYes.turn_over();
        preferences.cmdConfirm.press();
    }
    display.cmdSave.press();
    display.txtActivityID.type("LAKE");
    display.cmdActivityContinue.press();
    int column = 0;
    for (const Category& category : categories) {
        const bool results = category.button == &FrmImportFileDisplay::cmdResults;
        (display.*category.button).press();
        display.MSFlexKeldarIN.click_cell({0, results ? leading_columns : column++});
    }
    display.cmdContinue.press();
    display.MSFlexKeldarIN.click_cell({1, 0});
    display.cmdRowContinue.press();
}

}  // namespace brooklander::bench
