// The second logger path: results file and conversion.
#pragma once

#include "shared/screen.h"

namespace brooklander {

struct FrmDataLoggerResults : Screen {
    explicit FrmDataLoggerResults(Desk& desk)
        : Screen(desk, "frmDataLoggerResults", "Data Logger Results Import") {}
};

}  // namespace brooklander
