// Typing into the cells of a grid.
#pragma once

#include "shared/grid.h"

namespace brooklander {

// A key at the current cell: Delete empties it, Backspace takes its last character off, any other
// character goes to its end. False, with nothing done, for keys that type nothing.
bool type_into_current_cell(Grid& grid, Key key);

}  // namespace brooklander
