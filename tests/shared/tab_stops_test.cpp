#include "shared/tab_stops.h"

#include <gtest/gtest.h>

#include "characteristics/defaults_layout.h"

namespace brooklander {
namespace {

TEST(TabStops, AStopIsReachedWithBlanks) {
    TabStopWriter writer;
    writer.put("ab");
    writer.tab_to(6);
    writer.put("c");
    writer.end_line();
    EXPECT_EQ(writer.text(), "ab   c\r\n");
}

TEST(TabStops, AValueAsWideAsItsColumnMeetsTheNextOne) {
    TabStopWriter writer;
    writer.put("abcde");
    writer.tab_to(6);
    writer.put("f");
    EXPECT_EQ(writer.text(), "abcdef");
}

TEST(TabStops, AStopThatHasBeenPassedGoesOnBelow) {
    TabStopWriter writer;
    writer.put("abcdef");
    writer.tab_to(6);
    writer.put("g");
    writer.tab_to(9);
    writer.put("h");
    EXPECT_EQ(writer.text(), "abcdef\r\n     g  h");
}

TEST(TabStops, StopsCountFromTheStartOfTheirOwnLine) {
    TabStopWriter writer;
    writer.put("a");
    writer.end_line();
    writer.tab_to(3);
    writer.put("b");
    EXPECT_EQ(writer.text(), "a\r\n  b");
}

std::string line_of(const std::array<std::string_view, defaults_fields.size()>& values) {
    TabStopWriter writer;
    for (std::size_t field = 0; field < values.size(); ++field) {
        writer.tab_to(defaults_fields.at(field).stop);
        writer.put(values.at(field));
    }
    return writer.text();
}

TEST(DefaultsLine, EveryValueThatFitsItsCutComesBackFromAConversion) {
    const std::string line =
        line_of({"Phosphorus as P", "SRC", "4500-P-E", "mg/l", "Dissolved", "Actual", "Mean", "Dry",
                 "20 Deg C", "24 Hours", "LAB1", "0.01", "mg/l"});
    EXPECT_EQ(conversion_value(line, 0), "Phosphorus as P");
    EXPECT_EQ(conversion_value(line, 1), "SRC");
    EXPECT_EQ(conversion_value(line, 2), "4500-P-E");
    EXPECT_EQ(conversion_value(line, 3), "mg/l");
    EXPECT_EQ(conversion_value(line, 4), "Dissolved");
    EXPECT_EQ(conversion_value(line, 5), "Actual");
    EXPECT_EQ(conversion_value(line, 6), "Mean");
    EXPECT_EQ(conversion_value(line, 7), "Dry");
    EXPECT_EQ(conversion_value(line, 8), "20 Deg C");
    EXPECT_EQ(conversion_value(line, 9), "24 Hours");
    EXPECT_EQ(conversion_value(line, 10), "LAB1");
    EXPECT_EQ(conversion_value(line, 11), "0.01");
    EXPECT_EQ(conversion_value(line, 12), "mg/l");
}

TEST(DefaultsLine, ASourceOfFullWidthLeaksIntoTheProcedure) {
    const std::string line =
        line_of({"Name", "SOURCE-OF-14-B", "PROC", "", "", "", "", "", "", "", "", "", ""});
    EXPECT_EQ(conversion_value(line, 1), "SOURCE-OF-14-B");
    EXPECT_EQ(conversion_value(line, 2), "-BPROC");
    EXPECT_EQ(defaults_fields[1].for_display.of(line), "SOURCE-OF-1");
}

TEST(DefaultsLine, AProcedureOfFullWidthLosesItsLastTwoInAConversionAndOneOnTheScreen) {
    const std::string line =
        line_of({"Name", "SRC", "123456789012345678", "mg/l", "", "", "", "", "", "", "", "", ""});
    EXPECT_EQ(conversion_value(line, 2), "1234567890123456");
    EXPECT_EQ(trim(defaults_fields[2].for_display.of(line)), "12345678901234567");
}

TEST(DefaultsLine, AConversionKeepsMoreOfDurationAndUnitThanTheScreen) {
    const std::string line =
        line_of({"N", "", "", "", "", "", "", "", "", "0123456789", "L", "", "ABCDEFGHIJKL"});
    EXPECT_EQ(conversion_value(line, 9), "0123456789");
    EXPECT_EQ(defaults_fields[9].for_display.of(line), "012345678");
    EXPECT_EQ(conversion_value(line, 12), "ABCDEFGHIJKL");
    EXPECT_EQ(defaults_fields[12].for_display.of(line), "ABCDEFGHIJ");
}

TEST(DefaultsLine, AShortLineHasEmptyFields) {
    EXPECT_EQ(conversion_value("pH", 0), "pH");
    EXPECT_EQ(conversion_value("pH", 1), "");
    EXPECT_EQ(conversion_value("pH", 12), "");
}

}  // namespace
}  // namespace brooklander
