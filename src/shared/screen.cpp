#include "shared/screen.h"

#include <algorithm>
#include <utility>

namespace brooklander {

Screen* Desk::foremost() const {
    const auto found = std::find_if(stack_.rbegin(), stack_.rend(),
                                    [](const Screen* screen) { return screen->visible(); });
    return found == stack_.rend() ? nullptr : *found;
}

Screen::Screen(Desk& desk, std::string_view name, std::string_view title)
    : Field(FieldKind::screen, nullptr, this, name, title, hidden), desk_(desk) {
    desk_.screens_.push_back(this);
}

void Screen::set_visible(bool visible) {
    if (visible && !this->visible()) {
        if (!loaded_) {
            loaded_ = true;
            run(on_load);
        }
        for (Field* field : fields_) field->screen_shown();
    }
    if (visible) bring_forward();
    Field::set_visible(visible);
}

void Screen::bring_forward() {
    std::erase(desk_.stack_, this);
    desk_.stack_.push_back(this);
    changed();
}

void Screen::set_pointer(Pointer pointer) {
    if (pointer_ == pointer) return;
    pointer_ = pointer;
    changed();
}

void Screen::take_focus_from(const Field& field) {
    if (&field == this) return;
    for (const Field* holder = focus_; holder != nullptr; holder = holder->container()) {
        if (holder != &field) continue;
        std::exchange(focus_, nullptr)->changed();
        return;
    }
}

}  // namespace brooklander
