// The translation of taxon names, which stands by itself.
#pragma once

#include "shared/screen.h"

namespace brooklander {

struct FrmSubjectTaxon : Screen {
    explicit FrmSubjectTaxon(Desk& desk)
        : Screen(desk, "frmSubjectTaxon", "Subject Taxon Translation") {}
};

}  // namespace brooklander
