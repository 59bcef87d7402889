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

TEST(CodePage, TextsOfUnknownMakeAreTakenForUtf8WhereTheyAreThat) {
    EXPECT_EQ(from_utf8_or_bytes("Gr\xC3\xBCn \xE2\x82\xAC"), "Gr\xFCn \x80");
    EXPECT_EQ(from_utf8_or_bytes("Gr\xFCn"), "Gr\xFCn");
    EXPECT_EQ(from_utf8_or_bytes(""), "");
}

TEST(CodePage, CharactersThatItLacksBecomeQuestionMarks) {
    EXPECT_EQ(from_utf8_or_bytes("\xC5\x82\xC3\xA9\xF0\x9F\x90\x9F!"), "?\xE9?!");
}

TEST(CodePage, Utf8IsWellFormedOrNoUtf8) {
    EXPECT_TRUE(is_utf8("plain"));
    EXPECT_TRUE(is_utf8("\xC2\x80\xE0\xA0\x80\xF0\x90\x80\x80\xF4\x8F\xBF\xBF"));
    for (const char* text :
         {"\x80", "\xC3", "\xC1\x81", "\xE0\x80\x80", "\xED\xA0\x80", "\xF0\x9F\x90",
          "\xF0\x80\x80\x80", "\xF4\x90\x80\x80", "\xF5\x80\x80\x80", "\xC3\x41"}) {
        EXPECT_FALSE(is_utf8(text)) << text;
        EXPECT_EQ(from_utf8_or_bytes(text), text);
    }
}

}  // namespace
}  // namespace brooklander
