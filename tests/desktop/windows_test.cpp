#include "platform/desktop/windows.h"

#include <gtest/gtest.h>

#include <QLineEdit>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>

#include "desktop/drawn_program.h"
#include "platform/desktop/grid_widget.h"
#include "platform/desktop/plain_views.h"

namespace brooklander::desktop {
namespace {

using test::DrawnProgram;

// A program whose start screen is up.
struct Started : DrawnProgram {
    Started() {
        act([this] { program.start(); });
    }
};

TEST(WindowsFollow, AWindowIsMadeWhenItsScreenIsFirstShown) {
    DrawnProgram drawn;
    EXPECT_EQ(drawn.windows.window_of(drawn.start_screen()), nullptr);
    drawn.act([&] { drawn.program.start(); });
    EXPECT_TRUE(drawn.start_window().isVisible());
    EXPECT_EQ(drawn.windows.window_of(drawn.import_screen()), nullptr);
    EXPECT_EQ(drawn.start_window().windowTitle(), "Start");
}

TEST(WindowsFollow, ADifferenceBetweenWidgetAndFieldIsTold) {
    Started drawn;
    EXPECT_EQ(drawn.windows.difference(), "");
    drawn.widget(drawn.start_screen().cmdUIDok)->show();
    EXPECT_EQ(drawn.windows.difference(), "frmStart.cmdUIDok is shown on the screen.");
    drawn.widget(drawn.start_screen().cmdUIDok)->hide();
    drawn.widget(drawn.start_screen().txtOracleID)->setEnabled(false);
    EXPECT_EQ(drawn.windows.difference(), "frmStart.txtOracleID is disabled on the screen.");
    drawn.widget(drawn.start_screen().txtOracleID)->setEnabled(true);
    drawn.widget<QLabel>(drawn.start_screen().lblVersion)->setText("BROOK LANDER");
    EXPECT_EQ(drawn.windows.difference(),
              "frmStart.lblVersion says \"BROOK LANDER\" on the screen instead of \"BROOK LANDER "
              "version 1.2\".");
    drawn.widget<QLabel>(drawn.start_screen().lblVersion)->setText("BROOK LANDER version 1.2");
    drawn.start_window().setWindowTitle("Begin");
    EXPECT_EQ(drawn.windows.difference(), "frmStart has the title \"Begin\" on the screen.");
}

TEST(WindowsFollow, WhatAMaskedBoxHoldsIsNotToldInADifference) {
    Started drawn;
    auto* const box = drawn.widget<QLineEdit>(drawn.start_screen().txtOraclePassWord);
    const QSignalBlocker quiet(box);
    box->setText("hidden");
    EXPECT_EQ(drawn.windows.difference(),
              "frmStart.txtOraclePassWord holds another text on the screen.");
}

TEST(WindowsFollow, ATableThatHasNotFollowedIsADifference) {
    Started drawn;
    drawn.act([&] { drawn.import_screen().show(); });
    drawn.act([&] { drawn.import_screen().frameImportedFile.show(); });
    drawn.act([&] { drawn.table().add_row("one\ttwo"); });
    EXPECT_EQ(drawn.windows.difference(), "");
    RowCells cells;
    drawn.table().read_row(0, cells);
    cells.set(1, "three");
    drawn.table().write_row(0, cells);  // tells nobody
    EXPECT_EQ(drawn.windows.difference(),
              "frmImportFileDisplay.MSFlexKeldarIN shows \"two\" in cell 0 1 on the screen.");
}

TEST(WindowsFollow, AFailureIsToldOnceAndNothingActsAfterIt) {
    Started drawn;
    drawn.act([] { throw FatalFailure("The lake has run dry."); });
    EXPECT_EQ(drawn.failure, "The lake has run dry.");
    drawn.failure.clear();
    bool acted = false;
    drawn.act([&acted] { acted = true; });
    EXPECT_FALSE(acted);
    EXPECT_EQ(drawn.failure, "");
}

TEST(WindowsFollow, AnExhaustedMemoryEndsTheProgramAsAnyFailureDoes) {
    Started drawn;
    drawn.act([] { throw std::bad_alloc(); });
    EXPECT_EQ(drawn.failure, "The memory is exhausted.");
}

TEST(WindowsFollow, TheProgramsOwnExitHidesAllWindows) {
    Started drawn;
    drawn.act([&] { drawn.start_screen().mnuExit.choose(); });
    QTest::mouseClick(drawn.widget(drawn.start_screen().cmdYes), Qt::LeftButton);
    EXPECT_TRUE(drawn.has_ended);
    EXPECT_FALSE(drawn.start_window().isVisible());
}

TEST(WindowsFollow, AFailureWhileTheyFollowEndsTheProgramToo) {
    class Exhausted : public FieldView {
      public:
        explicit Exhausted(Field& field) : field_(field) {}
        Field& field() const override { return field_; }
        QWidget* widget() const override { return nullptr; }
        void follow() override { throw std::bad_alloc(); }
        QString difference() const override { return {}; }

      private:
        Field& field_;
    };
    Started drawn;
    drawn.windows.add(std::make_unique<Exhausted>(drawn.start_screen().lblTripIsNumber));
    drawn.act([] {});
    EXPECT_EQ(drawn.failure, "The memory is exhausted.");
}

TEST(WindowsAct, AWidgetThatHasNotNoticedThatItsFieldIsDisabledDoesNothing) {
    Started drawn;
    FrmStart& start = drawn.start_screen();
    drawn.act([&] { start.txtOracleID.set_text("jdoe"); });
    drawn.act([&] { start.frameOracleLogon.disable(); });
    QTest::mouseClick(drawn.widget(start.txtOracleID), Qt::LeftButton);
    EXPECT_EQ(start.txtOracleID.text(), "jdoe");
}

// Presses can come from outside while a step has the windows painted.
TEST(WindowsAct, NothingElseActsWhileAStepRuns) {
    Started drawn;
    FrmStart& start = drawn.start_screen();
    auto* const user = drawn.widget<QLineEdit>(start.txtOracleID);
    drawn.act([&] {
        QMetaObject::invokeMethod(
            qApp, [user] { user->setText("pressed in between"); }, Qt::QueuedConnection);
        start.set_pointer(Pointer::busy);
        start.set_pointer(Pointer::normal);
    });
    EXPECT_EQ(start.txtOracleID.text(), "");
    EXPECT_EQ(user->text(), "");
}

TEST(WindowsAct, WhatAUserDoesWhileAStepBlocksIsDropped) {
    Started drawn;
    FrmStart& start = drawn.start_screen();
    QWidget* const user = drawn.widget(start.txtOracleID);
    drawn.act([&] {
        start.set_pointer(Pointer::busy);
        QCoreApplication::postEvent(
            user, new QKeyEvent(QEvent::KeyPress, Qt::Key_X, Qt::NoModifier, "x"));
        start.set_pointer(Pointer::normal);
    });
    DrawnProgram::rest();
    EXPECT_EQ(start.txtOracleID.text(), "");
    QTest::keyClick(user, Qt::Key_X);
    EXPECT_EQ(start.txtOracleID.text(), "x");
}

TEST(WindowsOpen, AWindowComesUpWhereTheLastOneStoodInTheSameSize) {
    Started drawn;
    drawn.start_window().setGeometry(40, 50, 900, 640);
    DrawnProgram::rest();
    drawn.act([&] {
        drawn.start_screen().hide();
        drawn.import_screen().show();
    });
    const QWidget* const import_window = drawn.windows.window_of(drawn.import_screen());
    EXPECT_EQ(import_window->size(), QSize(900, 640));
    EXPECT_EQ(import_window->pos(), drawn.start_window().pos());
    EXPECT_FALSE(drawn.start_window().isVisible());
}

TEST(WindowsClose, TheStartScreensFrameAsksWhetherToExit) {
    Started drawn;
    drawn.start_window().close();
    DrawnProgram::rest();
    EXPECT_TRUE(drawn.start_window().isVisible());
    EXPECT_TRUE(drawn.widget(drawn.start_screen().frameExit)->isVisible());
}

TEST(WindowsClose, AWindowWhoseExitIsDisabledStays) {
    Started drawn;
    drawn.act([&] {
        drawn.start_screen().hide();
        drawn.import_screen().show();
        drawn.import_screen().mnuExit.disable();
    });
    QWidget* const window = drawn.windows.window_of(drawn.import_screen());
    window->close();
    EXPECT_TRUE(window->isVisible());
    drawn.act([&] { drawn.import_screen().mnuExit.enable(); });
    window->close();
    EXPECT_FALSE(window->isVisible());
    EXPECT_TRUE(drawn.screens().frmPreferences.visible());
}

TEST(WindowsClose, AScreenWithoutAnExitGivesWayToTheStartScreen) {
    Started drawn;
    drawn.act([&] {
        drawn.start_screen().hide();
        drawn.screens().frmLogger.show();
    });
    drawn.windows.window_of(drawn.screens().frmLogger)->close();
    EXPECT_FALSE(drawn.screens().frmLogger.visible());
    EXPECT_TRUE(drawn.start_window().isVisible());
}

// While a step blocks, the pointer is busy and what it has hidden is gone from the screen.
TEST(WindowsWhileBusy, ThePointerAndThePanelsFollowBeforeTheStepIsDone) {
    Started drawn;
    FrmStart& start = drawn.start_screen();
    bool busy_then = false;
    bool panel_then = true;
    drawn.act([&] {
        start.set_pointer(Pointer::busy);
        busy_then = QApplication::overrideCursor() != nullptr;
        start.frameOracleLogon.hide();
        panel_then = drawn.widget(start.frameOracleLogon)->isVisible();
        start.set_pointer(Pointer::normal);
    });
    EXPECT_TRUE(busy_then);
    EXPECT_FALSE(panel_then);
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
}

class PaintCounter : public QObject {
  public:
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() == QEvent::Paint) ++paints;
        return QObject::eventFilter(watched, event);
    }
    int paints = 0;
};

