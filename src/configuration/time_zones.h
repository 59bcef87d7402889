// The time zones that an activity's start time can be in.
#pragma once

#include <string>
#include <string_view>

#include "screens.h"

namespace brooklander {

// Fills the list of the activity settings. The list is kept nowhere: whoever shows that screen
// fills it before.
void fill_time_zones(FrmPreferencesSettings& settings);

// The code of an entry, as a configuration holds it: its first three characters, trimmed.
std::string time_zone_code(std::string_view entry);

}  // namespace brooklander
