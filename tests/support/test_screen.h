// A small screen for the rules of single fields.
#pragma once

#include "platform/files/host_files.h"
#include "shared/data_source.h"
#include "shared/grid.h"
#include "shared/place_lists.h"
#include "support/temporary_folder.h"

namespace brooklander::test {

struct FrmTest : Screen {
    explicit FrmTest(Desk& desk, std::string_view name = "frmTest") : Screen(desk, name, "Test") {}

    MenuEntry mnuFiles{*this, "mnuFiles", "Files"};
    MenuEntry mnuOpen{mnuFiles, "mnuOpen", "Open"};
    Panel frameOuter{*this, "frameOuter", "Outer"};
    Panel frameInner{frameOuter, "frameInner"};
    Label lblText{frameInner, "lblText"};
    TextBox txtText{frameInner, "txtText"};
    TextBox txtShort{frameInner, "txtShort", shown, {.most = 6}};
    Button cmdPress{frameInner, "cmdPress", "Press"};
    TickBox chkOne{frameOuter, "chkOne", "One"};
    Option optOne{frameOuter, "optOne", "One"};
    Option optTwo{frameOuter, "optTwo", "Two"};
    Option optElsewhere{*this, "optElsewhere", "Elsewhere"};
    List lstEntries{*this, "lstEntries"};
    PickList cmbEntries{*this, "cmbEntries"};
    DriveList Drive1{*this, "Drive1"};
    FolderList Dir1{*this, "Dir1"};
    FileList File1{*this, "File1", "*.txt*"};
    Grid MSFlexTest{*this, "MSFlexTest", {.columns = 3}};
    Grid MSHFlexTest{*this, "MSHFlexTest"};
    DataSource AdodcTest{*this, "AdodcTest"};
    Label lblHidden{*this, "lblHidden", {}, hidden};
};

// The screen, shown, on a folder of its own.
struct TestScreen {
    TestScreen() { screen.show(); }

    TemporaryFolder folder;
    HostFiles files{folder.path()};
    Desk desk{files};
    FrmTest screen{desk};
};

}  // namespace brooklander::test
