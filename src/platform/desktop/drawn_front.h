// The program with its windows, for the scenario player: a user's acts are real events of mouse and
// keyboard, sent to the real widgets.
#pragma once

#include <filesystem>
#include <memory>

#include "scenario/player.h"

namespace brooklander::desktop {

// There must be an application. Pictures go to `shots`; an empty path wants none.
std::unique_ptr<scenario::Front> drawn_front(const Files& files,
                                             const std::filesystem::path& shots);

// Sets the application up, which then lives as long as the maker; without a display the windows are
// drawn off the screen. `argv` must live as long, too.
scenario::DrawnFrontMaker drawn_front_maker(char** argv);

}  // namespace brooklander::desktop
