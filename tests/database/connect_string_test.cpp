#include "platform/database/connect_string.h"

#include <gtest/gtest.h>

#include "platform/fatal_failure.h"

namespace brooklander {
namespace {

std::string logon_text(const std::string& user, const std::string& password) {
    return "ODBC;DATABASE=KELDAR2;UID=" + user + ";PWD=" + password + ";DSN=keldar";
}

TEST(ConnectString, PlainPiecesStandAsTheyWereGiven) {
    const Logon logon = logon_of(logon_text("lake", "Secret 1!"));
    EXPECT_EQ(logon.source, "keldar");
    EXPECT_EQ(logon.user, "lake");
    EXPECT_EQ(logon.password, "Secret 1!");
    EXPECT_EQ(logon.connect_string, "DATABASE=KELDAR2;UID=lake;PWD=Secret 1!;DSN=keldar");
}

TEST(ConnectString, APasswordNamesNoOtherSource) {
    const Logon logon = logon_of(logon_text("lake", "x;DSN=other;UID=boss"));
    EXPECT_EQ(logon.source, "keldar");
    EXPECT_EQ(logon.password, "x;DSN=other;UID=boss");
    EXPECT_EQ(logon.connect_string,
              "DATABASE=KELDAR2;UID=lake;PWD={x;DSN=other;UID=boss};DSN=keldar");
}

TEST(ConnectString, AUserIdNamesNoOtherSource) {
    const Logon logon = logon_of(logon_text("x;DSN=other", ""));
    EXPECT_EQ(logon.user, "x;DSN=other");
    EXPECT_EQ(logon.password, "");
    EXPECT_EQ(logon.connect_string, "DATABASE=KELDAR2;UID={x;DSN=other};PWD=;DSN=keldar");
}

TEST(ConnectString, APasswordMayHoldItsOwnKey) {
    const Logon logon = logon_of(logon_text("lake", "a;PWD=b"));
    EXPECT_EQ(logon.user, "lake");
    EXPECT_EQ(logon.password, "a;PWD=b");
}

TEST(ConnectString, ValuesAreQuotedWhereTheyNeedIt) {
    EXPECT_EQ(connect_value("p@ss(word)'\"!"), "p@ss(word)'\"!");
    EXPECT_EQ(connect_value("a b"), "a b");
    EXPECT_EQ(connect_value(""), "");
    EXPECT_EQ(connect_value(" a"), "{ a}");
    EXPECT_EQ(connect_value("a "), "{a }");
    EXPECT_EQ(connect_value("a;b"), "{a;b}");
    EXPECT_EQ(connect_value("a=b"), "{a=b}");
    EXPECT_EQ(connect_value("{a"), "{{a}");
    EXPECT_EQ(connect_value("a}b}"), "{a}}b}}}");
}

TEST(ConnectString, AQueryNamesItsSourceWithTheKeyOrWithoutIt) {
    const Logon with_key = logon_of(Query{"DSN=keldar", "lake", "a;b", "SELECT 1"});
    EXPECT_EQ(with_key.source, "keldar");
    EXPECT_EQ(with_key.user, "lake");
    EXPECT_EQ(with_key.password, "a;b");
    EXPECT_EQ(with_key.connect_string, "DSN=keldar;UID=lake;PWD={a;b}");
    const Logon bare = logon_of(Query{"keldar", "lake", "a;b", "SELECT 1"});
    EXPECT_EQ(bare.connect_string, with_key.connect_string);
}

TEST(ConnectString, ATextOfAnotherShapeIsRefused) {
    for (const char* text : {"", "ODBC;DSN=keldar", "ODBC;UID=a;DSN=keldar", "ODBC;UID=a;PWD=b",
                             "ODBC;PWD=b;UID=a;DSN=keldar", "ODBC;UID=a;DSN=keldar;PWD=b"}) {
        EXPECT_THROW(logon_of(text), FatalFailure) << text;
    }
    EXPECT_THROW(logon_of(Query{"", "lake", "b", "SELECT 1"}), FatalFailure);
}

}  // namespace
}  // namespace brooklander
