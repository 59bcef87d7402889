// How the windows look: colours mixed from the desktop's palette, spacing, and the style sheet.
#pragma once

#include <QColor>
#include <QFont>
#include <QPalette>

class QApplication;
class QWidget;

namespace brooklander::desktop {

// All distances are steps of four pixels.
inline constexpr int between_cards = 12;
inline constexpr int inside_card = 16;
inline constexpr int between_controls = 8;
inline constexpr int control_height = 28;

struct Colours {
    QColor page;  // behind the cards
    QColor wave;  // the pattern on it
    QColor card;  // and everything that text stands on
    QColor line;  // thin borders
    QColor edge;  // borders of what can be worked
    QColor text;
    QColor quiet;  // captions and notes
    QColor title;
    QColor accent;       // the one filled button, the selected entry
    QColor accent_text;  // on the accent
    QColor soft;         // a faint accent behind text
    bool dark = false;
};

// Mixed from the palette's base and text, so that they follow a light or a dark desktop.
Colours colours_of(const QPalette& palette);

// Those of the application as it is now; a widget's own palette is what the style sheet left of it.
Colours own_colours();

// One of a few faint colours that tell columns apart; texts on it keep their contrast.
QColor tint(const Colours& colours, int number);

// The application's font, larger by so many points, and of a weight.
QFont font_larger_by(qreal points, QFont::Weight weight = QFont::Normal);

// Gives the application its style, its style sheet and its icon, and keeps them true to the
// desktop's palette when that changes.
void dress(QApplication& application);

// A property that the style sheet knows: `filled` buttons, `quiet` texts.
void mark(QWidget& widget, const char* property);

}  // namespace brooklander::desktop
