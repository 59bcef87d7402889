// The machine's single-byte code page, Windows-1252, and the way to and from UTF-8.
//
// Every text inside the program is bytes of this code page. Only the edges convert: windows, the
// database adapter, the file adapter (names, never contents) and the scenario player.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace brooklander {

// The UTF-8 form of a text. Never fails: the five bytes without a letter (81 8D 8F 90 9D) stand for
// the control characters of the same numbers, so that every byte survives the way there and back.
std::string to_utf8(std::string_view text);

// The code page form of UTF-8, or nothing when it is not UTF-8 or holds a character that the code
// page lacks.
std::optional<std::string> from_utf8(std::string_view utf8);

// Whether a text is UTF-8. A text of ASCII alone is.
bool is_utf8(std::string_view text);

// The code page form of a text of unknown make: UTF-8 is converted, with `?` for each character
// that the code page lacks; anything else is bytes of the code page already.
std::string from_utf8_or_bytes(std::string_view text);

// Whether a key can type the character: all of the code page but its control characters, for which
// the five bytes without a letter stand, too.
bool can_be_typed(char character);

// The text with every letter that has a capital in the code page made one. Letters without one
// there (the sharp s, the micro sign) stay.
std::string upper(std::string_view text);

// Whether two texts are the same but for capitals: the rule for file names.
bool same_but_for_case(std::string_view one, std::string_view other);

}  // namespace brooklander
