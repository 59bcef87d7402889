// Texts as the driver manager takes and gives them: in bytes, which go on to the driver untouched,
// and on Windows in wide characters, since its functions for bytes take those for the machine's own
// code page. SQLTCHAR is what either is made of. Of the two sources beside it the build takes the
// one for its system.
#pragma once

#include <sql.h>
#include <sqlext.h>

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "platform/database/server_bridge.h"

namespace brooklander {

// A text for the API, which asks for writable ones and writes none of these; a zero ends it.
using OdbcText = std::vector<SQLTCHAR>;

// A text of the code page as the driver of such a server takes it.
OdbcText text_to_driver(Server server, std::string_view text);

// A text as the driver gave it, up to its zero or to the end of its room: on Windows in UTF-8,
// elsewhere in the bytes of the driver.
std::string text_of_driver(std::span<const SQLTCHAR> room);

}  // namespace brooklander
