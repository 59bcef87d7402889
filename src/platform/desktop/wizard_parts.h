// What screens that lead on to each other have in common, so that they read as one wizard: the
// file's name on top, the lists to choose from and the forms of what is chosen, the questions, and
// the button that moves on, at the lower right.
#pragma once

#include <QGridLayout>
#include <initializer_list>

#include "platform/desktop/draw.h"

namespace brooklander::desktop {

// The title of the screen and, below it, the name of the configuration's file. One screen has a
// panel for the name, the others a caption.
void begin_step(Panel& panel, Label& name, Draw& draw);
void begin_step(Label& caption, Label& name, Draw& draw);

// Widgets below each other, close together: a caption, and what it stands over.
QVBoxLayout* stacked(std::initializer_list<QWidget*> widgets);

// A list below its caption, which leads to it.
QVBoxLayout* captioned(QLabel* caption, GridWidget* list);

// Of the list of organizations, wherever one is chosen.
Draw::ListTexts organization_texts();

// A list to choose from over the whole card of its panel, whose title names it and leads to it.
GridWidget* add_choices(Card* card, char letter, Grid& grid, const Draw::ListTexts& texts,
                        Draw& draw);

// Captions on the left, values behind them, and room for a button at the end of each row.
QGridLayout* chosen_form();

// Adds a row to such a form: an id, with its name behind it where there is one. `clear` may be
// null.
struct Chosen {
    Label& caption;
    Label& value;
    Label* name = nullptr;
    Button* clear = nullptr;
};
void add_chosen(QGridLayout* form, const Chosen& chosen, Draw& draw);

// The same under a text on the form's card, for a screen that has no field for the caption.
void add_chosen(QGridLayout* form, const QString& caption, Card* card, Label& value, Draw& draw,
                Label* name = nullptr);

// A question with a Yes and a No beside it, which is asked to go on.
Card* question(Panel& panel, Button& yes, Button& no, Draw& draw, char letter_of_no = 'N');

// A question that is answered by one of two tick boxes, of which the first gets the keyboard, and
// then the button. While the button waits for an answer, a note says `waiting`.
struct BoxedAnswer {
    TickBox& box;
    char letter;
};
void ask_by_boxes(Card* card, const BoxedAnswer& first, const BoxedAnswer& second, Button& go_on,
                  char letter, const QString& waiting, Draw& draw);

// What is on the left, the note on what is still needed, and the button.
QHBoxLayout* foot(std::initializer_list<QWidget*> left, QLabel* note, QPushButton* button);

}  // namespace brooklander::desktop
