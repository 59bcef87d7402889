// A screen that is never shown: it holds the habitat definition of a configuration.
#pragma once

#include "shared/screen.h"

namespace brooklander {

struct FrmPreferencesCharacteristics : Screen {
    explicit FrmPreferencesCharacteristics(Desk& desk)
        : Screen(desk, "frmPreferencesCharacteristics", "Characteristics Holder") {}
};

}  // namespace brooklander
