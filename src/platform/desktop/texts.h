// Texts on their way between fields and widgets.
#pragma once

#include <QString>
#include <string>
#include <string_view>

namespace brooklander::desktop {

// A field's text, in the code page, as a widget takes it.
QString shown(std::string_view text);

// A text as the database keeps identifiers, without the blanks that it is padded with.
constexpr std::string_view without_padding(std::string_view text) {
    return text.substr(0, text.find_last_not_of(' ') + 1);
}

// What was typed, as fields hold it. A character outside the code page becomes `?`.
std::string typed(const QString& text);

// A tool tip that says the text as it stands, whatever in it looks like markup.
QString tip(const QString& text);

// Whether every character has a place in the code page, and is no control character there.
bool can_be_typed(const QString& text);

// A caption as buttons and menus take it, with the underlined letter before its first place in the
// caption, whatever its case; without that letter in it, or with '\0', nothing is underlined.
QString with_mnemonic(std::string_view caption, char letter);

// The caption that stands behind such a text.
QString without_mnemonic(const QString& text);

}  // namespace brooklander::desktop
