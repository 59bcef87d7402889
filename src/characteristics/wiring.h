// Connects the screens of the characteristics to their handlers.
#pragma once

#include "platform/platform.h"
#include "screens.h"

namespace brooklander {

// The screens and the platform must outlive the use of the screens.
void wire_characteristics(Screens& screens, Platform& platform);

}  // namespace brooklander
