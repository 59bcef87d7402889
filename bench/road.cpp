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

void Road::up_to_convert() {
    FrmImportFileDisplay& import = screens().frmImportFileDisplay;
    import.cmdYes.press();
    screens().frmPreferences.optVox.choose();
    import.cmdSave.press();
    import.txtActivityID.type("LAKE");
    import.cmdActivityContinue.press();
    int column = 0;
    for (const Category& category : categories) {
        const bool results = category.button == &FrmImportFileDisplay::cmdResults;
        (import.*category.button).press();
        import.MSFlexKeldarIN.click_cell({0, results ? leading_columns : column++});
    }
    import.cmdContinue.press();
    import.MSFlexKeldarIN.click_cell({1, 0});
    import.cmdRowContinue.press();
}

}  // namespace brooklander::bench
