// The conversion of the import table into a load file.
//
// The load file holds one line of 33 fields between tildes for each result that is not blank. No
// field is quoted or escaped.
#pragma once

#include "platform/files.h"
#include "screens.h"

namespace brooklander {

// The rows that a conversion can take fields from: those from 0 up to but not including this.
inline constexpr int conversion_row_limit = 650001;

// "Convert". Appends to the file named in txtSave, and leaves repaired times, filled activity ids
// and normalised results in the table.
//
// A FatalFailure when the output cannot be opened or written, when a data row lies beyond the
// limit, and when a column lies outside the table. The file then ends with a whole line: the last
// one completed, or, where writing failed, the last one written. Under a configuration, a first
// failure while results are written starts the pass over them again, the lines already written
// staying in the file, and only the second one is fatal. A characteristic defaults file that cannot
// be read is no failure: the run ends with an empty load file.
void cmdFormatConfirm_Click(Screens& screens, Files& files);

}  // namespace brooklander
