// Patterns of file names.
#pragma once

#include <string_view>

namespace brooklander {

// Whether a name, without regard to case, is of a pattern in which `*` stands for any text and `?`
// for any one character. `*.*` takes every name, one without a dot too, as it always has.
bool name_matches(std::string_view name, std::string_view pattern);

}  // namespace brooklander
