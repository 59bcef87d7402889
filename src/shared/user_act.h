// What a user has done to a field, as whoever watches the user is told it.
#pragma once

#include <cstddef>
#include <string>
#include <variant>

#include "shared/grid_cell.h"
#include "shared/keys.h"

namespace brooklander {

// A button, menu entry, option, tick box or text box was clicked.
struct Clicked {};

// Keys, or the clipboard, have made a box's text this one; it was another.
struct Edited {
    std::string text;
};

// The entry of a list at this index was clicked.
struct EntryClicked {
    std::size_t index;
};

struct CellClicked {
    GridCell cell;
};

// A key was pressed at the current cell of a grid.
struct KeyPressed {
    Key key;
};

// A grid's current cell was moved further than by one key of the keyboard's arrows.
struct MovedTo {
    GridCell cell;
};

using UserAct = std::variant<Clicked, Edited, EntryClicked, CellClicked, KeyPressed, MovedTo>;

}  // namespace brooklander
