// Makes the program's help: plays the chapters of the guide and writes down what their prose says.
#pragma once

#include "scenario/player.h"

namespace brooklander::guide {

// Does what the command line says, which is that of the scenario player but for its first file, the
// page that is written:
//
//   brooklander-guide [--drawn] [--shots FOLDER] --home FOLDER PAGE CHAPTER...
//
// Each chapter is played from a fresh program on a fresh folder below FOLDER, made anew. What fails
// is told in the player's words on standard error, and nothing is written then. Returns the exit
// status: 0, or 1 when something failed, or 2 for a line that is none, the command line's among
// them.
int run_guide(int argc, char** argv, const scenario::DrawnFrontMaker& drawn_front_maker);

}  // namespace brooklander::guide
