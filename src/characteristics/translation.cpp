#include "characteristics/translation.h"

#include <string>

#include "characteristics/defaults_layout.h"
#include "characteristics/detail_choices.h"
#include "characteristics/details_lists.h"
#include "platform/code_page.h"
#include "shared/text.h"
#include "sweeps/keldar.h"

namespace brooklander {
namespace {

constexpr std::string_view acidity = "pH";

void begin_search(FrmCharacteristics& translation) {
    translation.frameOptions.show();
    translation.cmdDisplay.enable();
}

void end_search_without_filter(FrmCharacteristics& translation) {
    if (translation.chkTaxa.ticked() || translation.chkNoTaxa.ticked()) return;
    translation.cmdDisplay.disable();
    translation.frameOptions.hide();
}

std::string_view statement_before_pattern(const FrmCharacteristics& translation) {
    if (translation.chkNoTaxa.ticked()) {
        return "Select Distinct search_name, display_name, d_scr_type_cd from tsrchar Where "
               "d_scr_type_cd <> 'TAXA' And search_name LIKE '";
    }
    // The two blanks stand in it.
    return "Select Distinct search_name, display_name, d_scr_type_cd  from tsrchar Where "
           "d_scr_type_cd = 'TAXA' And search_name LIKE '";
}

void search(Screens& screens, Database& database) {
    FrmCharacteristics& translation = screens.frmCharacteristics;
    translation.cmdChange.disable();
    translation.set_pointer(Pointer::busy);
    connect_to_keldar_trimmed(translation.AdodcCharacteristics, screens.frmStart);
    std::string statement(statement_before_pattern(translation));
    statement.append("%").append(upper(trim(translation.txtCharacteristic.text()))).append("%'");
    translation.AdodcCharacteristics.set_record_source(statement);
    translation.AdodcCharacteristics.refresh(database);
    translation.cmbCharacteristics.show();
    translation.set_pointer(Pointer::normal);
}

void mark_in_list(FrmCharacteristics& translation, std::string_view translated) {
    List& names = translation.lstCharacteristics;
    for (std::size_t entry = 0; entry < names.count(); ++entry) {
        if (upper(trim(names.entry(entry))) != translation.lblCharacteristics.text()) continue;
        names.set_entry(entry, "*" + std::string(translated));
    }
}

// For pH the box is empty: the list then has a star alone, and the grid the offered name.
void apply_translation(FrmCharacteristics& translation) {
    const std::string chosen(trim(translation.cmbCharacteristics.text()));
    mark_in_list(translation, chosen);
    const std::string offered = translation.lblChange.text();
    const std::string translated = trim(offered) == acidity ? offered : chosen;
    const std::string name(trim(translation.lblCharacteristics.text()));
    Grid& names = translation.MSFlexChar;
    for (int row = 0; row < names.rows(); ++row) {
        if (trim(names.cell(row, 0)) == name) names.set_cell(row, 1, translated);
    }
    translation.cmdNext.enable();
    translation.cmdYes.disable();
    translation.cmdNo.disable();
}

bool names_itself(const FrmCharacteristics& translation) {
    const std::string_view found = trim(translation.cmbCharacteristics.text());
    return !found.empty() && found == trim(translation.lblSelectedCharacteristic.text());
}

// The cell that is read last becomes the current one. The heading of the names stays as it is
// found.
void write_names(Grid& names, Grid& details) {
    details.set_rows(names.rows() + 1);
    for (int row = 0; row < names.rows(); ++row) {
        const int column = names.cell(row, 1).empty() ? 0 : 1;
        names.make_current({row, column});
        details.set_cell(row + 1, 0, names.cell(row, column));
    }
    details.set_fixed_rows(1);
    for (std::size_t field = 1; field < defaults_fields.size(); ++field) {
        details.set_cell(0, static_cast<int>(field), defaults_fields[field].heading);
    }
    details.set_column_widths(
        {2000, 1500, 2200, 1000, 1000, 1300, 1200, 1100, 1100, 1800, 1100, 1400, 1500});
}

}  // namespace

void MSFlexChar_Click(FrmCharacteristics& translation) {
    translation.frameMatch.hide();
    translation.frameTranslate.hide();
    translation.frameAutoTranslate.hide();
    Grid& names = translation.MSFlexChar;
    names.make_current({names.current().row, 0});
    const std::string name(trim(names.current_text()));
    translation.txtCharacteristic.set_text(name);
    translation.lblCharacteristics.set_text(name);
    translation.lblSelectedCharacteristic.set_text(name);
    translation.frameTaxa.hide();
    begin_search(translation);
    translation.lblChange.clear_text();
    translation.cmbCharacteristics.clear_text();
    translation.chkNoTaxa.set_ticked(true);
    translation.chkTaxa.set_ticked(false);
}

void lstCharacteristics_Click(FrmCharacteristics& translation) {
    const List& names = translation.lstCharacteristics;
    const std::string name = upper(trim(names.entry(*names.selected())));
    translation.txtCharacteristic.set_text(name);
    translation.lblCharacteristics.set_text(name);
    translation.frameOptions.show();
}

void chkNoTaxa_Click(FrmCharacteristics& translation) {
    if (translation.chkNoTaxa.ticked()) {
        translation.chkTaxa.set_ticked(false);
        begin_search(translation);
    }
    end_search_without_filter(translation);
}

void chkTaxa_Click(FrmCharacteristics& translation) {
    if (translation.chkTaxa.ticked()) {
        translation.chkNoTaxa.set_ticked(false);
        translation.cmdDisplay.enable();
        translation.frameOptions.hide();
    }
    end_search_without_filter(translation);
}

void cmdDisplay_Click(Screens& screens, Database& database) {
    FrmCharacteristics& translation = screens.frmCharacteristics;
    translation.txtCharacteristic.set_text(upper(translation.txtCharacteristic.text()));
    if (trim(translation.txtCharacteristic.text()) == upper(acidity)) {
        translation.lblChange.set_text(acidity);
        translation.cmdChange.enable();
        translation.cmdDisplay.enable();
        return;
    }
    search(screens, database);
    if (!names_itself(translation)) {
        translation.frameMatch.show();
        return;
    }
    translation.lblChange.set_text(translation.cmbCharacteristics.text());
    translation.frameMatch.hide();
    translation.frameTranslate.hide();
    translation.frameAutoTranslate.show();
    apply_translation(translation);
}

void cmbCharacteristics_Click(FrmCharacteristics& translation) {
    translation.lblChange.set_text(translation.cmbCharacteristics.text());
    translation.cmdChange.enable();
    translation.frameTranslate.show();
}

void cmdChange_Click(FrmCharacteristics& translation) {
    translation.cmdYes.enable();
    translation.cmdNo.enable();
    translation.cmdChange.disable();
}

void cmdNo_Click(FrmCharacteristics& translation) {
    translation.cmdYes.disable();
    translation.cmdNo.disable();
    translation.cmdChange.enable();
}

void cmdYes_Click(FrmCharacteristics& translation) { apply_translation(translation); }

void cmdNext_Click(Screens& screens, Platform& platform) {
    FrmCharacteristicDetails& details = screens.frmCharacteristicDetails;
    hide_choices(details);
    if (screens.frmCharSource.chkNew.ticked()) details.MSFlexDetails.clear();
    write_names(screens.frmCharacteristics.MSFlexChar, details.MSFlexDetails);
    prepare_details(screens, platform, trim(screens.frmPreferences.lblOrganization.text()));
    screens.frmCharacteristics.hide();
    details.show();
}

void mnuExit_Click(Screens& screens, FrmCharacteristics& translation) {
    translation.hide();
    FrmCharSource& source = screens.frmCharSource;
    source.show();
    source.frameFiles.show();
    source.lblSelectedFile.clear_text();
    screens.frmImportFileDisplay.frameCharColumn.hide();
    screens.frmImportFileDisplay.cmdCharContinue.disable();
}

}  // namespace brooklander
