// The store of the activity values that come from a configuration file.
#pragma once

#include "shared/screen.h"

namespace brooklander {

struct FrmImport : Screen {
    explicit FrmImport(Desk& desk) : Screen(desk, "frmImport", "Import Files") {}
};

}  // namespace brooklander
