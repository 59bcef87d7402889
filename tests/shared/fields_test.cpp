// The toolkit's rules, one by one.

#include "shared/fields.h"

#include <gtest/gtest.h>

#include "support/test_screen.h"

namespace brooklander {
namespace {

class FieldRules : public testing::Test {
  protected:
    test::TestScreen test_;
    test::FrmTest& screen_ = test_.screen;
    int runs_ = 0;
    std::function<void()> count_ = [this] { ++runs_; };
};

using Seeing = FieldRules;
using Starting = FieldRules;
using Focus = FieldRules;
using TextBoxes = FieldRules;
using TickBoxes = FieldRules;
using Options = FieldRules;
using Lists = FieldRules;
using Observers = FieldRules;

TEST_F(Starting, AFieldStartsVisibleEnabledAndEmpty) {
    EXPECT_TRUE(screen_.txtText.visible());
    EXPECT_TRUE(screen_.txtText.enabled());
    EXPECT_TRUE(screen_.txtText.empty());
    EXPECT_EQ(screen_.chkOne.value(), 0);
    EXPECT_EQ(screen_.optOne.value(), 0);
    EXPECT_EQ(screen_.MSFlexTest.rows(), 0);
    EXPECT_FALSE(screen_.lstEntries.selected());
}

TEST_F(Starting, AFieldStartsAsItIsTold) {
    EXPECT_FALSE(screen_.lblHidden.visible());
    EXPECT_TRUE(screen_.lblHidden.enabled());
    EXPECT_EQ(screen_.cmdPress.text(), "Press");
    EXPECT_EQ(screen_.cmdPress.path(), "frmTest.cmdPress");
    EXPECT_EQ(screen_.path(), "frmTest");
}

TEST_F(Starting, AScreenStartsHidden) {
    test::FrmTest other(test_.desk, "frmOther");
    EXPECT_FALSE(other.visible());
    EXPECT_FALSE(other.txtText.seen());
}

TEST_F(Starting, TheLoadStepRunsWhenTheScreenIsFirstShownAndNotBefore) {
    test::FrmTest other(test_.desk, "frmOther");
    other.on_load = count_;
    other.txtText.set_text("written before");
    EXPECT_EQ(runs_, 0);
    other.show();
    other.hide();
    other.show();
    EXPECT_EQ(runs_, 1);
}

TEST_F(Seeing, AFieldIsSeenWhenItAndAllAroundItIsVisible) {
    EXPECT_TRUE(screen_.cmdPress.seen());
    screen_.frameOuter.hide();
    EXPECT_FALSE(screen_.cmdPress.seen());
    EXPECT_TRUE(screen_.cmdPress.visible());
    screen_.frameOuter.show();
    screen_.hide();
    EXPECT_FALSE(screen_.cmdPress.seen());
}

TEST_F(Seeing, AFieldKeepsItsOwnFlagWhileItsScreenIsHidden) {
    screen_.hide();
    screen_.cmdPress.hide();
    screen_.show();
    EXPECT_FALSE(screen_.cmdPress.visible());
}

TEST_F(Seeing, AUserCanWorkWhatIsSeenAndNowhereDisabled) {
    EXPECT_TRUE(screen_.cmdPress.usable());
    screen_.frameOuter.disable();
    EXPECT_FALSE(screen_.cmdPress.usable());
    screen_.frameOuter.enable();
    screen_.mnuFiles.disable();
    EXPECT_FALSE(screen_.mnuOpen.usable());
    EXPECT_TRUE(screen_.mnuOpen.enabled());
}

TEST_F(Seeing, TheScreenShownLastStandsForemostAndWhenItHidesTheOneBefore) {
    test::FrmTest other(test_.desk, "frmOther");
    EXPECT_EQ(test_.desk.foremost(), &screen_);
    other.show();
    EXPECT_EQ(test_.desk.foremost(), &other);
    screen_.bring_forward();
    EXPECT_EQ(test_.desk.foremost(), &screen_);
    screen_.hide();
    EXPECT_EQ(test_.desk.foremost(), &other);
    other.hide();
    EXPECT_EQ(test_.desk.foremost(), nullptr);
}

TEST_F(Focus, IsWhatAClickATypedTextOrAStepLastGave) {
    screen_.cmdPress.press();
    EXPECT_TRUE(screen_.cmdPress.focused());
    screen_.txtText.type("a");
    EXPECT_TRUE(screen_.txtText.focused());
    EXPECT_FALSE(screen_.cmdPress.focused());
    screen_.txtShort.set_focus();
    EXPECT_TRUE(screen_.txtShort.focused());
}

TEST_F(Focus, IsLostWithAFieldThatHidesOrIsDisabledAndWithAPanelAroundIt) {
    screen_.cmdPress.set_focus();
    screen_.cmdPress.hide();
    EXPECT_FALSE(screen_.cmdPress.focused());
    screen_.txtText.set_focus();
    screen_.txtText.disable();
    EXPECT_FALSE(screen_.txtText.focused());
    screen_.txtShort.set_focus();
    screen_.frameOuter.hide();
    EXPECT_FALSE(screen_.txtShort.focused());
}

TEST_F(Focus, IsGivenByEveryKindThatAUserWorks) {
    screen_.lstEntries.set_entries({"a"});
    screen_.chkOne.turn_over();
    EXPECT_TRUE(screen_.chkOne.focused());
    screen_.optOne.choose();
    EXPECT_TRUE(screen_.optOne.focused());
    screen_.lstEntries.click_entry(0);
    EXPECT_TRUE(screen_.lstEntries.focused());
}

TEST_F(Focus, GoesToNothingThatIsHiddenOrDisabledOrInAPanelThatIs) {
    screen_.MSFlexTest.set_focus();
    screen_.cmdPress.disable();
    screen_.cmdPress.set_focus();
    screen_.frameInner.disable();
    screen_.txtText.set_focus();
    EXPECT_TRUE(screen_.MSFlexTest.focused());
}

TEST_F(Focus, IsLostWithAPanelThatIsDisabled) {
    screen_.txtText.set_focus();
    screen_.frameOuter.disable();
    EXPECT_FALSE(screen_.txtText.focused());
}

TEST_F(Focus, CanBeGivenWhileTheScreenIsHiddenAndStaysWithIt) {
    screen_.hide();
    screen_.txtText.set_focus();
    screen_.show();
    EXPECT_TRUE(screen_.txtText.focused());
}

TEST_F(Focus, IsToldToTheFieldThatGetsItAndToTheOneThatLosesIt) {
    screen_.txtText.set_focus();
    screen_.txtText.observe(count_);
    screen_.txtShort.set_focus();
    EXPECT_EQ(runs_, 1);
    screen_.txtShort.observe(count_);
    screen_.frameOuter.hide();
    EXPECT_EQ(runs_, 2);
}

TEST_F(Focus, RunsNothingInATextBox) {
    screen_.txtText.on_click = count_;
    screen_.txtText.set_focus();
    EXPECT_EQ(runs_, 0);
}

TEST_F(TextBoxes, AssigningRunsTheChangeHandlerWhenTheTextDiffers) {
    screen_.txtText.on_change = count_;
    screen_.txtText.set_text("a");
    screen_.txtText.set_text("a");
    EXPECT_EQ(runs_, 1);
    screen_.txtText.clear_text();
    EXPECT_EQ(runs_, 2);
}

TEST_F(TextBoxes, AClickIsAMousePressAndNotTyping) {
    screen_.txtText.on_click = count_;
    screen_.txtText.type("abc");
    EXPECT_EQ(runs_, 0);
    screen_.txtText.click();
    EXPECT_EQ(runs_, 1);
}

TEST_F(TextBoxes, TypingReplacesWhatStandsThereOneChangeForEachCharacter) {
    screen_.txtText.set_text("old");
    std::vector<std::string> texts;
    screen_.txtText.on_change = [&] { texts.push_back(screen_.txtText.text()); };
    screen_.txtText.type("new");
    EXPECT_EQ(texts, (std::vector<std::string>{"n", "ne", "new"}));
    screen_.txtText.type("");
    EXPECT_EQ(texts.back(), "");
}

TEST_F(TextBoxes, ATextThatIsTooLongIsCutHoweverItComes) {
    screen_.txtShort.type("12345678");
    EXPECT_EQ(screen_.txtShort.text(), "123456");
    screen_.txtShort.set_text("abcdefgh");
    EXPECT_EQ(screen_.txtShort.text(), "abcdef");
    screen_.txtShort.press_keys({Key::of('x'), {Key::Name::backspace}, Key::of('y')});
    EXPECT_EQ(screen_.txtShort.text(), "abcdey");
}

TEST_F(TextBoxes, AHandlerThatChangesItsOwnBoxRunsOnceMoreAndEnds) {
    screen_.txtText.on_change = [&] {
        ++runs_;
        screen_.txtText.set_text(std::string(screen_.txtText.text().substr(0, 2)));
    };
    screen_.txtText.type("abc");
    EXPECT_EQ(screen_.txtText.text(), "ab");
    EXPECT_EQ(runs_, 4);
}

TEST_F(TextBoxes, KeysWorkFromTheTextsEnd) {
    using enum Key::Name;
    screen_.txtText.set_text("abc");
    screen_.txtText.press_keys({{left},
                                {left},
                                {erase},
                                Key::of('X'),
                                {right},
                                {right},
                                {right},
                                {erase},
                                {backspace},
                                {up},
                                {tab},
                                {escape}});
    EXPECT_EQ(screen_.txtText.text(), "aX");
}

TEST_F(TextBoxes, AFirstCharacterThatStoodThereAloneChangesNothing) {
    screen_.txtText.set_text("a");
    screen_.txtText.on_change = count_;
    screen_.txtText.type("a");
    EXPECT_EQ(runs_, 0);
    screen_.txtText.type("ab");
    EXPECT_EQ(runs_, 1);
}

TEST_F(TextBoxes, KeysBehindATabOrBehindTheBoxsEndDoNotReachIt) {
    screen_.txtText.press_keys({Key::of('a'), {Key::Name::tab}, Key::of('b')});
    EXPECT_EQ(screen_.txtText.text(), "a");
    screen_.txtText.on_change = [&] { screen_.frameOuter.hide(); };
    screen_.txtText.press_keys({Key::of('c'), Key::of('d')});
    EXPECT_EQ(screen_.txtText.text(), "ac");
    screen_.txtText.on_change = nullptr;
    screen_.txtText.press_keys({Key::of('e'), Key::of('f')});
    EXPECT_EQ(screen_.txtText.text(), "acef");
}

TEST_F(TextBoxes, EnterPressesItsButtonWhileAUserCould) {
    screen_.txtText.enter_presses = &screen_.cmdPress;
    screen_.cmdPress.on_click = count_;
    screen_.txtText.press_keys({Key::of('a'), {Key::Name::enter}});
    EXPECT_EQ(runs_, 1);
    screen_.cmdPress.hide();
    screen_.txtText.press_keys({{Key::Name::enter}});
    screen_.txtShort.press_keys({{Key::Name::enter}});
    EXPECT_EQ(runs_, 1);
    EXPECT_EQ(screen_.txtText.text(), "a");
}

TEST_F(TickBoxes, AssigningRunsTheClickHandlerWhenTheValueDiffers) {
    screen_.chkOne.on_click = count_;
    screen_.chkOne.set_ticked(false);
    EXPECT_EQ(runs_, 0);
    screen_.chkOne.set_ticked(true);
    screen_.chkOne.set_ticked(true);
    EXPECT_EQ(runs_, 1);
    screen_.chkOne.turn_over();
    EXPECT_EQ(runs_, 2);
    EXPECT_EQ(screen_.chkOne.value(), 0);
}

TEST_F(Options, SwitchingOnRunsTheHandlerAndSwitchesOffTheOthersOfThePanel) {
    screen_.optElsewhere.set_on(true);
    screen_.optTwo.set_on(true);
    screen_.optTwo.on_click = [] { FAIL() << "switching off runs nothing"; };
    screen_.optOne.on_click = [&] {
        ++runs_;
        EXPECT_FALSE(screen_.optTwo.on());
    };
    screen_.optOne.set_on(true);
    EXPECT_EQ(runs_, 1);
    EXPECT_TRUE(screen_.optElsewhere.on());
}

TEST_F(Options, AUsersClickOnAnOptionThatIsOnRunsItAgainAndAStepDoesNot) {
    screen_.optOne.on_click = count_;
    screen_.optOne.choose();
    screen_.optOne.choose();
    EXPECT_EQ(runs_, 2);
    screen_.optOne.set_on(true);
    EXPECT_EQ(runs_, 2);
}

TEST_F(Options, SwitchingOffRunsNothing) {
    screen_.optOne.set_on(true);
    screen_.optOne.on_click = count_;
    screen_.optOne.set_on(false);
    EXPECT_EQ(runs_, 0);
    EXPECT_FALSE(screen_.optOne.on());
}

TEST_F(Lists, AClickOnAnEntryRunsTheHandlerEveryTime) {
    screen_.lstEntries.set_entries({"a", "b"});
    screen_.lstEntries.on_click = count_;
    screen_.lstEntries.click_entry(1);
    screen_.lstEntries.click_entry(1);
    EXPECT_EQ(runs_, 2);
    EXPECT_EQ(screen_.lstEntries.selected(), 1U);
}

TEST_F(Lists, DeselectingClearingAndRefillingRunNothing) {
    screen_.lstEntries.set_entries({"a", "b"});
    screen_.lstEntries.click_entry(0);
    screen_.lstEntries.on_click = count_;
    screen_.lstEntries.deselect();
    EXPECT_FALSE(screen_.lstEntries.selected());
    screen_.lstEntries.select(1);
    screen_.lstEntries.set_entries({"c"});
    EXPECT_FALSE(screen_.lstEntries.selected());
    screen_.lstEntries.clear();
    screen_.lstEntries.add("d");
    EXPECT_EQ(screen_.lstEntries.count(), 1U);
    EXPECT_EQ(runs_, 0);
}

TEST_F(Lists, TheFirstOfSeveralLikeEntriesIsFound) {
    screen_.lstEntries.set_entries({"a", "b", "b"});
    EXPECT_EQ(screen_.lstEntries.find("b"), 1U);
    EXPECT_EQ(screen_.lstEntries.find("B"), std::nullopt);
    EXPECT_EQ(screen_.lstEntries.entry(7), "");
    screen_.lstEntries.set_entry(1, "c");
    screen_.lstEntries.set_entry(7, "d");
    EXPECT_EQ(screen_.lstEntries.entries(), (std::vector<std::string>{"a", "c", "b"}));
}

TEST_F(Lists, APickListSaysTheEntryThatIsChosen) {
    screen_.cmbEntries.set_entries({"Total", "Dissolved"});
    screen_.cmbEntries.on_click = count_;
    screen_.cmbEntries.click_entry(1);
    EXPECT_EQ(screen_.cmbEntries.text(), "Dissolved");
    screen_.cmbEntries.click_entry(1);
    EXPECT_EQ(runs_, 2);
    screen_.cmbEntries.set_text("Elsewhere");
    EXPECT_EQ(screen_.cmbEntries.text(), "Elsewhere");
    EXPECT_EQ(runs_, 2);
}

TEST_F(Observers, AreToldOfEveryChangeAndOfNothingElse) {
    screen_.lblText.observe(count_);
    screen_.lblText.set_text("a");
    screen_.lblText.hide();
    screen_.lblText.disable();
    EXPECT_EQ(runs_, 3);
    screen_.lblText.set_text("a");
    screen_.lblText.hide();
    screen_.lblText.disable();
    EXPECT_EQ(runs_, 3);
}

TEST_F(Observers, AreToldByEveryKind) {
    for (Field* field : std::initializer_list<Field*>{
             &screen_.chkOne, &screen_.optOne, &screen_.lstEntries, &screen_.MSFlexTest,
             &screen_.AdodcTest, &screen_.txtText, &screen_}) {
        field->observe(count_);
    }
    screen_.chkOne.set_ticked(true);
    screen_.optOne.set_on(true);
    screen_.lstEntries.add("a");
    screen_.MSFlexTest.set_highlight(Highlight::never);
    screen_.AdodcTest.set_record_source("Select 1");
    screen_.txtText.set_text("a");
    screen_.set_pointer(Pointer::busy);
    EXPECT_EQ(runs_, 7);
}

}  // namespace
}  // namespace brooklander
