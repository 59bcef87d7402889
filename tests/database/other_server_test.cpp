// What reaches a driver of which the program knows nothing, and what is made of its answers.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdlib>

#include "platform/database/odbc_database.h"
#include "support/failure_of.h"
#include "support/temporary_folder.h"

namespace brooklander {
namespace {

using test::failure_of;
using test::TemporaryFolder;
using testing::ElementsAre;
using testing::HasSubstr;

class OtherServer : public testing::Test {
  protected:
    static void SetUpTestSuite() {
        folder_ = std::make_unique<TemporaryFolder>();
        folder_->write("odbc.ini", "[keldar]\nDriver=" RECORDING_DRIVER
                                   "\n"
                                   "[other]\nDriver=" RECORDING_DRIVER "\n");
        setenv("ODBCINI", (folder_->path() / "odbc.ini").c_str(), 1);
        setenv("RECORDING_DRIVER_FILE", (folder_->path() / "record").c_str(), 1);
    }
    static void TearDownTestSuite() { folder_.reset(); }
    void SetUp() override { std::filesystem::remove(folder_->path() / "record"); }

    static std::string record() { return folder_->read("record"); }

    inline static std::unique_ptr<TemporaryFolder> folder_;
    OdbcDatabase database_;
};

TEST_F(OtherServer, ALogonSendsTheConnectStringAndNothingElse) {
    database_.try_connect("ODBC;DATABASE=KELDAR2;UID=lake;PWD=Secret 1!;DSN=keldar");
    EXPECT_EQ(record(),
              "access mode 1\nlogin timeout 10\n"
              "connect DATABASE=KELDAR2;UID=lake;PWD=Secret 1!;DSN=keldar\ndisconnect\n");
}

TEST_F(OtherServer, UserAndPasswordAreQuotedWhereTheyNeedIt) {
    database_.try_connect("ODBC;DATABASE=KELDAR2;UID=\xE9;DSN=x;PWD=a};DSN=other;DSN=keldar");
    EXPECT_THAT(record(), HasSubstr("\nconnect DATABASE=KELDAR2;UID={\xE9;DSN=x};"
                                    "PWD={a}};DSN=other};DSN=keldar\n"));
}

TEST_F(OtherServer, AStatementArrivesByteForByte) {
    constexpr auto statement =
        "SELECT  a FROM KELDAR1.b, c WHERE b.i = c.i(+) AND c.j Like '%\xE9\\_{?}%' And d = ' ' ";
    database_.run({"DSN=keldar", "lake", "secret", statement});
    EXPECT_EQ(record(), std::string("access mode 1\nlogin timeout 10\n"
                                    "connect DSN=keldar;UID=lake;PWD=secret\nstatement ") +
                            statement + "\ndisconnect\n");
}

TEST_F(OtherServer, AnswersAreWholeWhateverLengthTheDriverTells) {
    const QueryResult result = database_.run({"keldar", "lake", "secret", "SELECT a"});
    EXPECT_THAT(result.columns, ElementsAre("COLUMN_1", "COLUMN_2", "COLUMN_3"));
    EXPECT_THAT(result.rows,
                ElementsAre(ElementsAre("\xC9t\xE9   ", std::string(20'000, '\x80'), "")));
}

TEST_F(OtherServer, AFailureIsToldOnOneLineWithoutThePassword) {
    EXPECT_EQ(failure_of([&] {
                  database_.run({"DSN=keldar", "lake", "a;b}c", "SELECT refuse"});
              }),
              "The data source \"keldar\" does not answer the statement \"SELECT refuse\": "
              "ORA-00942: table or view does not exist given UID=lake;PWD=***;été (SQLSTATE "
              "42S02).");
    EXPECT_THAT(record(), HasSubstr("\ndisconnect\n"));
}

TEST_F(OtherServer, ARefusedLogonIsToldTheSameWay) {
    EXPECT_THAT(failure_of([&] {
                    database_.try_connect("ODBC;DATABASE=KELDAR2;UID=refuse;PWD=x;DSN=keldar");
                }),
                HasSubstr("The data source \"keldar\" cannot be opened: ORA-00942: "));
}

TEST_F(OtherServer, NothingIsSentThatIsNoQuery) {
    EXPECT_THAT(failure_of([&] {
                    database_.run({"DSN=keldar", "lake", "secret", "DELETE FROM tsmorgan"});
                }),
                HasSubstr("is not sent"));
    EXPECT_EQ(record(), "");
}

}  // namespace
}  // namespace brooklander
