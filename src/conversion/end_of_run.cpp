#include "conversion/end_of_run.h"

#include "import/column_assignment.h"
#include "import/output_choice.h"
#include "shared/empty_screen.h"

namespace brooklander {
namespace {

// The store of activity values has one caption that is a value, too.
void empty_values(FrmImport& values) {
    empty_screen(values);
    values.lblBiopartCaption.clear_text();
    values.cmdActivityNext.disable();
}

// All but the logon, which stands in the two boxes.
void empty_start_screen(FrmStart& start) {
    start.lblSelectedFile.clear_text();
    start.lblTripIsNumber.clear_text();
    start.lstImportFileBox.deselect();
    start.filePreferences.deselect();
    forget_file_kind(start);
    hide_panels(start);
    start.mnuFiles.enable();
    start.mnuPreferences.enable();
}

void quit(Screens& screens) {
    FrmImportFileDisplay& display = screens.frmImportFileDisplay;
    for (Screen* screen : std::initializer_list<Screen*>{
             &screens.frmCharacteristicDetails, &screens.frmCharacteristics, &display,
             &screens.frmLogger, &screens.frmPreferences, &screens.frmImportContinue,
             &screens.frmPreferencesSamples, &screens.frmPreferencesSettings}) {
        empty_screen(*screen);
    }
    empty_values(screens.frmImport);
    hide_markers(display);
    display.MSFlexKeldarIN.clear();
    display.MSFlexResults.set_rows(0);
    empty_start_screen(screens.frmStart);
    display.hide();
    screens.frmStart.show();
}

// Nothing of one file's configuration may come into the next file's lines.
void forget_configuration(Screens& screens) {
    FrmImportFileDisplay& display = screens.frmImportFileDisplay;
    empty_screen(screens.frmPreferences);
    empty_values(screens.frmImport);
    display.lblConfiguration.clear_text();
    display.lstRows.clear();
    display.lstChar.clear();
}

void go_on_with_another_file(Screens& screens) {
    FrmImportFileDisplay& display = screens.frmImportFileDisplay;
    FrmStart& start = screens.frmStart;
    if (!display.optAnotherFile.on()) display.mnuExit.enable();
    display.frameVOX.hide();
    display.frameConfiguration.hide();
    display.frameConverted.hide();
    display.txtActivityID.clear_text();
    display.hide();
    for (const Category& category : categories) (display.*category.button).disable();
    display.cmdContinue.disable();

    start.show();
    start.cmdView.disable();
    start.frameLog.hide();
    forget_file_kind(start);
    start.lblSelectedFile.clear_text();
    display.cmdRowContinue.disable();
    display.cmdFormatConfirm.disable();
    start.cmdGoBack.hide();
    start.cmdGoBack.disable();
    display.optQuit.set_on(false);
    display.optAnotherFile.set_on(false);
    display.chkYes.set_ticked(false);
    display.MSFlexKeldarIN.clear();
    for (Field* field : std::initializer_list<Field*>{&display.lblSelectedFile, &display.txtSave,
                                                      &display.lblDeletedFile, &display.lblRow,
                                                      &display.lblRowVis, &display.lblMedium}) {
        field->clear_text();
    }
    hide_markers(display);
    forget_configuration(screens);
}

}  // namespace

void cmdConfirm_Click(Screens& screens) {
    screens.frmImportFileDisplay.cmdConfirm.disable();
    if (screens.frmImportFileDisplay.optQuit.on()) {
        quit(screens);
    } else {
        go_on_with_another_file(screens);
    }
}

}  // namespace brooklander
