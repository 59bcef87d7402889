#include "platform/desktop/wizard_parts.h"

#include <QPushButton>

#include "platform/desktop/theme.h"

namespace brooklander::desktop {
namespace {

void add_named_file(Card* card, QLabel* caption, Label& name, const QString& spoken, Draw& draw) {
    caption->setWordWrap(false);
    card->head()->setStretch(0, 0);
    card->head()->addWidget(caption);
    card->head()->addWidget(draw.value(name, spoken), 1);
    keep_height(card);
    draw.window().page()->addWidget(draw.title());
    draw.window().page()->addWidget(card);
}

}  // namespace

void begin_step(Panel& panel, Label& name, Draw& draw) {
    Card* const card = draw.card(panel);
    add_named_file(card, card->title(), name, shown(panel.text()), draw);
}

void begin_step(Label& caption, Label& name, Draw& draw) {
    QLabel* const heading = draw.heading(caption, 1);
    heading->setFont(font_larger_by(1, QFont::DemiBold));
    add_named_file(draw.sheet(), heading, name, shown(caption.text()), draw);
}

QGridLayout* chosen_form() {
    auto* const form = new QGridLayout;
    form->setHorizontalSpacing(between_controls);
    form->setVerticalSpacing(4);
    form->setColumnStretch(2, 1);
    return form;
}

void add_chosen(QGridLayout* form, const Chosen& chosen, Draw& draw) {
    const int row = form->count() == 0 ? 0 : form->rowCount();
    const QString spoken = shown(chosen.caption.text());
    form->addWidget(draw.caption(chosen.caption), row, 0);
    form->addWidget(draw.value(chosen.value, spoken), row, 1, 1, chosen.name == nullptr ? 2 : 1);
    if (chosen.name != nullptr) {
        ValueLabel* const name = draw.value(*chosen.name, spoken + QStringLiteral(" name"));
        name->drop_dash();
        form->addWidget(name, row, 2);
    }
    if (chosen.clear == nullptr) return;
    QPushButton* const clear = draw.button(*chosen.clear);
    clear->setAccessibleName(shown(chosen.clear->text()) + u' ' + spoken);
    form->addWidget(clear, row, 3);
}

QHBoxLayout* chosen_line(const QString& caption, Label& value, Label* name, Card* card,
                         Draw& draw) {
    QLabel* const before = draw.text(caption, card);
    before->setWordWrap(false);
    auto* const line = new QHBoxLayout;
    line->setSpacing(between_controls);
    line->addWidget(before);
    line->addWidget(draw.value(value, caption), name == nullptr ? 1 : 0);
    if (name == nullptr) return line;
    ValueLabel* const behind = draw.value(*name, caption + QStringLiteral(" name"));
    behind->drop_dash();
    line->addWidget(behind, 1);
    return line;
}

Card* question(Panel& panel, Button& yes, Button& no, Draw& draw, char letter_of_no) {
    Card* const card = draw.card(panel);
    const auto [yes_button, no_button] = draw.to_go_on(card, yes, no, letter_of_no);
    card->head()->addWidget(yes_button);
    card->head()->addWidget(no_button);
    return card;
}

QHBoxLayout* foot(std::initializer_list<QWidget*> left, QLabel* note, QPushButton* button) {
    auto* const line = new QHBoxLayout;
    line->setSpacing(inside_card);
    for (QWidget* const widget : left) line->addWidget(widget);
    line->addWidget(note, 1);
    line->addWidget(button);
    return line;
}

}  // namespace brooklander::desktop
