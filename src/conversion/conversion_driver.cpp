#include "conversion/conversion_driver.h"

#include "conversion/characteristics.h"
#include "conversion/result_pass.h"
#include "conversion/row_fields.h"
#include "platform/code_page.h"
#include "platform/fatal_failure.h"
#include "shared/text.h"
#include "shared/workspace.h"

namespace brooklander {
namespace {

void prepare(FrmImportFileDisplay& display) {
    display.frameCategoryResults.hide();
    display.frameRowSelection.hide();
    display.frameSameSelections.hide();
    display.MSFlexResults.clear();
    display.lstDetectionLimit.clear();
    display.lstValidate.clear();
    display.lstRowId.clear();
    display.set_pointer(Pointer::busy);
}

// What reading the rows' fields does once for all rows: it fails where it cannot be done, before
// anything is written, and leaves the current cell where it stopped. The order is that of reading.
void check_data_rows(Grid& table, const Assignment& assignment) {
    const int last_row = table.rows() - 1;
    if (assignment.first_row > last_row) return;
    if (last_row >= conversion_row_limit) {
        throw FatalFailure("The table has " + std::to_string(table.rows()) +
                           " rows; a table can be converted up to row " +
                           std::to_string(conversion_row_limit) + " only.");
    }
    const auto visit = [&](std::optional<int> column) {
        if (column) table.make_current({last_row, *column});
    };
    visit(assignment.station);
    visit(assignment.date);
    visit(assignment.time);
    visit(assignment.sample);
    visit(assignment.depth);
    visit(assignment.comments);
    visit(assignment.person);
}

// Row 0 can be a data row, but never has results: only what reading it changes is left of it, and
// the headings are read after that.
void read_first_row(Grid& table, const Assignment& assignment, RowFields& fields) {
    if (assignment.first_row > 0 || table.rows() == 0) return;
    RowCells cells;
    table.read_row(0, cells);
    bool changed = false;
    fields.read(cells, 1, changed);
    if (changed) table.write_row(0, cells);
}

// The lines that are held back belong to the pass: a failure to write them is one of the pass.
void write_all(ResultPass& pass, LineWriter& writer) {
    pass.run();
    writer.hand_on();
}

// The look at the result in work, as the last one leaves it.
void show_last_result(FrmImportFileDisplay& display, const ResultPass& pass) {
    const GridCell cell = pass.last_cell();
    if (cell.row == 0) return;
    display.MSFlexKeldarIN.make_current(cell);
    display.MSFlexResults.set_rows(0);
    display.MSFlexResults.add_row(upper(display.lstRows.entry(pass.last_characteristic())) + '\t' +
                                  std::string(trim(display.MSFlexKeldarIN.current_text())));
}

void finish(FrmImportFileDisplay& display) {
    display.set_pointer(Pointer::normal);
    display.lblConvertedFile.set_text(display.txtSave.text());
    display.fileConvertedFiles.refresh();
    display.frameConverted.show();
    display.lblConverted.set_text(
        "Has been created and is ready to be loaded in KELDAR through VOX. ** Note that this is a "
        "tilde ~ delimited file. **");
    display.frameOutputFile.hide();
}

}  // namespace

void cmdFormatConfirm_Click(Screens& screens, Files& files) {
    FrmImportFileDisplay& display = screens.frmImportFileDisplay;
    Grid& table = display.MSFlexKeldarIN;
    prepare(display);
    LineWriter writer(files.append(display.txtSave.text()));

    const Assignment assignment = assignment_of(display);
    const ActivityDefaults activityDefaults = activity_defaults_of(screens);
    RowFields fields(assignment, activityDefaults, display.txtActivityID.text());
    check_data_rows(table, assignment);
    read_first_row(table, assignment, fields);

    const bool under_configuration = !screens.frmPreferences.optVox.on();
    if (under_configuration) {
        take_characteristics_from_file(display, files,
                                       std::string(workspace::characteristics) +
                                           screens.frmPreferences.lblSelectedFile.text());
    } else {
        take_characteristics_from_headings(display, assignment.first_result);
    }
    const std::vector<CharacteristicPieces> characteristics = characteristic_pieces(display);
    const auto last_column = assignment.first_result + static_cast<int>(characteristics.size()) - 1;
    display.lblRows.set_text(std::to_string(last_column));

    ResultPass pass(table, assignment, fields, characteristics, writer, under_configuration);
    try {
        write_all(pass, writer);
    } catch (const FatalFailure&) {
        if (!under_configuration) throw;
        write_all(pass, writer);
    }
    writer.close();
    show_last_result(display, pass);
    table.refreshed();
    finish(display);
}

}  // namespace brooklander
