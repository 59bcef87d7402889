#include "sweeps/reset_screens.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "platform/files/host_files.h"
#include "support/temporary_folder.h"

namespace brooklander {
namespace {

class ResetScreens : public testing::Test {
  protected:
    // As a whole sequence of choices leaves a screen: something in every label that has no caption,
    // every box ticked.
    static void fill(const Screen& screen) {
        for (Field* field : screen.fields()) {
            if (field->kind() == FieldKind::label && field->empty()) field->set_text("held");
            if (auto* box = dynamic_cast<TickBox*>(field)) box->set_ticked(true);
        }
    }

    // What a screen's labels say and its boxes hold.
    static std::vector<std::string> held(const Screen& screen) {
        std::vector<std::string> all;
        for (const Field* field : screen.fields()) {
            if (field->kind() == FieldKind::label) {
                all.push_back(field->name() + " " + field->text());
            } else if (const auto* box = dynamic_cast<const TickBox*>(field)) {
                all.push_back(field->name() + " " + std::to_string(box->value()));
            }
        }
        return all;
    }

    test::TemporaryFolder folder_;
    HostFiles files_{folder_.path()};
    Screens screens_{files_};
    Screens fresh_{files_};
};

TEST_F(ResetScreens, TheActivitySettingsHoldWhatTheyStartedWith) {
    fill(screens_.frmPreferencesSettings);
    reset(screens_.frmPreferencesSettings);
    EXPECT_EQ(held(screens_.frmPreferencesSettings), held(fresh_.frmPreferencesSettings));
}

TEST_F(ResetScreens, TheSampleCollectionHoldsWhatItStartedWith) {
    fill(screens_.frmPreferencesSamples);
    reset(screens_.frmPreferencesSamples);
    EXPECT_EQ(held(screens_.frmPreferencesSamples), held(fresh_.frmPreferencesSamples));
}

TEST_F(ResetScreens, TheSampleOptionsHoldWhatTheyStartedWith) {
    fill(screens_.frmPreferencesSampleOption);
    reset(screens_.frmPreferencesSampleOption);
    EXPECT_EQ(held(screens_.frmPreferencesSampleOption), held(fresh_.frmPreferencesSampleOption));
}

TEST_F(ResetScreens, ATickedBoxRunsItsHandlerAfterTheLabelsAreEmpty) {
    FrmPreferencesSampleOption& options = screens_.frmPreferencesSampleOption;
    std::vector<std::string> runs;
    options.chkFeet.set_ticked(true);
    options.lblDepthUnits.set_text("ft");
    options.chkFeet.on_click = [&] { runs.push_back("feet:" + options.lblDepthUnits.text()); };
    options.chkMeters.on_click = [&] { runs.emplace_back("meters"); };
    reset(options);
    EXPECT_EQ(runs, (std::vector<std::string>{"feet:"}));
}

TEST_F(ResetScreens, TheButtonsThatGoOnWaitForAChoiceAgain) {
    Button& settings = screens_.frmPreferencesSettings.cmdSave;
    Button& samples = screens_.frmPreferencesSamples.cmdContinue;
    Button& options = screens_.frmPreferencesSampleOption.cmdNext;
    for (Button* const button : {&settings, &samples, &options}) button->enable();
    reset(screens_.frmPreferencesSettings);
    reset(screens_.frmPreferencesSamples);
    reset(screens_.frmPreferencesSampleOption);
    for (const Button* const button : {&settings, &samples, &options}) {
        EXPECT_FALSE(button->enabled()) << button->path();
    }
}

TEST_F(ResetScreens, OtherFieldsStayAsTheyAre) {
    FrmPreferencesSettings& settings = screens_.frmPreferencesSettings;
    settings.lstTimeZone.add("EST Eastern Standard Time");
    settings.MSHFlexOrganization.add_row("TARNS\tTarn Watch");
    settings.optVOXTrip.set_on(true);
    settings.frameActivity.show();
    reset(settings);
    EXPECT_EQ(settings.lstTimeZone.count(), 1U);
    EXPECT_EQ(settings.MSHFlexOrganization.cell(0, 1), "Tarn Watch");
    EXPECT_TRUE(settings.optVOXTrip.on());
    EXPECT_TRUE(settings.frameActivity.visible());

    FrmPreferencesSamples& samples = screens_.frmPreferencesSamples;
    samples.txtGearDeploymentComments.set_text("anchored");
    reset(samples);
    EXPECT_EQ(samples.txtGearDeploymentComments.text(), "anchored");
}

}  // namespace
}  // namespace brooklander
