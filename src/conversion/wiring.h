// Connects the conversion to its handlers.
#pragma once

#include "platform/platform.h"
#include "screens.h"

namespace brooklander {

// The screens and the platform must outlive the use of the screens.
void wire_conversion(Screens& screens, Platform& platform);

}  // namespace brooklander
