// Every statement of the screens, on the sample database, through the adapter: SQLite and
// PostgreSQL must give the same rows. Runs under `with_postgres` with the sample database's script;
// STATEMENTS and SAMPLE_DATABASE name the statements' file and the database as a SQLite file.

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <fstream>

#include "platform/code_page.h"
#include "platform/database/odbc_database.h"
#include "platform/fatal_failure.h"

namespace brooklander {
namespace {

using Rows = std::vector<std::vector<std::string>>;

std::string variable(const char* name) {
    const char* const value = std::getenv(name);
    EXPECT_NE(value, nullptr) << name << " is not set: this test runs under with_postgres";
    return value == nullptr ? "" : value;
}

struct StatementToTry {
    std::string text;
    bool finds_rows = true;
};

std::vector<StatementToTry> statements() {
    std::vector<StatementToTry> all;
    std::ifstream file(variable("STATEMENTS"));
    bool finds_rows = true;
    for (std::string line; std::getline(file, line);) {
        if (line.empty()) {
            finds_rows = true;
        } else if (line.starts_with("-- No rows")) {
            finds_rows = false;
        } else if (!line.starts_with("--")) {
            if (line.back() == ';') line.pop_back();
            all.push_back({from_utf8(line).value(), finds_rows});
        }
    }
    return all;
}

// The rows in an order of their own, since few statements ask for one.
Rows rows_of(const std::string& source, const std::string& statement) {
    Rows rows = OdbcDatabase()
                    .run({"DSN=" + source, variable("POSTGRES_USER"), variable("POSTGRES_PASSWORD"),
                          statement})
                    .rows;
    std::sort(rows.begin(), rows.end());
    return rows;
}

TEST(SampleStatements, GiveTheSameRowsOnBothServers) {
    std::ofstream(variable("ODBCINI"), std::ios::app)
        << "[embedded]\nDriver=SQLite3\nDatabase=" << variable("SAMPLE_DATABASE")
        << "\nNoCreat=Yes\n";
    const auto all = statements();
    ASSERT_GT(all.size(), 30U);
    for (const StatementToTry& statement : all) {
        const Rows embedded = rows_of("embedded", statement.text);
        EXPECT_EQ(!embedded.empty(), statement.finds_rows) << statement.text;
        EXPECT_EQ(rows_of("keldar", statement.text), embedded) << statement.text;
    }
}

}  // namespace
}  // namespace brooklander
