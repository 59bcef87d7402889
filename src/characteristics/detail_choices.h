// Which details there are to choose, and how a chosen value gets into the grid of characteristics.
#pragma once

#include <array>
#include <string>

#include "screens.h"

namespace brooklander {

using Details = FrmCharacteristicDetails;

// A detail: the box that opens its panel, and what a click in the grid or the panel's button does
// while it is open.
struct DetailChoice {
    TickBox Details::*box;
    Panel Details::*panel;

    // The column of the grid, from 0, and the value for it: nothing is written while `tested` is
    // empty.
    int column;
    const Field& (*tested)(const Details&);
    const Field& (*value)(const Details&);

    // A second column that is written together with it.
    struct Companion {
        int column = 0;
        Label Details::*value = nullptr;
    };
    Companion companion = {};

    // The button that puts the value into every row, and the value that it takes.
    Button Details::*for_all;
    const Field& (*value_for_all)(const Details&);

    // What the panel's opening chooses; with it there is something to put into every row.
    Label Details::*preset = nullptr;
    std::string_view preset_text = {};
};

// In the order in which a click in the grid tests them.
extern const std::array<DetailChoice, 9> detail_choices;

// Hides the panels of all details, both stages of the procedure among them.
void hide_choices(Details& details);

// Whenever a box goes on or off: the boxes exclude one another, and with none on no panel is open.
void detail_box_Click(Details& details, const DetailChoice& choice);

// Puts the value of the open panel into the clicked row, if the click was in its column.
void MSFlexDetails_Click(Details& details);

// Puts the value into every row. "None" as a weight basis empties the cells here, where a click in
// one cell writes the word: files have always been made so.
void apply_to_all(Details& details, const DetailChoice& choice);

// A key typed into the grid. Any character is appended to the cell, whatever its column; Delete
// empties it, and with a procedure's name its source, where the current cell then is; Enter goes
// down a row but in column 0. False for keys that do what they do in any grid, and for all keys
// while there is no row but the headings.
bool type_into_details(Details& details, Key key);

}  // namespace brooklander
