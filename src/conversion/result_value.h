// What becomes of a result cell before it is written.
#pragma once

#include <string_view>

#include "shared/text.h"

namespace brooklander {

// Both may be read a little further than they go, as whole blocks are when lines are written.
inline constexpr std::string_view not_detected{"*Non-detect\0\0\0\0\0", 11};
inline constexpr std::string_view present_above_limit{"*Present >QL\0\0\0\0", 12};

// The text that replaces a result cell; the cell itself where nothing does. Case counts, and the
// marks are looked for at the very ends of the cell, blanks included. A first `<` marks a result
// below the limit, a first `>` means nothing: only a last `>` does.
constexpr std::string_view normalised_result(std::string_view cell) {
    const std::string_view value = trim(cell);
    if (value.empty()) return cell;
    if (value == not_detected || value == "ND" || value == "nd") return not_detected;
    if (value == present_above_limit) return present_above_limit;
    if (cell.front() == '<' || cell.back() == '<') return not_detected;
    if (cell.back() == '>') return present_above_limit;
    return cell;
}

}  // namespace brooklander
