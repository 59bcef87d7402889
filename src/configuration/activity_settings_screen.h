// The activity settings: organization, activity type, category, medium, time zone.
#pragma once

#include "shared/screen.h"

namespace brooklander {

struct FrmPreferencesSettings : Screen {
    explicit FrmPreferencesSettings(Desk& desk)
        : Screen(desk, "frmPreferencesSettings", "Configuration File Settings") {}
};

}  // namespace brooklander
