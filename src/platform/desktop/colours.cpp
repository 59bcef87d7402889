#include "platform/desktop/colours.h"

#include <QApplication>
#include <array>
#include <cmath>

namespace brooklander::desktop {

QColor mixed(const QColor& one, const QColor& other, qreal share_of_other) {
    const auto part = [share_of_other](int from, int to) {
        return static_cast<int>(std::lround(from + (to - from) * share_of_other));
    };
    return {part(one.red(), other.red()), part(one.green(), other.green()),
            part(one.blue(), other.blue())};
}

Colours colours_of(const QPalette& palette) {
    Colours colours;
    colours.card = palette.color(QPalette::Base);
    colours.text = palette.color(QPalette::Text);
    colours.dark = colours.card.lightness() < colours.text.lightness();
    const QColor teal = colours.dark ? QColor(0x4f, 0xc0, 0xda) : QColor(0x0a, 0x6e, 0x8c);
    colours.page = mixed(colours.card, teal, colours.dark ? 0.07 : 0.09);
    colours.wave = mixed(colours.card, teal, colours.dark ? 0.13 : 0.15);
    colours.line = mixed(colours.card, mixed(colours.text, teal, 0.4), 0.18);
    colours.edge = mixed(colours.card, mixed(colours.text, teal, 0.3), 0.45);
    colours.quiet = mixed(colours.card, colours.text, 0.72);
    colours.faint = mixed(colours.card, colours.text, 0.57);
    colours.rest = mixed(colours.page, colours.line, 0.4);
    colours.title = colours.dark ? QColor(0x7a, 0xd3, 0xe8) : QColor(0x0b, 0x4f, 0x66);
    colours.accent = colours.dark ? QColor(0x0f, 0x77, 0x92) : QColor(0x0a, 0x6e, 0x8c);
    colours.accent_text = Qt::white;
    colours.soft = mixed(colours.card, teal, colours.dark ? 0.22 : 0.12);
    return colours;
}

Colours own_colours() { return colours_of(QApplication::palette()); }

QColor tint(const Colours& colours, int number) {
    static const std::array<QColor, 8> hues{QColor(0x2a, 0x9d, 0xc8), QColor(0x6a, 0xa8, 0x2e),
                                            QColor(0xc2, 0x5b, 0x8f), QColor(0xe6, 0x9a, 0x1f),
                                            QColor(0x1f, 0xa8, 0x8c), QColor(0xb0, 0x7a, 0x4a),
                                            QColor(0x7f, 0x8c, 0x2f), QColor(0x8a, 0x5f, 0xc8)};
    const auto at = static_cast<std::size_t>(number) % hues.size();
    return mixed(colours.card, hues[at], colours.dark ? 0.2 : 0.16);
}

}  // namespace brooklander::desktop
