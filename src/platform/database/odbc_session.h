// One connection to a data source, open as long as it lives.
#pragma once

#include <string>
#include <string_view>

#include "platform/database/connect_string.h"
#include "platform/database/odbc_handles.h"
#include "platform/database/server_bridge.h"

namespace brooklander {

class OdbcSession {
  public:
    // Opens the connection read only, without a prompt, and sets it up for the program's
    // statements. A FatalFailure when that fails, at the latest after the login time-out for a
    // server that does not answer.
    explicit OdbcSession(const Logon& logon);

    Server server() const { return server_; }

    // Runs a statement, which is text of the code page; the answer is as the driver gives it, and
    // in UTF-8 on Windows. A FatalFailure when the statement, or the fetching of its rows, fails.
    QueryResult ask(const std::string& statement);

  private:
    void open(const Logon& logon);
    [[noreturn]] void fail(const std::string& what, const std::string& complaint) const;

    std::string source_;
    std::string password_;  // to keep it out of what is told of a failure
    OdbcEnvironment environment_;
    OdbcConnection connection_{environment_};
    Server server_ = Server::other;
};

}  // namespace brooklander
