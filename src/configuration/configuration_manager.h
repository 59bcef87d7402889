// The configuration manager's options, and the ways out of it.
#pragma once

#include "screens.h"

namespace brooklander {

// Points the list of configuration files at their folder.
void load_configuration_manager(FrmPreferences& preferences);

// View or edit a file: its list comes up, with no file selected.
void optBrookLanderEdit_Click(Screens& screens);

// Make a file: its name is asked for, and nothing is shown of the file that was shown last but its
// activity type and depth unit. Its selection goes with the first character of the name.
void optBrooklanderNew_Click(Screens& screens);

// Attach a file to the one being converted: the list comes up, or, where it is empty, the offer to
// make a file, and nothing else changes then.
void optUseConfig_Click(Screens& screens);

// Back to the start screen, where a file that is still selected can be viewed.
void mnuExit_Click(Screens& screens, FrmPreferences& preferences);

}  // namespace brooklander
