// The configuration manager: configuration files are chosen, shown and attached here. Its labels
// hold the values of the current configuration.
#pragma once

#include "configuration/configuration_panel.h"
#include "shared/place_lists.h"

namespace brooklander {

struct FrmPreferences : Screen, ConfigurationPanel {
    static constexpr std::string_view title_from_the_menu =
        "Create Or View Brooklander Configuration Files";

    explicit FrmPreferences(Desk& desk)
        : Screen(desk, "frmPreferences", title_from_the_menu), ConfigurationPanel(*this, hidden) {}

    MenuEntry mnuExit{*this, "mnuExit", "Exit"};
    MenuEntry mnuHelp{*this, "mnuHelp", "Help"};

    Panel frameOptions{*this, "frameOptions", "Configuration File Options", hidden};
    Option optBrookLanderEdit{frameOptions, "optBrookLanderEdit",
                              "View or Edit Existing Brooklander Configuration File"};
    Option optBrooklanderNew{frameOptions, "optBrooklanderNew",
                             "Create New Brooklander Configuration File"};
    Option optUseConfig{frameOptions, "optUseConfig",
                        "Use Existing Brooklander Configuration File"};
    Option optVox{frameOptions, "optVox", "Use Existing VOX Configuration File"};
    Label lblOption{frameOptions, "lblOption"};

    Panel frameFiles{*this, "frameFiles", "Open Existing Brooklander Configuration File", hidden};
    FileList filePreferences{frameFiles, "filePreferences", "*.*"};
    Label lblSelectedFile{frameFiles, "lblSelectedFile"};

    Panel frameNewFile{*this, "frameNewFile", "Create New Configuration File", hidden};
    TextBox txtFileName{frameNewFile, "txtFileName"};
    Button cmdNewFileSave{frameNewFile, "cmdNewFileSave", "Save", disabled};

    Panel frameNoFile{*this, "frameNoFile",
                      "There Are No Brooklander Configuration Files.  Click \"Create\" To Create A "
                      "Configuration File",
                      hidden};
    Button cmdCreate{frameNoFile, "cmdCreate", "Create"};

    Panel frameFileConverted{*this, "frameFileConverted", "File Being Converted:", hidden};
    Label lblFileConverted{frameFileConverted, "lblFileConverted"};

    Panel frameFileExistsWarning{*this, "frameFileExistsWarning",
                                 "A file with this name already exists.  Do you want to replace it "
                                 "with a new file?",
                                 hidden};
    Button cmdReplaceYes{frameFileExistsWarning, "cmdReplaceYes", "Yes"};
    Button cmdReplaceNo{frameFileExistsWarning, "cmdReplaceNo", "No"};

    Panel frameConfirm{*this, "frameConfirm", "Are You Sure?", hidden};
    Button cmdYes{frameConfirm, "cmdYes", "Yes"};
    Button cmdNo{frameConfirm, "cmdNo", "No"};

    Panel frameConfirmDelete{*this, "frameConfirmDelete",
                             "Are You Sure You Want to Delete This File?", hidden};
    Button cmdFileDeleteYes{frameConfirmDelete, "cmdFileDeleteYes", "Yes"};
    Button cmdFileDeleteNo{frameConfirmDelete, "cmdFileDeleteNo", "No"};

    Panel frameDescription{*this, "frameDescription", {}, hidden};
    Label lblDefaults{frameDescription, "lblDefaults",
                      "Select The Configuration File That Will Be Used To Fill In Activity Details "
                      "For The File Being Converted."};
    Label lblDescription{frameDescription, "lblDescription"};

    // In the panel of what the selected file holds, whose labels keep the current configuration of
    // the run when the panel is hidden.
    Label lblWait{frameView, "lblWait", "** Please Wait **", hidden};

    Panel frameFileOptions{frameView, "frameFileOptions", "File Options", hidden};
    Button cmdClose{frameFileOptions, "cmdClose", "Close"};
    Button cmdOpen{frameFileOptions, "cmdOpen", "Edit", disabled};
    Button cmdDelete{frameFileOptions, "cmdDelete", "Delete", disabled};

    Panel frameNoChar{frameView, "frameNoChar",
                      "No Characteristics Configurations Have Been Set Up For This Configuration "
                      "File.  Click Continue To Go To Characteristic Configuration Set Up.",
                      hidden};
    Button cmdContinue{frameNoChar, "cmdContinue", "Continue =>"};
};

}  // namespace brooklander
