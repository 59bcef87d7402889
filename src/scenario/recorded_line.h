// A line of a recording before it is written: what was done, to which field.
#pragma once

#include <cstddef>
#include <string>
#include <variant>
#include <vector>

#include "shared/grid.h"

namespace brooklander::scenario {

// What stands behind the field. Texts are in the code page.
struct Nothing {};
struct TypedText {
    std::string text;
};
struct SelectedEntry {
    std::string text;
    std::size_t which = 1;  // of the entries with that text
};
using PressedKeys = std::vector<Key>;

// What was typed over the user id or the password: its text is kept nowhere.
struct Credential {
    std::string variable;
};

struct RecordedLine {
    std::string verb;
    Field* field;
    std::variant<Nothing, TypedText, SelectedEntry, PressedKeys, Credential, GridCell> what;
    bool forced = false;  // on a field that could not be worked: a window closed by its frame
};

}  // namespace brooklander::scenario
