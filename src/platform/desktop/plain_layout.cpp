#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>

#include "platform/desktop/layouts.h"

namespace brooklander::desktop {
namespace {

QWidget* draw_by_kind(Field& field, Draw& draw) {
    const QString name = shown(field.name());
    switch (field.kind()) {
        case FieldKind::label: return draw.value(static_cast<Label&>(field), name);
        case FieldKind::text_box: return draw.text_box(static_cast<TextBox&>(field), name);
        case FieldKind::button: return draw.button(static_cast<Button&>(field));
        case FieldKind::tick_box: return draw.tick_box(static_cast<TickBox&>(field));
        case FieldKind::option: return draw.option(static_cast<Option&>(field));
        case FieldKind::pick_list:
        case FieldKind::drive_list: return draw.pick_list(static_cast<EntryList&>(field), name);
        case FieldKind::list:
        case FieldKind::folder_list:
        case FieldKind::file_list: return draw.list(static_cast<EntryList&>(field), name);
        case FieldKind::grid: return draw.grid(static_cast<Grid&>(field), name);
        case FieldKind::screen:
        case FieldKind::panel:
        case FieldKind::menu_entry:
        case FieldKind::data_source: break;
    }
    return nullptr;
}

void draw_fields_in(Field& container, QVBoxLayout* layout, Draw& draw) {
    for (Field* const field : container.screen().fields()) {
        if (field->container() != &container) continue;
        if (field->kind() == FieldKind::panel) {
            Card* const card = draw.card(static_cast<Panel&>(*field));
            layout->addWidget(card);
            draw_fields_in(*field, card->content(), draw);
        } else if (QWidget* const widget = draw_by_kind(*field, draw)) {
            layout->addWidget(widget);
        }
    }
}

}  // namespace

void lay_out_plainly(Screen& screen, Draw& draw) {
    draw_fields_in(screen, draw.window().page(), draw);
    draw.window().page()->addStretch();
}

}  // namespace brooklander::desktop
