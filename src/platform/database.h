// What the logic asks of the database: to be let in, and to answer statements.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace brooklander {

// The four values that a screen gives for a query.
struct Query {
    std::string connection;  // `DSN=keldar`, or `keldar` alone
    std::string user;
    std::string password;
    std::string statement;
};

// A statement's answer, as text by position: an absent value is empty, padding is kept.
struct QueryResult {
    std::vector<std::string> columns;  // their names, as the driver gives them
    std::vector<std::vector<std::string>> rows;
};

class Database {
  public:
    Database() = default;
    Database(const Database&) = delete;
    Database& operator=(const Database&) = delete;
    virtual ~Database() = default;

    // Opens a read-only connection without prompting, and lets it go again. A FatalFailure when it
    // cannot be opened.
    virtual void try_connect(std::string_view connect_string) = 0;

    // Connects, runs one statement, and lets the connection go. A FatalFailure when either fails.
    virtual QueryResult run(const Query& query) = 0;
};

}  // namespace brooklander
