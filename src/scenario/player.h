// The scenario player: plays files of commands on the program's screens.
#pragma once

#include <filesystem>
#include <functional>

#include "scenario/front.h"

namespace brooklander::scenario {

// The front without windows.
std::unique_ptr<Front> undrawn_front(const Files& files);

// Sets windows up and gives the maker of their fronts, which save pictures in the folder; an empty
// one wants none. Throws WrongLine, with one sentence, where the program was built without windows.
// A display that cannot be reached ends the process, and the toolkit says why.
using DrawnFrontMaker = std::function<FrontMaker(const std::filesystem::path& shots)>;

// Stands in for these in a program without windows: throws that WrongLine.
FrontMaker no_drawn_front(const std::filesystem::path& shots);

// Does what the command line says; returns the exit status.
int run_player(int argc, char** argv, const DrawnFrontMaker& drawn_front_maker);

}  // namespace brooklander::scenario
