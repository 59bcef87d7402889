// The first logger path: organization, installation and log file.
#pragma once

#include "shared/screen.h"

namespace brooklander {

struct FrmLogger : Screen {
    explicit FrmLogger(Desk& desk) : Screen(desk, "frmLogger", "Automatic Data Loggers") {}
};

}  // namespace brooklander
