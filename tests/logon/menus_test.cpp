#include <gtest/gtest.h>

#include "support/test_program.h"

namespace brooklander {
namespace {

class Menus : public testing::Test {
  protected:
    Menus() {
        program_.program.start();
        start_.txtOracleID.type("pike");
        start_.txtOraclePassWord.type("reed bed");
        start_.cmdUIDok.press();
    }

    test::TestProgram program_;
    Screens& screens_ = program_.screens();
    FrmStart& start_ = screens_.frmStart;
    FrmPreferences& preferences_ = screens_.frmPreferences;
    FrmDataLogger& logger_ = screens_.frmDataLogger;
};

TEST_F(Menus, TheConfigurationEntryHidesWhatTheManagerShowedOfAFile) {
    preferences_.frameFileConverted.show();
    preferences_.frameDescription.show();
    preferences_.lblDefaults.show();
    preferences_.frameFiles.show();
    preferences_.frameNewFile.show();
    preferences_.frameView.show();
    preferences_.frameUseFile.show();
    preferences_.frameFileOptions.show();
    start_.mnuPreferences.choose();
    EXPECT_FALSE(preferences_.frameFileConverted.visible());
    EXPECT_FALSE(preferences_.frameDescription.visible());
    EXPECT_FALSE(preferences_.lblDefaults.visible());
    EXPECT_FALSE(preferences_.frameFiles.visible());
    EXPECT_FALSE(preferences_.frameNewFile.visible());
    EXPECT_FALSE(preferences_.frameView.visible());
    EXPECT_FALSE(preferences_.frameUseFile.visible());
    EXPECT_FALSE(preferences_.frameFileOptions.visible());
}

TEST_F(Menus, TheConfigurationEntryComesUpWithTheOptionsAlone) {
    for (Panel* const panel : {&preferences_.frameNoFile, &preferences_.frameConfirmDelete,
                               &preferences_.frameConfirm, &preferences_.frameFileExistsWarning}) {
        panel->show();
    }
    preferences_.lblWait.show();
    start_.mnuPreferences.choose();
    for (const Field* const field : preferences_.fields()) {
        if (field->kind() != FieldKind::panel) continue;
        EXPECT_EQ(field->visible(), field == &preferences_.frameOptions) << field->name();
    }
    EXPECT_FALSE(preferences_.lblWait.visible());
}

TEST_F(Menus, TheConfigurationEntryOpensTheManagersMenusAndOptions) {
    preferences_.lblDescription.hide();
    preferences_.mnuExit.disable();
    preferences_.mnuHelp.disable();
    preferences_.lblSelectedFile.set_text("tarns.txt");
    preferences_.set_text("Select Configuration File");
    preferences_.optBrookLanderEdit.disable();
    preferences_.optBrooklanderNew.disable();
    start_.mnuPreferences.choose();
    EXPECT_TRUE(preferences_.frameOptions.visible());
    EXPECT_TRUE(preferences_.lblDescription.visible());
    EXPECT_TRUE(preferences_.mnuExit.enabled());
    EXPECT_TRUE(preferences_.mnuHelp.enabled());
    EXPECT_TRUE(preferences_.lblSelectedFile.empty());
    EXPECT_EQ(preferences_.text(), "Create Or View Brooklander Configuration Files");
    EXPECT_TRUE(preferences_.optBrookLanderEdit.enabled());
    EXPECT_TRUE(preferences_.optBrooklanderNew.enabled());
    EXPECT_FALSE(preferences_.optVox.enabled());
    EXPECT_FALSE(preferences_.optUseConfig.enabled());
}

TEST_F(Menus, TheConfigurationEntryTakesBackWhicheverOptionWasChosen) {
    for (Option* option : {&preferences_.optBrookLanderEdit, &preferences_.optBrooklanderNew,
                           &preferences_.optUseConfig, &preferences_.optVox}) {
        option->set_on(true);
        start_.mnuPreferences.choose();
        EXPECT_FALSE(option->on()) << option->name();
    }
}

TEST_F(Menus, TheConfigurationEntryHidesThreePanelsOfTheDetails) {
    FrmCharacteristicDetails& details = screens_.frmCharacteristicDetails;
    details.frameProc.show();
    details.frameProcedure.show();
    details.frameUOM.show();
    details.lblUom.set_text("mg/l");
    start_.mnuPreferences.choose();
    EXPECT_FALSE(details.frameProc.visible());
    EXPECT_FALSE(details.frameProcedure.visible());
    EXPECT_FALSE(details.frameUOM.visible());
    EXPECT_EQ(details.lblUom.text(), "mg/l");
}

TEST_F(Menus, TheManagerIsReadyAndTheStartScreenGoneWhenItIsShown) {
    start_.frameFiles.show();
    preferences_.set_pointer(Pointer::busy);
    std::vector<std::string> seen_when_shown;
    preferences_.observe([&] {
        if (!preferences_.visible() || !seen_when_shown.empty()) return;
        seen_when_shown = {start_.visible() ? "start" : "no start",
                           start_.frameFiles.visible() ? "files" : "no files",
                           start_.chkPreferences.ticked() ? "configuration" : "conversion",
                           preferences_.optVox.enabled() ? "vox" : "no vox",
                           preferences_.pointer() == Pointer::busy ? "busy" : "normal"};
    });
    start_.mnuPreferences.choose();
    EXPECT_EQ(seen_when_shown, (std::vector<std::string>{"no start", "no files", "configuration",
                                                         "no vox", "busy"}));
    EXPECT_EQ(preferences_.pointer(), Pointer::normal);
    EXPECT_EQ(screens_.desk.foremost(), &preferences_);
    EXPECT_TRUE(program_.database.queries.empty());
}

TEST_F(Menus, TheLoggerEntryAsksForTheOrganizations) {
    program_.database.answer = {{"org_id", "name"}, {}};
    start_.mnuLogger.choose();
    ASSERT_EQ(program_.database.queries.size(), 1U);
    const Query& query = program_.database.queries.front();
    EXPECT_EQ(query.connection, "keldar");
    EXPECT_EQ(query.user, "pike");
    EXPECT_EQ(query.password, "reed bed");
    EXPECT_EQ(query.statement, "Select org_id, name From tsmorgan Where org_id <> 'ZZZZZZZZ'");
    EXPECT_EQ(logger_.AdodcOrganization.record_source(), query.statement);
}

TEST_F(Menus, TheLoggerEntryShowsTheOrganizations) {
    program_.database.answer = {{"org_id", "name"},
                                {{"TARNS   ", "Tarn Watch"}, {"MERES   ", "Mere Trust"}}};
    start_.mnuLogger.choose();
    EXPECT_FALSE(start_.visible());
    EXPECT_EQ(screens_.desk.foremost(), &logger_);
    const Grid& grid = logger_.MSHFlexOrganization;
    EXPECT_TRUE(grid.seen());
    EXPECT_EQ(grid.rows(), 3);
    EXPECT_EQ(grid.fixed_rows(), 1);
    EXPECT_EQ(grid.cell(0, 1), "name");
    EXPECT_EQ(grid.cell(2, 0), "MERES   ");
    EXPECT_EQ(grid.cell(2, 1), "Mere Trust");
    EXPECT_EQ(grid.column_width(0), 1500);
    EXPECT_EQ(grid.column_width(1), 4500);
    EXPECT_EQ(grid.current(), (GridCell{1, 0}));
}

TEST_F(Menus, TheLoggerEntryFailsWithItsScreenUp) {
    program_.database.refuses = true;
    EXPECT_THROW(start_.mnuLogger.choose(), FatalFailure);
    EXPECT_FALSE(start_.visible());
    EXPECT_TRUE(logger_.visible());
}

TEST_F(Menus, NothingTurnsTheLoggerEntryOn) {
    EXPECT_FALSE(start_.mnuLogger.visible());
    start_.mnuPreferences.choose();
    start_.show();
    start_.mnuImport.choose();
    EXPECT_FALSE(start_.mnuLogger.visible());
}

}  // namespace
}  // namespace brooklander
