// A screen that is never shown: it holds what other screens write.
#pragma once

#include "shared/fields.h"

namespace brooklander {

struct FrmImportContinue : Screen {
    explicit FrmImportContinue(Desk& desk) : Screen(desk, "frmImportContinue", "Import Continue") {}

    Label lblOrganization{*this, "lblOrganization"};
};

}  // namespace brooklander
