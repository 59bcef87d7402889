// The sample options: depth unit, projects, person and sample transport of a configuration.
#pragma once

#include "shared/fields.h"

namespace brooklander {

struct FrmPreferencesSampleOption : Screen {
    explicit FrmPreferencesSampleOption(Desk& desk)
        : Screen(desk, "frmPreferencesSampleOption", "Sample Options For Configuration File") {}

    // Ticked while characteristics are to be set up from a file.
    TickBox chkChar{*this, "chkChar", "Characteristics"};
};

}  // namespace brooklander