TEST(WindowsWhileBusy, WhatHasChangedBeforeIsPaintedBeforeTheStepIsDone) {
    Started drawn;
    FrmStart& start = drawn.start_screen();
    PaintCounter counter;
    drawn.widget(start.lblVersion)->installEventFilter(&counter);
    DrawnProgram::rest();
    int paints_then = 0;
    counter.paints = 0;
    drawn.act([&] {
        start.lblVersion.set_text("Working");
        start.set_pointer(Pointer::busy);
        paints_then = counter.paints;
        start.set_pointer(Pointer::normal);
    });
    EXPECT_GT(paints_then, 0);
}

TEST(WindowsKeyboard, EnterInTheLogonBoxesPressesOkOnceItIsThere) {
    Started drawn;
    FrmStart& start = drawn.start_screen();
    auto* const user = drawn.widget(start.txtOracleID);
    QTest::keyClicks(user, "jdoe");
    QTest::keyClick(user, Qt::Key_Return);
    EXPECT_TRUE(start.frameOracleLogon.visible());
    QTest::keyClicks(drawn.widget(start.txtOraclePassWord), "secret");
    QTest::keyClick(user, Qt::Key_Return);
    EXPECT_FALSE(start.frameOracleLogon.visible());
}

TEST(WindowsKeyboard, EscapeClosesAQuestionByItsNo) {
    Started drawn;
    drawn.act([&] { drawn.start_screen().mnuExit.choose(); });
    EXPECT_EQ(QApplication::focusWidget(), drawn.widget(drawn.start_screen().cmdNo));
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
    EXPECT_FALSE(drawn.start_screen().frameExit.visible());
}

