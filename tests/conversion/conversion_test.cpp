#include <gtest/gtest.h>

#include <random>

#include "conversion/conversion_driver.h"
#include "support/failure_of.h"
#include "support/plain_conversion.h"
#include "support/test_program.h"

namespace brooklander {
namespace {

using test::TestProgram;

// A table of numbers with a heading: station, date, and `results` columns of results.
std::string small_table(int rows, int results) {
    std::string text = "Station\tDate";
    for (int column = 0; column < results; ++column) text += "\tC" + std::to_string(column);
    text += "\r\n";
    for (int row = 1; row <= rows; ++row) {
        text += "S" + std::to_string(row) + "\tD" + std::to_string(row);
        for (int column = 0; column < results; ++column) text += "\t" + std::to_string(row);
        text += "\r\n";
    }
    return text;
}

std::size_t count_of(const std::string& text, std::string_view part) {
    std::size_t count = 0;
    for (auto at = text.find(part); at != std::string::npos; at = text.find(part, at + 1)) ++count;
    return count;
}

// A defaults line with a name alone.
std::string defaults_line(const std::string& name) {
    return name + std::string(209 - name.size(), ' ') + "\r\n";
}

// Random tables under random assignments, columns given twice included: what a row is written with
// is what stood in its cells before any result was rewritten.
TEST(Conversion, AgreesWithThePlainOneOnEveryTable) {
    std::mt19937 random(5);
    const auto below = [&random](int bound) {
        return static_cast<int>(random() % static_cast<unsigned>(bound));
    };
    const std::vector<std::string> texts{
        "",    "",     " ",  "930", "0930",         " 93",
        "ND",  " nd ", "<1", "5>",  ">5",           "7.4",
        " x ", "a~b",  "<",  "1 2", "*Non-detect ", "a longer text than a block takes"};
    for (int round = 0; round < 300; ++round) {
        test::PlainInputs inputs;
        const int columns = FrmImportFileDisplay::table_columns;
        const int used = 3 + below(9);
        std::string file;
        const int rows = below(7);
        for (int row = 0; row < rows; ++row) {
            std::vector<std::string> cells(static_cast<std::size_t>(columns));
            for (int column = 0; column < used; ++column) {
                auto& cell = cells[static_cast<std::size_t>(column)];
                cell = texts[static_cast<std::size_t>(below(static_cast<int>(texts.size())))];
                file += (column == 0 ? "" : "\t") + cell;
            }
            file += "\r\n";
            inputs.table.push_back(cells);
        }
        const auto maybe = [&]() -> std::optional<int> {
            if (below(3) == 0) return std::nullopt;
            return below(used);
        };
        inputs.station = below(used);
        inputs.date = below(used);
        inputs.time = maybe();
        inputs.sample = maybe();
        inputs.depth = maybe();
        inputs.comments = maybe();
        inputs.person = maybe();
        inputs.first_result = below(used);
        inputs.first_row = below(4);
        inputs.filler = below(2) == 0 ? "" : "AB ";
        inputs.depth_unit = below(2) == 0 ? "" : " ft ";
        inputs.trip = below(2) == 0 ? "" : " T1 ";

        TestProgram program;
        program.view(file);
        program.go_to_columns();
        FrmImportFileDisplay& display = program.import_screen();
        const auto set = [](Label& label, std::optional<int> column) {
            label.set_text(column ? std::to_string(*column) : "");
        };
        set(display.lblStation, inputs.station);
        set(display.lblDate, inputs.date);
        set(display.lblTime, inputs.time);
        set(display.lblSample, inputs.sample);
        set(display.lblDepth, inputs.depth);
        set(display.lblComments, inputs.comments);
        set(display.lblPerson, inputs.person);
        set(display.lblColumn, inputs.first_result);
        set(display.lblRow, inputs.first_row);
        display.txtActivityID.set_text(inputs.filler);
        program.screens().frmPreferences.lblDepthUnits.set_text(inputs.depth_unit);
        program.screens().frmPreferences.lblTrip.set_text(inputs.trip);
        if (rows > 0) display.cmdFormatConfirm.press();

        const test::PlainResult expected = test::convert_plainly(inputs);
        ASSERT_EQ(program.output(), expected.output) << "round " << round;
        for (int row = 0; row < rows; ++row) {
            for (int column = 0; column < columns; ++column) {
                const auto& cells = expected.table[static_cast<std::size_t>(row)];
                ASSERT_EQ(program.table().cell(row, column),
                          cells[static_cast<std::size_t>(column)])
                    << "round " << round << " cell " << row << " " << column;
            }
        }
    }
}

class ConversionUnderAConfiguration : public testing::Test {
  protected:
    // To the columns, with station 0, date 1, results from 2 on, and a defaults file.
    void prepare(std::string_view table, std::string_view defaults) {
        program_.folder.write("brooklander/characteristics/lake.txt", defaults);
        program_.view(table);
        program_.screens().frmPreferences.lblSelectedFile.set_text("lake.txt");
        program_.go_to_columns(false);
        program_.assign_station_date_and_results();
    }

