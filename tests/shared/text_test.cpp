#include "shared/text.h"

#include <gtest/gtest.h>

namespace brooklander {
namespace {

TEST(Text, TrimmingTakesBlanksAtBothEndsAndNothingElse) {
    EXPECT_EQ(trim("  a b  "), "a b");
    EXPECT_EQ(trim("\ta\r\n"), "\ta\r\n");
    EXPECT_EQ(trim("\xA0 a"), "\xA0 a");
    EXPECT_EQ(trim("   "), "");
    EXPECT_EQ(trim(""), "");
}

TEST(Text, PositionsCountFromOneAndShortTextsGiveWhatTheyHave) {
    EXPECT_EQ(middle("abcdef", 2, 3), "bcd");
    EXPECT_EQ(middle("abcdef", 5, 9), "ef");
    EXPECT_EQ(middle("abcdef", 7, 1), "");
    EXPECT_EQ(middle("", 1, 5), "");
    EXPECT_EQ(left("abc", 2), "ab");
    EXPECT_EQ(left("abc", 9), "abc");
}

TEST(Text, ACaptionThatIsNoPositionCountsAsZero) {
    EXPECT_EQ(position_in("12"), 12);
    EXPECT_EQ(position_in("0"), 0);
    EXPECT_EQ(position_in(""), 0);
    EXPECT_EQ(position_in("x"), 0);
    EXPECT_EQ(position_in("3x"), 0);
    EXPECT_EQ(position_in("-4"), 0);
    EXPECT_EQ(position_in("999999999"), 999999999);
    EXPECT_EQ(position_in("1000000000"), 0);
    EXPECT_EQ(position_in("99999999999999"), 0);
}

}  // namespace
}  // namespace brooklander
