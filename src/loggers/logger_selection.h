// The first logger path: a logger file is confirmed, and its organization, installation and log
// file are picked from the database.
#pragma once

#include <string>

#include "platform/platform.h"
#include "screens.h"

namespace brooklander {

// Takes the file that is selected on the start screen to this path, which begins with a question.
// No step calls it: the start screen shows every file as a table. A file that cannot be read is a
// FatalFailure.
void open_logger_file(Screens& screens, const Files& files);

// Not to be converted: back to the start screen.
void cmdNo_Click(Screens& screens, FrmLogger& logger);

// To be converted: the file goes into the table of the next screen, in place of any before, and the
// organizations are listed. A FatalFailure when the file cannot be read or the statement fails, as
// in the clicks below.
void cmdYes_Click(Screens& screens, FrmLogger& logger, Platform& platform);

// Each click in a table fills the next one. The log files are those of the organization, whichever
// of its installations is clicked; what was picked further down for another organization stays
// until it is picked anew.
void MSHFlexOrganization_Click(Screens& screens, FrmLogger& logger, Database& database);
void MSHFlexADL_Click(Screens& screens, FrmLogger& logger, Database& database);
void MSHFlexLogFile_Click(FrmLogger& logger);

// Back to the question.
void cmdBack_Click(FrmLogger& logger);

// Begins the Batch Update file, named after the file that is selected on the start screen, and goes
// on to the characteristic groups. A FatalFailure when the file cannot be written or the statement
// fails.
void cmdContinue_Click(Screens& screens, FrmLogger& logger, Platform& platform);

// Empties what was picked: organization, installation and log file.
void forget_details(FrmLogger& logger);

// The Batch Update file's path.
std::string logger_output_path(const FrmStart& start);

}  // namespace brooklander
