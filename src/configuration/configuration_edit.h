// An existing configuration is taken up for editing: its values go to the screens of the sequence.
#pragma once

#include "platform/platform.h"
#include "screens.h"

namespace brooklander {

// Leads to the settings, all that the file holds standing on the screens of the sequence but for
// what they have no place for: the trip, the habitat definition, a medium that is soil or
// biological, a category that is a habitat assessment. A configuration without characteristics
// cannot be edited; that is said instead, also when their file can no longer be read at the end. A
// FatalFailure when the configuration file or a reference list cannot be read, or the database
// cannot be reached.
void cmdOpen_Click(Screens& screens, Platform& platform);

// The way out for a configuration without characteristics: to the choice of a file that has some.
void cmdContinue_Click(Screens& screens, FrmPreferences& preferences);

}  // namespace brooklander
