// The states of the windows that are looked at, by name.
#pragma once

#include <functional>
#include <map>
#include <string>

#include "desktop/drawn_program.h"

namespace brooklander::test {

// How a user comes to a state, from the start.
using Roads = std::map<std::string, std::function<void(DrawnProgram&)>>;

const Roads& roads();

}  // namespace brooklander::test
