// The translation of a file's characteristic names to those of the database.
#pragma once

#include "shared/data_source.h"

namespace brooklander {

struct FrmCharacteristics : Screen {
    explicit FrmCharacteristics(Desk& desk)
        : Screen(desk, "frmCharacteristics", "Characteristics Translation") {
        MSFlexChar.set_column_widths({2000, 4000});
        AdodcCharacteristics.bind(cmbCharacteristics, display_name, search_name);
    }

    MenuEntry mnuExit{*this, "mnuExit", "Exit"};
    MenuEntry mnuHelp{*this, "mnuHelp", "Help"};

    Panel frameFile{*this, "frameFile", "Configuration File:"};
    Label lblFile{frameFile, "lblFile"};

    Panel frameInstructions{*this, "frameInstructions"};
    Label lblInstructions{frameInstructions, "lblInstructions",
                          "Select Each Characteristic In Turn From The List Below.  "};

    // The names, a second time in lstCharacteristics, where those that are done carry a star.
    List lstCharacteristics{*this, "lstCharacteristics"};

    // Column 0 the file's names, column 1 their translations.
    Grid MSFlexChar{*this, "MSFlexChar", {.columns = 2}};

    // Nothing shows the filter again once a row has been clicked: taxa are left out from then on.
    Panel frameTaxa{*this, "frameTaxa", "Select Search Filter"};
    TickBox chkTaxa{frameTaxa, "chkTaxa", "Taxa Only Search"};
    TickBox chkNoTaxa{frameTaxa, "chkNoTaxa", "Exclude Taxa From Search"};

    Panel frameOptions{*this, "frameOptions", "Enter Search String", hidden};
    Label lblSearchHint{
        frameOptions, "lblSearchHint",
        "Type In A Search String Then Click \"Search\" To See Matches From KELDAR."};
    TextBox txtCharacteristic{frameOptions, "txtCharacteristic"};
    Button cmdDisplay{*this, "cmdDisplay", "Search", disabled};

    // The panels of the steps only say what they are about: what they are done with lies beside
    // them, since a search for pH offers its translation without any of them.
    Panel frameMatch{*this, "frameMatch", "Search Characteristic Name Matches", hidden};
    Label lblMatchHint{frameMatch, "lblMatchHint", "Click appropriate match"};
    DataSource AdodcCharacteristics{*this, "AdodcCharacteristics"};
    PickList cmbCharacteristics{*this, "cmbCharacteristics"};

    Panel frameTranslate{*this, "frameTranslate", "Translate to KELDAR Characteristic Name",
                         hidden};
    Panel frameAutoTranslate{*this, "frameAutoTranslate", "Automatic Translation Performed",
                             hidden};

    Label lblOriginalName{*this, "lblOriginalName", "Original Name =>"};
    Label lblSelectedCharacteristic{*this, "lblSelectedCharacteristic"};
    // The key by which the name in work is found again.
    Label lblCharacteristics{*this, "lblCharacteristics", {}, hidden};
    Button cmdChange{*this, "cmdChange", "Translate To =>", disabled};
    Label lblChange{*this, "lblChange"};
    Label lblAccept{*this, "lblAccept", "Accept Change?"};
    Button cmdYes{*this, "cmdYes", "Yes", disabled};
    Button cmdNo{*this, "cmdNo", "No", disabled};

    // Read by no step.
    Label lblOrgID{*this, "lblOrgID", {}, hidden};

    Button cmdNext{*this, "cmdNext", "Next =>", disabled};

  private:
    // The columns of the search statements.
    static constexpr int search_name = 0;
    static constexpr int display_name = 1;
};

}  // namespace brooklander
