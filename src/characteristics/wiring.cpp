#include "characteristics/wiring.h"

#include "characteristics/detail_choices.h"
#include "characteristics/details.h"
#include "characteristics/name_translation.h"
#include "characteristics/procedures_and_units.h"
#include "characteristics/source_selection.h"
#include "characteristics/taxon_translation.h"
#include "characteristics/translation.h"
#include "shared/workspace.h"

namespace brooklander {
namespace {

void wire_source(Screens& screens, Platform& platform) {
    FrmCharSource& source = screens.frmCharSource;
    source.mnuExit.on_click = [&] { mnuExit_Click(screens, source); };
    source.mnuHelp.on_click = [&] { platform.help.show(workspace::help_file); };
    source.Drive1.on_click = [&] { Drive1_Change(source); };
    source.Dir1.on_change = [&] { Dir1_Change(source); };
    source.Dir1.on_click = [&] { Dir1_Click(source); };
    source.lstImportFileBox.on_click = [&] { lstImportFileBox_Click(screens, source); };
    source.cmdView.on_click = [&] { cmdView_Click(screens, source, platform.files); };
}

void wire_offer(NameTranslation& translation) {
    translation.cmbCharacteristics.on_click = [&] { cmbCharacteristics_Click(translation); };
    translation.cmdChange.on_click = [&] { cmdChange_Click(translation); };
    translation.cmdNo.on_click = [&] { cmdNo_Click(translation); };
}

void wire_translation(Screens& screens, Platform& platform) {
    FrmCharacteristics& translation = screens.frmCharacteristics;
    translation.mnuExit.on_click = [&] { mnuExit_Click(screens, translation); };
    translation.mnuHelp.on_click = [&] { platform.help.show(workspace::help_file); };
    translation.MSFlexChar.on_click = [&] { MSFlexChar_Click(translation); };
    translation.lstCharacteristics.on_click = [&] { lstCharacteristics_Click(translation); };
    translation.chkTaxa.on_click = [&] { chkTaxa_Click(translation); };
    translation.chkNoTaxa.on_click = [&] { chkNoTaxa_Click(translation); };
    translation.cmdDisplay.on_click = [&] { cmdDisplay_Click(screens, platform.database); };
    wire_offer(translation);
    translation.cmdYes.on_click = [&] { cmdYes_Click(translation); };
    translation.cmdNext.on_click = [&] { cmdNext_Click(screens, platform); };
}

void wire_taxa(Screens& screens, Database& database) {
    FrmSubjectTaxon& taxa = screens.frmSubjectTaxon;
    taxa.MSFlexChar.on_click = [&] { MSFlexChar_Click(taxa); };
    taxa.cmdDisplay.on_click = [&] { cmdDisplay_Click(screens, taxa, database); };
    wire_offer(taxa);
    taxa.cmdYes.on_click = [&] { cmdYes_Click(taxa); };
}

void wire_choices(FrmCharacteristicDetails& details) {
    for (const DetailChoice& choice : detail_choices) {
        (details.*choice.box).on_click = [&] { detail_box_Click(details, choice); };
        (details.*choice.for_all).on_click = [&] { apply_to_all(details, choice); };
    }
    details.optActual.on_click = [&] { details.lblValue.set_text("Actual"); };
    details.optEstimated.on_click = [&] { details.lblValue.set_text("Estimated"); };
    details.optCalculated.on_click = [&] { details.lblValue.set_text("Calculated"); };
    details.optNone.on_click = [&] { details.lblWeight.set_text("None"); };
    details.optWet.on_click = [&] { details.lblWeight.set_text("Wet"); };
    details.optDry.on_click = [&] { details.lblWeight.set_text("Dry"); };
    details.optAshFree.on_click = [&] { details.lblWeight.set_text("Ash-free Dry"); };
    details.cmbFraction.on_click = [&] { cmbFraction_Click(details); };
    details.cmbStatistic.on_click = [&] {
        take_picked(details.cmbStatistic, details.lblStatistic, details.cmdStatYes);
    };
    details.cmbTemperature.on_click = [&] {
        take_picked(details.cmbTemperature, details.lblTemperature, details.cmdTemperatureYes);
    };
    details.cmbDuration.on_click = [&] {
        take_picked(details.cmbDuration, details.lblDuration, details.cmdDurationYes);
    };
    details.cmbLab.on_click = [&] { cmbLab_Click(details); };
}

void wire_procedures_and_units(Screens& screens, Database& database) {
    FrmCharacteristicDetails& details = screens.frmCharacteristicDetails;
    details.MSHFlexSource.on_click = [&] { MSHFlexSource_Click(screens, database); };
    details.MSHFlexProc.on_click = [&] { MSHFlexProc_Click(details); };
    details.chkProcId.on_click = [&] { chkProcId_Click(details); };
    details.chkProcName.on_click = [&] { chkProcName_Click(details); };
    details.txtSearch.on_change = [&] { txtSearch_Change(details); };
    details.cmdProcSearch.on_click = [&] { cmdProcSearch_Click(screens, database); };
    details.cmdReset.on_click = [&] { cmdReset_Click(screens, database); };
    details.cmdSourceBack.on_click = [&] { cmdSourceBack_Click(details); };
    details.txtUOM.on_change = [&] { details.cmdUOMSearch.set_enabled(!details.txtUOM.empty()); };
    details.cmdUOMSearch.on_click = [&] { cmdUOMSearch_Click(screens, database); };
    details.cmdRefresh.on_click = [&] { cmdRefresh_Click(details, database); };
    details.MSHFlexUOM.on_click = [&] { MSHFlexUOM_Click(details); };
}

void wire_details(Screens& screens, Platform& platform) {
    FrmCharacteristicDetails& details = screens.frmCharacteristicDetails;
    details.mnuExit.on_click = [&] { mnuExit_Click(screens, details); };
    details.mnuHelp.on_click = [&] { platform.help.show(workspace::help_file); };
    wire_choices(details);
    wire_procedures_and_units(screens, platform.database);
    details.MSFlexDetails.on_click = [&] { MSFlexDetails_Click(details); };
    details.MSFlexDetails.on_key = [&](Key key) { return type_into_details(details, key); };
    details.cmdSave.on_click = [&] { cmdSave_Click(details); };
    details.cmdYes.on_click = [&] { cmdYes_Click(screens, platform.files); };
    details.cmdNo.on_click = [&] { cmdNo_Click(details); };
    details.cmdClose.on_click = [&] { details.frameError.hide(); };
}

}  // namespace

void wire_characteristics(Screens& screens, Platform& platform) {
    wire_source(screens, platform);
    wire_translation(screens, platform);
    wire_taxa(screens, platform.database);
    wire_details(screens, platform);
}

}  // namespace brooklander
