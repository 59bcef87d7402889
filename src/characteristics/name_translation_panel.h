// The translation of names, as the two screens that translate them have it: a grid of names, the
// search for one, and what is offered for it.
#pragma once

#include "shared/data_source.h"

namespace brooklander {

struct NameTranslation {
    NameTranslation(Screen& screen, std::string_view instructions, std::string_view translate_title)
        : frameFile(screen, "frameFile", "Configuration File:"),
          frameInstructions(screen, "frameInstructions"),
          lblInstructions(frameInstructions, "lblInstructions", instructions),
          MSFlexChar(screen, "MSFlexChar", {.columns = 2}),
          frameOptions(screen, "frameOptions", "Enter Search String", hidden),
          cmdDisplay(screen, "cmdDisplay", "Search", disabled),
          frameMatch(screen, "frameMatch", "Search Characteristic Name Matches", hidden),
          AdodcCharacteristics(screen, "AdodcCharacteristics"),
          cmbCharacteristics(screen, "cmbCharacteristics"),
          frameTranslate(screen, "frameTranslate", translate_title, hidden),
          frameAutoTranslate(screen, "frameAutoTranslate", "Automatic Translation Performed",
                             hidden),
          lblOriginalName(screen, "lblOriginalName", "Original Name =>"),
          lblSelectedCharacteristic(screen, "lblSelectedCharacteristic"),
          cmdChange(screen, "cmdChange", "Translate To =>", disabled),
          lblChange(screen, "lblChange"),
          lblAccept(screen, "lblAccept", "Accept Change?"),
          cmdYes(screen, "cmdYes", "Yes", disabled),
          cmdNo(screen, "cmdNo", "No", disabled),
          lblOrgID(screen, "lblOrgID", {}, hidden),
          cmdNext(screen, "cmdNext", "Next =>", disabled) {
        MSFlexChar.set_column_widths({2000, 4000});
        AdodcCharacteristics.bind(cmbCharacteristics, display_name, search_name);
    }

    Panel frameFile;
    Label lblFile{frameFile, "lblFile"};

    Panel frameInstructions;
    Label lblInstructions;

    // Column 0 the names, column 1 their translations.
    Grid MSFlexChar;

    Panel frameOptions;
    Label lblSearchHint{
        frameOptions, "lblSearchHint",
        "Type In A Search String Then Click \"Search\" To See Matches From KELDAR."};
    TextBox txtCharacteristic{frameOptions, "txtCharacteristic"};
    Button cmdDisplay;

    // The panels of the steps only say what they are about: what they are done with lies beside
    // them, since a search for pH offers its translation without any of them.
    Panel frameMatch;
    Label lblMatchHint{frameMatch, "lblMatchHint", "Click appropriate match"};
    DataSource AdodcCharacteristics;
    PickList cmbCharacteristics;

    Panel frameTranslate;
    Panel frameAutoTranslate;

    Label lblOriginalName;
    Label lblSelectedCharacteristic;
    Button cmdChange;
    Label lblChange;
    Label lblAccept;
    Button cmdYes;
    Button cmdNo;

    // Read by no step.
    Label lblOrgID;

    Button cmdNext;

  private:
    // The columns of the search statements.
    static constexpr int search_name = 0;
    static constexpr int display_name = 1;
};

}  // namespace brooklander
