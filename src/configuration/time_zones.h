// The time zones that an activity can start in.
#pragma once

#include "screens.h"

namespace brooklander {

// Refills the list: each entry is a code of up to three bytes, padded to three, a blank, and the
// zone's name.
void fill_time_zones(FrmPreferencesSettings& settings);

}  // namespace brooklander
