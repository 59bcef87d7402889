#include "configuration/activity_settings.h"

#include <gtest/gtest.h>

#include <bitset>

#include "configuration/activity_boxes.h"
#include "configuration/time_zones.h"
#include "support/test_program.h"

namespace brooklander {
namespace {

class ActivitySettings : public testing::Test {
  protected:
    ActivitySettings() {
        program_.start_screen().txtOracleID.set_text("pike");
        program_.start_screen().txtOraclePassWord.set_text("reed bed");
        database_.answer = {{"org_id", "name"}, {{"TARNS   ", "Tarn Watch"}}};
    }

    void choose_organization() {
        settings_.show();
        settings_.MSHFlexOrganization.click_cell({1, 0});
    }

    test::TestProgram program_;
    test::WatchedDatabase& database_ = program_.database;
    Screens& screens_ = program_.screens();
    FrmPreferencesSettings& settings_ = screens_.frmPreferencesSettings;
    FrmPreferences& preferences_ = screens_.frmPreferences;
};

TEST_F(ActivitySettings, EveryStatementGoesToTheCentralDatabaseAsTheUserWhoIsLoggedOn) {
    choose_organization();
    settings_.chkSample.turn_over();
    settings_.chkAir.turn_over();
    settings_.cmdSave.press();
    screens_.frmPreferencesSamples.MSHFlexSampleCollection.click_cell({1, 0});
    screens_.frmPreferencesSamples.MSHFlexGear.click_cell({1, 0});
    screens_.frmPreferencesSamples.cmdContinue.press();
    ASSERT_EQ(database_.queries.size(), 8U);
    for (const Query& query : database_.queries) {
        EXPECT_EQ(query.connection, "DSN=keldar") << query.statement;
        EXPECT_EQ(query.user, "pike") << query.statement;
        EXPECT_EQ(query.password, "reed bed") << query.statement;
    }
}

TEST_F(ActivitySettings, TheOrganizationsAreAskedForOnceARun) {
    settings_.show();
    settings_.hide();
    settings_.show();
    EXPECT_EQ(database_.queries.size(), 1U);
}

TEST_F(ActivitySettings, AnOrganizationClosesTheGroupDisplayAndTheStations) {
    FrmPreferencesCharacteristics& characteristics = screens_.frmPreferencesCharacteristics;
    characteristics.frameCharacteristicGroupDisplay.show();
    characteristics.cmdSave.enable();
    characteristics.cmdSaveAs.enable();
    screens_.frmPreferencesSampleOption.cmdNext.enable();
    settings_.frameStations.show();
    choose_organization();
    EXPECT_FALSE(characteristics.frameCharacteristicGroupDisplay.visible());
    EXPECT_FALSE(characteristics.cmdSave.enabled());
    EXPECT_FALSE(characteristics.cmdSaveAs.enabled());
    EXPECT_FALSE(screens_.frmPreferencesSampleOption.cmdNext.enabled());
    EXPECT_FALSE(settings_.frameStations.visible());
}

TEST_F(ActivitySettings, ADatabaseThatRefusesTheTripsLeavesTheBoxesClosed) {
    settings_.show();
    database_.refuses = true;
    EXPECT_THROW(settings_.MSHFlexOrganization.click_cell({1, 0}), FatalFailure);
    EXPECT_FALSE(settings_.frameActivity.visible());
}

TEST_F(ActivitySettings, ExitTakesTheManagersQuestionsAway) {
    preferences_.chkYes.set_ticked(true);
    preferences_.cmdConfirm.enable();
    preferences_.frameConfirm.show();
    preferences_.frameConfirmDelete.show();
    preferences_.frameFileExistsWarning.show();
    preferences_.optBrookLanderEdit.disable();
    preferences_.optBrookLanderEdit.set_on(true);
    preferences_.optBrooklanderNew.disable();
    settings_.show();
    settings_.mnuExit.choose();
    EXPECT_FALSE(preferences_.chkYes.ticked());
    EXPECT_FALSE(preferences_.cmdConfirm.enabled());
    EXPECT_FALSE(preferences_.frameConfirm.visible());
    EXPECT_FALSE(preferences_.frameConfirmDelete.visible());
    EXPECT_FALSE(preferences_.frameFileExistsWarning.visible());
    EXPECT_TRUE(preferences_.frameOptions.visible());
    EXPECT_TRUE(preferences_.optBrookLanderEdit.enabled());
    EXPECT_FALSE(preferences_.optBrookLanderEdit.on());
    EXPECT_TRUE(preferences_.optBrooklanderNew.enabled());
    EXPECT_FALSE(preferences_.optVox.enabled());
    EXPECT_FALSE(preferences_.optUseConfig.enabled());
    EXPECT_FALSE(settings_.visible());
    EXPECT_EQ(screens_.desk.foremost(), &preferences_);
}

TEST_F(ActivitySettings, ContinueHidesTheLoggerQuestionOfTheStartScreen) {
    screens_.frmStart.frameLog.show();
    settings_.cmdSave.press();
    EXPECT_FALSE(screens_.frmStart.frameLog.visible());
}

TEST_F(ActivitySettings, AnEditBehindANewFileOffersWhatItsFileHolds) {
    FrmPreferencesSamples& samples = screens_.frmPreferencesSamples;
    preferences_.txtFileName.set_text("tarns");
    settings_.cmdSave.press();
    EXPECT_TRUE(samples.frameSampleCollection.visible());
    preferences_.lblSelectedFile.set_text("meres.txt");
    settings_.cmdSave.press();
    EXPECT_FALSE(samples.frameSampleCollection.visible());
    EXPECT_TRUE(samples.cmdKeep.visible());
    EXPECT_EQ(samples.lblFileName.text(), "meres.txt");
}

TEST_F(ActivitySettings, TheScreenStaysUpWhenTheNextOnesListsFail) {
    choose_organization();
    settings_.chkField.turn_over();
    database_.refuses = true;
    EXPECT_THROW(settings_.cmdSave.press(), FatalFailure);
    EXPECT_EQ(screens_.desk.foremost(), &settings_);
}

// A walk over all states of the nine boxes that clicks can reach.
TEST_F(ActivitySettings, NoClickLeavesTwoBoxesOfAKindTicked) {
    unsigned random = 7;
    for (int click = 0; click < 5000; ++click) {
        random = random * 1664525U + 1013904223U;
        (settings_.*activity_boxes.at((random >> 16U) % activity_boxes.size())).turn_over();
        std::bitset<activity_boxes.size()> ticked;
        for (std::size_t box = 0; box < activity_boxes.size(); ++box) {
            ticked[box] = (settings_.*activity_boxes.at(box)).ticked();
        }
        const auto of_kind = [&](std::size_t first, std::size_t count) {
            return ((ticked >> first).to_ulong() & ((1UL << count) - 1));
        };
        EXPECT_LE(std::bitset<2>(of_kind(0, 2)).count(), 1U) << ticked;
        EXPECT_LE(std::bitset<2>(of_kind(2, 2)).count(), 1U) << ticked;
        EXPECT_LE(std::bitset<5>(of_kind(4, 5)).count(), 1U) << ticked;
        EXPECT_EQ(preferences_.lblMedium.empty(), of_kind(4, 5) == 0) << ticked;
        EXPECT_EQ(preferences_.lblActivityType.empty(), of_kind(0, 2) == 0) << ticked;
    }
}

TEST_F(ActivitySettings, TheTimeZonesAreFourteenInTheirOrder) {
    settings_.lstTimeZone.add("left from before");
    fill_time_zones(settings_);
    EXPECT_EQ(
        settings_.lstTimeZone.entries(),
        (std::vector<std::string>{
            "GMT Greenwich Mean Time", "AST Atlantic or Alaska Standard Time",
            "EST Eastern Standard Time", "CST Central Standard Time", "MST Mountain Standard Time",
            "PST Pacific Standard Time", "ADT Atlantic Daylight Time", "EDT Eastern Daylight Time",
            "CDT Central Daylight Time", "MDT Mountain Daylight Time", "PDT Pacific Daylight Time",
            "AK  Alaska Standard Time", "GU  Guam Standard Time", "HI  Hawaii Standard Time"}));
}

TEST_F(ActivitySettings, AClickOnATimeZoneTakesItsCode) {
    fill_time_zones(settings_);
    std::vector<std::string> codes;
    for (std::size_t entry = 0; entry < settings_.lstTimeZone.count(); ++entry) {
        settings_.lstTimeZone.click_entry(entry);
        codes.push_back(settings_.lblTimeZone.text());
    }
    EXPECT_EQ(codes, (std::vector<std::string>{"GMT", "AST", "EST", "CST", "MST", "PST", "ADT",
                                               "EDT", "CDT", "MDT", "PDT", "AK", "GU", "HI"}));
}

TEST_F(ActivitySettings, HelpShowsTheWorkspacesHelpFile) {
    settings_.mnuHelp.choose();
    screens_.frmPreferencesSamples.mnuHelp.choose();
    EXPECT_EQ(program_.help.shown,
              (std::vector<std::string>(2, "c:\\brooklander\\BROOKLANDER.HLP")));
}

}  // namespace
}  // namespace brooklander
