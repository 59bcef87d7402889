// The choice of a sample file whose characteristics a new configuration takes up.
#pragma once

#include "shared/screen.h"

namespace brooklander {

struct FrmCharSource : Screen {
    explicit FrmCharSource(Desk& desk) : Screen(desk, "frmCharSource", "Select Characteristics Source") {}
};

}  // namespace brooklander
