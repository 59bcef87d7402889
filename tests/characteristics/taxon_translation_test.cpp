#include "characteristics/taxon_translation.h"

#include <gtest/gtest.h>

#include "support/failure_of.h"
#include "support/test_program.h"

namespace brooklander {
namespace {

class TaxonTranslation : public testing::Test {
  protected:
    TaxonTranslation() {
        program_.start_screen().txtOracleID.set_text(" pike ");
        program_.start_screen().txtOraclePassWord.set_text(" reed bed ");
        taxa_.MSFlexChar.add_row("CHARA");
        taxa_.MSFlexChar.add_row("baetis");
        taxa_.show();
    }

    test::TestProgram program_;
    test::WatchedDatabase& database_ = program_.database;
    FrmSubjectTaxon& taxa_ = program_.screens().frmSubjectTaxon;
};

TEST_F(TaxonTranslation, ASearchGoesToTheDatabaseWithoutBlanksAroundTheUser) {
    taxa_.MSFlexChar.click_cell({1, 0});
    taxa_.txtCharacteristic.set_text(" pH ");
    taxa_.cmdDisplay.press();
    ASSERT_EQ(database_.queries.size(), 1U);
    EXPECT_EQ(database_.queries.front().connection, "DSN=keldar");
    EXPECT_EQ(database_.queries.front().user, "pike");
    EXPECT_EQ(database_.queries.front().password, "reed bed");
    EXPECT_TRUE(taxa_.frameMatch.visible());
}

TEST_F(TaxonTranslation, ANameThatTheFirstRowNamesExactlyIsOfferedAndThenFails) {
    database_.answer = {{"search_name", "display_name", "d_scr_type_cd"},
                        {{"CHARA", "CHARA", "TAXA"}, {"CHARA VULGARIS", "Chara vulgaris", "TAXA"}}};
    taxa_.MSFlexChar.click_cell({0, 0});
    taxa_.frameMatch.show();
    taxa_.frameTranslate.show();
    EXPECT_EQ(test::failure_of([&] { taxa_.cmdDisplay.press(); }),
              "The taxon cannot be translated by itself: there is no list of names.");
    EXPECT_EQ(taxa_.lblChange.text(), "CHARA");
    EXPECT_TRUE(taxa_.frameAutoTranslate.visible());
    EXPECT_FALSE(taxa_.frameMatch.visible());
    EXPECT_FALSE(taxa_.frameTranslate.visible());
    EXPECT_EQ(taxa_.MSFlexChar.cell(0, 1), "");
}

TEST_F(TaxonTranslation, ANameInOtherLettersIsLeftToTheUser) {
    database_.answer = {{"search_name", "display_name", "d_scr_type_cd"},
                        {{"BAETIS", "BAETIS", "TAXA"}}};
    taxa_.MSFlexChar.click_cell({1, 0});
    EXPECT_EQ(test::failure_of([&] { taxa_.cmdDisplay.press(); }), "nothing failed");
    EXPECT_TRUE(taxa_.frameMatch.visible());
    EXPECT_FALSE(taxa_.frameAutoTranslate.visible());
}

}  // namespace
}  // namespace brooklander
