// A screen that is never shown: it holds the habitat definition of a configuration, and fields that
// other screens set.
#pragma once

#include "shared/fields.h"

namespace brooklander {

struct FrmPreferencesCharacteristics : Screen {
    explicit FrmPreferencesCharacteristics(Desk& desk)
        : Screen(desk, "frmPreferencesCharacteristics", "Characteristics Holder") {}

    Label lblFileName{*this, "lblFileName"};
    Label lblChar{*this, "lblChar"};
    Panel frameCharacteristicGroupDisplay{*this, "frameCharacteristicGroupDisplay", {}, hidden};
    Button cmdSave{*this, "cmdSave", "Save", disabled};
    Button cmdSaveAs{*this, "cmdSaveAs", "Save As", disabled};
};

}  // namespace brooklander
