// From the import question to the columns: the output file and the activity ID filler.
#pragma once

#include "platform/files.h"
#include "screens.h"

namespace brooklander {

// Asks, of a file that is about to be viewed, whether it is to be imported or, while
// characteristics are wanted, whether they are to be set up from it. The second question wins.
void ask_what_file_is_for(Screens& screens);

// "Import This File?": Yes leads to the choice of a configuration and names the output file after
// the input file; No goes back to the start screen.
void cmdYes_Click(Screens& screens);
void cmdNo_Click(Screens& screens);

// What the start screen knows of the selected file's kind and use; whoever comes back there clears
// it.
void forget_file_kind(FrmStart& start);

// Creates the output file empty, one of that name included, and asks for the filler. A file that
// cannot be created is a FatalFailure.
void cmdSave_Click(Screens& screens, Files& files);

void txtSave_Change(FrmImportFileDisplay& display);
void txtSave_Click(FrmImportFileDisplay& display);

// Both buttons under the filler: a text typed before Skip is used all the same.
void leave_activity_filler(FrmImportFileDisplay& display);

// "Use Existing Column Selections ?"
void cmdColumnYes_Click(FrmImportFileDisplay& display);
void cmdColumnNo_Click(FrmImportFileDisplay& display);

// The choice of a format, which no step offers.
void cmdFormatContinue_Click(FrmImportFileDisplay& display);

void mnuExit_Click(Screens& screens);

// The hidden choice between a defaults file and none, on the store of activity values.
void chkNoPreferences_Click(FrmImport& values);

}  // namespace brooklander
