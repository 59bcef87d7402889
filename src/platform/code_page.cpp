#include "platform/code_page.h"

#include <algorithm>
#include <array>
#include <cstdint>

namespace brooklander {
namespace {

// What the bytes 80 to 9F stand for; all other bytes stand for the character of their own number.
constexpr unsigned first_special = 0x80;
constexpr std::array<char16_t, 32> special_characters{
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

char32_t character_of(unsigned char byte) {
    const bool special = byte >= first_special && byte < first_special + special_characters.size();
    return special ? special_characters[byte - first_special] : byte;
}

std::optional<char> byte_of(char32_t character) {
    const auto* const found =
        std::find(special_characters.begin(), special_characters.end(), character);
    if (found != special_characters.end()) {
        const auto place = static_cast<unsigned>(found - special_characters.begin());
        return static_cast<char>(first_special + place);
    }
    const bool own_number =
        character < first_special ||
        (character >= first_special + special_characters.size() && character <= 0xFF);
    if (!own_number) return std::nullopt;
    return static_cast<char>(character);
}

struct Decoded {
    char32_t character;
    std::size_t length;
};

// One character from the front of a text that is not empty; nothing when it is not well-formed:
// longer than it has to be, half of a surrogate pair, or beyond the last character.
std::optional<Decoded> decode(std::string_view utf8) {
    const auto byte = [utf8](std::size_t i) { return static_cast<unsigned char>(utf8[i]); };
    if (byte(0) < 0x80) return Decoded{byte(0), 1};
    if (byte(0) < 0xC2 || byte(0) > 0xF4) return std::nullopt;
    const std::size_t length = byte(0) < 0xE0 ? 2 : byte(0) < 0xF0 ? 3 : 4;
    if (utf8.size() < length) return std::nullopt;
    char32_t character = byte(0) & (0x7FU >> length);
    for (std::size_t i = 1; i < length; ++i) {
        if ((byte(i) & 0xC0U) != 0x80U) return std::nullopt;
        character = (character << 6U) | (byte(i) & 0x3FU);
    }
    constexpr std::array<char32_t, 5> least{0, 0, 0x80, 0x800, 0x10000};
    const bool surrogate = character >= 0xD800 && character <= 0xDFFF;
    if (character < least[length] || surrogate || character > 0x10FFFF) return std::nullopt;
    return Decoded{character, length};
}

std::array<char, 256> make_capitals() {
    std::array<char, 256> capitals{};
    for (unsigned byte = 0; byte < 256; ++byte) {
        unsigned capital = byte;
        const bool plain = byte >= 'a' && byte <= 'z';
        const bool accented = byte >= 0xE0 && byte <= 0xFE && byte != 0xF7;
        if (plain || accented) capital = byte - 0x20;
        if (byte == 0x9A || byte == 0x9C || byte == 0x9E) capital = byte - 0x10;
        if (byte == 0xFF) capital = 0x9F;
        capitals[byte] = static_cast<char>(capital);
    }
    return capitals;
}

char capital_of(char byte) {
    static const std::array<char, 256> capitals = make_capitals();
    return capitals[static_cast<unsigned char>(byte)];
}

}  // namespace

std::string to_utf8(std::string_view text) {
    std::string utf8;
    utf8.reserve(text.size());
    for (const char byte : text) {
        const char32_t character = character_of(static_cast<unsigned char>(byte));
        if (character < 0x80) {
            utf8 += byte;
        } else if (character < 0x800) {
            utf8 += static_cast<char>(0xC0U | (character >> 6U));
            utf8 += static_cast<char>(0x80U | (character & 0x3FU));
        } else {
            utf8 += static_cast<char>(0xE0U | (character >> 12U));
            utf8 += static_cast<char>(0x80U | ((character >> 6U) & 0x3FU));
            utf8 += static_cast<char>(0x80U | (character & 0x3FU));
        }
    }
    return utf8;
}

std::optional<std::string> from_utf8(std::string_view utf8) {
    std::string text;
    text.reserve(utf8.size());
    while (!utf8.empty()) {
        const auto decoded = decode(utf8);
        if (!decoded) return std::nullopt;
        const auto byte = byte_of(decoded->character);
        if (!byte) return std::nullopt;
        text += *byte;
        utf8.remove_prefix(decoded->length);
    }
    return text;
}

bool is_utf8(std::string_view text) {
    while (!text.empty()) {
        const auto decoded = decode(text);
        if (!decoded) return false;
        text.remove_prefix(decoded->length);
    }
    return true;
}

std::string from_utf8_or_bytes(std::string_view text) {
    std::string bytes;
    bytes.reserve(text.size());
    for (std::string_view rest = text; !rest.empty();) {
        const auto decoded = decode(rest);
        if (!decoded) return std::string(text);
        bytes += byte_of(decoded->character).value_or('?');
        rest.remove_prefix(decoded->length);
    }
    return bytes;
}

bool can_be_typed(char character) {
    constexpr std::string_view without_letter = "\x7F\x81\x8D\x8F\x90\x9D";
    return static_cast<unsigned char>(character) >= ' ' &&
           without_letter.find(character) == std::string_view::npos;
}

std::string upper(std::string_view text) {
    std::string capitals(text);
    std::transform(capitals.begin(), capitals.end(), capitals.begin(), capital_of);
    return capitals;
}

bool same_but_for_case(std::string_view one, std::string_view other) {
    return std::equal(one.begin(), one.end(), other.begin(), other.end(),
                      [](char a, char b) { return capital_of(a) == capital_of(b); });
}

}  // namespace brooklander
