#include "shared/field.h"

#include <array>
#include <utility>

#include "shared/screen.h"

namespace brooklander {

std::string_view name_of(FieldKind kind) {
    constexpr std::array<std::string_view, 15> names{
        "screen",      "panel",     "label",      "text box",  "button",
        "tick box",    "option",    "list",       "pick list", "drive list",
        "folder list", "file list", "menu entry", "grid",      "data source"};
    return names[static_cast<std::size_t>(kind)];
}

Field::Field(FieldKind kind, Field* container, Screen* screen, std::string_view name,
             std::string_view text, Start start)
    : kind_(kind),
      container_(container),
      screen_(screen),
      name_(name),
      text_(text),
      visible_(start.visible),
      enabled_(start.enabled),
      started_visible_(start.visible),
      started_empty_(text.empty()) {
    if (container_ != nullptr) screen_->fields_.push_back(this);
}

std::string Field::path() const {
    return container_ == nullptr ? name_ : screen_->name() + "." + name_;
}

void Field::set_visible(bool visible) {
    if (visible_ == visible) return;
    visible_ = visible;
    if (!visible) screen_->take_focus_from(*this);
    changed();
}

bool Field::seen() const { return visible_ && (container_ == nullptr || container_->seen()); }

void Field::set_enabled(bool enabled) {
    if (enabled_ == enabled) return;
    enabled_ = enabled;
    if (!enabled) screen_->take_focus_from(*this);
    changed();
}

bool Field::usable() const {
    return visible_ && enabled_ && (container_ == nullptr || container_->usable());
}

void Field::set_text(std::string_view text) { store_text(text); }

bool Field::store_text(std::string_view text) {
    if (text_ == text) return false;
    text_ = text;
    changed();
    return true;
}

void Field::set_focus() {
    for (const Field* holder = this; holder != screen_; holder = holder->container_) {
        if (!holder->visible_ || !holder->enabled_) return;
    }
    Field* const before = std::exchange(screen_->focus_, this);
    if (before == this) return;
    if (before != nullptr) before->changed();
    changed();
}

bool Field::focused() const { return screen_->focus_ == this; }

void Field::observe(std::function<void()> observer) { observers_.push_back(std::move(observer)); }

Field::ByUser::ByUser(Field& field, const UserAct& act) : field_(field) {
    Desk& desk = field.screen().desk();
    if (desk.user_acts_++ == 0 && desk.on_user_act) desk.on_user_act(field, act);
}

Field::ByUser::~ByUser() { --field_.screen().desk().user_acts_; }

void Field::changed() {
    for (const auto& observer : observers_) observer();
}

}  // namespace brooklander
