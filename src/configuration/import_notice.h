// The notice that goes with a configuration: how to set the import module up for the files that are
// converted under it. A person reads it, and no program.
#pragma once

#include <string>

#include "screens.h"

namespace brooklander {

// The whole notice, with the typed name, the selected file and the organization of the manager.
// The positions in its table are fixed wording, whatever the load file's own are; so are the
// missing quotes and the other misspellings.
std::string import_notice(const FrmPreferences& preferences);

}  // namespace brooklander
