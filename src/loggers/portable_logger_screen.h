// Results of a portable logger, entered by hand.
#pragma once

#include "shared/screen.h"

namespace brooklander {

struct FrmPortableDataLogger : Screen {
    explicit FrmPortableDataLogger(Desk& desk)
        : Screen(desk, "frmPortableDataLogger", "Portable Data Logger") {}
};

}  // namespace brooklander
