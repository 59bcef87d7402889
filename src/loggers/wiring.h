// Connects the logger screens.
#pragma once

#include "screens.h"

namespace brooklander {

// The screens must outlive their use.
void wire_loggers(Screens& screens);

}  // namespace brooklander
