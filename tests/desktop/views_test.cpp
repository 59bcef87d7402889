// Every kind of field on the screen: what the widget shows, and what a user's act on it does.

#include <gtest/gtest.h>

#include <QAccessible>
#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>
#include <QTextDocumentFragment>

#include "platform/desktop/list_views.h"
#include "platform/desktop/plain_views.h"
#include "support/test_screen.h"

namespace brooklander::desktop {
namespace {

// Runs steps as they come, and lets all views follow.
class SimpleActs : public Acts {
  public:
    void act(FieldView& /*origin*/, const std::function<void()>& step) override {
        step();
        follow();
    }
    void follow() {
        for (FieldView* const view : views) view->follow();
    }

    std::vector<FieldView*> views;
};

// A tool tip as the toolkit shows it, which takes some texts for markup.
QString read_as_shown(const QString& tip) {
    return Qt::mightBeRichText(tip) ? QTextDocumentFragment::fromHtml(tip).toPlainText() : tip;
}

class Views : public testing::Test {
  protected:
    Views() {
        window_.resize(400, 400);
        window_.show();
    }

    template <typename Widget>
    Widget* made() {
        return new Widget(&window_);
    }

    void watch(std::unique_ptr<FieldView> view) {
        acts_.views.push_back(view.get());
        views_.push_back(std::move(view));
        acts_.follow();
    }

    std::string difference() {
        for (const auto& view : views_) {
            if (!view->difference().isEmpty()) return view->difference().toStdString();
        }
        return "";
    }