    TestProgram program_;
    FrmImportFileDisplay& import_ = program_.import_screen();
};

TEST_F(ConversionUnderAConfiguration, AFirstFailureRestartsThePassAndTheSecondIsFatal) {
    std::string defaults;
    for (int i = 0; i < 49; ++i) defaults += defaults_line("N" + std::to_string(i));
    prepare("Station\tDate\tA\tB\r\nS1\tD1\t1\t<2\r\nS2\tD2\t3\t4\r\n", defaults);
    EXPECT_THROW(program_.convert(1), FatalFailure);
    const std::string row_one =
        "~S1~~D1~~~-1~~~~~~~~~~~~~N0~~~~~~~~~~1~~~\r\n"
        "~S1~~D1~~~-1~~~~~~~~~~~~~N1~~~~~~~~~~*Non-detect~~~\r\n";
    EXPECT_EQ(program_.output(), row_one + row_one);
    EXPECT_EQ(program_.table().cell(1, 3), "*Non-detect");
    EXPECT_EQ(program_.table().cell(2, 3), "4");
}

TEST_F(ConversionUnderAConfiguration, ARestartedPassWritesWhatTheRowsHeldBeforeTheFirst) {
    // Date and comments stand in columns that the pass rewrites; the disk is full once.
    program_.files.failing_writes = {2};
    std::string table = "Station\tDate\tA\r\n";
    for (int row = 1; row <= 30000; ++row) table += "S\t<" + std::to_string(row) + "\tnd\r\n";
    program_.folder.write("brooklander/characteristics/lake.txt",
                          defaults_line("N0") + defaults_line("N1"));
    program_.view(table);
    program_.screens().frmPreferences.lblSelectedFile.set_text("lake.txt");
    program_.go_to_columns(false);
    program_.assign(import_.cmdStation, 0);
    program_.assign(import_.cmdDate, 1);
    program_.assign(import_.cmdComments, 2);
    program_.assign(import_.cmdResults, 1);
    program_.convert(1);
    EXPECT_TRUE(import_.frameConverted.visible());

    const auto line = [](int row, const std::string& name) {
        return "~S~~<" + std::to_string(row) + "~~~-" + std::to_string(row) + "~nd~~~~~~~~~~~~" +
               name + "~~~~~~~~~~*Non-detect~~~\r\n";
    };
    std::string whole_pass;
    for (int row = 1; row <= 30000; ++row) whole_pass += line(row, "N0") + line(row, "N1");
    ASSERT_GT(whole_pass.size(), 3 * OutputFile::good_block);
    const std::string output = program_.output();
    ASSERT_GT(output.size(), whole_pass.size());
    const std::size_t from_first_pass = output.size() - whole_pass.size();
    EXPECT_GT(from_first_pass, OutputFile::good_block - 200);
    EXPECT_LE(from_first_pass, OutputFile::good_block);
    EXPECT_EQ(output.substr(from_first_pass - 2, 2), "\r\n");
    EXPECT_TRUE(output.substr(0, from_first_pass) == whole_pass.substr(0, from_first_pass));
    EXPECT_TRUE(output.substr(from_first_pass) == whole_pass);
}

TEST_F(ConversionUnderAConfiguration, ASecondFailureWhileWritingIsFatal) {
    program_.files.failing_writes = {1, 2};
    prepare(small_table(20000, 2), defaults_line("N0") + defaults_line("N1"));
    EXPECT_THROW(program_.convert(1), FatalFailure);
    EXPECT_FALSE(import_.frameConverted.visible());
    EXPECT_EQ(program_.output(), "");
}

TEST_F(ConversionUnderAConfiguration, AFailureWhileWritingLeavesWholeLinesBehindWhatTheFileHeld) {
    program_.files.failing_writes = {2, 3};
    prepare(small_table(30000, 2), defaults_line("N0") + defaults_line("N1"));
    program_.folder.write("brooklander/voxoutfiles/table.txt", "from before\r\n");
    EXPECT_THROW(program_.convert(1), FatalFailure);
    const std::string output = program_.output();
    EXPECT_GT(output.size(), OutputFile::good_block - 100);
    EXPECT_TRUE(output.starts_with("from before\r\n~S1~~D1~"));
    EXPECT_TRUE(output.ends_with("~~~\r\n"));
}

TEST_F(ConversionUnderAConfiguration, ADefaultsFileThatIsAFolderIsAsOneThatIsMissing) {
    std::filesystem::create_directories(program_.folder.path() /
                                        "brooklander/characteristics/lake.txt/x");
    program_.view(small_table(2, 2));
    program_.screens().frmPreferences.lblSelectedFile.set_text("lake.txt");
    program_.go_to_columns(false);
    program_.assign_station_date_and_results();
    program_.convert(1);
    EXPECT_EQ(program_.output(), "");
    EXPECT_TRUE(import_.frameConverted.visible());
}

class ConversionForTheModule : public testing::Test {
  protected:
    void prepare(std::string_view table) {
        program_.view(table);
        program_.go_to_columns();
        program_.assign_station_date_and_results();
    }

