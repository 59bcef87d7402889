// What the words of a user's commands mean: entries, cells and keys.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "shared/grid.h"
#include "shared/keys.h"

namespace brooklander::scenario {

// The index of an entry of a list by its text; of several with that text, the one that `which`
// counts from 1. Throws Unmet when there is none.
std::size_t entry_index(const EntryList& list, std::string_view entry, int which);

// Throws Unmet when a grid has no such cell.
void want_cell(const Grid& grid, GridCell cell);

// Keys as `keys` writes them, `{Enter}` and its like among them; `{Down 3}` presses it three times,
// and `{{}` is the brace. Throws WrongLine.
std::vector<Key> keys_in(std::string_view text);

// A key, pressed so many times, as keys_in() reads it.
std::string key_word(Key key, std::size_t times);

}  // namespace brooklander::scenario
