#include "characteristics/translation.h"

#include <string>

#include "characteristics/defaults_layout.h"
#include "characteristics/detail_choices.h"
#include "characteristics/details_lists.h"
#include "characteristics/name_translation.h"
#include "platform/code_page.h"
#include "shared/text.h"

namespace brooklander {
namespace {

void end_search_without_filter(FrmCharacteristics& translation) {
    if (translation.chkTaxa.ticked() || translation.chkNoTaxa.ticked()) return;
    translation.cmdDisplay.disable();
    translation.frameOptions.hide();
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
    mark_in_list(translation, trim(translation.cmbCharacteristics.text()));
    put_translation(translation, trim(translation.lblCharacteristics.text()));
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
    translation.lblCharacteristics.set_text(take_clicked_name(translation));
    translation.frameTaxa.hide();
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
    search(translation, screens.frmStart,
           translation.chkNoTaxa.ticked() ? search_statement::without_taxa : search_statement::taxa,
           database);
    if (!names_itself(translation)) {
        translation.frameMatch.show();
        return;
    }
    offer_of_itself(translation);
    apply_translation(translation);
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
