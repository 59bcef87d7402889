#include "configuration/configuration_manager.h"

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

    FrmImportFileDisplay& import = screens.frmImportFileDisplay;
    import.frameFileBeingConverted.show();
    import.frameVOX.show();
    import.frameConfiguration.hide();
    import.frameOutputFile.hide();
    import.frameImportedFile.hide();
    import.show();
    import.mnuExit.enable();
    import.cmdSave.enable();
    import.cmdSave.set_focus();
}

}  // namespace brooklander
