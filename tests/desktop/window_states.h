// The states of the windows that are looked at, by name.
#pragma once

#include "desktop/drawn_program.h"

namespace brooklander::test {

const Roads& roads();

}  // namespace brooklander::test
