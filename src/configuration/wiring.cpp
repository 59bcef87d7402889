#include "configuration/wiring.h"

#include "configuration/configuration_manager.h"
#include "shared/workspace.h"

namespace brooklander {

void wire_configuration(Screens& screens, Platform& platform) {
    FrmPreferences& preferences = screens.frmPreferences;
    preferences.on_load = [&] { load_configuration_manager(preferences); };
    preferences.mnuExit.on_click = [&] { mnuExit_Click(screens, preferences); };
    preferences.mnuHelp.on_click = [&] { platform.help.show(workspace::help_file); };
    preferences.optVox.on_click = [&] { optVox_Click(screens); };
}

}  // namespace brooklander
