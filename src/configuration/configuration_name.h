// A new configuration gets its name, and with it an empty file.
#pragma once

#include "platform/platform.h"
#include "screens.h"

namespace brooklander {

// The panel for the name comes up, empty and with the focus.
void ask_for_name(FrmPreferences& preferences);

// There are no files to choose from: the offer to make one is taken.
void cmdCreate_Click(FrmPreferences& preferences);

// From the first character on, a name can be saved, and no existing file is shown or asked about.
void txtFileName_Change(FrmPreferences& preferences);

// Who goes back to the name has no file selected.
void txtFileName_Click(FrmPreferences& preferences);

// Makes the file, empty, and leads to the settings, the name standing on every screen of the
// sequence and nothing chosen on any. A name that is in the list already raises the question
// whether to replace the file; names are compared with regard to case, so that another spelling
// makes an existing file empty without one. Blanks at the name's ends count for the file and not
// for the comparison. A FatalFailure when the file cannot be made.
void cmdNewFileSave_Click(Screens& screens, Files& files);

void cmdReplaceNo_Click(FrmPreferences& preferences);

// Deletes the file that is to be replaced, and leads to the settings in the same way. The new one
// is made when the sequence comes to its end, and not before. A FatalFailure when the database
// cannot be reached; the file is gone by then.
void cmdYes_Click(Screens& screens, Platform& platform);

}  // namespace brooklander
