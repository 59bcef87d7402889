// What a user does to fields, as far as a user could.
#pragma once

#include <string>
#include <string_view>

#include "shared/grid.h"

namespace brooklander::test {

// Thrown where the next act of a road is one that no user could do: the program waits, and the
// field cannot be worked or does not offer the entry.
struct Stuck {
    std::string field;
};

inline void need(const Field& field) {
    if (!field.usable()) throw Stuck{field.path()};
}

inline void click(Button& button) {
    need(button);
    button.press();
}

inline void click(MenuEntry& entry) {
    need(entry);
    entry.choose();
}

inline void click(Option& option) {
    need(option);
    option.choose();
}

inline void click(TickBox& box) {
    need(box);
    box.turn_over();
}

inline void type(TextBox& box, std::string_view text) {
    need(box);
    box.type(text);
}

inline void pick(EntryList& list, std::string_view entry) {
    need(list);
    const auto index = list.find(entry);
    if (!index) throw Stuck{list.path()};
    list.click_entry(*index);
}

inline void pick_first(EntryList& list) {
    need(list);
    if (list.count() == 0) throw Stuck{list.path()};
    list.click_entry(0);
}

inline void click(Grid& grid, GridCell cell) {
    need(grid);
    if (cell.row >= grid.rows() || cell.column >= grid.columns()) throw Stuck{grid.path()};
    grid.click_cell(cell);
}

}  // namespace brooklander::test
