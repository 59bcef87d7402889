// A user without a screen: does to the fields what a user's hands would do to the windows.
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "shared/grid.h"
#include "shared/keys.h"

namespace brooklander::scenario {

// The kinds that a click means something to.
void click(Field& field);

// The index of an entry of a list by its text. Throws Unmet when there is none.
std::size_t entry_index(const EntryList& list, std::string_view entry);

// Throws Unmet when a grid has no such cell.
void want_cell(const Grid& grid, GridCell cell);

// Keys as `keys` writes them, `{Enter}` and its like among them. Throws WrongLine.
std::vector<Key> keys_in(std::string_view text);

void press_keys(Field& field, const std::vector<Key>& keys);

}  // namespace brooklander::scenario
