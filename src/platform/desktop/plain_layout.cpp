#include <QCheckBox>
#include <QPushButton>

#include "platform/desktop/layouts.h"

namespace brooklander::desktop {
namespace {

// The kinds of fields that such screens have; they have no others.
QWidget* draw_by_kind(Field& field, Draw& draw) {
    const QString name = shown(field.name());
    switch (field.kind()) {
        case FieldKind::label: return draw.value(static_cast<Label&>(field), name);
        case FieldKind::button: return draw.button(static_cast<Button&>(field));
        case FieldKind::tick_box: return draw.tick_box(static_cast<TickBox&>(field));
        case FieldKind::grid: return draw.grid(static_cast<Grid&>(field), name);
        default: return nullptr;
    }
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
