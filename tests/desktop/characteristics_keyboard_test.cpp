// Works the screens of characteristics as somebody does who has no mouse.

#include <gtest/gtest.h>

#include <QAbstractItemView>
#include <QComboBox>

#include "desktop/at_the_keyboard.h"
#include "desktop/characteristic_roads.h"

namespace brooklander::desktop {
namespace {

using test::at_keyboard;
using test::DrawnProgram;
using test::press;
using test::type;

// A letter with Alt presses its button for a moment, and so takes one.
bool comes_true(const std::function<bool()>& condition) { return QTest::qWaitFor(condition, 2000); }

// An entry of the box that has the keyboard, counted from 0.
void pick(int entry) {
    auto* const box = qobject_cast<QComboBox*>(QApplication::focusWidget());
    ASSERT_NE(box, nullptr);
    press(Qt::Key_F4);
    QWidget* const entries = box->view();
    QTest::keyClick(entries, Qt::Key_Home);
    for (int row = 0; row < entry; ++row) QTest::keyClick(entries, Qt::Key_Down);
    QTest::keyClick(entries, Qt::Key_Return);
    DrawnProgram::rest();
}

void answer_with_oxygen(DrawnProgram& drawn) {
    drawn.database.answer = {
        {"search_name", "display_name", "d_scr_type_cd"},
        {{"OXYGEN", "Oxygen, dissolved", "PHYS"}, {"OXYGEN", "Oxygen, saturation", "PHYS"}}};
}

TEST(CharacteristicsKeyboard, ARowIsTranslatedFromItsNameBackToTheNames) {
    DrawnProgram drawn;
    drawn.act([&] { drawn.program.start(); });
    test::translate(drawn);
    answer_with_oxygen(drawn);
    const FrmCharacteristics& translation = drawn.screens().frmCharacteristics;
    ASSERT_EQ(at_keyboard(), "MSFlexChar");
    press(Qt::Key_Down);
    press(Qt::Key_Down);
    press(Qt::Key_Return);
    ASSERT_EQ(at_keyboard(), "txtCharacteristic");
    type("sat");  // over the name, which is marked
    EXPECT_EQ(translation.txtCharacteristic.text(), "sat");
    press(Qt::Key_Tab);
    press(Qt::Key_Return);
    ASSERT_EQ(at_keyboard(), "cmbCharacteristics");
    pick(1);
    press(Qt::Key_Tab);
    ASSERT_EQ(at_keyboard(), "cmdChange");
    press(Qt::Key_Return);
    ASSERT_EQ(at_keyboard(), "cmdYes");
    press(Qt::Key_Return);
    EXPECT_EQ(at_keyboard(), "MSFlexChar");
    EXPECT_EQ(translation.MSFlexChar.cell(2, 1), "Oxygen, saturation");
}

TEST(CharacteristicsKeyboard, NoLeadsBackToTheOffer) {
    DrawnProgram drawn;
    drawn.act([&] { drawn.program.start(); });
    test::translate(drawn);
    answer_with_oxygen(drawn);
    press(Qt::Key_Return);
    press(Qt::Key_Tab);
    press(Qt::Key_Return);
    pick(0);
    press(Qt::Key_Tab);
    press(Qt::Key_Return);
    press(Qt::Key_Tab);
    ASSERT_EQ(at_keyboard(), "cmdNo");
    press(Qt::Key_Return);
    EXPECT_EQ(at_keyboard(), "cmdChange");
}

TEST(CharacteristicsKeyboard, ASearchWithoutAMatchBeginsAgainInItsText) {
    DrawnProgram drawn;
    drawn.act([&] { drawn.program.start(); });
    test::translate(drawn);
    press(Qt::Key_Return);
    press(Qt::Key_Tab);
    press(Qt::Key_Return);
    ASSERT_TRUE(drawn.screens().frmCharacteristics.frameMatch.visible());
    EXPECT_EQ(at_keyboard(), "txtCharacteristic");
}

TEST(CharacteristicsKeyboard, AnAutomaticTranslationLeadsBackToTheNames) {
    DrawnProgram drawn;
    drawn.act([&] { drawn.program.start(); });
    test::translate(drawn);
    drawn.database.answer = {{"search_name", "display_name", "d_scr_type_cd"},
                             {{"Temperature", "Temperature", "PHYS"}}};
    press(Qt::Key_Return);
    press(Qt::Key_Tab);
    press(Qt::Key_Return);
    ASSERT_TRUE(drawn.screens().frmCharacteristics.frameAutoTranslate.visible());
    EXPECT_EQ(at_keyboard(), "MSFlexChar");
}

TEST(CharacteristicsKeyboard, AColumnOfTheDetailsIsFilledAndTypedInto) {
    DrawnProgram drawn;
    drawn.act([&] { drawn.program.start(); });
    test::detail(drawn);
    const FrmCharacteristicDetails& details = drawn.screens().frmCharacteristicDetails;
    press(Qt::Key_F, Qt::AltModifier);
    ASSERT_TRUE(comes_true([&] { return details.chkFraction.ticked(); }));
    press(Qt::Key_Tab);
    ASSERT_EQ(at_keyboard(), "cmbFraction");
    pick(1);
    press(Qt::Key_Tab);
    ASSERT_EQ(at_keyboard(), "cmdFractionAll");
    press(Qt::Key_Tab);
    ASSERT_EQ(at_keyboard(), "MSFlexDetails");
    press(Qt::Key_Down);
    for (int column = 0; column < 4; ++column) press(Qt::Key_Right);
    press(Qt::Key_Return, Qt::ControlModifier);
    EXPECT_EQ(details.MSFlexDetails.cell(details.MSFlexDetails.current().row, 4), "Dissolved");
    EXPECT_EQ(details.MSFlexDetails.cell(4, 4), "");
    press(Qt::Key_S, Qt::AltModifier);
    EXPECT_TRUE(comes_true([&] { return details.MSFlexDetails.cell(4, 4) == "Dissolved"; }));
    press(Qt::Key_Tab);
    ASSERT_EQ(at_keyboard(), "MSFlexDetails");
    press(Qt::Key_Home, Qt::ControlModifier);
    for (int column = 0; column < 11; ++column) press(Qt::Key_Right);
    type("0.05");
    press(Qt::Key_Return);
    type("1");
    EXPECT_EQ(details.MSFlexDetails.cell(1, 11), "0.05");
    EXPECT_EQ(details.MSFlexDetails.cell(2, 11), "1");
}

}  // namespace
}  // namespace brooklander::desktop
