// Results of a portable logger, typed in by hand and appended to a file.
#pragma once

#include <string_view>

#include "platform/files.h"
#include "screens.h"

namespace brooklander {

// More data lines than anybody types: a greater number counts as 0, as does text that is no number.
inline constexpr int most_data_lines = 100'000;

// Shows the labels, and gives both grids their rows, numbered from 1. What rows held that stay,
// they keep.
void cmdContinue_Click(FrmPortableDataLogger& portable);

// Takes the labels over and goes on to the results, in the first data line if there is one.
void cmdLinesContinue_Click(FrmPortableDataLogger& portable);

void cmdBack_Click(FrmPortableDataLogger& portable);

// The current cell is highlighted, once it has been gone to.
void leave_cell(Grid& grid, GridCell cell);
void enter_cell(Grid& grid, GridCell cell);

// Leaving a label takes the text of its cell over as the label of its data line.
void leave_label(FrmPortableDataLogger& portable, GridCell cell);

// Whether a text can name the file: one of a folder and not a path to another, of characters that a
// name may hold. Save waits for such a name.
bool is_file_name(std::string_view text);

// Appends the grid to the file named in the box, in a folder that is made where it is missing. A
// FatalFailure when the file cannot be written.
void cmdSave_Click(FrmPortableDataLogger& portable, Files& files);

// Yes and No exclude each other. No closes what more there is to enter.
void chkDataYes_Click(FrmPortableDataLogger& portable);
void chkDataNo_Click(FrmPortableDataLogger& portable);

// The same visit can only be one of the same station.
void chkStationYes_Click(FrmPortableDataLogger& portable);

}  // namespace brooklander
