// Connects the configuration manager and the screens of a configuration to their handlers.
#pragma once

#include "platform/platform.h"
#include "screens.h"

namespace brooklander {

// The screens and the platform must outlive the use of the screens.
void wire_configuration(Screens& screens, Platform& platform);

}  // namespace brooklander
