// How the windows look, beside their colours: spacing, fonts and the style sheet.
#pragma once

#include <QFont>

class QApplication;
class QWidget;

namespace brooklander::desktop {

// All distances are steps of four pixels.
inline constexpr int between_cards = 12;
inline constexpr int inside_card = 16;
inline constexpr int between_controls = 8;
inline constexpr int close_together = 4;   // a caption and what it stands over, lines of a form
inline constexpr int control_height = 28;  // the least; closed lists have it from the style

// The application's font, larger by so many points, and of a weight.
QFont font_larger_by(qreal points, QFont::Weight weight = QFont::Normal);

// Gives the application its style, its style sheet and its icon, and keeps them true to the
// desktop's palette when that changes.
void dress(QApplication& application);

// A property that the style sheet knows: `filled` buttons, `quiet` texts.
void mark(QWidget& widget, const char* property);

// The same for a widget that is on the screen already, on or off.
void set_mark(QWidget& widget, const char* property, bool on);

}  // namespace brooklander::desktop
