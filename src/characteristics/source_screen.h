// The choice of a sample file whose characteristics a new configuration takes up.
#pragma once

#include "shared/place_lists.h"

namespace brooklander {

struct FrmCharSource : Screen {
    explicit FrmCharSource(Desk& desk)
        : Screen(desk, "frmCharSource", "Select Characteristics Source") {}

    MenuEntry mnuExit{*this, "mnuExit", "Exit"};
    MenuEntry mnuHelp{*this, "mnuHelp", "Help"};

    Panel framChar{*this, "framChar",
                   "Brooklander Needs To Use The Characteristics From A File That Will Be "
                   "Converted To Set Up Characteristic Detail Defaults.",
                   hidden};

    Panel frameFile{*this, "frameFile", "Configuration File:", hidden};
    Label lblFile{frameFile, "lblFile"};

    Panel frameFiles{*this, "frameFiles", "Select File To Import And Convert", hidden};
    DriveList Drive1{frameFiles, "Drive1"};
    FolderList Dir1{frameFiles, "Dir1"};
    Label lblAvailableFiles{frameFiles, "lblAvailableFiles", "Files In Selected Directory:"};
    FileList lstImportFileBox{frameFiles, "lstImportFileBox", "*.txt*"};
    Label lblSelectedFileCaption{frameFiles, "lblSelectedFileCaption", "Selected File:"};
    Label lblSelectedFile{frameFiles, "lblSelectedFile"};
    Button cmdView{frameFiles, "cmdView", "View File =>", disabled};

    // Nothing reads the two options.
    Panel frameLog{*this, "frameLog", {}, hidden};
    Option optLogYes{frameLog, "optLogYes", "Yes"};
    Option optLogNo{frameLog, "optLogNo", "No"};

    // On while the characteristics are new, so that their details begin empty.
    TickBox chkNew{*this, "chkNew", "newconfig", hidden};
};

}  // namespace brooklander
