// Grids for screen readers: a table of cells that have texts, places and headings.
#pragma once

namespace brooklander::desktop {

// To be called once, before there are grids on the screen.
void make_grids_accessible();

}  // namespace brooklander::desktop