    test::TestScreen test_;
    test::FrmTest& screen_ = test_.screen;
    QWidget window_;
    SimpleActs acts_;
    std::vector<std::unique_ptr<FieldView>> views_;
};

TEST_F(Views, AButtonShowsItsCaptionWithAnUnderlinedLetterAndIsPressed) {
    auto* const widget = made<QPushButton>();
    screen_.cmdPress.set_text("Save & Continue =>");
    watch(button_view(screen_.cmdPress, widget, 'C', acts_));
    EXPECT_EQ(widget->text(), "Save && &Continue =>");
    EXPECT_EQ(difference(), "");
    int presses = 0;
    screen_.cmdPress.on_click = [&presses] { ++presses; };
    QTest::mouseClick(widget, Qt::LeftButton);
    QTest::keyClick(widget, Qt::Key_Space);
    QTest::keyClick(widget, Qt::Key_Return);
    EXPECT_EQ(presses, 3);
    screen_.cmdPress.disable();
    acts_.follow();
    QTest::mouseClick(widget, Qt::LeftButton);
    EXPECT_EQ(presses, 3);
}

TEST_F(Views, ATextBoxTellsEveryCharacterOnce) {
    auto* const widget = made<QLineEdit>();
    watch(text_box_view(screen_.txtText, widget, acts_));
    std::vector<std::string> texts;
    screen_.txtText.on_change = [&] { texts.push_back(screen_.txtText.text()); };
    QTest::keyClicks(widget, "abc");
    EXPECT_EQ(texts, (std::vector<std::string>{"a", "ab", "abc"}));
    EXPECT_TRUE(screen_.txtText.focused());
}

TEST_F(Views, ATextBoxIsClickedByTheMouseAlone) {
    auto* const widget = made<QLineEdit>();
    watch(text_box_view(screen_.txtText, widget, acts_));
    int clicks = 0;
    screen_.txtText.on_click = [&clicks] { ++clicks; };
    widget->setFocus(Qt::TabFocusReason);
    EXPECT_EQ(clicks, 0);
    QTest::mouseClick(widget, Qt::LeftButton);
    EXPECT_EQ(clicks, 1);
}

TEST_F(Views, ATextThatAHandlerReplacesStaysReplacedOnTheScreen) {
    auto* const widget = made<QLineEdit>();
    watch(text_box_view(screen_.txtText, widget, acts_));
    screen_.txtText.on_change = [&] { screen_.txtText.set_text("always this"); };
    QTest::keyClicks(widget, "x");
    EXPECT_EQ(widget->text(), "always this");
    EXPECT_EQ(difference(), "");
}

TEST_F(Views, ATextBoxTakesItsLongestTextAndTheCodePageOnly) {
    auto* const widget = made<QLineEdit>();
    watch(text_box_view(screen_.txtShort, widget, acts_));
    QTest::keyClicks(widget, "12345678");
    EXPECT_EQ(screen_.txtShort.text(), "123456");
    widget->selectAll();
    for (const char16_t letter : {u'\u00e4', u'\u0141', u'\u20ac'}) {  // the second is not in it
        QTest::sendKeyEvent(QTest::Click, widget, Qt::Key_unknown, QString(QChar(letter)),
                            Qt::NoModifier);
    }
    EXPECT_EQ(screen_.txtShort.text(), "\xe4\x80");
}

TEST_F(Views, ATextThatAScreenReaderPutsInReachesTheField) {
    auto* const widget = made<QLineEdit>();
    watch(text_box_view(screen_.txtText, widget, acts_));
    int changes = 0;
    screen_.txtText.on_change = [&changes] { ++changes; };
    QAccessible::queryAccessibleInterface(widget)->setText(QAccessible::Value, "spoken");
    EXPECT_EQ(screen_.txtText.text(), "spoken");
    EXPECT_EQ(changes, 1);
}

TEST_F(Views, TheCaretStaysWhereItIsWhenAHandlerLengthensTheText) {
    auto* const widget = made<QLineEdit>();
    watch(text_box_view(screen_.txtText, widget, acts_));
    screen_.txtText.on_change = [&] {
        if (!screen_.txtText.text().ends_with("-end")) {
            screen_.txtText.set_text(screen_.txtText.text() + "-end");
        }
    };
    QTest::keyClicks(widget, "ab");
    EXPECT_EQ(widget->text(), "ab-end");
}

TEST_F(Views, AMaskedBoxShowsStars) {
    TextBox masked(screen_, "txtMasked", brooklander::shown, {.masked = true});
    auto* const widget = made<QLineEdit>();
    watch(text_box_view(masked, widget, acts_));
    QTest::keyClicks(widget, "geheim");
    EXPECT_EQ(widget->displayText(), "******");
    EXPECT_EQ(masked.text(), "geheim");
}

TEST_F(Views, ATickBoxIsTurnedOverOnceAndAHandlerCanTurnItBack) {
    auto* const widget = made<QCheckBox>();
    watch(tick_box_view(screen_.chkOne, widget, 'O', acts_));
    int calls = 0;
    screen_.chkOne.on_click = [&calls] { ++calls; };
    QTest::mouseClick(widget, Qt::LeftButton, {}, QPoint(8, widget->height() / 2));
    EXPECT_TRUE(screen_.chkOne.ticked());
    EXPECT_EQ(calls, 1);
    screen_.chkOne.on_click = [&] {
        ++calls;
        if (!screen_.chkOne.ticked()) screen_.chkOne.set_ticked(true);
    };
    QTest::keyClick(widget, Qt::Key_Space);
    EXPECT_TRUE(screen_.chkOne.ticked());
    EXPECT_TRUE(widget->isChecked());
    EXPECT_EQ(difference(), "");
}

TEST_F(Views, AnOptionThatIsOnRunsItsHandlerAgainAndStaysOn) {
    auto* const one = made<QRadioButton>();
    auto* const two = made<QRadioButton>();
    watch(option_view(screen_.optOne, one, 'O', acts_));
    watch(option_view(screen_.optTwo, two, 'T', acts_));
    int calls = 0;
    screen_.optOne.on_click = [&calls] { ++calls; };
    const QPoint mark(8, one->height() / 2);
    QTest::mouseClick(one, Qt::LeftButton, {}, mark);
    QTest::mouseClick(one, Qt::LeftButton, {}, mark);
    EXPECT_EQ(calls, 2);
    EXPECT_TRUE(one->isChecked());
    QTest::mouseClick(two, Qt::LeftButton, {}, mark);
    EXPECT_FALSE(one->isChecked());
    EXPECT_TRUE(two->isChecked());
    EXPECT_EQ(difference(), "");
}

TEST_F(Views, ArrowsAmongOptionsChooseNothing) {
    auto* const one = made<QRadioButton>();
    auto* const two = made<QRadioButton>();
    watch(option_view(screen_.optOne, one, 'O', acts_));
    watch(option_view(screen_.optTwo, two, 'T', acts_));
    one->setFocus();
    QTest::keyClick(one, Qt::Key_Down);
    EXPECT_FALSE(screen_.optOne.on());
    EXPECT_FALSE(screen_.optTwo.on());
}

TEST_F(Views, ArrowsInAPlainListClickTheEntryTheyLeadTo) {
    auto* const widget = made<ListWidget>();
    watch(list_view(screen_.lstEntries, widget, acts_));
    screen_.lstEntries.set_entries({"one", "two", "three"});
    acts_.follow();
    std::vector<std::string> clicked;
    screen_.lstEntries.on_click = [&] {
        clicked.emplace_back(screen_.lstEntries.entry(*screen_.lstEntries.selected()));
    };
    QTest::mouseClick(widget->viewport(), Qt::LeftButton, {},
                      widget->visualRect(widget->entries().index(0)).center());
    QTest::keyClick(widget, Qt::Key_Down);
    QTest::keyClick(widget, Qt::Key_End);
    QTest::keyClick(widget, Qt::Key_Down);  // leads nowhere
    QTest::keyClick(widget, Qt::Key_Return);
    EXPECT_EQ(clicked, (std::vector<std::string>{"one", "two", "three", "three"}));
    EXPECT_EQ(difference(), "");
}

TEST_F(Views, AClickOnTheSelectedEntryRunsItsHandlerAgain) {
    auto* const widget = made<ListWidget>();
    watch(list_view(screen_.lstEntries, widget, acts_));
    screen_.lstEntries.set_entries({"one"});
    acts_.follow();
    int clicks = 0;
    screen_.lstEntries.on_click = [&clicks] { ++clicks; };
    const QPoint place = widget->visualRect(widget->entries().index(0)).center();
    QTest::mouseClick(widget->viewport(), Qt::LeftButton, {}, place);
    QTest::mouseClick(widget->viewport(), Qt::LeftButton, {}, place);
    EXPECT_EQ(clicks, 2);
    QTest::mouseClick(widget->viewport(), Qt::LeftButton, {}, QPoint(20, 200));  // below the last
    EXPECT_EQ(clicks, 2);
}

TEST_F(Views, ArrowsInAFolderListOnlyLookAroundAndEnterOpens) {
    test_.folder.write("data/a.txt", "");
    test_.folder.write("rivers/b.txt", "");
    auto* const widget = made<ListWidget>();
    screen_.Dir1.set_path("c:\\");
    screen_.Dir1.on_click = [&] {
        screen_.Dir1.set_path(screen_.Dir1.entry_path(*screen_.Dir1.selected()));
    };
    watch(folder_list_view(screen_.Dir1, widget, acts_));
    QTest::keyClick(widget, Qt::Key_Down);
    QTest::keyClick(widget, Qt::Key_Down);
    EXPECT_EQ(screen_.Dir1.path(), "c:\\");
    QTest::keyClick(widget, Qt::Key_Return);
    EXPECT_EQ(screen_.Dir1.path(), "c:\\rivers");
    EXPECT_EQ(widget->currentIndex().data().toString(), "rivers");
    QTest::keyClick(widget, Qt::Key_Up);
    QTest::keyClick(widget, Qt::Key_Space);
    EXPECT_EQ(screen_.Dir1.path(), "c:\\");
    EXPECT_EQ(difference(), "");
}

TEST_F(Views, TheFirstEntryOfAListWithoutASelectionIsPickedByAKey) {
    auto* const widget = made<ListWidget>();
    watch(list_view(screen_.lstEntries, widget, acts_));
    screen_.lstEntries.set_entries({"one"});
    acts_.follow();
    QTest::keyClick(widget, Qt::Key_Home);
    EXPECT_EQ(screen_.lstEntries.selected(), 0U);
}

TEST_F(Views, WithoutASelectionAnArrowPicksTheEntryThatTheCursorStandsAt) {
    auto* const widget = made<ListWidget>();
    watch(list_view(screen_.lstEntries, widget, acts_));
    screen_.lstEntries.set_entries({"one", "two"});
    acts_.follow();
    widget->setCurrentIndex(widget->entries().index(0));
    widget->selectionModel()->clearSelection();
    QTest::keyClick(widget, Qt::Key_Down);
    EXPECT_EQ(screen_.lstEntries.selected(), 0U);
    QTest::keyClick(widget, Qt::Key_Down);
    EXPECT_EQ(screen_.lstEntries.selected(), 1U);
}

TEST_F(Views, APressBelowTheLastEntryDeselectsNothing) {
    auto* const widget = made<ListWidget>();
    watch(list_view(screen_.lstEntries, widget, acts_));
    screen_.lstEntries.set_entries({"one"});
    screen_.lstEntries.select(0);
    acts_.follow();
    QTest::mouseClick(widget->viewport(), Qt::LeftButton, {}, QPoint(20, 200));
    EXPECT_EQ(difference(), "");
}

TEST_F(Views, ADoubleClickOpensOneFolder) {
    test_.folder.write("data/deep/a.txt", "");
    auto* const widget = made<ListWidget>();
    screen_.Dir1.set_path("c:\\");
    screen_.Dir1.on_click = [&] {
        screen_.Dir1.set_path(screen_.Dir1.entry_path(*screen_.Dir1.selected()));
    };
    watch(folder_list_view(screen_.Dir1, widget, acts_));
    const QPoint place = widget->visualRect(widget->entries().index(1)).center();
    QTest::mouseClick(widget->viewport(), Qt::LeftButton, {}, place);
    QTest::mouseDClick(widget->viewport(), Qt::LeftButton, {},
                       widget->visualRect(widget->entries().index(2)).center());
    EXPECT_EQ(screen_.Dir1.path(), "c:\\data");
}

TEST_F(Views, TheWheelOverAPickListChoosesNothing) {
    auto* const widget = made<PickListBox>();
    screen_.cmbEntries.set_entries({"mg/l", "ug/l"});
    watch(pick_list_view(screen_.cmbEntries, widget, acts_));
    widget->setFocus();
    QWheelEvent turn(QPointF(4, 4), widget->mapToGlobal(QPointF(4, 4)), {}, QPoint(0, -120),
                     Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(widget, &turn);
    EXPECT_EQ(screen_.cmbEntries.text(), "");
}

TEST_F(Views, APickListShowsATextThatNoEntrySays) {
    auto* const widget = made<QComboBox>();
    screen_.cmbEntries.set_entries({"mg/l", "ug/l"});
    watch(pick_list_view(screen_.cmbEntries, widget, acts_));
    EXPECT_EQ(widget->currentIndex(), -1);
    screen_.cmbEntries.set_text("NTU");
    acts_.follow();
    EXPECT_EQ(widget->placeholderText(), "NTU");
    EXPECT_EQ(difference(), "");
}

TEST_F(Views, AChoiceInAPickListRunsItsHandlerEveryTime) {
    auto* const widget = made<QComboBox>();
    screen_.cmbEntries.set_entries({"mg/l", "ug/l"});
    watch(pick_list_view(screen_.cmbEntries, widget, acts_));
    std::vector<std::string> chosen;
    screen_.cmbEntries.on_click = [&] { chosen.push_back(screen_.cmbEntries.text()); };
    for (int time = 0; time < 2; ++time) {
        QTest::keyClick(widget, Qt::Key_F4);
        QTest::keyClick(widget->view(), Qt::Key_End);
        QTest::keyClick(widget->view(), Qt::Key_Return);
    }
    EXPECT_EQ(chosen, (std::vector<std::string>{"ug/l", "ug/l"}));
    screen_.cmbEntries.set_entries({"one", "two", "three"});
    acts_.follow();
    EXPECT_EQ(chosen.size(), 2U);
    EXPECT_EQ(widget->count(), 3);
}

TEST_F(Views, AValueThatIsNotSetShowsADashAndALongOneATip) {
    auto* const widget = made<ValueLabel>();
    watch(value_view(screen_.lblText, widget));
    widget->setGeometry(0, 0, 60, 20);
    screen_.lblText.set_text("c:\\brooklander\\voxoutfiles\\lake & river <2021>.txt");
    acts_.follow();
    EXPECT_EQ(read_as_shown(widget->toolTip()),
              "c:\\brooklander\\voxoutfiles\\lake & river <2021>.txt");
    EXPECT_EQ(difference(), "");
    screen_.lblText.clear_text();
    acts_.follow();
    EXPECT_EQ(widget->toolTip(), "");
    EXPECT_EQ(difference(), "");
}

TEST_F(Views, APanelWithoutATitleShowsNone) {
    auto* const card = made<Card>();
    watch(panel_view(screen_.frameInner, card));
    EXPECT_TRUE(card->title()->isHidden());
    screen_.frameInner.set_text("Results");
    acts_.follow();
    EXPECT_FALSE(card->title()->isHidden());
    EXPECT_EQ(card->title()->text(), "Results");
}

}  // namespace
}  // namespace brooklander::desktop
