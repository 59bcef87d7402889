#include <gtest/gtest.h>

#include "support/test_program.h"

namespace brooklander {
namespace {

class Logon : public testing::Test {
  protected:
    Logon() { program_.program.start(); }

    void log_on(bool refused) {
        program_.database.refuses = refused;
        start_.txtOracleID.type("jdoe");
        start_.txtOraclePassWord.type("a;b");
        start_.cmdUIDok.press();
    }

    test::TestProgram program_;
    FrmStart& start_ = program_.start_screen();
};

TEST_F(Logon, OpensTheDatabaseWithTheTypedTextsAndRunsNoStatement) {
    log_on(false);
    EXPECT_EQ(program_.database.connect_strings,
              (std::vector<std::string>{"ODBC;DATABASE=KELDAR2;UID=jdoe;PWD=a;b;DSN=keldar"}));
    EXPECT_TRUE(program_.database.queries.empty());
    EXPECT_EQ(start_.pointer(), Pointer::normal);
    EXPECT_FALSE(start_.frameOracleLogon.visible());
    EXPECT_FALSE(start_.frameOracleError.visible());
    EXPECT_EQ(start_.filePreferences.path(), "c:\\brooklander\\preferences");
}

TEST_F(Logon, AFailureShowsItsPanelAndKeepsTheFilesMenuOn) {
    start_.frameFiles.show();
    log_on(true);
    EXPECT_TRUE(start_.mnuFiles.enabled());
    EXPECT_TRUE(start_.frameOracleError.visible());
    EXPECT_FALSE(start_.frameOracleLogon.visible());
    EXPECT_FALSE(start_.frameFiles.visible());
    EXPECT_EQ(start_.pointer(), Pointer::normal);
}

TEST_F(Logon, AfterAFailureBothBoxesAreEmptyAndTheUserIdHasTheFocus) {
    log_on(true);
    start_.cmdOracleErrorOk.press();
    EXPECT_FALSE(start_.frameOracleError.visible());
    EXPECT_TRUE(start_.frameOracleLogon.visible());
    EXPECT_TRUE(start_.txtOracleID.empty());
    EXPECT_TRUE(start_.txtOraclePassWord.empty());
    EXPECT_FALSE(start_.cmdUIDok.visible());
    EXPECT_TRUE(start_.txtOracleID.focused());
    EXPECT_TRUE(start_.mnuFiles.enabled());
    log_on(false);
    EXPECT_FALSE(start_.frameOracleError.visible());
    EXPECT_EQ(program_.database.connect_strings.size(), 2U);
}

TEST_F(Logon, HelpOpensTheWorkspacesHelpFile) {
    start_.mnuHelp.choose();
    EXPECT_EQ(program_.help.shown, (std::vector<std::string>{"c:\\brooklander\\BROOKLANDER.HLP"}));
}

}  // namespace
}  // namespace brooklander
