#include "characteristics/defaults_file.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>
#include <random>
#include <vector>

#include "characteristics/defaults_layout.h"
#include "platform/files/host_files.h"
#include "support/failure_of.h"
#include "support/temporary_folder.h"
#include "support/test_screen.h"

namespace brooklander {
namespace {

using testing::HasSubstr;

constexpr std::size_t columns = 13;
using Values = std::array<std::string, columns>;

class DefaultsFile : public testing::Test {
  protected:
    DefaultsFile() {
        details_.set_rows(1);
        std::filesystem::create_directories(folder_.path() / "brooklander");
    }

    void add(const Values& values) {
        details_.add_row({});
        for (std::size_t column = 0; column < columns; ++column) {
            details_.set_cell(details_.rows() - 1, static_cast<int>(column), values.at(column));
        }
    }

    static std::string line(std::string_view name, std::string_view rest = {}) {
        std::string text(name);
        text.resize(59, ' ');
        text += rest;
        text.resize(209, ' ');
        return text + "\r\n";
    }

    // The rows that the screens get from a file's text.
    std::vector<Values> shown(std::string_view text, int most = -1) {
        shown_.set_rows(1);
        add_defaults_rows(shown_, text, most);
        std::vector<Values> rows;
        for (int row = 1; row < shown_.rows(); ++row) {
            Values& values = rows.emplace_back();
            for (std::size_t column = 0; column < columns; ++column) {
                values.at(column) = shown_.cell(row, static_cast<int>(column));
            }
        }
        return rows;
    }

    std::string saved() const { return folder_.read("brooklander/characteristics/lake.txt"); }

    static constexpr std::string_view path = "c:\\brooklander\\characteristics\\lake.txt";

