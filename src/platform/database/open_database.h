// A database that lets everyone in and holds nothing, for machines without a data source.
#pragma once

#include "platform/database.h"

namespace brooklander {

// Every user id and password opens it. It has no tables, so every statement is a FatalFailure.
class OpenDatabase : public Database {
  public:
    void try_connect(std::string_view connect_string) override;
    QueryResult run(const Query& query) override;
};

}  // namespace brooklander
