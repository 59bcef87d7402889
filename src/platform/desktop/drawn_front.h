// The program with its windows, for the scenario player: a user's acts are real events of mouse and
// keyboard, sent to the real widgets.
#pragma once

#include <filesystem>
#include <memory>

#include "scenario/front.h"

namespace brooklander::desktop {

// There must be an application. Pictures go to `shots`; an empty path wants none.
std::unique_ptr<scenario::Front> drawn_front(const Files& files,
                                             const std::filesystem::path& shots);

}  // namespace brooklander::desktop
