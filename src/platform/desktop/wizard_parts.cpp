#include "platform/desktop/wizard_parts.h"

#include <QCheckBox>
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

QVBoxLayout* stacked(std::initializer_list<QWidget*> widgets) {
    auto* const column = new QVBoxLayout;
    column->setSpacing(close_together);
    for (QWidget* const widget : widgets) column->addWidget(widget);
    return column;
}

QVBoxLayout* captioned(QLabel* caption, GridWidget* list) {
    caption->setBuddy(list);
    QVBoxLayout* const column = stacked({caption, list});
    column->setStretchFactor(list, 1);
    return column;
}

Draw::ListTexts organization_texts() {
    return {.waiting = QStringLiteral("The organizations of KELDAR are listed here."),
            .none = QStringLiteral("KELDAR holds no organization yet.")};
}

GridWidget* add_choices(Card* card, char letter, Grid& grid, const Draw::ListTexts& texts,
                        Draw& draw) {
    GridWidget* const list = draw.choices(grid, shown(grid.container()->text()), texts);
    card->lead_to(list, letter);
    card->content()->addWidget(list, 1);
    return list;
}

QGridLayout* chosen_form() {
    auto* const form = new QGridLayout;
    form->setHorizontalSpacing(between_controls);
    form->setVerticalSpacing(close_together);
    form->setColumnStretch(2, 1);
    return form;
}

namespace {

// Returns which row it is.
int add_value(QGridLayout* form, QLabel* caption, const QString& spoken, Label& value, Label* name,
              Draw& draw) {
    const int row = form->count() == 0 ? 0 : form->rowCount();
    form->addWidget(caption, row, 0);
    form->addWidget(draw.value(value, spoken), row, 1, 1, name == nullptr ? 2 : 1);
    if (name == nullptr) return row;
    ValueLabel* const behind = draw.value(*name, spoken + QStringLiteral(" name"));
    behind->drop_dash();
    form->addWidget(behind, row, 2);
    return row;
}

}  // namespace

void add_chosen(QGridLayout* form, const Chosen& chosen, Draw& draw) {
    const QString spoken = shown(chosen.caption.text());
    const int row =
        add_value(form, draw.caption(chosen.caption), spoken, chosen.value, chosen.name, draw);
    if (chosen.clear == nullptr) return;
    QPushButton* const clear = draw.button(*chosen.clear);
    clear->setAccessibleName(shown(chosen.clear->text()) + u' ' + spoken);
    form->addWidget(clear, row, 3);
}

void add_chosen(QGridLayout* form, const QString& caption, Card* card, Label& value, Draw& draw,
                Label* name) {
    QLabel* const before = draw.text(caption, card);
    before->setWordWrap(false);
    add_value(form, before, caption, value, name, draw);
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

void ask_by_boxes(Card* card, const BoxedAnswer& first, const BoxedAnswer& second, Button& go_on,
                  char letter, const QString& waiting, Draw& draw) {
    QCheckBox* const one = draw.tick_box(first.box, first.letter);
    QCheckBox* const other = draw.tick_box(second.box, second.letter);
    QLabel* const note = draw.still_needed(go_on, {}, waiting);
    card->content()->addLayout(foot({one, other}, note, draw.filled(go_on, letter)));
    draw.window().asks(card, one, nullptr);
}

}  // namespace brooklander::desktop
