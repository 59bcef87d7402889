// What the words of a user's commands mean: entries, cells and keys.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "shared/grid.h"
#include "shared/keys.h"

namespace brooklander::scenario {

// The index of an entry of a list by its text. Throws Unmet when there is none.
std::size_t entry_index(const EntryList& list, std::string_view entry);

// Throws Unmet when a grid has no such cell.
void want_cell(const Grid& grid, GridCell cell);

// Keys as `keys` writes them, `{Enter}` and its like among them. Throws WrongLine.
std::vector<Key> keys_in(std::string_view text);

}  // namespace brooklander::scenario
