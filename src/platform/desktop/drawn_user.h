// A user at the windows: sends real events of mouse and keyboard to the widgets of fields.
#pragma once

#include <string>
#include <vector>

#include "platform/desktop/windows.h"
#include "shared/grid.h"

namespace brooklander::desktop {

// What cannot be done at the windows (a widget that is not there, or covered by another one) is an
// Unmet. Rows, columns and entries count from 0.
class DrawnUser {
  public:
    explicit DrawnUser(Windows& windows) : windows_(windows) {}

    void click(Field& field) const;
    void type(TextBox& box, const std::string& text) const;
    void click_entry(EntryList& list, int index) const;
    void click_cell(Grid& grid, GridCell cell) const;
    void press_keys(Field& field, const std::vector<Key>& keys) const;

  private:
    void choose(const MenuEntry& entry) const;

    Windows& windows_;
};

}  // namespace brooklander::desktop
