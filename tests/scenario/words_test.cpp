#include "scenario/words.h"

#include <gtest/gtest.h>

#include "scenario/scenario_error.h"
#include "scenario/user_words.h"

namespace brooklander::scenario {
namespace {

using Words = std::vector<std::string>;

Words cut(std::string_view line) { return words_of(line, {{"FILE", "a b"}, {"N", "\xE9"}}); }

TEST(ScenarioWords, BlanksPartWords) {
    EXPECT_EQ(cut("  click   frmStart.cmdView \t"), (Words{"click", "frmStart.cmdView"}));
    EXPECT_EQ(cut(""), Words{});
    EXPECT_EQ(cut("   "), Words{});
}

TEST(ScenarioWords, ANumberSignInFirstPlaceMakesALineARemark) {
    EXPECT_EQ(cut("# click \"x"), Words{});
    EXPECT_EQ(cut("   # x"), Words{});
    EXPECT_EQ(cut("a #b"), (Words{"a", "#b"}));
}

TEST(ScenarioWords, AQuotedWordMayHoldBlanksAndEscapes) {
    EXPECT_EQ(cut(R"("a b" "" "\"\\\t\r\n\x41\xe9\$")"), (Words{"a b", "", "\"\\\t\r\nA\xE9$"}));
}

TEST(ScenarioWords, OutsideQuotesABackslashIsOrdinary) {
    EXPECT_EQ(cut(R"(c:\brooklander\new)"), (Words{R"(c:\brooklander\new)"}));
}

TEST(ScenarioWords, VariablesAreAPartOfAWordWhateverTheyHold) {
    EXPECT_EQ(cut("x${FILE}y \"${FILE} z\" ${N}"), (Words{"xa by", "a b z", "\xE9"}));
    EXPECT_EQ(cut("a$b $ \"\\${FILE}\""), (Words{"a$b", "$", "${FILE}"}));
}

TEST(ScenarioWords, TextsAreCarriedIntoTheCodePage) {
    EXPECT_EQ(cut("\xC3\xA9t\xC3\xA9"), (Words{"\xE9t\xE9"}));
    EXPECT_THROW(cut("\xC5\x81"), WrongLine);
    EXPECT_THROW(cut("\xE9"), WrongLine);
}

TEST(ScenarioWords, WhatIsNoWordIsToldWithItsReason) {
    for (const std::string_view line : {"\"a", "\"a\\", "\"a\\q\"", "\"\\x4\"", "\"\\xg1\"", "a\"b",
                                        "\"a\"b", "${NONE}", "${FILE", "\"${FILE\""}) {
        EXPECT_THROW(cut(line), WrongLine) << line;
    }
}

TEST(ScenarioWords, AMessageShowsWhatDoesNotPrint) {
    EXPECT_EQ(in_quotes("a\"\\\t\r\n\x01\xE9"), "\"a\\\"\\\\\\t\\r\\n\\x01\xC3\xA9\"");
}

TEST(ScenarioKeys, NamedKeysStandInBraces) {
    using enum Key::Name;
    EXPECT_EQ(keys_in("a{Enter}{Delete}{Backspace}{Up}{Down}{Left}{Right}{Tab}{Escape}{Space}"),
              (std::vector<Key>{Key::of('a'),
                                {enter},
                                {erase},
                                {backspace},
                                {up},
                                {down},
                                {left},
                                {right},
                                {tab},
                                {escape},
                                Key::of(' ')}));
    EXPECT_THROW(keys_in("{enter}"), WrongLine);
    EXPECT_THROW(keys_in("{"), WrongLine);
    EXPECT_THROW(keys_in("a\tb"), WrongLine);
}

}  // namespace
}  // namespace brooklander::scenario
