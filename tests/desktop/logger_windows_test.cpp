// How the windows of data loggers help: what they say while they wait, how their tables are headed,
// and how they are worked by somebody who has no mouse.

#include <gtest/gtest.h>

#include <QPushButton>

#include "desktop/at_the_keyboard.h"
#include "desktop/logger_roads.h"
#include "platform/desktop/grid_widget.h"

namespace brooklander::desktop {
namespace {

using test::at_keyboard;
using test::DrawnProgram;
using test::press;
using test::type;

struct Loggers : DrawnProgram {
    Loggers() {
        act([this] { program.start(); });
    }

    FrmDataLogger& setup() { return screens().frmDataLogger; }
    FrmPortableDataLogger& portable() { return screens().frmPortableDataLogger; }
    GridWidget& grid(Grid& field) { return *widget<GridWidget>(field); }
};

TEST(LoggerKeyboard, TheSetUpIsDoneFromTheOrganizationToTheFiles) {
    Loggers drawn;
    test::open_setup(drawn);
    ASSERT_EQ(at_keyboard(), "MSHFlexOrganization");
    press(Qt::Key_Return);
    press(Qt::Key_Tab);
    ASSERT_EQ(at_keyboard(), "cmdLoggerNext");
    press(Qt::Key_Return);
    ASSERT_EQ(at_keyboard(), "txtInstallationID");
    type("MOOR-1");
    press(Qt::Key_Tab);
    ASSERT_EQ(at_keyboard(), "txtOperatingPeriod");
    type("FEN0401.TXT");
    press(Qt::Key_Tab);
    ASSERT_EQ(at_keyboard(), "cmdCharContinue");
    press(Qt::Key_Return);
    ASSERT_EQ(at_keyboard(), "MSHFlexGroups");
    press(Qt::Key_Return);
    press(Qt::Key_Tab);
    ASSERT_EQ(at_keyboard(), "cmdConvertContinue");
    press(Qt::Key_Return);
    EXPECT_TRUE(drawn.screens().frmDataLoggerResults.visible());
    EXPECT_EQ(drawn.setup().lblOrganizationSelect.text(), "MERES");
    EXPECT_EQ(drawn.setup().lblGroupName.text(), "MOORING ");
    EXPECT_EQ(drawn.setup().lstFinalOut.count(), 2);
}

TEST(LoggerKeyboard, ResultsAreTypedInFromTheNumberOfLinesToTheFile) {
    Loggers drawn;
    test::open_portable(drawn);
    ASSERT_EQ(at_keyboard(), "txtLines");
    type("2");
    press(Qt::Key_Tab);
    ASSERT_EQ(at_keyboard(), "cmdContinue");
    press(Qt::Key_Return);
    ASSERT_EQ(at_keyboard(), "MSHFlexLabels");
    press(Qt::Key_Right);
    type("Upper");
    press(Qt::Key_Down);
    type("Lower");
    press(Qt::Key_Tab);
    ASSERT_EQ(at_keyboard(), "cmdLinesContinue");
    press(Qt::Key_Return);
    ASSERT_EQ(at_keyboard(), "MSHFlexResults");
    press(Qt::Key_Up);
    type("FEN-01");
    press(Qt::Key_Down);
    type("12.4");
    press(Qt::Key_Down);
    type("11.9");
    for (int step = 0; step < 5 && at_keyboard() != "cmdSave"; ++step) press(Qt::Key_Tab);
    ASSERT_EQ(at_keyboard(), "cmdSave");
    press(Qt::Key_Return);
    EXPECT_EQ(at_keyboard(), "chkDataYes");
    EXPECT_EQ(drawn.folder.read("fenwater/batchfile/portable.txt"),
              "Data Line Count,2,\r\nRow ID,FEN-01,,,,,,,,,,\r\n"
              "Result,1,Upper,12.4,,,,,,,,,,\r\nResult,2,Lower,11.9,,,,,,,,,,\r\n");
}

TEST(LoggerWindows, TheLabelsOfColumnsAndRowsStandInTheHeadings) {
    Loggers drawn;
    test::logger_roads().at("data logger 4 group")(drawn);
    GridWidget& contents = drawn.grid(drawn.setup().MSHFlexContents);
    EXPECT_EQ(contents.heading_text(0), "Row ID");
    EXPECT_EQ(contents.heading_text(3), "Sample Fraction");
    EXPECT_EQ(drawn.grid(drawn.setup().MSHFlexGroups).heading_text(1), "Group Name");
    drawn.act([&] { drawn.setup().lblUnitsColumn.set_text("Unit"); });
    EXPECT_EQ(contents.heading_text(2), "Unit");
    drawn.act([&] { drawn.setup().lblUnitsColumn.hide(); });
    EXPECT_EQ(contents.heading_text(2), "3");
}

TEST(LoggerWindows, TheRowOfIdsIsNamedBesideIt) {
    Loggers drawn;
    test::logger_roads().at("portable 4 results")(drawn);
    EXPECT_EQ(drawn.grid(drawn.portable().MSHFlexResults).row_name(0), "Row ID:");
    EXPECT_EQ(drawn.grid(drawn.portable().MSHFlexResults).row_name(1), "");
}

TEST(LoggerWindows, AHeadingThatDoesNotSayItsLabelIsADifference) {
    Loggers drawn;
    test::open_portable(drawn);
    ASSERT_EQ(drawn.windows.difference(), "");
    drawn.grid(drawn.portable().MSHFlexLabels).name_column(1, QStringLiteral("Something else"));
    EXPECT_EQ(drawn.windows.difference(),
              "frmPortableDataLogger.lblLabelColumn says \"Something else\" in the headings.");
}

TEST(LoggerWindows, TheHeadingsThatGoWithTheConversionGiveWayToTheRecords) {
    Loggers drawn;
    test::logger_roads().at("data results 2 displayed")(drawn);
    GridWidget& log = drawn.grid(drawn.screens().frmDataLoggerResults.MSFlexLog);
    EXPECT_EQ(log.heading_text(1), "Display Name");
    drawn.act([&] { drawn.screens().frmDataLoggerResults.cmdConvert.press(); });
    EXPECT_EQ(log.heading_text(0), "Date");
    EXPECT_EQ(log.heading_text(1), "Time");
    EXPECT_EQ(log.text_on_screen({1, 1}), "214500");
}

TEST(LoggerWindows, TheSelectionSaysWhatIsStillNeeded) {
    Loggers drawn;
    test::logger_roads().at("logger 1 question")(drawn);
    EXPECT_TRUE(drawn.says("Answer the question first."));
    FrmLogger& logger = drawn.screens().frmLogger;
    drawn.act([&] { logger.cmdYes.press(); });
    EXPECT_TRUE(drawn.says("Still needed: organization, installation, log file"));
    drawn.act([&] { logger.MSHFlexOrganization.click_cell({1, 0}); });
    drawn.act([&] { logger.MSHFlexADL.click_cell({1, 0}); });
    EXPECT_TRUE(drawn.says("Still needed: log file"));
    drawn.act([&] { logger.MSHFlexLogFile.click_cell({1, 0}); });
    EXPECT_FALSE(drawn.says("Still needed: log file"));
}

TEST(LoggerWindows, AConvertedFileAsksWhatComesNext) {
    Loggers drawn;
    test::logger_roads().at("logger results 2 group")(drawn);
    QTest::mouseClick(drawn.widget(drawn.screens().frmLoggerResults.cmdConvert), Qt::LeftButton);
    DrawnProgram::rest();
    EXPECT_EQ(at_keyboard(), "chkYes");
    EXPECT_TRUE(drawn.says("Choose what comes next."));
    press(Qt::Key_Escape);
    EXPECT_TRUE(drawn.screens().frmLoggerResults.frameConverted.visible());
    press(Qt::Key_Space);
    EXPECT_FALSE(drawn.says("Choose what comes next."));
}

TEST(LoggerWindows, TheContentsOfTheQuestionLeaveNoEmptyCardBehind) {
    Loggers drawn;
    test::logger_roads().at("logger 1 question")(drawn);
    FrmLogger& logger = drawn.screens().frmLogger;
    const QWidget* const card = drawn.widget(logger.lstDetails)->parentWidget();
    EXPECT_TRUE(card->isVisible());
    drawn.act([&] { logger.cmdYes.press(); });
    EXPECT_FALSE(card->isVisible());
    drawn.act([&] { logger.cmdBack.press(); });
    EXPECT_TRUE(card->isVisible());
}

}  // namespace
}  // namespace brooklander::desktop
