// How the windows help in making a configuration: what is still needed, what empty lists say, where
// the keyboard begins, and how lists use their width.

#include <gtest/gtest.h>

#include <QLabel>
#include <QPushButton>
#include <QScrollBar>

#include "desktop/wizard_roads.h"
#include "platform/desktop/grid_widget.h"

namespace brooklander::desktop {
namespace {

using test::DrawnProgram;

struct Wizard : DrawnProgram {
    Wizard() {
        act([this] { program.start(); });
        test::name_configuration(*this);
    }

    FrmPreferencesSettings& settings() { return screens().frmPreferencesSettings; }
    FrmPreferencesSamples& samples() { return screens().frmPreferencesSamples; }
    FrmPreferencesSampleOption& options() { return screens().frmPreferencesSampleOption; }

    void choose_organization(int row) {
        act([this, row] { settings().MSHFlexOrganization.click_cell({row, 0}); });
    }
    void turn_over(TickBox& box) {
        act([&box] { box.turn_over(); });
    }
    void continue_with_air() {
        turn_over(settings().chkSample);
        turn_over(settings().chkAir);
        click(settings().cmdSave);
    }
    void click(Button& button) {
        QTest::mouseClick(widget(button), Qt::LeftButton);
        rest();
    }

    // What the foremost window says is still needed; empty where it says nothing of the kind.
    QString still_needed() {
        for (const QLabel* const label : windows.foremost()->findChildren<QLabel*>()) {
            if (label->isVisible() && label->text().startsWith(QLatin1String("Still needed: "))) {
                return label->text();
            }
        }
        return {};
    }

