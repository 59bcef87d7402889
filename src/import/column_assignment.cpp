#include "import/column_assignment.h"

#include <algorithm>
#include <string>

#include "shared/text.h"

namespace brooklander {
namespace {

constexpr std::string_view row_category = "First Row Of Data Results";

bool is_results(const Category& category) {
    return category.button == &FrmImportFileDisplay::cmdResults;
}

const Category& results_category() {
    return *std::find_if(categories.begin(), categories.end(), is_results);
}

// The later rule wins. While a configuration is worked on, the rule for that enables the button
// that goes on, or disables it.
void mark_results(Screens& screens, bool enables_while_configuring) {
    FrmImportFileDisplay& display = screens.frmImportFileDisplay;
    if (!screens.frmPreferencesSampleOption.chkChar.ticked()) {
        display.lblResultsSelected.show();
    } else {
        display.lblResultsSelected.hide();
        display.cmdContinue.enable();
    }
    if (screens.frmStart.chkPreferences.ticked()) {
        display.lblResultsSelected.show();
        display.cmdContinue.set_enabled(enables_while_configuring);
    }
    if (screens.frmPreferences.optVox.on()) {
        display.lblResultsSelected.hide();
        display.cmdContinue.enable();
    }
}

void assign(Label& from_zero, Label& from_one, int position) {
    from_zero.set_text(std::to_string(position));
    from_one.set_text(std::to_string(position + 1));
}

bool is_ph(std::string_view name) { return name == "pH" || name == "ph" || name == "PH"; }

// Hands the headings from the first results column on to the translation screen.
void hand_on_characteristics(Screens& screens, bool with_details) {
    FrmImportFileDisplay& display = screens.frmImportFileDisplay;
    FrmCharacteristics& translation = screens.frmCharacteristics;
    Grid& details = screens.frmCharacteristicDetails.MSFlexDetails;
    translation.lstCharacteristics.clear();
    translation.MSFlexChar.clear();
    translation.MSFlexChar.set_rows(0);
    details.set_rows(0);

    const Grid& table = display.MSFlexKeldarIN;
    for (int column = position_in(display.lblColumn.text()); column < table.columns(); ++column) {
        const std::string_view heading = table.cell(0, column);
        if (heading.empty()) continue;
        translation.lstCharacteristics.add(heading);
        translation.MSFlexChar.add_row(heading);
        if (with_details) details.add_row({});
    }
    display.hide();
    translation.show();
    for (int row = 0; row < translation.MSFlexChar.rows(); ++row) {
        if (is_ph(trim(translation.MSFlexChar.cell(row, 0)))) {
            translation.MSFlexChar.set_cell(row, 1, "pH");
        }
    }
}

void go_on_from_columns(Screens& screens, bool with_details) {
    FrmImportFileDisplay& display = screens.frmImportFileDisplay;
    display.MSFlexKeldarIN.set_highlight(Highlight::with_focus);
    display.frameSameSelections.hide();
    if (screens.frmPreferencesSampleOption.chkChar.ticked()) {
        hand_on_characteristics(screens, with_details);
        return;
    }
    display.frameCategoryResults.hide();
    display.frameRowSelection.show();
    display.MSFlexKeldarIN.set_selection(Selection::by_row);
    display.lblRow.clear_text();
    display.lblRowVis.clear_text();
    hide_markers(display);
    display.lblSelectedCategory.set_text(row_category);
    display.cmdRowContinue.disable();
}

}  // namespace

void hide_markers(FrmImportFileDisplay& display) {
    for (const Category& category : categories) (display.*category.marker).hide();
}

void choose_category(Screens& screens, const Category& category) {
    FrmImportFileDisplay& display = screens.frmImportFileDisplay;
    display.lblSelectedCategory.set_text(category.text);
    hide_markers(display);
    (display.*category.clear).enable();
    display.MSFlexKeldarIN.set_highlight(Highlight::with_focus);
    if (is_results(category)) {
        mark_results(screens, true);
    } else {
        (display.*category.marker).show();
    }
}

void cmdCharYes_Click(Screens& screens) {
    FrmImportFileDisplay& display = screens.frmImportFileDisplay;
    display.frameChar.hide();
    display.frameCategoryResults.hide();
    display.frameCharColumn.show();
    FrmStart& start = screens.frmStart;
    start.frameLog.hide();
    start.cmdView.disable();
    start.frameFiles.hide();
    choose_category(screens, results_category());
    mark_results(screens, false);
}

void cmdCharNo_Click(Screens& screens) {
    FrmImportFileDisplay& display = screens.frmImportFileDisplay;
    display.frameChar.hide();
    display.frameCategoryResults.hide();
    display.frameCharColumn.hide();
    for (const Category& category : categories) {
        if (is_results(category)) continue;
        (display.*category.button).enable();
        if (category.clear != &FrmImportFileDisplay::cmdPersonClear) {
            (display.*category.clear).enable();
        }
    }
    display.hide();
    FrmCharSource& source = screens.frmCharSource;
    source.show();
    source.frameFiles.show();
    source.cmdView.disable();
    source.lblSelectedFile.clear_text();
}

void clear_category(FrmImportFileDisplay& display, const Category& category) {
    (display.*category.column).clear_text();
    (display.*category.visible_column).clear_text();
    if (category.required) display.cmdContinue.disable();
}

void MSFlexKeldarIN_Click(Screens& screens) {
    FrmImportFileDisplay& display = screens.frmImportFileDisplay;
    const GridCell clicked = display.MSFlexKeldarIN.current();
    for (const Category& category : categories) {
        if (display.lblSelectedCategory.text() != category.text) continue;
        assign(display.*category.column, display.*category.visible_column, clicked.column);
    }
    display.cmdContinue.set_enabled(!display.lblStationVis.empty() && !display.lblDateVis.empty() &&
                                    !display.lblColumnVis.empty());
    if (display.lblSelectedCategory.text() == row_category) {
        assign(display.lblRow, display.lblRowVis, clicked.row);
    }
    if (!screens.frmStart.chkPreferences.ticked()) {
        if (!display.lblRow.empty()) display.cmdContinue.enable();
        if (!display.lblRowVis.empty()) {
            display.cmdRowContinue.enable();
            display.cmdCharContinue.enable();
        }
    } else if (!display.lblColumnVis.empty()) {
        display.cmdContinue.enable();
        display.cmdRowContinue.enable();
        display.cmdCharContinue.enable();
    }
}

void cmdContinue_Click(Screens& screens) { go_on_from_columns(screens, true); }

void cmdCharContinue_Click(Screens& screens) { go_on_from_columns(screens, false); }

void cmdRowClear_Click(FrmImportFileDisplay& display) {
    display.lblRow.clear_text();
    display.cmdRowContinue.disable();
}

void cmdRowContinue_Click(FrmImportFileDisplay& display) {
    display.lblSelectedCategory.clear_text();
    display.MSFlexKeldarIN.set_highlight(Highlight::never);
    display.frameConfiguration.hide();
    display.cmdFormatConfirm.enable();
}

void cmdRowIdBack_Click(FrmImportFileDisplay& display) {
    display.frameCategoryResults.show();
    display.frameRowSelection.hide();
    display.MSFlexKeldarIN.set_selection(Selection::by_column);
}

}  // namespace brooklander
