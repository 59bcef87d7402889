// The second logger path: a results file is looked at and converted.
#pragma once

#include "conversion/batch_update.h"
#include "platform/files.h"
#include "screens.h"

namespace brooklander {

// Another drive or folder takes the choice of a file back. The file that was displayed last can be
// converted all the same as long as its name stands.
void Drive1_Change(FrmDataLoggerResults& results);
void dirLoggerFile_Change(FrmDataLoggerResults& results);

// One click opens a folder.
void dirLoggerFile_Click(FrmDataLoggerResults& results);

void fileLogger_Click(FrmDataLoggerResults& results);

// Shows the lines of the file, and allows to convert it. A FatalFailure when it cannot be read.
void cmdView_Click(FrmDataLoggerResults& results, const Files& files);

// Writes the converted file, and puts dates and times right in the work grid, which has twelve
// columns: fields beyond them are lost. A FatalFailure when a file cannot be read or written.
void cmdConvert_Click(Screens& screens, FrmDataLoggerResults& results, Files& files);

// Whatever is answered: the run is forgotten on both screens of the path, and the start screen is
// shown.
void end_run(Screens& screens, FrmDataLoggerResults& results);

// Back to the set-up.
void mnuExit_Click(Screens& screens, FrmDataLoggerResults& results);

// Writes the records of a work grid: for each row its date on a line of its own, then its time and
// its values that are not empty, trimmed. Dates and times are shown by their pictures (see
// date_pictures.h), in the cells, too.
void put_results(Grid& log, BatchUpdateText& text);

}  // namespace brooklander