    QString sentence_of(Grid& grid) { return widget(grid)->accessibleDescription(); }
};

TEST(Wizard, TheSettingsNameWhatIsStillNeeded) {
    Wizard drawn;
    EXPECT_EQ(drawn.still_needed(), "Still needed: organization");
    drawn.choose_organization(1);
    EXPECT_EQ(drawn.still_needed(), "Still needed: activity type");
    drawn.turn_over(drawn.settings().chkField);
    EXPECT_EQ(drawn.still_needed(), "Still needed: activity category");
    drawn.turn_over(drawn.settings().chkRoutine);
    EXPECT_EQ(drawn.still_needed(), "Still needed: medium");
    drawn.turn_over(drawn.settings().chkWater);
    EXPECT_EQ(drawn.still_needed(), "Still needed: time zone");
    drawn.act([&] { drawn.settings().lstTimeZone.click_entry(0); });
    EXPECT_EQ(drawn.still_needed(), "");
}

TEST(Wizard, TheSettingsSayWhatToChooseAgainWhereNothingIsEmpty) {
    Wizard drawn;
    drawn.choose_organization(1);
    drawn.turn_over(drawn.settings().chkSample);
    drawn.turn_over(drawn.settings().chkWater);
    drawn.act([&] { drawn.settings().lstTimeZone.click_entry(0); });
    drawn.turn_over(drawn.settings().chkWater);
    drawn.turn_over(drawn.settings().chkWater);
    ASSERT_FALSE(drawn.settings().cmdSave.enabled());
    bool is_said = false;
    for (const QLabel* const label : drawn.windows.foremost()->findChildren<QLabel*>()) {
        is_said = is_said || (label->isVisible() &&
                              label->text() == "Choose the medium or the time zone again.");
    }
    EXPECT_TRUE(is_said);
}

TEST(Wizard, TheSamplesNameGearAndConfigurationOnlyWhileTheyAreToBeChosen) {
    Wizard drawn;
    drawn.choose_organization(1);
    drawn.continue_with_air();
    drawn.act([&] { drawn.samples().MSHFlexSampleCollection.click_cell({2, 0}); });
    EXPECT_EQ(drawn.still_needed(), "Still needed: field gear, gear configuration");
    drawn.act([&] { drawn.samples().MSHFlexGear.click_cell({1, 0}); });
    EXPECT_EQ(drawn.still_needed(), "Still needed: gear configuration");
    drawn.act([&] { drawn.samples().MSHFlexGearConfiguration.click_cell({1, 0}); });
    EXPECT_EQ(drawn.still_needed(), "");
    drawn.act([&] { drawn.samples().MSHFlexSampleCollection.click_cell({1, 0}); });
    EXPECT_EQ(drawn.still_needed(), "");
}

TEST(Wizard, TheOptionsNeedAProject) {
    Wizard drawn;
    drawn.choose_organization(1);
    drawn.turn_over(drawn.settings().chkField);
    drawn.turn_over(drawn.settings().chkHabitat);
    drawn.click(drawn.settings().cmdSave);
    EXPECT_EQ(drawn.still_needed(), "Still needed: project");
    drawn.act([&] { drawn.options().cmdNext.enable(); });
    EXPECT_EQ(drawn.still_needed(), "");
}

TEST(Wizard, AListThatHasFoundNothingSaysSoAndItsBlankRowCanBeClicked) {
    Wizard drawn;
    drawn.choose_organization(2);
    drawn.continue_with_air();
    Grid& procedures = drawn.samples().MSHFlexSampleCollection;
    EXPECT_EQ(drawn.sentence_of(procedures),
              "This organization has no sample collection procedures in KELDAR.");
    EXPECT_EQ(drawn.sentence_of(drawn.samples().MSHFlexGear), "Choose a procedure first.");
    auto* const grid = drawn.widget<GridWidget>(procedures);
    QTest::mouseClick(grid->viewport(), Qt::LeftButton, {}, grid->cell_place({1, 0}).center());
    EXPECT_TRUE(drawn.samples().cmdContinue.enabled());
}

TEST(Wizard, AListWithRowsSaysNothing) {
    Wizard drawn;
    EXPECT_EQ(drawn.sentence_of(drawn.settings().MSHFlexOrganization), "");
}

TEST(Wizard, TheKeyboardBeginsAtTheFirstChoiceOfEachStep) {
    Wizard drawn;
    EXPECT_EQ(QApplication::focusWidget(), drawn.widget(drawn.settings().MSHFlexOrganization));
    drawn.choose_organization(1);
    drawn.continue_with_air();
    EXPECT_EQ(QApplication::focusWidget(), drawn.widget(drawn.samples().MSHFlexSampleCollection));
    drawn.act([&] { drawn.samples().MSHFlexSampleCollection.click_cell({1, 0}); });
    drawn.click(drawn.samples().cmdContinue);
    EXPECT_EQ(QApplication::focusWidget(), drawn.widget(drawn.options().chkFeet));
}

TEST(Wizard, TheKeyboardBeginsAtKeepForAFileThatIsEdited) {
    Wizard drawn;
    drawn.screens().frmPreferences.lblSelectedFile.set_text("meres.txt");
    drawn.choose_organization(1);
    drawn.continue_with_air();
    EXPECT_EQ(QApplication::focusWidget(), drawn.widget(drawn.samples().cmdKeep));
}

TEST(Wizard, TheWholeWayGoesByKeysAlone) {
    Wizard drawn;
    const auto press = [](Qt::Key key) {
        QTest::keyClick(QApplication::focusWidget(), key);
        DrawnProgram::rest();
    };
    const auto tab_to = [&](const Field& field) {
        QWidget* const target = drawn.widget(field);
        for (int step = 0; step < 30 && QApplication::focusWidget() != target; ++step) {
            press(Qt::Key_Tab);
        }
        ASSERT_EQ(QApplication::focusWidget(), target) << field.path();
    };
    press(Qt::Key_Return);
    tab_to(drawn.settings().chkSample);
    press(Qt::Key_Space);
    tab_to(drawn.settings().chkWater);
    press(Qt::Key_Space);
    tab_to(drawn.settings().lstTimeZone);
    press(Qt::Key_Down);
    press(Qt::Key_Tab);  // leads to the button at once, now that it can be pressed
    ASSERT_EQ(QApplication::focusWidget(), drawn.widget(drawn.settings().cmdSave));
    press(Qt::Key_Return);
    press(Qt::Key_Down);
    press(Qt::Key_Space);
    tab_to(drawn.samples().MSHFlexGear);
    press(Qt::Key_Return);
    tab_to(drawn.samples().MSHFlexGearConfiguration);
    press(Qt::Key_Return);
    press(Qt::Key_Tab);
    ASSERT_EQ(QApplication::focusWidget(), drawn.widget(drawn.samples().cmdContinue));
    press(Qt::Key_Return);
    EXPECT_TRUE(drawn.options().visible());
    EXPECT_EQ(drawn.samples().lblGearConfiguration.text(), "SHORT     ");
}

TEST(Wizard, AListUsesItsWidthWithoutHidingItsIdsAndNames) {
    Wizard drawn;
    auto* const grid = drawn.widget<GridWidget>(drawn.settings().MSHFlexOrganization);
    for (const int width : {1024, 1400, 2200}) {
        drawn.windows.foremost()->resize(width, 728);
        DrawnProgram::rest();
        EXPECT_EQ(grid->horizontalScrollBar()->maximum(), 0) << width;
        EXPECT_GE(grid->cell_place({2, 1}).right(), grid->viewport()->width() - 2) << width;
        const int needed = grid->fontMetrics().horizontalAdvance(*grid->text_on_screen({2, 1}));
        EXPECT_GT(grid->cell_place({2, 1}).width(), needed) << width;
    }
}

}  // namespace
}  // namespace brooklander::desktop
