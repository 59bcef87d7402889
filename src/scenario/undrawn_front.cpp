#include "scenario/undrawn_front.h"

#include "scenario/scenario_error.h"

namespace brooklander::scenario {

void UndrawnFront::click(Field& field) {
    switch (field.kind()) {
        case FieldKind::button: static_cast<Button&>(field).press(); break;
        case FieldKind::menu_entry: static_cast<MenuEntry&>(field).choose(); break;
        case FieldKind::option: static_cast<Option&>(field).choose(); break;
        case FieldKind::tick_box: static_cast<TickBox&>(field).turn_over(); break;
        case FieldKind::text_box: static_cast<TextBox&>(field).click(); break;
        default: throw Unmet(field.path() + " cannot be clicked.");
    }
}

void UndrawnFront::press_keys(Field& field, const std::vector<Key>& keys) {
    if (field.kind() == FieldKind::text_box) {
        static_cast<TextBox&>(field).press_keys(keys);
        return;
    }
    const bool was_usable = field.usable();
    for (const Key key : keys) {
        if (key.name == Key::Name::tab || field.usable() != was_usable) break;
        static_cast<Grid&>(field).press_key(key);
    }
}

}  // namespace brooklander::scenario
