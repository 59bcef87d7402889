// The adapter over the driver manager, with SQLite files and data sources of the tests' own.

#include "platform/database/odbc_database.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "platform/fatal_failure.h"
#include "support/failure_of.h"
#include "support/temporary_folder.h"

namespace brooklander {
namespace {

using test::failure_of;
using test::TemporaryFolder;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

using Row = std::vector<std::string>;

// Organization ids are padded to eight, procedures name them unpadded; the words are in UTF-8, but
// for one, which is a byte of the code page.
constexpr auto tables = R"(
CREATE TABLE tsmorgan (org_id CHAR(8) COLLATE RTRIM, name VARCHAR(30));
INSERT INTO tsmorgan VALUES ('LAKES   ', 'Lake watch'), ('RIVERS  ', NULL), ('ZZZZZZZZ', '');
CREATE TABLE tsrfldpr (tsrfldpr_org_id VARCHAR(8) COLLATE RTRIM, id_code CHAR(4) COLLATE RTRIM);
INSERT INTO tsrfldpr VALUES ('LAKES', 'P1  '), ('LAKES', 'P2  '), ('RIVERS', 'P3  ');
CREATE TABLE words (number INTEGER, word VARCHAR(20));
INSERT INTO words VALUES (1, 'Grün €'), (2, 'Łódź 🐟'), (3, CAST(x'4772FC6E' AS TEXT)),
    (4, 'a\b_%'), (5, 'A');
CREATE TABLE long_texts (number INTEGER, text VARCHAR(30));
INSERT INTO long_texts VALUES (1, replace(hex(zeroblob(25000)), '00', '€x')),
    (2, replace(hex(zeroblob(50000)), '00', '7;')), (3, 'short');
CREATE TABLE many AS WITH RECURSIVE up(n) AS (SELECT 1 UNION ALL SELECT n + 1 FROM up
    WHERE n < 10000) SELECT n, 'row ' || n AS name FROM up;
)";

std::string source(const std::string& name, const std::string& driver, const std::string& file) {
    return "[" + name + "]\nDriver=" + driver + "\nDatabase=" + file + "\nNoCreat=Yes\n";
}

class SqliteSource : public testing::Test {
  protected:
    // The driver manager looks at the environment when it is first called, so all sources of the
    // process are laid down before.
    static void SetUpTestSuite() {
        folder_ = std::make_unique<TemporaryFolder>();
        const std::string here = folder_->path().string();
        folder_->write("tables.sql", tables);
        ASSERT_EQ(std::system(("sqlite3 " + here + "/keldar.db <" + here + "/tables.sql").c_str()),
                  0);
        std::filesystem::copy(here + "/keldar.db", here + "/l'eau & 100%.db");
        folder_->write("words.txt",
                       "This is a text and no database at all, however long it may be");
        folder_->write("odbcinst.ini",
                       "[SQLite3]\nDriver=libsqlite3odbc.so\n"
                       "[Embedded]\nDriver=libsqlite3odbc.so\n");
        folder_->write("odbc.ini", source("keldar", "SQLite3", here + "/keldar.db") +
                                       source("renamed", "Embedded", here + "/keldar.db") +
                                       source("odd", "SQLite3", here + "/l'eau & 100%.db") +
                                       source("missing", "SQLite3", here + "/missing.db") +
                                       source("words", "SQLite3", here + "/words.txt") +
                                       source("driverless", "/nowhere/lib.so", here));
        setenv("ODBCINI", (here + "/odbc.ini").c_str(), 1);
        setenv("ODBCSYSINI", here.c_str(), 1);
    }
    static void TearDownTestSuite() { folder_.reset(); }

    static std::string logon(const std::string& source, const std::string& password = "secret") {
        return "ODBC;DATABASE=KELDAR2;UID=lake;PWD=" + password + ";DSN=" + source;
    }

    QueryResult run(const std::string& statement, const std::string& source = "keldar") {
        return database_.run({"DSN=" + source, "lake", "secret", statement});
    }
    std::vector<Row> rows(const std::string& statement) { return run(statement).rows; }

    std::string refusal_of_logon(const std::string& source,
                                 const std::string& password = "secret") {
        return failure_of([&] { database_.try_connect(logon(source, password)); });
    }
    std::string refusal_of(const std::string& statement, const std::string& source = "keldar") {
        return failure_of([&] { run(statement, source); });
    }

