#include "shared/grid_typing.h"

#include <string>

namespace brooklander {

bool type_into_current_cell(Grid& grid, Key key) {
    std::string text(grid.current_text());
    switch (key.name) {
        case Key::Name::erase: text.clear(); break;
        case Key::Name::backspace:
            if (!text.empty()) text.pop_back();
            break;
        case Key::Name::character: text += key.character; break;
        case Key::Name::enter:
        case Key::Name::up:
        case Key::Name::down:
        case Key::Name::left:
        case Key::Name::right:
        case Key::Name::tab:
        case Key::Name::escape: return false;
    }
    grid.set_cell(grid.current().row, grid.current().column, text);
    return true;
}

}  // namespace brooklander
