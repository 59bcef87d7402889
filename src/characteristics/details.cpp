#include "characteristics/details.h"

#include <initializer_list>
#include <string>

#include "characteristics/defaults_file.h"
#include "characteristics/detail_choices.h"
#include "import/output_choice.h"
#include "shared/empty_screen.h"
#include "shared/text.h"
#include "shared/workspace.h"

namespace brooklander {
namespace {

std::string path_to_save(const Screens& screens) {
    const std::string folder(workspace::characteristics);
    const FrmPreferences& preferences = screens.frmPreferences;
    const bool existing = preferences.txtFileName.empty() && !preferences.lblSelectedFile.empty();
    return existing ? folder + screens.frmCharacteristicDetails.lblFileName.text()
                    : folder + preferences.txtFileName.text() + ".txt";
}

void open_start_screen(FrmStart& start) {
    start.framChar.hide();
    start.frameFiles.hide();
    start.mnuFiles.enable();
    start.mnuImport.enable();
    start.mnuPreferences.enable();
}

void reset_details(FrmCharacteristicDetails& details) {
    empty_screen(details);
    details.MSFlexDetails.set_rows(0);
    for (const DetailChoice& choice : detail_choices) (details.*choice.for_all).disable();
    details.cmdProcSearch.disable();
    details.cmdUOMSearch.disable();
    details.lblValue.set_text("Actual");
    details.lblWeight.set_text("None");
    details.optActual.set_on(true);
    details.optNone.set_on(true);
}

void reset_translation(FrmCharacteristics& translation) {
    empty_screen(translation);
    translation.frameTaxa.hide();
    translation.cmdDisplay.disable();
    translation.cmdChange.disable();
    translation.cmdYes.disable();
}

void reset_start_screen(FrmStart& start) {
    start.mnuFiles.enable();
    start.cmdView.disable();
    start.lblSelectedFile.clear_text();
    forget_file_kind(start);
    start.frameFiles.hide();
    start.frameLog.hide();
}

void reset_all(Screens& screens) {
    reset_details(screens.frmCharacteristicDetails);
    reset_translation(screens.frmCharacteristics);
    for (Screen* const screen : std::initializer_list<Screen*>{
             &screens.frmImportFileDisplay, &screens.frmLogger, &screens.frmLoggerResults,
             &screens.frmPreferences, &screens.frmPreferencesSampleOption,
             &screens.frmPreferencesSamples, &screens.frmPreferencesSettings}) {
        empty_screen(*screen);
    }
    reset_start_screen(screens.frmStart);
}

}  // namespace

void cmbFraction_Click(FrmCharacteristicDetails& details) { details.cmdFractionAll.enable(); }

void take_picked(const PickList& list, Label& label, Button& for_all) {
    label.set_text(trim(list.text()));
    for_all.enable();
}

void cmbLab_Click(FrmCharacteristicDetails& details) {
    if (details.cmbLab.empty()) return;
    details.lblLab.set_text(details.cmbLab.text());
    details.cmdLab.enable();
}

void cmdSave_Click(FrmCharacteristicDetails& details) {
    const Grid& grid = details.MSFlexDetails;
    for (int row = 0; row < grid.rows(); ++row) {
        const bool named = !grid.cell(row, 0).empty();
        details.frameSaveConfirm.set_visible(named);
        details.frameError.set_visible(!named);
        if (named) return;
    }
}

void cmdNo_Click(FrmCharacteristicDetails& details) {
    details.frameSaveConfirm.hide();
    details.cmdSave.enable();
}

void cmdYes_Click(Screens& screens, Files& files) {
    FrmCharacteristicDetails& details = screens.frmCharacteristicDetails;
    details.chkBack.set_ticked(false);
    open_start_screen(screens.frmStart);
    write_defaults_file(details.MSFlexDetails, files, path_to_save(screens));
    reset_all(screens);
    details.hide();
    screens.frmStart.show();
}

void mnuExit_Click(Screens& screens, FrmCharacteristicDetails& details) {
    details.hide();
    if (screens.frmPreferences.chkEdit.ticked()) {
        screens.frmPreferencesSampleOption.show();
        return;
    }
    screens.frmCharacteristics.show();
    screens.frmCharacteristics.cmdNext.enable();
    screens.frmCharSource.chkNew.set_ticked(false);
}

}  // namespace brooklander