    inline static std::unique_ptr<TemporaryFolder> folder_;
    OdbcDatabase database_;
};

TEST_F(SqliteSource, AnyoneIsLetIn) {
    database_.try_connect(logon("keldar"));
    database_.try_connect(logon("KELDAR", ""));
    database_.try_connect(logon("renamed"));
    EXPECT_FALSE(std::filesystem::exists("KELDAR2"));
}

TEST_F(SqliteSource, APasswordLeadsToNoOtherFile) {
    const std::string elsewhere = ";Database=" + (folder_->path() / "missing.db").string();
    database_.try_connect(logon("keldar", "x" + elsewhere));
    EXPECT_THAT(
        database_.run({"keldar", "x" + elsewhere, "{y" + elsewhere, "SELECT count(*) FROM many"})
            .rows,
        ElementsAre(Row{"10000"}));
    EXPECT_FALSE(std::filesystem::exists(folder_->path() / "missing.db"));
}

TEST_F(SqliteSource, AnUnknownSourceIsRefused) {
    EXPECT_EQ(refusal_of_logon("nowhere"),
              "The data source \"nowhere\" cannot be opened: Data source name not found and no "
              "default driver specified (SQLSTATE IM002).");
}

TEST_F(SqliteSource, ADriverThatIsNotThereIsRefused) {
    EXPECT_EQ(refusal_of_logon("driverless"),
              "The data source \"driverless\" cannot be opened: Can't open lib '/nowhere/lib.so' : "
              "file not found (SQLSTATE 01000).");
}

TEST_F(SqliteSource, AFileThatIsNotThereIsNotMade) {
    EXPECT_EQ(refusal_of_logon("missing"),
              "The data source \"missing\" cannot be opened: connect failed (SQLSTATE HY000).");
    EXPECT_FALSE(std::filesystem::exists(folder_->path() / "missing.db"));
}

TEST_F(SqliteSource, AFileThatIsNoDatabaseIsRefusedAtTheLogon) {
    EXPECT_THAT(refusal_of_logon("words"), HasSubstr("file is not a database"));
}

TEST_F(SqliteSource, ThePasswordIsToldToNobody) {
    EXPECT_EQ(refusal_of_logon("missing", "connect"),
              "The data source \"missing\" cannot be opened: *** failed (SQLSTATE HY000).");
    EXPECT_THAT(refusal_of_logon("nowhere", "geh}eim"), Not(HasSubstr("eim")));
}

TEST_F(SqliteSource, AnswersAreTextsByPositionWithTheirPadding) {
    const QueryResult result = run("SELECT name, org_id, 1 + 1 AS name FROM tsmorgan");
    EXPECT_THAT(result.columns, ElementsAre("name", "org_id", "name"));
    EXPECT_THAT(result.rows, ElementsAre(Row{"Lake watch", "LAKES   ", "2"},
                                         Row{"", "RIVERS  ", "2"}, Row{"", "ZZZZZZZZ", "2"}));
}

TEST_F(SqliteSource, ABareNameIsASourceToo) {
    EXPECT_THAT(database_.run({"keldar", "lake", "secret", "SELECT 1"}).rows,
                ElementsAre(Row{"1"}));
}

TEST_F(SqliteSource, ANothingHasColumnsAndNoRows) {
    const QueryResult result = run("SELECT org_id, name FROM tsmorgan WHERE org_id = 'NONE'");
    EXPECT_THAT(result.columns, ElementsAre("org_id", "name"));
    EXPECT_THAT(result.rows, IsEmpty());
}

TEST_F(SqliteSource, LongTextsAreWhole) {
    const auto found = rows("SELECT text FROM long_texts ORDER BY number");
    std::string euros;
    std::string sevens;
    while (euros.size() < 50'000) euros += "\x80x";
    while (sevens.size() < 100'000) sevens += "7;";
    ASSERT_EQ(found.size(), 3U);
    EXPECT_TRUE(found[0][0] == euros) << found[0][0].size();
    EXPECT_TRUE(found[1][0] == sevens) << found[1][0].size();
    EXPECT_EQ(found[2][0], "short");
}

TEST_F(SqliteSource, LettersComeInTheCodePage) {
    EXPECT_THAT(rows("SELECT word FROM words WHERE number < 4 ORDER BY number"),
                ElementsAre(Row{"Gr\xFCn \x80"},
                            Row{"?\xF3"
                                "d? ?"},
                            Row{"Gr\xFCn"}));
}

TEST_F(SqliteSource, LettersGoOutAsTheyAreStored) {
    EXPECT_THAT(rows("SELECT number FROM words WHERE word = 'Gr\xFCn \x80'"),
                ElementsAre(Row{"1"}));
}

TEST_F(SqliteSource, TablesAreJoinedByCommas) {
    EXPECT_THAT(rows("SELECT DISTINCT id_code FROM tsmorgan, tsrfldpr WHERE "
                     "tsmorgan.org_id = tsrfldpr.tsrfldpr_org_id AND org_id = 'LAKES' "
                     "ORDER BY id_code"),
                ElementsAre(Row{"P1  "}, Row{"P2  "}));
    EXPECT_THAT(rows("SELECT id_code FROM tsrfldpr, tsmorgan WHERE "
                     "tsrfldpr.tsrfldpr_org_id = tsmorgan.org_id(+) AND org_id = 'RIVERS'"),
                ElementsAre(Row{"P3  "}));
}

TEST_F(SqliteSource, BlanksAtTheEndDoNotCountInComparisons) {
    EXPECT_THAT(rows("SELECT name FROM tsmorgan WHERE org_id = 'LAKES'"),
                ElementsAre(Row{"Lake watch"}));
    EXPECT_THAT(rows("SELECT name FROM tsmorgan WHERE org_id = 'LAKES         '"),
                ElementsAre(Row{"Lake watch"}));
}

TEST_F(SqliteSource, PatternsMindCapitalsAndTakeBackslashesAsTheyAre) {
    EXPECT_THAT(rows("SELECT number FROM words WHERE word LIKE 'a%'"), ElementsAre(Row{"4"}));
    EXPECT_THAT(rows("SELECT number FROM words WHERE word LIKE 'a\\b%'"), ElementsAre(Row{"4"}));
}

TEST_F(SqliteSource, TheSchemaIsFoundWhateverTheFileIsCalled) {
    for (const char* source : {"keldar", "odd"}) {
        EXPECT_THAT(run("SELECT org_id FROM KELDAR1.TSMORGAN WHERE name > ' '", source).rows,
                    ElementsAre(Row{"LAKES   "}));
    }
}

TEST_F(SqliteSource, NothingIsEverWritten) {
    EXPECT_EQ(refusal_of("INSERT INTO words VALUES (9, 'x')"),
              "The statement \"INSERT INTO words VALUES (9, 'x')\" is not sent: the database is "
              "open for queries alone.");
    EXPECT_THAT(refusal_of("SELECT 1; INSERT INTO words VALUES (9, 'x')"),
                HasSubstr("is not sent"));
    EXPECT_THAT(refusal_of("WITH x(n) AS (SELECT 9) DELETE FROM words"),
                HasSubstr("attempt to write a readonly database"));
    EXPECT_THAT(refusal_of("WITH x(n) AS (SELECT 9) DELETE FROM KELDAR1.words"),
                HasSubstr("attempt to write a readonly database"));
    EXPECT_THAT(rows("SELECT count(*) FROM words"), ElementsAre(Row{"5"}));
}

TEST_F(SqliteSource, AWrongStatementIsToldWithTheWordsOfTheDriver) {
    EXPECT_EQ(refusal_of("SELECT gr\xF6\xDF"
                         "e FROM words"),
              "The data source \"keldar\" does not answer the statement \"SELECT größe FROM "
              "words\": no such column: größe (1) (SQLSTATE HY000).");
}

TEST_F(SqliteSource, ManyRowsComeInTheirOrder) {
    const auto found = rows("SELECT n, name FROM many ORDER BY n");
    ASSERT_EQ(found.size(), 10'000U);
    EXPECT_EQ(found.front(), (Row{"1", "row 1"}));
    EXPECT_EQ(found[4'999], (Row{"5000", "row 5000"}));
    EXPECT_EQ(found.back(), (Row{"10000", "row 10000"}));
}

}  // namespace
}  // namespace brooklander
