// The first logger path: characteristic group and conversion.
#pragma once

#include "shared/screen.h"

namespace brooklander {

struct FrmLoggerResults : Screen {
    explicit FrmLoggerResults(Desk& desk)
        : Screen(desk, "frmLoggerResults", "Data Logger Results") {}
};

}  // namespace brooklander
