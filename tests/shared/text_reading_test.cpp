#include "shared/text_reading.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace brooklander {
namespace {

using Texts = std::vector<std::string>;

template <typename Reader>
Texts all_of(std::string_view text) {
    Texts all;
    for (Reader reader(text); !reader.at_end();) all.emplace_back(reader.next());
    return all;
}

Texts lines(std::string_view text) { return all_of<LineReader>(text); }
Texts items(std::string_view text) { return all_of<CommaItemReader>(text); }

TEST(LineReader, ALineEndsAtACarriageReturnWithOrWithoutALineFeed) {
    EXPECT_EQ(lines("a\r\nb\rc\r\n"), (Texts{"a", "b", "c"}));
}

TEST(LineReader, ALineFeedAloneIsText) { EXPECT_EQ(lines("a\nb\r\n"), (Texts{"a\nb"})); }

TEST(LineReader, TheLastLineNeedsNoEnd) { EXPECT_EQ(lines("a\r\nb"), (Texts{"a", "b"})); }

TEST(LineReader, EmptyLinesAreLines) {
    EXPECT_EQ(lines("\r\n\r\na\r\n\r\n"), (Texts{"", "", "a", ""}));
    EXPECT_EQ(lines("\r\r"), (Texts{"", ""}));
}

TEST(LineReader, AnEmptyTextHasNoLine) { EXPECT_EQ(lines(""), Texts{}); }

TEST(CommaItems, EndAtACommaAndAtALineEnd) {
    EXPECT_EQ(items("a,b\r\nc\rd"), (Texts{"a", "b", "c", "d"}));
}

TEST(CommaItems, LoseLeadingBlanksAndKeepTrailingOnes) {
    EXPECT_EQ(items("  a b , c  \r\n"), (Texts{"a b ", "c  "}));
}

TEST(CommaItems, AQuoteInFirstPlaceRunsToTheNextQuote) {
    EXPECT_EQ(items("\"a,b\",c"), (Texts{"a,b", "c"}));
    EXPECT_EQ(items("  \"a\r\nb\"\r\nc"), (Texts{"a\r\nb", "c"}));
}

TEST(CommaItems, WhatStandsBehindAClosingQuoteIsPassedOver) {
    EXPECT_EQ(items("\"a\" and more,b\r\n\"c\"x\r\nd"), (Texts{"a", "b", "c", "d"}));
}

TEST(CommaItems, AQuoteThatDoesNotComeFirstIsText) {
    EXPECT_EQ(items("a\"b,c\""), (Texts{"a\"b", "c\""}));
}

TEST(CommaItems, AQuoteWithoutItsPartnerRunsToTheEnd) {
    EXPECT_EQ(items("\"a,b\r\nc"), (Texts{"a,b\r\nc"}));
}

TEST(CommaItems, AnEmptyLineAndACommaAtALinesEndGiveAnEmptyItem) {
    EXPECT_EQ(items("a\r\n\r\nb\r\n"), (Texts{"a", "", "b"}));
    EXPECT_EQ(items("a,\r\nb"), (Texts{"a", "", "b"}));
    EXPECT_EQ(items("a,"), (Texts{"a", ""}));
    EXPECT_EQ(items(",,"), (Texts{"", "", ""}));
}

TEST(CommaItems, ALineFeedAloneIsText) { EXPECT_EQ(items("a\nb,c"), (Texts{"a\nb", "c"})); }

TEST(CommaItems, AnEmptyTextHasNoItem) { EXPECT_EQ(items(""), Texts{}); }

TEST(Cut, TakesBytesFromAPositionAsTheyStand) {
    EXPECT_EQ((Cut{3, 2}.of("abcdef")), "cd");
    EXPECT_EQ((Cut{3, 9}.of("ab   ")), "   ");
    EXPECT_EQ((Cut{6, 2}.of("abc")), "");
}

}  // namespace
}  // namespace brooklander
