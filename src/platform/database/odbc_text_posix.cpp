#include "platform/database/odbc_text.h"

#include <algorithm>

namespace brooklander {

OdbcText text_to_driver(Server server, std::string_view text) {
    const std::string bytes = text_for(server, text);
    OdbcText given(bytes.begin(), bytes.end());
    given.push_back(0);
    return given;
}

std::string text_of_driver(std::span<const SQLTCHAR> room) {
    return {room.begin(), std::find(room.begin(), room.end(), 0)};
}

}  // namespace brooklander
