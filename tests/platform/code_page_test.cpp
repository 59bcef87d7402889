#include "platform/code_page.h"

#include <gtest/gtest.h>

namespace brooklander {
namespace {

TEST(CodePage, EveryByteSurvivesTheWayToUtf8AndBack) {
    std::string all;
    for (int byte = 0; byte < 256; ++byte) all += static_cast<char>(byte);
    EXPECT_EQ(from_utf8(to_utf8(all)), all);
}

TEST(CodePage, LettersAndMarksAreThoseOfWindows) {
    EXPECT_EQ(to_utf8("\xE9\xB5\x80\x96"), "é\u00B5€–");
    EXPECT_EQ(from_utf8("Montréal – 5 µg"),
              "Montr\xE9"
              "al \x96 5 \xB5g");
}

TEST(CodePage, WhatItLacksAndWhatIsNoUtf8IsRefused) {
    EXPECT_EQ(from_utf8("Ł"), std::nullopt);
    EXPECT_EQ(from_utf8("\xF0\x9F\x90\x9F"), std::nullopt);
    EXPECT_EQ(from_utf8("\xE9"), std::nullopt);
    EXPECT_EQ(from_utf8("\xC0\x80"), std::nullopt);
    EXPECT_EQ(from_utf8("\xE0\x81\x81"), std::nullopt);
    EXPECT_EQ(from_utf8("a\xC3"), std::nullopt);
    EXPECT_EQ(from_utf8("\x80"), std::nullopt);
}

TEST(CodePage, CapitalsCoverTheCodePagesLetters) {
    EXPECT_EQ(upper("abcz \xE0\xFE\xFF\x9A\x9C\x9E"), "ABCZ \xC0\xDE\x9F\x8A\x8C\x8E");
    EXPECT_EQ(upper("\xF7\xD7\xDF\xB5\x83"
                    "1~"),
              "\xF7\xD7\xDF\xB5\x83"
              "1~");
    EXPECT_TRUE(same_but_for_case("\xC9t\xE9.TXT", "\xE9T\xC9.txt"));
    EXPECT_FALSE(same_but_for_case("a", "ab"));
}

}  // namespace
}  // namespace brooklander
