// What becomes of a result cell before it is written.
#pragma once

#include <string_view>

#include "shared/text.h"

namespace brooklander {

// Both may be read as far as this from their start, as whole blocks are when lines are written.
inline constexpr std::size_t readable_mark = 16;
inline constexpr std::string_view not_detected{"*Non-detect\0\0\0\0\0", 11};
inline constexpr std::string_view present_above_limit{"*Present >QL\0\0\0\0", 12};

// What a result cell becomes in the table, and what of it is written: the same without the blanks
// at its ends.
struct ResultValue {
    std::string_view cell;
    std::string_view written;
};

// A cell that no rule changes stays the very text it was. Case counts, and the marks are looked for
// at the very ends of the cell, blanks included. A first `<` marks a result below the limit, a
// first
// `>` means nothing: only a last `>` does.
constexpr ResultValue result_value(std::string_view cell) {
    constexpr ResultValue is_not_detected{not_detected, not_detected};
    constexpr ResultValue is_present{present_above_limit, present_above_limit};
    const std::string_view value = trim(cell);
    if (value.empty()) return {cell, value};
    if (value == not_detected || value == "ND" || value == "nd") return is_not_detected;
    if (value == present_above_limit) return is_present;
    if (cell.front() == '<' || cell.back() == '<') return is_not_detected;
    if (cell.back() == '>') return is_present;
    return {cell, value};
}

}  // namespace brooklander
