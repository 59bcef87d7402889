#include "conversion/result_value.h"

#include <gtest/gtest.h>

namespace brooklander {
namespace {

TEST(ResultValue, MarksOfANonDetectBecomeOneWord) {
    for (const std::string_view cell :
         {"ND", "nd", " nd ", "<0.5", "0.5<", "<", "<>", " *Non-detect ", "*Non-detect", "< 1 "}) {
        EXPECT_EQ(result_value(cell).cell, "*Non-detect") << cell;
        EXPECT_EQ(result_value(cell).written, "*Non-detect") << cell;
    }
}

TEST(ResultValue, AMarkOfPresenceCountsAtTheEndAlone) {
    for (const std::string_view cell : {"5>", ">", " *Present >QL", " 5>"}) {
        EXPECT_EQ(result_value(cell).cell, "*Present >QL") << cell;
    }
    EXPECT_EQ(result_value(">5").cell, ">5");
    EXPECT_EQ(result_value("5> ").cell, "5> ");
}

TEST(ResultValue, EverythingElseStaysAndIsWrittenTrimmed) {
    for (const std::string_view cell : {"Nd", "nD", " <5 ", "7.4", "  7.4 ", "*non-detect", "5<5",
                                        "N D", "NDx", "*Present >QL!"}) {
        EXPECT_EQ(result_value(cell).cell.data(), cell.data()) << cell;
        EXPECT_EQ(result_value(cell).written, trim(cell)) << cell;
    }
}

TEST(ResultValue, BlanksAreNoResult) {
    EXPECT_EQ(result_value("").written, "");
    EXPECT_EQ(result_value("   ").written, "");
    EXPECT_EQ(result_value("   ").cell, "   ");
    EXPECT_EQ(result_value("\n").written, "\n");
}

}  // namespace
}  // namespace brooklander
