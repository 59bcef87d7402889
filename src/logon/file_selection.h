// The choice of the file to convert, from the menu entry to the loaded table.
#pragma once

#include "platform/files.h"
#include "screens.h"

namespace brooklander {

// Opens the file selection for a plain conversion, at the root of drive `c:`.
void mnuImport_Click(Screens& screens);

void Drive1_Change(FrmStart& start);
void Dir1_Change(FrmStart& start);

// One click opens a folder.
void Dir1_Click(FrmStart& start);

void lstImportFileBox_Click(Screens& screens);

// Shows the import screen with the selected file in its table. The file's content is looked at by
// nobody: a file that is no table shows as a table of wrong columns.
void cmdView_Click(Screens& screens, const Files& files);

}  // namespace brooklander
