// The characteristic defaults file: one line for each characteristic of a configuration, in the
// order of the columns of the files that it is made for. Its lines and a grid's rows.
#pragma once

#include <string>
#include <string_view>

#include "platform/files.h"
#include "shared/grid.h"

namespace brooklander {

// As many characteristics as a file can be written of.
inline constexpr int most_characteristics = 6500;

// As many lines as the screens that count them take.
inline constexpr int most_shown_lines = 65001;

// Gives a grid of thirteen columns one fixed row with the headings in row 0, and its texts to the
// left. The grid must have its row 0.
void set_defaults_headings(Grid& grid);

// Adds a row for each line of the file's text, cut as the screens cut it; lines beyond `most` are
// left out. The values of a line are joined by tabs, and the tabs divide them into cells: a tab
// that stands in a value divides it, too.
void add_defaults_rows(Grid& grid, std::string_view file_text, int most = -1);

// The text of a file for the grid's rows from row 1 on, laid out by the stops. Values are trimmed;
// columns beyond the thirteenth are not looked at. Nothing is cut, so that a value wider than its
// column makes a second line of the rest of its record. A FatalFailure beyond most_characteristics.
std::string defaults_text(const Grid& details);

// Writes that text to a file in place of what it held; the grid's last cell becomes its current
// one. A FatalFailure beyond most_characteristics, before anything is touched. A folder or a file
// that cannot be made or written is passed over without a word, as it has always been: who saves
// goes on as if all went well.
void write_defaults_file(Grid& details, Files& files, std::string_view path);

}  // namespace brooklander
