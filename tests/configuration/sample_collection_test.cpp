#include "configuration/sample_collection.h"

#include <gtest/gtest.h>

#include "support/test_program.h"

namespace brooklander {
namespace {

class SampleCollection : public testing::Test {
  protected:
    SampleCollection() { samples_.show(); }

    test::TestProgram program_;
    Screens& screens_ = program_.screens();
    FrmPreferencesSamples& samples_ = screens_.frmPreferencesSamples;
    FrmPreferencesSampleOption& options_ = screens_.frmPreferencesSampleOption;
};

TEST_F(SampleCollection, ContinueStaysWhenTheNextScreensListsFail) {
    program_.database.refuses = true;
    EXPECT_THROW(samples_.cmdContinue.press(), FatalFailure);
    EXPECT_TRUE(samples_.visible());
    EXPECT_FALSE(options_.visible());
}

TEST_F(SampleCollection, KeepHasGoneOnWhenTheNextScreensListsFail) {
    program_.database.refuses = true;
    EXPECT_THROW(samples_.cmdKeep.press(), FatalFailure);
    EXPECT_FALSE(samples_.visible());
    EXPECT_TRUE(options_.visible());
}

TEST_F(SampleCollection, AProcedureShowsTheFieldsOfItsDisplayAgain) {
    for (Label* const label : {&samples_.lblSampleCollectionProcedureID, &samples_.lblGearCaption,
                               &samples_.lblFieldGearID, &samples_.lblFieldGearIDSelected,
                               &samples_.lblGearConfiguration}) {
        label->hide();
    }
    program_.database.answer.columns = {"id_code"};
    samples_.MSHFlexSampleCollection.add_row("GRAB\tBy hand");
    samples_.MSHFlexSampleCollection.click_cell({0, 0});
    EXPECT_TRUE(samples_.lblSampleCollectionProcedureID.seen() && samples_.lblGearCaption.seen() &&
                samples_.lblFieldGearID.seen() && samples_.lblFieldGearIDSelected.seen() &&
                samples_.lblGearConfiguration.seen());
}

}  // namespace
}  // namespace brooklander