TEST(WindowsKeyboard, EscapeInATextBoxElsewhereClosesNoQuestion) {
    Started drawn;
    drawn.act([&] { drawn.start_screen().mnuExit.choose(); });
    QTest::keyClick(drawn.widget(drawn.start_screen().txtOracleID), Qt::Key_Escape);
    auto* const user = drawn.widget(drawn.start_screen().txtOracleID);
    user->setFocus();
    QTest::keyClick(user, Qt::Key_Escape);
    EXPECT_TRUE(drawn.start_screen().frameExit.visible());
}

TEST(WindowsKeyboard, ASetFocusStepMovesTheKeyboard) {
    Started drawn;
    drawn.database.refuses = true;
    FrmStart& start = drawn.start_screen();
    drawn.act([&] {
        start.txtOracleID.set_text("jdoe");
        start.txtOraclePassWord.set_text("wrong");
        start.cmdUIDok.press();
    });
    EXPECT_EQ(QApplication::focusWidget(), drawn.widget(start.cmdOracleErrorOk));
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    EXPECT_EQ(QApplication::focusWidget(), drawn.widget(start.txtOracleID));
}

TEST(WindowsKeyboard, AQuestionThatIsAskedAgainGetsTheKeyboardAgain) {
    Started drawn;
    const auto ask = [&] {
        drawn.act([&] {
            drawn.start_screen().hide();
            drawn.import_screen().frameImportConfirm.show();
            drawn.import_screen().show();
        });
    };
    ask();
    QTest::mouseClick(drawn.widget(drawn.import_screen().cmdNo), Qt::LeftButton);
    ask();
    EXPECT_EQ(QApplication::focusWidget(), drawn.widget(drawn.import_screen().cmdYes));
}

