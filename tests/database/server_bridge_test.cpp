#include "platform/database/server_bridge.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "platform/database/statement_text.h"

namespace brooklander {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;

// What a session is told, where the main database is a file of this path.
std::vector<std::string> told(Server server, const std::string& file = "/data/keldar.db") {
    std::vector<std::string> statements;
    prepare_session(server, [&](const std::string& statement) -> QueryResult {
        statements.push_back(statement);
        if (statement != "PRAGMA database_list") return {};
        return {{"seq", "name", "file"}, {{"0", "main", file}, {"1", "temp", "/tmp/other"}}};
    });
    return statements;
}

std::string on_postgresql(std::string_view statement) {
    return bridged_statement(Server::postgresql, statement);
}

TEST(ServerBridge, ServersAreKnownByTheNameThatTheyGiveThemselves) {
    EXPECT_EQ(server_by_name("SQLite"), Server::sqlite);
    EXPECT_EQ(server_by_name("PostgreSQL"), Server::postgresql);
    EXPECT_EQ(server_by_name("Oracle"), Server::other);
    EXPECT_EQ(server_by_name(""), Server::other);
}

TEST(ServerBridge, DriversAreKnownByNameAndByLibraryButNotByFolder) {
    EXPECT_EQ(server_by_driver("SQLite3"), Server::sqlite);
    EXPECT_EQ(server_by_driver("/usr/lib/odbc/libsqlite3odbc.so"), Server::sqlite);
    EXPECT_EQ(server_by_driver("C:\\Windows\\sqlite3odbc.dll"), Server::sqlite);
    EXPECT_EQ(server_by_driver("PostgreSQL Unicode"), Server::postgresql);
    EXPECT_EQ(server_by_driver("psqlodbca.so"), Server::postgresql);
    EXPECT_EQ(server_by_driver("/opt/postgresql/oracle/libsqora.so.21.1"), Server::other);
    EXPECT_EQ(server_by_driver("Oracle 21 ODBC driver"), Server::other);
    EXPECT_EQ(server_by_driver(""), Server::other);
}

TEST(ServerBridge, SqliteIsReadOnly) {
    EXPECT_THAT(told(Server::sqlite), Contains("PRAGMA query_only = 1"));
}

TEST(ServerBridge, SqliteMindsCapitalsInPatterns) {
    EXPECT_THAT(told(Server::sqlite), Contains("PRAGMA case_sensitive_like = 1"));
}

TEST(ServerBridge, SqliteMakesNoIndexOfItsOwn) {
    EXPECT_THAT(told(Server::sqlite), Contains("PRAGMA automatic_index = 0"));
}

TEST(ServerBridge, SqliteFindsTheSchemaInItsOwnFile) {
    EXPECT_THAT(told(Server::sqlite), Contains("ATTACH 'file:/data/keldar.db?mode=ro' AS KELDAR1"));
}

TEST(ServerBridge, APathOfAnySortIsAttached) {
    EXPECT_THAT(told(Server::sqlite, "/l'eau & 100%/a?b#c.db"),
                Contains("ATTACH 'file:/l%27eau%20%26%20100%25/a%3Fb%23c.db?mode=ro' AS KELDAR1"));
    EXPECT_THAT(told(Server::sqlite, "/\xC3\xA9.db"),
                Contains("ATTACH 'file:/%C3%A9.db?mode=ro' AS KELDAR1"));
}

TEST(ServerBridge, ADatabaseInMemoryIsNotAttached) {
    EXPECT_THAT(told(Server::sqlite, ""),
                ElementsAre("PRAGMA database_list", "PRAGMA case_sensitive_like = 1",
                            "PRAGMA automatic_index = 0", "PRAGMA query_only = 1"));
}

TEST(ServerBridge, PostgresqlIsToldWhatItsSessionsNeed) {
    EXPECT_THAT(
        told(Server::postgresql),
        ElementsAre("SET SESSION CHARACTERISTICS AS TRANSACTION READ ONLY",
                    "SET client_encoding TO 'UTF8'", "SET standard_conforming_strings TO on",
                    "SET search_path TO keldar1, \"$user\", public"));
}

TEST(ServerBridge, TheOuterJoinMarkIsLeftOut) {
    constexpr auto marked = "SELECT a FROM b, c WHERE b.i = c.i(+) AND c.j = 'x'";
    constexpr auto without = "SELECT a FROM b, c WHERE b.i = c.i AND c.j = 'x'";
    EXPECT_EQ(bridged_statement(Server::sqlite, marked), without);
    EXPECT_EQ(bridged_statement(Server::postgresql, marked), without);
}

TEST(ServerBridge, AMarkInQuotesOrCommentsStays) {
    for (const char* statement :
         {"SELECT '(+)' FROM b", "SELECT 'it''s (+)' FROM b", R"-(SELECT "x(+)" FROM b)-",
          "SELECT a /* (+) */ FROM b", "SELECT a -- (+)", "SELECT 'never ended (+)"}) {
        EXPECT_EQ(bridged_statement(Server::sqlite, statement), statement);
        EXPECT_EQ(on_postgresql(statement), statement);
    }
    EXPECT_EQ(bridged_statement(Server::sqlite, "SELECT a -- '\nFROM b WHERE c(+) = 1"),
              "SELECT a -- '\nFROM b WHERE c = 1");
}

TEST(ServerBridge, PatternsHaveNoEscapeCharacterOnPostgresql) {
    EXPECT_EQ(on_postgresql("SELECT a FROM b WHERE c LIKE '%X%'"),
              "SELECT a FROM b WHERE c LIKE '%X%' ESCAPE ''");
    EXPECT_EQ(on_postgresql("SELECT a FROM b WHERE c Like 'O''B%' Or c Like'x'"),
              "SELECT a FROM b WHERE c Like 'O''B%' ESCAPE '' Or c Like'x' ESCAPE ''");
    EXPECT_EQ(on_postgresql("SELECT a FROM b WHERE (c not like '%') ORDER BY a"),
              "SELECT a FROM b WHERE (c not like '%' ESCAPE '') ORDER BY a");
}

TEST(ServerBridge, APatternCanBeMoreThanAText) {
    EXPECT_EQ(on_postgresql("SELECT a FROM b WHERE c LIKE b.d AND 1 = 1"),
              "SELECT a FROM b WHERE c LIKE b.d ESCAPE '' AND 1 = 1");
    EXPECT_EQ(on_postgresql("SELECT a FROM b WHERE c LIKE '%' || upper('x)') || ('y') AND 1 = 1"),
              "SELECT a FROM b WHERE c LIKE '%' || upper('x)') || ('y') ESCAPE '' AND 1 = 1");
}

TEST(ServerBridge, AnEscapeCharacterThatIsGivenStays) {
    EXPECT_EQ(bridged_statement(Server::postgresql, "SELECT a FROM b WHERE c LIKE /* x */ 'a'"),
              "SELECT a FROM b WHERE c LIKE /* x */ 'a' ESCAPE ''");
    EXPECT_EQ(bridged_statement(Server::postgresql, "SELECT a FROM b WHERE c LIKE \"d e\""),
              "SELECT a FROM b WHERE c LIKE \"d e\" ESCAPE ''");
    constexpr auto statement = "SELECT a FROM b WHERE c LIKE '!%%' ESCAPE '!'";
    EXPECT_EQ(on_postgresql(statement), statement);
}

TEST(ServerBridge, LikeInQuotesOrInALongerNameIsNoPattern) {
    for (const char* statement :
         {"SELECT 'a LIKE ''b''' FROM b", R"(SELECT "LIKE" FROM b)", "SELECT likes FROM b",
          "SELECT un_like FROM b", "SELECT a FROM b -- LIKE 'x'"}) {
        EXPECT_EQ(on_postgresql(statement), statement);
    }
}

TEST(ServerBridge, SqlitePatternsStayAsTheyAre) {
    constexpr auto statement = "SELECT a FROM b WHERE c LIKE '%X%'";
    EXPECT_EQ(bridged_statement(Server::sqlite, statement), statement);
}

TEST(ServerBridge, AnOracleStatementStaysByteForByte) {
    constexpr auto statement =
        "SELECT  a FROM KELDAR1.b, c WHERE b.i = c.i(+) AND c.j Like '%\xE9\\_%' And d = '' ";
    EXPECT_EQ(bridged_statement(Server::other, statement), statement);
    EXPECT_EQ(text_for(Server::other, statement), statement);
    EXPECT_THAT(told(Server::other), IsEmpty());
}

TEST(ServerBridge, TheTwoServersTakeUtf8) {
    EXPECT_EQ(text_for(Server::sqlite, "\xE9\x80"), "\xC3\xA9\xE2\x82\xAC");
    EXPECT_EQ(text_for(Server::postgresql, "\xE9\x80"), "\xC3\xA9\xE2\x82\xAC");
}

TEST(StatementText, AQueryBeginsWithSelectOrWith) {
    EXPECT_TRUE(is_query("Select a from b"));
    EXPECT_TRUE(is_query(" \r\n\tWITH x AS (SELECT 1) SELECT * FROM x"));
    EXPECT_TRUE(is_query("SELECT'a'"));
    EXPECT_FALSE(is_query("INSERT INTO b VALUES (1)"));
    EXPECT_FALSE(is_query("SELECTED"));
    EXPECT_FALSE(is_query("(SELECT a)"));
    EXPECT_FALSE(is_query(""));
    EXPECT_FALSE(is_query("  "));
}

TEST(StatementText, NothingCanFollowAQuery) {
    EXPECT_FALSE(is_query("SELECT a FROM b; DELETE FROM b"));
    EXPECT_FALSE(is_query("SELECT a FROM b WHERE c = ''; DELETE FROM b --'"));
    EXPECT_TRUE(is_query("SELECT a FROM b WHERE c = 'x; y' AND \"d;\" = 1 /* ; */ -- ;"));
}

// What one server takes for the end of a text is in the middle of it for another.
TEST(StatementText, QuotesOfAServersOwnAreNoPartOfAQuery) {
    EXPECT_FALSE(is_query(R"(SELECT E'\'' ; COMMIT; INSERT INTO b VALUES (1) --')"));
    EXPECT_FALSE(is_query("SELECT $$'$$ ; INSERT INTO b VALUES (1) --'"));
    EXPECT_FALSE(is_query("SELECT $x$'$x$ ; INSERT INTO b VALUES (1) --'"));
    EXPECT_FALSE(is_query("SELECT q'[']' FROM b"));
    EXPECT_FALSE(is_query("SELECT U&'d' FROM b"));
    EXPECT_TRUE(is_query("SELECT v$session.name FROM b WHERE name LIKE'$5'"));
}

TEST(StatementText, AQueryKeepsAndLocksNothing) {
    EXPECT_FALSE(is_query("SELECT a INTO c FROM b"));
    EXPECT_FALSE(is_query("SELECT a FROM b FOR UPDATE"));
    EXPECT_TRUE(is_query("SELECT updated, 'into' FROM b"));
}

}  // namespace
}  // namespace brooklander
