// Taking a screen back to where nothing has been chosen on it.
#pragma once

#include "shared/screen.h"

namespace brooklander {

// Empties what a screen holds: the labels that start empty, the text boxes and the lists; switches
// its options off and its tick boxes to 0; hides the panels that start hidden. In that order, so
// that what the boxes' handlers show is hidden again. Lists of folders and files keep their place,
// with nothing selected. Captions, grids, and what is enabled stay as they are.
void empty_screen(Screen& screen);

// The last of that alone.
void hide_panels(Screen& screen);

}  // namespace brooklander
