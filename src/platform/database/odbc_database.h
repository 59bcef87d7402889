// The database behind the machine's ODBC driver manager.
#pragma once

#include "platform/database.h"

namespace brooklander {

// Every call opens a connection of its own and lets it go: none is kept between them. Texts of the
// code page go out, and come back, as the server has them: what a driver delivers is taken for
// UTF-8 where it is that, a character that the code page lacks becoming `?`, and for bytes of the
// code page otherwise.
//
// Connections are read only. Drivers are free to ignore that, so a statement that is no query is a
// FatalFailure before anything is sent. The sentence of a failure names what could not be done and
// has the driver's own words; the password is never in it.
class OdbcDatabase : public Database {
  public:
    // The text is "ODBC;DATABASE=...;UID=...;PWD=...;DSN=...". SQLite and PostgreSQL do not get the
    // database's name, which would replace the one that their data source has.
    void try_connect(std::string_view connect_string) override;

    QueryResult run(const Query& query) override;
};

}  // namespace brooklander
