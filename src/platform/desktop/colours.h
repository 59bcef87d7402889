// The windows' colours, all mixed from the desktop's palette.
#pragma once

#include <QColor>
#include <QPalette>

namespace brooklander::desktop {

struct Colours {
    QColor page;  // behind the cards
    QColor wave;  // the pattern on it
    QColor card;  // and everything that text stands on
    QColor line;  // thin borders
    QColor edge;  // borders of what can be worked
    QColor text;
    QColor quiet;  // captions and notes
    QColor faint;  // what is disabled
    QColor rest;   // behind a filled button that is disabled
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

// So much of the way from one colour to another, from 0 to 1.
QColor mixed(const QColor& one, const QColor& other, qreal share_of_other);

}  // namespace brooklander::desktop