    TestProgram program_;
    FrmImportFileDisplay& import_ = program_.import_screen();
};

TEST_F(ConversionForTheModule, AFullDiskIsFatalAtOnceAndSaysSo) {
    prepare(small_table(3, 2));
    const auto output = program_.folder.path() / "brooklander/voxoutfiles/table.txt";
    std::filesystem::remove(output);
    std::filesystem::create_symlink("/dev/full", output);
    try {
        program_.convert(1);
        FAIL() << "the disk is full";
    } catch (const FatalFailure& failure) {
        EXPECT_EQ(std::string(failure.what()),
                  "\"c:\\brooklander\\voxoutfiles\\table.txt\" cannot be written: No space left on "
                  "device.");
    }
}

TEST_F(ConversionForTheModule, RowSixHundredAndFiftyThousandIsTheLastThatConverts) {
    std::string table(static_cast<std::size_t>(conversion_row_limit) - 2, '\r');
    table = "S\tD\tA\r" + table + "S9\tD9\t5\r";
    prepare(table);
    ASSERT_EQ(program_.table().rows(), conversion_row_limit);
    program_.convert(1);
    EXPECT_EQ(program_.output(), "~S9~~D9~~~-650000~~~~~~~~~~~~~A~~~~~~~~~~5~~~\r\n");
}

TEST_F(ConversionForTheModule, ADataRowBeyondTheLimitIsFatalBeforeAnythingIsWritten) {
    std::string table(static_cast<std::size_t>(conversion_row_limit) - 2, '\r');
    prepare("S\tD\tA\rS1\tD1\t4\r" + table + "S9\tD9\t5\r");
    ASSERT_EQ(program_.table().rows(), conversion_row_limit + 1);
    EXPECT_THROW(program_.convert(1), FatalFailure);
    EXPECT_EQ(program_.output(), "");
}

TEST_F(ConversionForTheModule, AResultBeyondTheLimitIsFatalWhereTheDataBeginsBehindIt) {
    std::string table(static_cast<std::size_t>(conversion_row_limit) - 2, '\r');
    prepare("S\tD\tA\rS1\tD1\t4\r" + table + "S9\tD9\t5\r");
    import_.lblRow.set_text(std::to_string(conversion_row_limit + 1));
    EXPECT_EQ(
        test::failure_of([&] { import_.cmdFormatConfirm.press(); }),
        "A table can be converted up to row " + std::to_string(conversion_row_limit) + " only.");
}

TEST_F(ConversionForTheModule, AColumnOutsideTheTableIsFatalBeforeAnythingIsWritten) {
    prepare(small_table(2, 2));
    import_.lblDate.set_text("50");
    EXPECT_THROW(program_.convert(1), FatalFailure);
    EXPECT_EQ(program_.output(), "");
}

TEST_F(ConversionForTheModule, ATableWithoutRowsGivesAnEmptyFile) {
    prepare("S\tD\tA\r\n");
    program_.table().set_rows(0);
    import_.cmdContinue.press();
    import_.cmdFormatConfirm.press();
    EXPECT_EQ(program_.output(), "");
    EXPECT_TRUE(import_.frameConverted.visible());
}

TEST_F(ConversionForTheModule, ManyBlocksOfOutputAreOneFile) {
    prepare(small_table(20000, 5));
    program_.convert(1);
    const std::string output = program_.output();
    EXPECT_GT(output.size(), 3 * OutputFile::good_block);
    EXPECT_EQ(count_of(output, "\r\n"), 100'000U);
    EXPECT_TRUE(output.starts_with("~S1~~D1~~~-1~~~~~~~~~~~~~C0~~~~~~~~~~1~~~\r\n~S1~"));
    EXPECT_TRUE(output.ends_with("~S20000~~D20000~~~-20000~~~~~~~~~~~~~C4~~~~~~~~~~20000~~~\r\n"));
}

TEST_F(ConversionForTheModule, AFieldOfTenMegabytesIsWrittenWhole) {
    const std::string station(10'000'000, 's');
    prepare("S\tD\tA\tB\r\n" + station + "\tD1\t1\t2\r\nS2\tD2\t3\t4\r\n");
    program_.convert(1);
    const auto line = [](const std::string& place, int row, int result) {
        return "~" + place + "~~D" + std::to_string(row) + "~~~-" + std::to_string(row) +
               "~~~~~~~~~~~~~" + (result % 2 == 1 ? "A" : "B") + "~~~~~~~~~~" +
               std::to_string(result) + "~~~\r\n";
    };
    EXPECT_TRUE(program_.output() ==
                line(station, 1, 1) + line(station, 1, 2) + line("S2", 2, 3) + line("S2", 2, 4));
}

}  // namespace
}  // namespace brooklander
