#include "loggers/portable_entry.h"

#include <string>

#include "conversion/batch_update.h"
#include "loggers/answer_boxes.h"
#include "shared/text.h"
#include "shared/workspace.h"

namespace brooklander {
namespace {

using Portable = FrmPortableDataLogger;

constexpr int highlight_colour = 0xC0FF08;

int data_lines(const Portable& portable) {
    const int lines = position_in(trim(portable.txtLines.text()));
    return lines <= most_data_lines ? lines : 0;
}

void number_rows(Grid& grid, int first_row) {
    for (int row = first_row; row < grid.rows(); ++row) {
        grid.set_cell(row, 0, std::to_string(row - first_row + 1));
    }
}

void show_labels(Portable& portable, bool visible) {
    portable.frameLabelLines.set_visible(visible);
    portable.frameLines.set_visible(visible);
}

void put_cells(const Grid& grid, int row, int first_column, BatchUpdateText& text) {
    for (int column = first_column; column < grid.columns(); ++column) {
        text.put_value(grid.cell(row, column));
    }
    text.end_line();
}

void close_without_answer(Portable& portable) {
    if (portable.chkDataYes.ticked()) return;
    if (portable.chkDataNo.ticked()) {
        portable.frameMoreData.hide();
    } else {
        portable.cmdMoreData.disable();
    }
}

}  // namespace

void cmdContinue_Click(Portable& portable) {
    portable.frameLabelLines.show();
    const int lines = data_lines(portable);
    portable.MSHFlexLabels.set_rows(lines);
    portable.MSHFlexResults.set_rows(lines + 1);
    number_rows(portable.MSHFlexLabels, 0);
    number_rows(portable.MSHFlexResults, 1);
}

void cmdLinesContinue_Click(Portable& portable) {
    show_labels(portable, false);
    portable.frameResults.show();
    const Grid& labels = portable.MSHFlexLabels;
    Grid& results = portable.MSHFlexResults;
    for (int row = 0; row < labels.rows(); ++row) {
        results.set_cell(row + 1, Portable::label_column, labels.cell(row, Portable::label_column));
    }
    if (results.rows() > 1) results.make_current({1, Portable::first_result_column});
    results.set_focus();
}

bool is_file_name(std::string_view text) {
    return !trim(text).empty() && text.find_first_of("\\/:?*\"<>|") == std::string_view::npos;
}

void cmdBack_Click(Portable& portable) {
    portable.frameResults.hide();
    show_labels(portable, true);
}

void leave_cell(Grid& grid, GridCell cell) { grid.set_cell_colour(cell, std::nullopt); }

void enter_cell(Grid& grid, GridCell cell) { grid.set_cell_colour(cell, highlight_colour); }

void leave_label(Portable& portable, GridCell cell) {
    const std::string label(portable.MSHFlexLabels.cell(cell.row, cell.column));
    portable.MSHFlexResults.set_cell(cell.row + 1, Portable::label_column, label);
}

void cmdSave_Click(Portable& portable, Files& files) {
    const Grid& results = portable.MSHFlexResults;
    BatchUpdateText text(batch_update::portable);
    text.put_line("Data Line Count", portable.txtLines.text());
    text.begin_rows();
    put_cells(results, 0, Portable::first_result_column, text);
    for (int row = 1; row < results.rows(); ++row) {
        text.begin_result();
        put_cells(results, row, 0, text);
    }
    files.make_folder(workspace::older_root);
    files.make_folder(workspace::portable_logger_files);
    write_behind(
        files,
        std::string(workspace::portable_logger_files).append(trim(portable.txtFileName.text())),
        text);
    portable.frameEnterMoreData.show();
}

void chkDataYes_Click(Portable& portable) {
    take_answer(portable.chkDataYes, portable.chkDataNo, portable.cmdMoreData);
    close_without_answer(portable);
}

void chkDataNo_Click(Portable& portable) {
    take_answer(portable.chkDataNo, portable.chkDataYes, portable.cmdMoreData);
    close_without_answer(portable);
}

void chkStationYes_Click(Portable& portable) {
    if (!portable.chkStationYes.ticked()) portable.chkVisitYes.set_ticked(false);
    portable.chkVisitYes.set_enabled(portable.chkStationYes.ticked());
}

}  // namespace brooklander
