#include "platform/desktop/texts.h"

#include <algorithm>

#include "platform/code_page.h"

namespace brooklander::desktop {

QString shown(std::string_view text) { return QString::fromStdString(to_utf8(text)); }

std::string typed(const QString& text) {
    if (auto whole = from_utf8(text.toStdString())) return *whole;
    std::string bytes;
    for (const char32_t character : text.toStdU32String()) {
        const QString alone = QString::fromUcs4(&character, 1);
        bytes += from_utf8(alone.toStdString()).value_or("?");
    }
    return bytes;
}

bool can_be_typed(const QString& text) {
    const auto bytes = from_utf8(text.toStdString());
    return bytes && std::all_of(bytes->begin(), bytes->end(),
                                [](char byte) { return brooklander::can_be_typed(byte); });
}

QString tip(const QString& text) {
    if (text.isEmpty()) return {};
    return QStringLiteral("<span style='white-space:pre-wrap'>%1</span>").arg(text.toHtmlEscaped());
}

QString with_mnemonic(std::string_view caption, char letter) {
    QString text;
    bool is_set = letter == '\0';
    for (const QChar character : shown(caption)) {
        if (!is_set && character.toUpper() == QChar(letter).toUpper()) {
            text += u'&';
            is_set = true;
        }
        text += character;
        if (character == u'&') text += u'&';
    }
    return text;
}

QString without_mnemonic(const QString& text) {
    QString caption;
    for (qsizetype at = 0; at < text.size(); ++at) {
        if (text[at] == u'&' && at + 1 < text.size()) ++at;
        caption += text[at];
    }
    return caption;
}

}  // namespace brooklander::desktop
