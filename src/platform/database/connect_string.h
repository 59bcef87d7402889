// Who wants to be let in, and where: the connect string taken apart and put together.
#pragma once

#include <string>
#include <string_view>

#include "platform/database.h"

namespace brooklander {

struct Logon {
    std::string source;  // the data source's name
    std::string user;
    std::string password;
    // What a driver manager takes, for a server of which nothing particular is known.
    std::string connect_string;
};

// The logon of a text "ODBC;DATABASE=...;UID=...;PWD=...;DSN=...". The user id ends at the first
// ";PWD=", the password at the last ";DSN="; both can hold anything else. A FatalFailure when the
// text has another shape.
Logon logon_of(std::string_view text);

// The logon of a query. A FatalFailure when its connection names no data source.
Logon logon_of(const Query& query);

// A value as it stands in a connect string: in braces, a closing brace doubled, when it holds
// something that the string would take for its own; as it is otherwise.
std::string connect_value(std::string_view value);

}  // namespace brooklander
