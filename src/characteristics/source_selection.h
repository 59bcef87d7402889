// The choice of a sample file whose characteristics a configuration takes up.
#pragma once

#include "platform/files.h"
#include "screens.h"

namespace brooklander {

// Brings the screen up, with no file selected.
void offer_sample_files(FrmCharSource& source);

// A drive chosen leads to its root, and nothing can be viewed until a file is picked.
void Drive1_Change(FrmCharSource& source);

// The files of another folder are listed. The button that views one stays as it is, unlike after a
// change of drive, so that it can be pressed with no file picked.
void Dir1_Change(FrmCharSource& source);

// One click opens a folder.
void Dir1_Click(FrmCharSource& source);

void lstImportFileBox_Click(Screens& screens, FrmCharSource& source);

// Loads the file into the import table and asks there for its characteristics. A file that cannot
// be opened is a FatalFailure, with the import screen up and its table empty.
void cmdView_Click(Screens& screens, FrmCharSource& source, const Files& files);

// Back to the sample options.
void mnuExit_Click(Screens& screens, FrmCharSource& source);

}  // namespace brooklander
