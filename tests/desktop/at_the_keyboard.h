// Somebody who has no mouse: keys go to whatever widget has the keyboard.
#pragma once

#include "desktop/drawn_program.h"

namespace brooklander::test {

inline void press(Qt::Key key, Qt::KeyboardModifiers with = Qt::NoModifier) {
    QTest::keyClick(QApplication::focusWidget(), key, with);
    DrawnProgram::rest();
}

inline void type(const char* text) {
    QTest::keyClicks(QApplication::focusWidget(), text);
    DrawnProgram::rest();
}

// The name of the field that has the keyboard.
inline std::string at_keyboard() {
    const QWidget* const widget = QApplication::focusWidget();
    return widget == nullptr ? "nothing" : widget->objectName().toStdString();
}

}  // namespace brooklander::test
