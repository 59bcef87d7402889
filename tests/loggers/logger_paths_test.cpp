// What scenarios cannot see of the logger screens: the road that no step takes, what the database
// and the help viewer are asked for, colours.

#include <gtest/gtest.h>

#include "loggers/logger_selection.h"
#include "support/failure_of.h"
#include "support/test_program.h"

namespace brooklander {
namespace {

class LoggerPaths : public testing::Test {
  protected:
    LoggerPaths() {
        program_.program.start();
        start_.txtOracleID.set_text("pike");
        start_.txtOraclePassWord.set_text("reed bed");
    }

    void select_file(std::string_view text) {
        program_.folder.write("data/buoy.txt", text);
        start_.mnuImport.choose();
        start_.Dir1.set_path("c:\\data");
        start_.lstImportFileBox.click_entry(0);
    }

    test::TestProgram program_;
    test::WatchedDatabase& database_ = program_.database;
    Screens& screens_ = program_.screens();
    FrmStart& start_ = screens_.frmStart;
    FrmLogger& logger_ = screens_.frmLogger;
    FrmDataLogger& setup_ = screens_.frmDataLogger;
    FrmPortableDataLogger& portable_ = screens_.frmPortableDataLogger;
};

TEST_F(LoggerPaths, ASelectedFileIsTakenToItsQuestion) {
    select_file("61401\t0930\r\n\r\n61401\t0945");
    open_logger_file(screens_, program_.files);
    EXPECT_FALSE(start_.visible());
    EXPECT_TRUE(logger_.visible());
    EXPECT_EQ(logger_.lblSelectedFile.text(), "c:\\data\\buoy.txt");
    EXPECT_EQ(logger_.lstDetails.entries(),
              (std::vector<std::string>{"61401\t0930", "", "61401\t0945"}));
    EXPECT_TRUE(logger_.frameImport.seen());
    EXPECT_EQ(start_.lblSelectedFile.text(), "buoy.txt");
}

TEST_F(LoggerPaths, ASecondFileIsAskedAboutLikeTheFirst) {
    select_file("61401\t0930\r\n");
    open_logger_file(screens_, program_.files);
    database_.answer = {{"org_id", "name"}, {{"TARNS   ", "Tarn Watch"}}};
    logger_.cmdYes.press();
    logger_.MSHFlexOrganization.click_cell({1, 0});
    logger_.MSHFlexADL.click_cell({1, 0});
    open_logger_file(screens_, program_.files);
    EXPECT_TRUE(logger_.frameImport.visible());
    EXPECT_TRUE(logger_.lstDetails.visible());
    EXPECT_EQ(logger_.lstDetails.count(), 1U);
    EXPECT_FALSE(logger_.frameDetails.visible());
    EXPECT_FALSE(logger_.FrameDetailsDisplay.visible());
    for (const Grid* const table :
         {&logger_.MSHFlexOrganization, &logger_.MSHFlexADL, &logger_.MSHFlexLogFile}) {
        EXPECT_EQ(table->cell(1, 0), "") << table->name();
    }
    for (const Label* const label : {&logger_.lblOrganization, &logger_.lblOrganizationName,
                                     &logger_.lblInstallationID, &logger_.lblLogFile}) {
        EXPECT_TRUE(label->empty()) << label->name();
    }
}

TEST_F(LoggerPaths, NoStepOfTheStartScreenTakesAFileThere) {
    select_file("61401\t0930\r\n");
    start_.optLogYes.set_on(true);
    start_.cmdView.press();
    EXPECT_FALSE(logger_.visible());
    EXPECT_TRUE(program_.import_screen().visible());
}

TEST_F(LoggerPaths, TheFirstPathAsksUnderTheFullConnectionAndTheSetupUnderTheBareName) {
    select_file("61401\t0930\r\n");
    open_logger_file(screens_, program_.files);
    logger_.cmdYes.press();
    logger_.MSHFlexOrganization.click_cell({1, 0});
    logger_.MSHFlexADL.click_cell({1, 0});
    logger_.cmdContinue.press();
    screens_.frmLoggerResults.MSHFlexCharGroup.click_cell({1, 0});
    ASSERT_EQ(database_.queries.size(), 5U);
    for (const Query& query : database_.queries) {
        EXPECT_EQ(query.connection, "DSN=keldar") << query.statement;
        EXPECT_EQ(query.user, "pike") << query.statement;
        EXPECT_EQ(query.password, "reed bed") << query.statement;
    }

    database_.queries.clear();
    setup_.MSHFlexOrganization.add_row("TARNS\tTarn Watch");
    setup_.MSHFlexOrganization.click_cell({0, 0});
    setup_.cmdLoggerNext.press();
    setup_.MSHFlexGroups.click_cell({1, 0});
    ASSERT_EQ(database_.queries.size(), 3U);
    for (const Query& query : database_.queries) {
        EXPECT_EQ(query.connection, "keldar") << query.statement;
        EXPECT_EQ(query.user, "pike") << query.statement;
        EXPECT_EQ(query.password, "reed bed") << query.statement;
    }
}

TEST_F(LoggerPaths, AFileIsBegunBeforeItsGroupsAreAskedFor) {
    select_file("61401\t0930\r\n");
    logger_.lblOrganization.set_text("TARNS");
    database_.refuses = true;
    EXPECT_EQ(test::failure_of([&] { logger_.cmdContinue.press(); }), "The database refuses.");
    EXPECT_EQ(program_.folder.read("brooklander/logoutfiles/buoy.txt"),
              "Organization ID,TARNS,\r\nInstallation ID,,\r\nOP Log,,\r\n");
}

TEST_F(LoggerPaths, AFullDiskIsFatal) {
    select_file("61401\t0930\r\n");
    program_.files.failing_writes = {1};
    EXPECT_EQ(test::failure_of([&] { screens_.frmLoggerResults.cmdConvert.press(); }),
              "The disk is full.");
    EXPECT_FALSE(screens_.frmLoggerResults.frameConverted.visible());
}

TEST_F(LoggerPaths, TheTwoScreensOfAnOlderInstallationOpenItsHelp) {
    screens_.frmDataLoggerResults.mnuHelp.choose();
    portable_.mnuHelp.choose();
    EXPECT_EQ(program_.help.shown, (std::vector<std::string>{"c:\\fenwater\\FENwater.HLP",
                                                             "c:\\fenwater\\FENwater.HLP"}));
}

TEST_F(LoggerPaths, TheCurrentCellOfAPortableGridIsHighlighted) {
    constexpr int highlight = 0xC0FF08;
    portable_.show();
    portable_.txtLines.set_text("2");
    portable_.cmdContinue.press();
    Grid& labels = portable_.MSHFlexLabels;
    labels.click_cell({0, 1});
    EXPECT_EQ(labels.cell_colour({0, 1}), highlight);
    EXPECT_EQ(labels.cell_colour({0, 0}), std::nullopt);
    labels.press_key({Key::Name::down});
    EXPECT_EQ(labels.cell_colour({0, 1}), std::nullopt);
    EXPECT_EQ(labels.cell_colour({1, 1}), highlight);

    portable_.cmdLinesContinue.press();
    Grid& results = portable_.MSHFlexResults;
    EXPECT_EQ(results.cell_colour({1, 2}), highlight);
    results.press_key({Key::Name::right});
    EXPECT_EQ(results.cell_colour({1, 2}), std::nullopt);
    EXPECT_EQ(results.cell_colour({1, 3}), highlight);
}

}  // namespace
}  // namespace brooklander
