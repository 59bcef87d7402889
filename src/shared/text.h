// The text rules that every screen and file shares. Texts are bytes of the code page; positions and
// lengths count bytes, positions from 1.
#pragma once

#include <algorithm>
#include <charconv>
#include <string>
#include <string_view>

namespace brooklander {

// The text without the blanks (0x20, nothing else) at its ends.
constexpr std::string_view trim(std::string_view text) {
    const auto first = text.find_first_not_of(' ');
    if (first == std::string_view::npos) return {};
    return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

// Up to `length` bytes from position `start` (from 1) on; fewer, or none, where the text ends.
constexpr std::string_view middle(std::string_view text, std::size_t start, std::size_t length) {
    return start > text.size() ? std::string_view{} : text.substr(start - 1, length);
}

// The first `length` bytes, or all there are.
constexpr std::string_view left(std::string_view text, std::size_t length) {
    return text.substr(0, length);
}

inline constexpr int farthest_position = 999'999'999;

// A row or column as a caption holds it: decimal digits, from 0. Text that is empty or no such
// number counts as 0, as does one beyond the farthest.
inline int position_in(std::string_view caption) {
    int position = 0;
    const char* const end = caption.data() + caption.size();
    const auto [stop, fault] = std::from_chars(caption.data(), end, position);
    const bool reachable = position > 0 && position <= farthest_position;
    return fault == std::errc{} && stop == end && reachable ? position : 0;
}

}  // namespace brooklander
