// The display of a configuration file during a conversion.
#pragma once

#include "shared/screen.h"

namespace brooklander {

struct FrmConfigurationDisplay : Screen {
    explicit FrmConfigurationDisplay(Desk& desk)
        : Screen(desk, "frmConfigurationDisplay", "Configuration File Display") {}
};

}  // namespace brooklander
