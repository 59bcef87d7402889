#include "shared/empty_screen.h"

#include "shared/place_lists.h"

namespace brooklander {
namespace {

void empty_text_or_list(Field& field) {
    switch (field.kind()) {
        case FieldKind::label:
            if (field.started_empty()) field.clear_text();
            break;
        case FieldKind::text_box: field.clear_text(); break;
        case FieldKind::list: static_cast<List&>(field).clear(); break;
        case FieldKind::pick_list:
            static_cast<PickList&>(field).clear();
            field.clear_text();
            break;
        case FieldKind::folder_list:
        case FieldKind::file_list: static_cast<PlaceList&>(field).deselect(); break;
        default: break;
    }
}

void switch_off(Field& field) {
    if (field.kind() == FieldKind::option) static_cast<Option&>(field).set_on(false);
    if (field.kind() == FieldKind::tick_box) static_cast<TickBox&>(field).set_ticked(false);
}

}  // namespace

void empty_screen(Screen& screen) {
    for (Field* field : screen.fields()) empty_text_or_list(*field);
    for (Field* field : screen.fields()) switch_off(*field);
    hide_panels(screen);
}

void hide_panels(Screen& screen) {
    for (Field* field : screen.fields()) {
        if (field->kind() == FieldKind::panel && !field->started_visible()) field->hide();
    }
}

}  // namespace brooklander
