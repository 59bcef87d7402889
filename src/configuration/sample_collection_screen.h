// The sample collection: procedure, gear and gear configuration of a sample activity.
#pragma once

#include "shared/screen.h"

namespace brooklander {

struct FrmPreferencesSamples : Screen {
    explicit FrmPreferencesSamples(Desk& desk)
        : Screen(desk, "frmPreferencesSamples",
                 "Setting Configuration File Sample Collection Procedures") {}
};

}  // namespace brooklander
