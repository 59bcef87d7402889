// The entries of the Files menu that lead from the start screen to another screen at once.
#pragma once

#include "platform/database.h"
#include "screens.h"

namespace brooklander {

// Opens the configuration manager for work on configuration files: nothing chosen there, nothing
// left in the labels and boxes of the screens behind it, and only the two options that make or
// change a file to choose from.
void mnuPreferences_Click(Screens& screens);

// Opens the set-up of automatic data loggers with the database's organizations. The entry is hidden
// and nothing shows it, so that no user comes here. A FatalFailure when the statement fails; the
// set-up screen is up by then.
void mnuLogger_Click(Screens& screens, Database& database);

}  // namespace brooklander
