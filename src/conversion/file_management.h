// Old output files, which can be deleted before a run. No step leaves this panel shown.
#pragma once

#include "platform/files.h"
#include "screens.h"

namespace brooklander {

// The choice of a format: the list shows the folder of that format's files.
void optVox_Click(FrmImportFileDisplay& display);
void optBatch_Click(FrmImportFileDisplay& display);

// A click on an old output names it as the one to delete.
void fileConvertedFiles_Click(FrmImportFileDisplay& display);

void cmdExistingFileDelete_Click(FrmImportFileDisplay& display);

// "Are you sure?": Yes deletes the named file as long as a format is chosen; after a run that was
// ended by Quit none is, and the list is read again all the same. A file that is gone is
// a FatalFailure.
void cmdKillYes_Click(FrmImportFileDisplay& display, Files& files);

// The question whether an existing file is to be overwritten.
void cmdOverwriteNo_Click(FrmImportFileDisplay& display);

}  // namespace brooklander
