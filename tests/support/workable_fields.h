// What a user could do next.
#pragma once

#include <vector>

#include "screens.h"

namespace brooklander::test {

// Whether there is something to be done at a field that is usable. A drive would lead away from the
// program's own, and the menu is no entry.
inline bool can_be_worked(const Field& field, const Screens& screens) {
    if (&field == &screens.frmStart.mnuFiles) return false;
    switch (field.kind()) {
        case FieldKind::button:
        case FieldKind::menu_entry:
        case FieldKind::option:
        case FieldKind::tick_box:
        case FieldKind::text_box: return true;
        case FieldKind::list:
        case FieldKind::pick_list:
        case FieldKind::folder_list:
        case FieldKind::file_list: return static_cast<const EntryList&>(field).count() > 0;
        case FieldKind::grid: return static_cast<const Grid&>(field).rows() > 0;
        default: return false;
    }
}

// The fields that a user can work, screen by screen.
inline std::vector<Field*> workable_fields(const Screens& screens) {
    std::vector<Field*> found;
    for (Screen* const screen : screens.desk.screens()) {
        for (Field* const field : screen->fields()) {
            if (field->usable() && can_be_worked(*field, screens)) found.push_back(field);
        }
    }
    return found;
}

}  // namespace brooklander::test
