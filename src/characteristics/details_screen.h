// The details of each characteristic of a configuration.
#pragma once

#include "shared/grid.h"

namespace brooklander {

struct FrmCharacteristicDetails : Screen {
    explicit FrmCharacteristicDetails(Desk& desk)
        : Screen(desk, "frmCharacteristicDetails", "Characteristic Details") {}

    Grid MSFlexDetails{*this, "MSFlexDetails", {.columns = 13}};
};

}  // namespace brooklander
