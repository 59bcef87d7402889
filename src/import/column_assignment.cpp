#include "import/column_assignment.h"

#include <string>

#include "shared/text.h"

namespace brooklander {
namespace {

constexpr std::string_view row_category = "First Row Of Data Results";

void hide_markers(FrmImportFileDisplay& import) {
    for (const Category& category : categories) (import.*category.marker).hide();
}

// The later rule wins.
void mark_results(Screens& screens) {
    FrmImportFileDisplay& import = screens.frmImportFileDisplay;
    if (!screens.frmPreferencesSampleOption.chkChar.ticked()) {
        import.lblResultsSelected.show();
    } else {
        import.lblResultsSelected.hide();
        import.cmdContinue.enable();
    }
    if (screens.frmStart.chkPreferences.ticked()) {
        import.lblResultsSelected.show();
        import.cmdContinue.enable();
    }
    if (screens.frmPreferences.optVox.on()) {
        import.lblResultsSelected.hide();
        import.cmdContinue.enable();
    }
}

void assign(Label& from_zero, Label& from_one, int position) {
    from_zero.set_text(std::to_string(position));
    from_one.set_text(std::to_string(position + 1));
}

bool is_ph(std::string_view name) { return name == "pH" || name == "ph" || name == "PH"; }

// Hands the headings from the first results column on to the translation screen.
void hand_on_characteristics(Screens& screens, bool with_details) {
    FrmImportFileDisplay& import = screens.frmImportFileDisplay;
    FrmCharacteristics& translation = screens.frmCharacteristics;
    Grid& details = screens.frmCharacteristicDetails.MSFlexDetails;
    translation.lstCharacteristics.clear();
    translation.MSFlexChar.clear();
    translation.MSFlexChar.set_rows(0);
    details.set_rows(0);

    const Grid& table = import.MSFlexKeldarIN;
    for (int column = position_in(import.lblColumn.text()); column < table.columns(); ++column) {
        const std::string_view heading = table.cell(0, column);
        if (heading.empty()) continue;
        translation.lstCharacteristics.add(heading);
        translation.MSFlexChar.add_row(heading);
        if (with_details) details.add_row({});
    }
    import.hide();
    translation.show();
    for (int row = 0; row < translation.MSFlexChar.rows(); ++row) {
        if (is_ph(trim(translation.MSFlexChar.cell(row, 0)))) {
            translation.MSFlexChar.set_cell(row, 1, "pH");
        }
    }
}

void go_on_from_columns(Screens& screens, bool with_details) {
    FrmImportFileDisplay& import = screens.frmImportFileDisplay;
    import.MSFlexKeldarIN.set_highlight(Highlight::with_focus);
    import.frameSameSelections.hide();
    if (screens.frmPreferencesSampleOption.chkChar.ticked()) {
        hand_on_characteristics(screens, with_details);
        return;
    }
    import.frameCategoryResults.hide();
    import.frameRowSelection.show();
    import.MSFlexKeldarIN.set_selection(Selection::by_row);
    import.lblRow.clear_text();
    import.lblRowVis.clear_text();
    hide_markers(import);
    import.lblSelectedCategory.set_text(row_category);
    import.cmdRowContinue.disable();
}

}  // namespace

void choose_category(Screens& screens, const Category& category) {
    FrmImportFileDisplay& import = screens.frmImportFileDisplay;
    import.lblSelectedCategory.set_text(category.text);
    hide_markers(import);
    (import.*category.clear).enable();
    import.MSFlexKeldarIN.set_highlight(Highlight::with_focus);
    if (category.button == &FrmImportFileDisplay::cmdResults) {
        mark_results(screens);
    } else {
        (import.*category.marker).show();
    }
}

void clear_category(FrmImportFileDisplay& import, const Category& category) {
    (import.*category.column).clear_text();
    (import.*category.visible_column).clear_text();
    if (category.required) import.cmdContinue.disable();
}

void MSFlexKeldarIN_Click(Screens& screens) {
    FrmImportFileDisplay& import = screens.frmImportFileDisplay;
    const GridCell clicked = import.MSFlexKeldarIN.current();
    for (const Category& category : categories) {
        if (import.lblSelectedCategory.text() != category.text) continue;
        assign(import.*category.column, import.*category.visible_column, clicked.column);
    }
    import.cmdContinue.set_enabled(!import.lblStationVis.empty() && !import.lblDateVis.empty() &&
                                   !import.lblColumnVis.empty());
    if (import.lblSelectedCategory.text() == row_category) {
        assign(import.lblRow, import.lblRowVis, clicked.row);
    }
    if (!screens.frmStart.chkPreferences.ticked()) {
        if (!import.lblRow.empty()) import.cmdContinue.enable();
        if (!import.lblRowVis.empty()) {
            import.cmdRowContinue.enable();
            import.cmdCharContinue.enable();
        }
    } else if (!import.lblColumnVis.empty()) {
        import.cmdContinue.enable();
        import.cmdRowContinue.enable();
        import.cmdCharContinue.enable();
    }
}

void cmdContinue_Click(Screens& screens) { go_on_from_columns(screens, true); }

void cmdCharContinue_Click(Screens& screens) { go_on_from_columns(screens, false); }

void cmdRowClear_Click(FrmImportFileDisplay& import) {
    import.lblRow.clear_text();
    import.cmdRowContinue.disable();
}

void cmdRowContinue_Click(FrmImportFileDisplay& import) {
    import.lblSelectedCategory.clear_text();
    import.MSFlexKeldarIN.set_highlight(Highlight::never);
    import.frameConfiguration.hide();
    import.cmdFormatConfirm.enable();
}

void cmdRowIdBack_Click(FrmImportFileDisplay& import) {
    import.frameCategoryResults.show();
    import.frameRowSelection.hide();
    import.MSFlexKeldarIN.set_selection(Selection::by_column);
}

}  // namespace brooklander
