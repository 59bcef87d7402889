// The import table: a text file as it stands, a row for each line, a cell for each field.
#pragma once

#include <string_view>

#include "platform/files.h"
#include "screens.h"

namespace brooklander {

// Loads a file into the import table. Tabs alone divide; quotes are text; the first line is row 0
// whatever it holds; an empty line is a row. A file that cannot be opened is a FatalFailure, and
// the table is empty then, as is one that is larger than the memory. A failure while reading ends
// the table where it got to.
void load_import_table(Screens& screens, const Files& files, std::string_view path);

}  // namespace brooklander
