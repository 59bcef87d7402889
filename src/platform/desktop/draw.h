// Draws the fields of a screen: one function for each kind, which makes the widget, ties it to its
// field both ways and gives it its accessible name. A widget is a child of the card that its
// field's panel is drawn as; where it lies there is the layout's matter.
#pragma once

#include <QHBoxLayout>
#include <QString>
#include <functional>
#include <initializer_list>
#include <vector>

#include "platform/desktop/grid_widget.h"
#include "platform/desktop/list_views.h"
#include "platform/desktop/plain_views.h"
#include "platform/desktop/screen_window.h"
#include "platform/desktop/windows.h"

namespace brooklander::desktop {

// How a button looks: as one among others, or as the one that moves the work on.
enum class Weight { quiet, filled };

// No underlined letter.
inline constexpr char no_letter = '\0';

class Draw {
  public:
    Draw(ScreenWindow& window, Windows& windows) : window_(window), windows_(windows) {}

    Card* card(Panel& panel);

    // A part of a card, with its title and without a border.
    Card* section(Panel& panel);

    // A card that no panel stands for: fields of the screen itself are laid out on it.
    Card* sheet();

    // Labels: a caption says what stands beside it, and underlined, leads to it; a value is one
    // line; a note is a sentence or more; a heading is the largest text of its window.
    QLabel* caption(Label& label, char letter = no_letter);
    ValueLabel* value(Label& label, const QString& name);
    QLabel* note(Label& label);
    QLabel* heading(Label& label, qreal larger_by);

    QPushButton* button(Button& button, char letter = no_letter, Weight weight = Weight::quiet);
    QPushButton* filled(Button& field, char letter) {
        return button(field, letter, Weight::filled);
    }
    // The answers of a card that asks. One that is asked to go on has a filled Yes, which gets the
    // keyboard; one that is asked to be sure gives it to No. Escape presses No.
    struct Answers {
        QPushButton* yes;
        QPushButton* no;
    };
    Answers to_go_on(Card* card, Button& yes, Button& no, char letter_of_no = 'N');
    Answers to_be_sure(Card* card, Button& yes, Button& no);

    QCheckBox* tick_box(TickBox& box, char letter = no_letter);
    QRadioButton* option(Option& option, char letter = no_letter);

    // Boxes, lists and grids say nothing of themselves: their name is a caption's, whose letter
    // then leads to them, or a text.
    QLineEdit* text_box(TextBox& box, QLabel* caption);
    QLineEdit* text_box(TextBox& box, const QString& name);
    ListWidget* list(EntryList& list, const QString& name);
    QComboBox* pick_list(EntryList& list, const QString& name);
    GridWidget* grid(Grid& grid, const QString& name);

    // A label that names a column or a row of a grid, counted from 0, in the grid's headings. While
    // such a column's label is hidden, the layout's own word stands there.
    void name_column(GridWidget* grid, int column, Label& label, const QString& otherwise = {});
    void name_row(GridWidget* grid, int row, Label& label);

    // A grid to choose a row of: it uses the width that it has, and says a sentence while it waits
    // for its rows, and another when it has been answered without any.
    struct ListTexts {
        QString waiting;
        QString none;
    };
    GridWidget* choices(Grid& grid, const QString& name, const ListTexts& texts);

    // What a button still waits for. While it is disabled, a note names those of the values that
    // are empty, as long as what each is chosen from can be seen; where none of them is, it says
    // `otherwise`. The note is empty while the button is enabled.
    struct Needed {
        Field& value;
        Field& chosen_from;
        QString words;
    };
    QLabel* still_needed(Button& button, const std::vector<Needed>& needed,
                         const QString& otherwise = {});

    // What is drawn of a field hangs on another one, too.
    void follow_also(const Field& drawn, Field& other) { windows_.follow_also(drawn, other); }

    // Where the keyboard goes when a panel that is drawn already comes up.
    void begins_in(const Panel& panel, QWidget* control);

    // Gives the keyboard on to a field when a button has been pressed; the step has run by then.
    // Both are drawn already.
    void lead_on(const Button& pressed, const Field& to);

    // The screen's title, above its cards.
    QLabel* title();

    // A text that is no field.
    QLabel* text(const QString& text, QWidget* parent);

    ScreenWindow& window() { return window_; }

    // What a field is drawn as already.
    QWidget* widget_of(const Field& field) const;

  private:
    QWidget* parent_of(const Field& field) const;

    ScreenWindow& window_;
    Windows& windows_;
};

// Widgets side by side, with what room is left on one side.
enum class Side { left, right };
QHBoxLayout* row(std::initializer_list<QWidget*> widgets, Side packed_to = Side::left);

// Gives an item of a layout its share of the room, counted as stretch, as long as one of the
// widgets is there; a layout would keep the share of one that holds nothing.
void share_while_shown(QBoxLayout* layout, int item, int share,
                       std::initializer_list<QWidget*> widgets);

// Shows a card that no panel stands for as long as one of the widgets on it is there.
void there_while_shown(QWidget* card, std::initializer_list<QWidget*> widgets);

// Tells something of these fields, on this widget or another that goes with it: now, and whenever
// one of the fields changes while the widget is there.
void tell_of(QWidget* told, const std::vector<Field*>& fields, std::function<void()> tell);

// Gives the keyboard to a control that can take it.
void give_keyboard(QWidget* control);

// Gives a widget so many letters of its own font, so that it grows with it, and no more height than
// its texts need.
void keep_width(QWidget* widget, int letters);

// Gives a widget no more height than its texts need.
void keep_height(QWidget* widget);

// Keeps a widget's place free while it is hidden, so that nothing beside it jumps.
void keep_place(QWidget* widget);

// Gives it up again, where buttons come and go with what they are for.
void leave_no_place(QWidget* widget);

}  // namespace brooklander::desktop
