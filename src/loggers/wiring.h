// Connects the logger screens.
#pragma once

#include "platform/platform.h"
#include "screens.h"

namespace brooklander {

// The screens and the platform must outlive their use.
void wire_loggers(Screens& screens, Platform& platform);

}  // namespace brooklander
