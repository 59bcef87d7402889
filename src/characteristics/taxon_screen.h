// The translation of taxon names, which stands by itself.
#pragma once

#include "characteristics/name_translation_panel.h"

namespace brooklander {

// No step of the program fills its grid or reads it, and none shows the screen; its menus and
// cmdNext have no action.
struct FrmSubjectTaxon : Screen, NameTranslation {
    explicit FrmSubjectTaxon(Desk& desk)
        : Screen(desk, "frmSubjectTaxon", "Subject Taxon Translation"),
          NameTranslation(*this, "Select Each Taxon Name In Turn From The List Below.  ",
                          "Translate to KELDAR Taxon Name") {}

    MenuEntry mnuExit{*this, "mnuExit", "Exit"};
    MenuEntry mnuHelp{*this, "mnuHelp", "Help"};
};

}  // namespace brooklander
