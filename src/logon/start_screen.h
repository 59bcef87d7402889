// The start screen: logon, menus, and the choice of the file to convert.
#pragma once

#include "shared/place_lists.h"

namespace brooklander {

struct FrmStart : Screen {
    explicit FrmStart(Desk& desk) : Screen(desk, "frmStart", "Start") {}

    MenuEntry mnuFiles{*this, "mnuFiles", "Files", disabled};
    MenuEntry mnuImport{mnuFiles, "mnuImport", "Import and Convert Data Files"};
    MenuEntry mnuLogger{mnuFiles, "mnuLogger", "Convert Automatic Data Logger Files", hidden};
    MenuEntry mnuPreferences{mnuFiles, "mnuPreferences", "Create/View/Delete Configuration Files"};
    MenuEntry mnuExit{mnuFiles, "mnuExit", "Exit"};
    MenuEntry mnuHelp{*this, "mnuHelp", "Help"};
    MenuEntry mnuAbout{*this, "mnuAbout", "About"};

    Label lblVersion{*this, "lblVersion", "BROOK LANDER version 1.2"};
    Label lblPurpose{*this, "lblPurpose", "Spreadsheet Data Conversion for VOX"};
    Label lblLogger{*this, "lblLogger", "Automatic Data Logger Conversion for KELDAR", hidden};

    Panel frameOracleLogon{*this, "frameOracleLogon"};
    Label lblOracle{frameOracleLogon, "lblOracle", "Logon "};
    Label lblUID{frameOracleLogon, "lblUID", "KELDAR User ID:"};
    TextBox txtOracleID{frameOracleLogon, "txtOracleID"};
    Label Label5{frameOracleLogon, "Label5", "KELDAR Password:"};
    TextBox txtOraclePassWord{frameOracleLogon, "txtOraclePassWord", shown, {.masked = true}};
    Button cmdUIDok{frameOracleLogon, "cmdUIDok", "OK", hidden};

    Panel frameOracleError{*this, "frameOracleError",
                           "Either your user id or password was entered incorrectly or Oracle is "
                           "not available.",
                           hidden};
    Button cmdOracleErrorOk{frameOracleError, "cmdOracleErrorOk", "OK"};

    Panel frameFiles{*this, "frameFiles", "Select File To Import And Convert", hidden};
    Label lblDrive{frameFiles, "lblDrive", "Drive:"};
    DriveList Drive1{frameFiles, "Drive1"};
    Label lblDirectory{frameFiles, "lblDirectory", "Directory:"};
    FolderList Dir1{frameFiles, "Dir1"};
    Label lblAvailableFiles{frameFiles, "lblAvailableFiles", "Files In Selected Directory:"};
    FileList lstImportFileBox{frameFiles, "lstImportFileBox", "*.txt*"};
    Label lblSelectedFileCaption{frameFiles, "lblSelectedFileCaption", "Selected File:"};
    Label lblSelectedFile{frameFiles, "lblSelectedFile"};
    Label lblTabDelimited{frameFiles, "lblTabDelimited",
                          "Only Tab Delimited Text Files Can Be Imported."};
    Button cmdView{frameFiles, "cmdView", "View File =>", disabled};

    Panel frameExit{*this, "frameExit", "Are You Sure You Want To Exit Brook Lander ?", hidden};
    Button cmdYes{frameExit, "cmdYes", "Yes"};
    Button cmdNo{frameExit, "cmdNo", "No"};

    Panel frameAbout{*this, "frameAbout", "About Data Import", hidden};
    Label lblAbout{frameAbout, "lblAbout",
                   "This is version 1.1 of Brook Lander, and contains all updates and fixes "
                   "through January 21, 2005.  Later versions are announced in the program's "
                   "change log and obtained where this one was."};
    Button mnuAboutClose{frameAbout, "mnuAboutClose", "Close"};

    Panel frameLog{*this, "frameLog", {}, hidden};
    Option optLogYes{frameLog, "optLogYes", "Yes"};
    Option optLogNo{frameLog, "optLogNo", "No"};

    Panel framChar{*this, "framChar",
                   "Brooklander Needs To Use The Characteristics From A File That Will Be "
                   "Converted To Set Up Characteristic Detail Defaults.",
                   hidden};
    Button cmdGoBack{framChar, "cmdGoBack", "<= Go Back", hidden};

    FileList filePreferences{*this, "filePreferences", "*.*", hidden};

    // 1 while the user works on a configuration rather than on a plain conversion.
    TickBox chkPreferences{*this, "chkPreferences", {}, hidden};

    Label lblTripIsNumber{*this, "lblTripIsNumber", {}, hidden};
};

}  // namespace brooklander
