#include "configuration/configuration_manager.h"

#include "shared/text.h"
#include "shared/workspace.h"

namespace brooklander {

void load_configuration_manager(FrmPreferences& preferences) {
    preferences.filePreferences.set_path(workspace::configurations);
    if (!preferences.lblSelectedFile.empty()) {
        preferences.lblViewFileName.set_text(preferences.lblSelectedFile.text());
    }
}

void optVox_Click(Screens& screens) {
    FrmPreferences& preferences = screens.frmPreferences;
    preferences.frameFiles.hide();
    preferences.frameNoFile.hide();
    preferences.lblOption.set_text(
        "Attach data converted by Brooklander to a Configuration File created in VOX.  Click HELP "
        "for step by step procedures.");
    preferences.hide();

    FrmImportFileDisplay& display = screens.frmImportFileDisplay;
    display.frameFileBeingConverted.show();
    display.frameVOX.show();
    display.frameConfiguration.hide();
    display.frameOutputFile.hide();
    display.frameImportedFile.hide();
    display.show();
    display.mnuExit.enable();
    display.cmdSave.enable();
    display.cmdSave.set_focus();
}

void mnuExit_Click(Screens& screens, FrmPreferences& preferences) {
    preferences.lblWait.hide();
    preferences.hide();
    FrmStart& start = screens.frmStart;
    start.show();
    start.cmdView.set_enabled(!trim(start.lblSelectedFile.text()).empty());
}

}  // namespace brooklander
