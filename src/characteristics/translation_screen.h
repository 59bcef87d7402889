// The translation of a file's characteristic names to those of the database.
#pragma once

#include "characteristics/name_translation_panel.h"

namespace brooklander {

struct FrmCharacteristics : Screen, NameTranslation {
    explicit FrmCharacteristics(Desk& desk)
        : Screen(desk, "frmCharacteristics", "Characteristics Translation"),
          NameTranslation(*this, "Select Each Characteristic In Turn From The List Below.  ",
                          "Translate to KELDAR Characteristic Name") {}

    MenuEntry mnuExit{*this, "mnuExit", "Exit"};
    MenuEntry mnuHelp{*this, "mnuHelp", "Help"};

    // The names, a second time in lstCharacteristics, where those that are done carry a star.
    List lstCharacteristics{*this, "lstCharacteristics"};

    // Nothing shows the filter again once a row has been clicked: taxa are left out from then on.
    Panel frameTaxa{*this, "frameTaxa", "Select Search Filter"};
    TickBox chkTaxa{frameTaxa, "chkTaxa", "Taxa Only Search"};
    TickBox chkNoTaxa{frameTaxa, "chkNoTaxa", "Exclude Taxa From Search"};

    // The key by which the name in work is found again.
    Label lblCharacteristics{*this, "lblCharacteristics", {}, hidden};
};

}  // namespace brooklander
