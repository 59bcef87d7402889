// A configuration file is chosen in the list: shown, closed again, or deleted.
#pragma once

#include "platform/files.h"
#include "screens.h"

namespace brooklander {

// Shows what the selected file and its characteristics hold, and names the file on every screen of
// the sequence. A file that has gone, and a folder of more than most_configurations files, are a
// FatalFailure; characteristics that cannot be read leave the grids with the row of headings alone.
void filePreferences_Click(Screens& screens, const Files& files);

// The file is shown no longer; its values stay the current configuration.
void cmdClose_Click(FrmPreferences& preferences);

void cmdDelete_Click(FrmPreferences& preferences);

// Deletes the file, and none of those that share its name. A FatalFailure when it cannot be
// deleted.
void cmdFileDeleteYes_Click(FrmPreferences& preferences, Files& files);

}  // namespace brooklander
