// Connects the start screen, the logon and the start-up to their handlers.
#pragma once

#include "platform/platform.h"
#include "screens.h"

namespace brooklander {

// The screens and the platform must outlive the use of the screens.
void wire_logon(Screens& screens, Platform& platform);

}  // namespace brooklander
