// What the details of characteristics are chosen from.
#pragma once

#include <string_view>

#include "platform/platform.h"
#include "screens.h"

namespace brooklander {

// Connects the four data sources of the details screen, fills those of units, procedure sources and
// an organization's laboratories, and refills the pick lists from the reference lists. A
// FatalFailure when the database cannot be reached or a reference list cannot be read.
void prepare_details(Screens& screens, Platform& platform, std::string_view organization);

}  // namespace brooklander
