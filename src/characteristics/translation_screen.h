// The translation of a file's characteristic names to those of the database.
#pragma once

#include "shared/grid.h"

namespace brooklander {

struct FrmCharacteristics : Screen {
    explicit FrmCharacteristics(Desk& desk)
        : Screen(desk, "frmCharacteristics", "Characteristics Translation") {}

    Label lblFile{*this, "lblFile"};

    List lstCharacteristics{*this, "lstCharacteristics"};

    // Column 0 the file's names, column 1 their translations.
    Grid MSFlexChar{*this, "MSFlexChar", {.columns = 2}};
};

}  // namespace brooklander
