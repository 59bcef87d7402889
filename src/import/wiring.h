// Connects the import screen's choices: the file, its columns and its first row to their handlers.
#pragma once

#include "platform/platform.h"
#include "screens.h"

namespace brooklander {

// The screens and the platform must outlive the use of the screens.
void wire_import(Screens& screens, Platform& platform);

}  // namespace brooklander
