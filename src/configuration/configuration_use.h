// The file being converted is attached to a configuration: one of this program's, or one that is
// kept in the import module.
#pragma once

#include "platform/platform.h"
#include "screens.h"

namespace brooklander {

// The configuration that is shown. Its values go to the store of activity values, its group of
// characteristics is asked of the database, and the import screen goes on. A FatalFailure when the
// statement fails.
void cmdConfirm_Click(Screens& screens, Platform& platform);

// One of the import module: the import screen goes on with no activity values from here.
void optVox_Click(Screens& screens);

}  // namespace brooklander
