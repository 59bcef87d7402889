// The first logger path: a characteristic group is picked, and the logger file converted.
#pragma once

#include "platform/platform.h"
#include "screens.h"

namespace brooklander {

// Lists the characteristics of the clicked group in their order. A FatalFailure when the statement
// fails.
void MSHFlexCharGroup_Click(Screens& screens, FrmLoggerResults& results, Database& database);

// Writes the group, its row ids and the records behind what the file holds. Pressed twice, it
// writes all that twice, and the row ids, which keep their commas in the table, get a second one. A
// FatalFailure when the file cannot be written.
void cmdConvert_Click(Screens& screens, FrmLoggerResults& results, Files& files);

// Goes back to the start screen with this file forgotten; after No, its file selection is closed,
// too. With neither box on, nothing happens.
void cmdContinue_Click(Screens& screens, FrmLoggerResults& results);

}  // namespace brooklander
