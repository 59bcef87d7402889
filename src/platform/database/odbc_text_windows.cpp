#include <windows.h>

#include <algorithm>

#include "platform/code_page.h"
#include "platform/database/odbc_text.h"

namespace brooklander {

// What a server makes of the characters is the driver's matter.
OdbcText text_to_driver(Server /*server*/, std::string_view text) {
    const std::string utf8 = to_utf8(text);
    const auto length = static_cast<int>(utf8.size());
    const auto convert = [&](wchar_t* target, int size) {
        return MultiByteToWideChar(CP_UTF8, 0, utf8.data(), length, target, size);
    };
    OdbcText wide(static_cast<std::size_t>(convert(nullptr, 0)));
    convert(wide.data(), static_cast<int>(wide.size()));
    wide.push_back(0);
    return wide;
}

std::string text_of_driver(std::span<const SQLTCHAR> room) {
    const auto length =
        static_cast<int>(std::find(room.begin(), room.end(), SQLTCHAR{0}) - room.begin());
    const auto convert = [&](char* target, int size) {
        return WideCharToMultiByte(CP_UTF8, 0, room.data(), length, target, size, nullptr, nullptr);
    };
    std::string utf8(static_cast<std::size_t>(convert(nullptr, 0)), '\0');
    convert(utf8.data(), static_cast<int>(utf8.size()));
    return utf8;
}

}  // namespace brooklander
