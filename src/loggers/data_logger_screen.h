// The second logger path: organization and characteristic group.
#pragma once

#include "shared/screen.h"

namespace brooklander {

struct FrmDataLogger : Screen {
    explicit FrmDataLogger(Desk& desk) : Screen(desk, "frmDataLogger", "Automatic Data Logger") {}
};

}  // namespace brooklander
