#include "logon/file_selection.h"

#include "import/column_assignment.h"
#include "import/import_table.h"
#include "platform/code_page.h"

namespace brooklander {
namespace {

void reset_selection(FrmStart& start) {
    start.optLogYes.set_on(false);
    start.optLogNo.set_on(false);
    start.frameLog.hide();
    start.lblSelectedFile.clear_text();
    start.cmdView.disable();
}

// The depth's Clear button is left as it is.
void enable_categories(FrmImportFileDisplay& import) {
    for (const Category& category : categories) {
        (import.*category.button).enable();
        if (category.clear != &FrmImportFileDisplay::cmdDepthClear) {
            (import.*category.clear).enable();
        }
    }
}

}  // namespace

void mnuImport_Click(Screens& screens) {
    FrmStart& start = screens.frmStart;
    start.frameFiles.show();
    start.frameAbout.hide();
    start.frameLog.hide();
    start.chkPreferences.set_ticked(false);

    FrmImportFileDisplay& import = screens.frmImportFileDisplay;
    import.frameSameSelections.hide();
    import.frameVOX.hide();
    enable_categories(import);

    FrmPreferences& preferences = screens.frmPreferences;
    preferences.optBrookLanderEdit.disable();
    preferences.optBrooklanderNew.disable();
    preferences.optVox.enable();
    preferences.optVox.set_on(false);
    preferences.optUseConfig.disable();

    start.Dir1.set_path("c:\\");
    if (import.lblStationVis.empty()) import.frameSameSelections.hide();
}

void Drive1_Change(FrmStart& start) {
    start.Dir1.set_path(start.Drive1.text());
    reset_selection(start);
}

void Dir1_Change(FrmStart& start) {
    start.lstImportFileBox.set_path(start.Dir1.path());
    reset_selection(start);
}

void Dir1_Click(FrmStart& start) {
    start.lblAvailableFiles.show();
    start.lstImportFileBox.show();
    start.lstImportFileBox.enable();
    const std::string clicked = start.Dir1.entry_path(*start.Dir1.selected());
    if (!same_but_for_case(clicked, start.Dir1.path())) start.Dir1.set_path(clicked);
}

void lstImportFileBox_Click(Screens& screens) {
    FrmStart& start = screens.frmStart;
    FrmImportFileDisplay& import = screens.frmImportFileDisplay;
    const std::string name = start.lstImportFileBox.text();
    start.lblSelectedFile.set_text(name);
    import.lblSelectedFile.set_text(name);
    screens.frmPreferences.lblFileConverted.set_text(name);
    import.MSFlexKeldarIN.clear();

    start.frameLog.hide();
    start.optLogYes.set_on(false);
    start.optLogNo.set_on(true);
    start.cmdView.enable();
}

void cmdView_Click(Screens& screens, const Files& files) {
    FrmStart& start = screens.frmStart;
    FrmImportFileDisplay& import = screens.frmImportFileDisplay;
    const bool for_configuration = start.chkPreferences.ticked();
    start.cmdView.disable();
    import.frameChar.set_visible(for_configuration);
    import.frameImportConfirm.set_visible(!for_configuration);
    import.frameCharColumn.hide();
    import.cmdCharContinue.disable();
    screens.frmPreferences.mnuExit.enable();
    import.MSFlexResults.set_rows(0);
    import.MSFlexKeldarIN.clear();

    start.hide();
    import.show();
    import.mnuExit.disable();
    import.cmdSave.disable();
    import.frameImportedFile.show();

    const bool for_characteristics = screens.frmPreferencesSampleOption.chkChar.ticked();
    if (!for_characteristics || import.optAnotherFile.on()) {
        import.frameImportConfirm.show();
        import.frameChar.hide();
    }
    if (for_characteristics) {
        import.frameImportConfirm.hide();
        import.frameChar.show();
    }
    const std::string path =
        start.lstImportFileBox.path() + "\\" + start.lblSelectedFile.text();
    import.lblSelectedFile.set_text(path);
    load_import_table(screens, files, path);
}

}  // namespace brooklander
