#include <gtest/gtest.h>

#include <string>

#include "characteristics/defaults_file.h"
#include "support/test_program.h"

namespace brooklander {
namespace {

// Up to the table, under a configuration whose characteristics are this text.
class LongFiles : public testing::Test {
  protected:
    void use_configuration(std::string_view values, std::string_view characteristics) {
        program_.folder.write("brooklander/preferences/lake.txt", values);
        program_.folder.write("brooklander/characteristics/lake.txt", characteristics);
        program_.database.answer.columns = {"id"};
        program_.view("Station\tDate\tOxygen\r\nA\t1/2/2021\t1\r\n");
        program_.import_screen().cmdYes.press();
        manager_.optUseConfig.choose();
        test::TestProgram::select(manager_.filePreferences, "lake.txt");
        manager_.chkYes.turn_over();
        manager_.cmdConfirm.press();
    }

    int shown_by_details() {
        program_.import_screen().cmdDetails.press();
        return program_.screens().frmConfigurationDisplay.MSFlexCharacteristics.rows() - 1;
    }

    static std::string lines(int count) {
        std::string text;
        for (int line = 1; line <= count; ++line) text += "c" + std::to_string(line) + "\r\n";
        return text;
    }

    test::TestProgram program_;
    FrmPreferences& manager_ = program_.screens().frmPreferences;
};

TEST_F(LongFiles, AsManyLinesAsTheDisplayCountsAreShown) {
    use_configuration("", lines(most_shown_lines));
    EXPECT_EQ(shown_by_details(), 65001);
}

TEST_F(LongFiles, TheDisplayLeavesFurtherLinesOutAndTheManagerDoesNot) {
    use_configuration("", lines(most_shown_lines + 9));
    EXPECT_EQ(shown_by_details(), 65001);
    const Grid& displayed = program_.screens().frmConfigurationDisplay.MSFlexCharacteristics;
    EXPECT_EQ(displayed.cell(65001, 0), "c65001");
    EXPECT_EQ(manager_.MSFlexCharacteristics.rows() - 1, 65010);
    EXPECT_EQ(manager_.MSFlexCharacteristics.cell(65010, 0), "c65010");
}

TEST_F(LongFiles, AConfigurationOfTenMegabytesIsReadToItsEnd) {
    std::string values(10'000'000, 'x');
    for (std::size_t at = 99; at < values.size(); at += 100) values[at] = '\r';
    use_configuration(values + "medium             =Soil\r\n", "");
    EXPECT_EQ(manager_.lblMedium.text(), "Soil");
    EXPECT_EQ(program_.import_screen().lblMedium.text(), "Soil");
}

TEST_F(LongFiles, OneLineOfTenMegabytesIsOneCharacteristic) {
    use_configuration("medium             =Air", std::string(10'000'000, 'x'));
    EXPECT_EQ(manager_.MSFlexCharacteristics.rows(), 2);
    EXPECT_EQ(shown_by_details(), 1);
}

}  // namespace
}  // namespace brooklander
