// The configuration manager's steps.
#pragma once

#include "screens.h"

namespace brooklander {

// Points the list of configuration files at their folder.
void load_configuration_manager(FrmPreferences& preferences);

// Attaches the file to a configuration that is kept in the import module: back to the import
// screen, with no activity values from here.
void optVox_Click(Screens& screens);

// Back to the start screen, where a file that is still selected can be viewed.
void mnuExit_Click(Screens& screens, FrmPreferences& preferences);

}  // namespace brooklander
