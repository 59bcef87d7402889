// What two servers other than Oracle lack for the program's statements, and how that is bridged.
//
// The statements are Oracle's. SQLite and PostgreSQL answer them alike once a session is set up for
// it and a few words are rewritten; all of that stands here, so that nothing else knows of it. Any
// server that is not one of the two gets nothing but the statement, byte for byte.
#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "platform/database.h"

namespace brooklander {

enum class Server { sqlite, postgresql, other };

// The server behind a driver, by the driver's name or the path of its library. For what has to be
// known before a connection is there to ask.
Server server_by_driver(std::string_view driver);

// The server by the name that it gives itself.
Server server_by_name(std::string_view name);

// A text of the code page as the server takes it: in UTF-8 for the two, untouched for any other.
std::string text_for(Server server, std::string_view text);

// Runs a statement of the session's own and gives what the driver delivers, not converted.
using Ask = std::function<QueryResult(const std::string& statement)>;

// Sets up a session that has just been opened: read only, names found with and without the prefix
// of the schema KELDAR1, LIKE and character sets as the program has them. What `ask` throws passes.
void prepare_session(Server server, const Ask& ask);

// The statement as the server understands it. Words in quotes and comments stay as they are.
std::string bridged_statement(Server server, std::string_view statement);

}  // namespace brooklander
