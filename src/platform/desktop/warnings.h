// The warnings of the toolkit, which a run of scenarios takes for failures.
#pragma once

#include <QString>

namespace brooklander::desktop {

// Collects warnings from now on; what the platform without a display always says is passed over.
void collect_warnings();

// The first one since the last call; empty when there was none.
QString take_warning();

}  // namespace brooklander::desktop