    test::TestScreen test_;
    test::TemporaryFolder& folder_ = test_.folder;
    HostFiles& files_ = test_.files;
    Grid details_{test_.screen, "details", {.columns = columns}};
    Grid shown_{test_.screen, "shown", {.columns = columns}};
};

TEST_F(DefaultsFile, ANameAloneIsFollowedByBlanksUpToTheLastStop) {
    add({"Oxygen"});
    EXPECT_EQ(defaults_text(details_), line("Oxygen"));
}

TEST_F(DefaultsFile, EveryValueBeginsAtItsStop) {
    add({"n", "s", "p", "u", "f", "v", "t", "w", "b", "d", "l", "i", "m"});
    const std::string text = defaults_text(details_);
    ASSERT_EQ(text.size(), 212U);
    EXPECT_EQ(text.find_first_not_of(" n"), 59U);
    for (const auto& [stop, letter] : std::vector<std::pair<std::size_t, char>>{{1, 'n'},
                                                                                {60, 's'},
                                                                                {74, 'p'},
                                                                                {92, 'u'},
                                                                                {102, 'f'},
                                                                                {112, 'v'},
                                                                                {127, 't'},
                                                                                {145, 'w'},
                                                                                {157, 'b'},
                                                                                {175, 'd'},
                                                                                {185, 'l'},
                                                                                {195, 'i'},
                                                                                {210, 'm'}}) {
        EXPECT_EQ(text.at(stop - 1), letter) << stop;
    }
}

TEST_F(DefaultsFile, TheHeadingsStayOutOfTheFile) {
    set_defaults_headings(details_);
    EXPECT_EQ(defaults_text(details_), "");
    add({"pH"});
    EXPECT_EQ(defaults_text(details_), line("pH"));
}

TEST_F(DefaultsFile, ValuesAreTrimmed) {
    add({"  pH ", "  SRC"});
    EXPECT_EQ(defaults_text(details_), line("pH", "SRC"));
}

TEST_F(DefaultsFile, ANameOfFullWidthMeetsTheSource) {
    const std::string name(59, 'x');
    add({name, "SRC"});
    EXPECT_EQ(defaults_text(details_), line(name, "SRC"));
    EXPECT_EQ(shown(defaults_text(details_)).at(0).at(0), name);
    EXPECT_EQ(shown(defaults_text(details_)).at(0).at(1), "SRC");
}

TEST_F(DefaultsFile, ANameThatIsTooWideBreaksItsRecordInTwo) {
    add({std::string(60, 'x'), "SRC"});
    const std::string text = defaults_text(details_);
    EXPECT_EQ(text, std::string(60, 'x') + "\r\n" + line("", "SRC"));
    const std::vector<Values> rows = shown(text);
    ASSERT_EQ(rows.size(), 2U);
    EXPECT_EQ(rows[0], (Values{std::string(59, 'x'), "x"}));
    EXPECT_EQ(rows[1], (Values{"", "SRC"}));
}

TEST_F(DefaultsFile, EveryValueThatIsTooWideBreaksItsRecordThere) {
    for (std::size_t field = 0; field + 1 < columns; ++field) {
        details_.set_rows(1);
        const std::size_t width = defaults_fields[field + 1].stop - defaults_fields[field].stop;
        Values values;
        values.at(field) = std::string(width, 'x');
        values.at(field + 1) = "next";
        add(values);
        EXPECT_EQ(shown(defaults_text(details_)).size(), 1U) << field;
        details_.set_cell(1, static_cast<int>(field), std::string(width + 1, 'x'));
        EXPECT_EQ(shown(defaults_text(details_)).size(), 2U) << field;
    }
}

TEST_F(DefaultsFile, TheLastValueMayBeOfAnyWidth) {
    Values values{"pH"};
    values.back() = std::string(500, 'u');
    add(values);
    EXPECT_EQ(defaults_text(details_).size(), 209U + 500U + 2U);
}

TEST_F(DefaultsFile, AThirteenByteSourceLeaksIntoTheProcedure) {
    add({"pH", "ABCDEFGHIJKLM", "P1"});
    const std::string text = defaults_text(details_);
    EXPECT_EQ(shown(text).at(0).at(1), "ABCDEFGHIJK");
    EXPECT_EQ(shown(text).at(0).at(2), "M P1");
    EXPECT_EQ(conversion_value(text, 1), "ABCDEFGHIJKLM");
    EXPECT_EQ(conversion_value(text, 2), "M P1");
}

// What is left of a value of each column when a screen has read it, and when a conversion has.
struct Kept {
    std::size_t shown;
    std::size_t converted;
};
constexpr std::array<Kept, columns> kept{{{59, 59},
                                          {11, 14},
                                          {17, 16},
                                          {9, 9},
                                          {9, 9},
                                          {14, 14},
                                          {17, 17},
                                          {11, 11},
                                          {17, 17},
                                          {9, 10},
                                          {9, 9},
                                          {14, 14},
                                          {10, 12}}};
constexpr std::array<std::size_t, columns> widths{59, 14, 18, 10, 10, 15, 18,
                                                  12, 18, 10, 10, 15, 40};

// What a reader has of a written value: its first bytes; of a procedure, behind what its source
// has in the two places before it.
std::string expected(const Values& written, std::size_t field, std::size_t bytes) {
    std::string text = written.at(field).substr(0, bytes);
    if (field == 2) {
        std::string source = written.at(1);
        source.resize(14, ' ');
        text.insert(0, source.substr(12));
    }
    return std::string(trim(text));
}

TEST_F(DefaultsFile, WhatIsWrittenIsReadAsFarAsEachCutReaches) {
    std::mt19937 random(5);
    const auto below = [&](std::size_t end) { return random() % end; };
    std::vector<Values> written(4000);
    for (Values& values : written) {
        for (std::size_t field = 0; field < columns; ++field) {
            std::string value(below(widths.at(field) + 1), ' ');
            for (char& byte : value) {
                do {
                    byte = static_cast<char>(below(256));
                } while (byte == '\t' || byte == '\r' || byte == '\n');
                if (below(4) == 0) byte = ' ';
            }
            values.at(field) = trim(value);
        }
        add(values);
    }
    const std::string text = defaults_text(details_);
    const std::vector<Values> rows = shown(text);
    ASSERT_EQ(rows.size(), written.size());
    LineReader lines(text);
    for (std::size_t row = 0; row < written.size(); ++row) {
        const std::string_view line = lines.next();
        for (std::size_t field = 0; field < columns; ++field) {
            ASSERT_EQ(rows[row].at(field), expected(written[row], field, kept.at(field).shown))
                << row << " " << field;
            ASSERT_EQ(conversion_value(line, field),
                      expected(written[row], field, kept.at(field).converted))
                << row << " " << field;
        }
    }
    EXPECT_TRUE(lines.at_end());
}

TEST_F(DefaultsFile, WhatAScreenHasReadOnceStaysAsItIs) {
    add({"Phosphorus", "ABCDEFGHIJK", "4500-P-E", "mg/l", "Total", "Actual", "Mean", "Dry",
         "20 Deg C", "24 Hours", "LAB", "0.1", "mg/l"});
    const std::string first = defaults_text(details_);
    const std::vector<Values> rows = shown(first);
    details_.set_rows(1);
    add(rows.at(0));
    EXPECT_EQ(defaults_text(details_), first);
}

TEST_F(DefaultsFile, ATabInALineDividesItsRow) {
    const std::vector<Values> rows = shown("Oxy\tgen\r\n");
    EXPECT_EQ(rows.at(0), (Values{"Oxy", "gen"}));
}

TEST_F(DefaultsFile, LinesOfAnyKindAreRowsEach) {
    EXPECT_EQ(shown("").size(), 0U);
    EXPECT_EQ(shown("pH").size(), 1U);
    EXPECT_EQ(shown("pH\r\n\r\nOxygen\r\n").size(), 3U);
    EXPECT_EQ(shown("pH\rOxygen\n\r\n").size(), 2U);
    EXPECT_EQ(shown(std::string(10'000, 'x')).at(0).at(0), std::string(59, 'x'));
}

TEST_F(DefaultsFile, LinesBeyondTheMostAreLeftOut) {
    EXPECT_EQ(shown("a\r\nb\r\nc\r\n", 2).size(), 2U);
    EXPECT_EQ(shown("a\r\nb\r\n", 2).size(), 2U);
}

TEST_F(DefaultsFile, HeadingsFixOneRowAndPutTheTextsToTheLeft) {
    set_defaults_headings(shown_);
    shown_.set_rows(1);
    set_defaults_headings(shown_);
    EXPECT_EQ(shown_.fixed_rows(), 1);
    EXPECT_EQ(shown_.cell(0, 0), "Name");
    EXPECT_EQ(shown_.cell(0, 12), "Detection Limit UOM");
    EXPECT_EQ(shown_.column_alignment(12), Alignment::left);
}

TEST_F(DefaultsFile, SavingMakesTheFolderAndReplacesTheFile) {
    add({"Oxygen"});
    write_defaults_file(details_, files_, path);
    EXPECT_EQ(saved(), line("Oxygen"));
    details_.set_cell(1, 0, "pH");
    write_defaults_file(details_, files_, path);
    EXPECT_EQ(saved(), line("pH"));
    EXPECT_EQ(details_.current(), (GridCell{1, 12}));
}

TEST_F(DefaultsFile, AFileThatCannotBeOpenedStaysAsItWasWithoutAWord) {
    folder_.write("brooklander/characteristics/lake.txt/in the way", "");
    add({"Oxygen"});
    write_defaults_file(details_, files_, path);
    EXPECT_TRUE(
        std::filesystem::is_directory(folder_.path() / "brooklander/characteristics/lake.txt"));
    write_defaults_file(details_, files_, "c:\\brooklander\\characteristics\\what?.txt");
    folder_.write("brooklander/old.txt", "old");
    write_defaults_file(details_, files_, "c:\\brooklander\\old.txt\\below");
    EXPECT_EQ(folder_.read("brooklander/old.txt"), "old");
}

TEST_F(DefaultsFile, AsManyCharacteristicsAsThereCanBeAreSaved) {
    for (int row = 0; row < most_characteristics; ++row) details_.add_row("x");
    write_defaults_file(details_, files_, path);
    EXPECT_EQ(saved().size(), std::size_t{211} * 6500);
}

TEST_F(DefaultsFile, OneCharacteristicTooManyIsAFailureThatTouchesNothing) {
    folder_.write("brooklander/characteristics/lake.txt", "old");
    for (int row = 0; row <= most_characteristics; ++row) details_.add_row("x");
    EXPECT_THAT(test::failure_of([&] { write_defaults_file(details_, files_, path); }),
                HasSubstr("6500"));
    EXPECT_EQ(saved(), "old");
}

}  // namespace
}  // namespace brooklander