TEST(WindowsKeyboard, AfterAQuestionTheKeyboardIsWhereItWas) {
    Started drawn;
    QWidget* const password = drawn.widget(drawn.start_screen().txtOraclePassWord);
    password->setFocus();
    drawn.act([&] { drawn.start_screen().mnuExit.choose(); });
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
    EXPECT_EQ(QApplication::focusWidget(), password);
}

TEST(WindowsKeyboard, ALetterWithAltIsNotTyped) {
    Started drawn;
    QTest::keyClick(drawn.widget(drawn.start_screen().txtOracleID), Qt::Key_Q, Qt::AltModifier);
    EXPECT_EQ(drawn.start_screen().txtOracleID.text(), "");
}

// A step that has the windows painted while it blocks takes the keyboard's control away first and
// brings the next panel up later.
TEST(WindowsKeyboard, AStepThatBlocksLeadsTheKeyboardToItsNextPanel) {
    Started drawn;
    FrmImportFileDisplay& display = drawn.import_screen();
    drawn.act([&] {
        drawn.start_screen().hide();
        display.frameImportedFile.show();
        display.frameRowSelection.show();
        display.show();
    });
    drawn.widget(display.cmdFormatConfirm)->setFocus();
    drawn.act([&] {
        display.set_pointer(Pointer::busy);
        display.frameRowSelection.hide();
        display.set_pointer(Pointer::normal);
        display.frameConverted.show();
    });
    EXPECT_EQ(QApplication::focusWidget(), drawn.widget(display.optAnotherFile));
}

TEST(WindowsKeyboard, TabLeadsToTheFilledButtonOnceAStepIsComplete) {
    Started drawn;
    FrmStart& start = drawn.start_screen();
    auto* const user = drawn.widget(start.txtOracleID);
    auto* const password = drawn.widget(start.txtOraclePassWord);
    password->setFocus();
    QTest::keyClicks(password, "secret");
    user->setFocus();
    QTest::keyClicks(user, "jdoe");
    QTest::keyClick(user, Qt::Key_Tab);
    EXPECT_EQ(QApplication::focusWidget(), drawn.widget(start.cmdUIDok));
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Backtab);
    EXPECT_EQ(QApplication::focusWidget(), password);
}

TEST(WindowsKeyboard, WhenAControlGoesTheNewCardGetsTheKeyboard) {
    Started drawn;
    FrmStart& start = drawn.start_screen();
    drawn.act([&] {
        start.txtOracleID.set_text("jdoe");
        start.txtOraclePassWord.set_text("secret");
    });
    QTest::keyClick(drawn.widget(start.txtOracleID), Qt::Key_Return);
    drawn.act([&] { start.mnuImport.choose(); });
    EXPECT_EQ(QApplication::focusWidget(), drawn.widget(start.Drive1));
}

TEST(WindowsKeyboard, ThePageFollowsTheCurrentCellWhereItIsTooSmallForTheTable) {
    Started drawn;
    FrmImportFileDisplay& display = drawn.import_screen();
    drawn.act([&] {
        drawn.start_screen().hide();
        display.frameCategoryResults.show();
        display.frameImportedFile.show();
        for (int row = 0; row < 40; ++row) display.MSFlexKeldarIN.add_row("LL-01\t7.2");
        display.show();
    });
    ScreenWindow& window = *drawn.windows.window_of(display);
    window.resize(1024, 300);
    DrawnProgram::rest();
    const auto* const area = window.findChild<QScrollArea*>();
    ASSERT_EQ(area->verticalScrollBar()->value(), 0);
    QWidget* const table = drawn.widget(display.MSFlexKeldarIN);
    for (int key = 0; key < 3; ++key) QTest::keyClick(table, Qt::Key_Down);
    EXPECT_GT(area->verticalScrollBar()->value(), 0);
}

TEST(WindowsKeyboard, TheFirstWindowBeginsAtTheUserId) {
    Started drawn;
    EXPECT_EQ(QApplication::focusWidget(), drawn.widget(drawn.start_screen().txtOracleID));
}

}  // namespace
}  // namespace brooklander::desktop
