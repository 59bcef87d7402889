#include "scenario/user_words.h"

#include <gtest/gtest.h>

#include "scenario/scenario_error.h"

namespace brooklander::scenario {
namespace {

TEST(KeyWords, AreReadAsTheyAreWritten) {
    EXPECT_EQ(key_word({Key::Name::down}, 3), "{Down 3}");
    EXPECT_EQ(key_word({Key::Name::enter}, 1), "{Enter}");
    EXPECT_EQ(key_word(Key::of('{'), 1), "{{}");
    EXPECT_EQ(key_word(Key::of(' '), 1), " ");
    EXPECT_EQ(keys_in("{Down 3}").size(), 3U);
    EXPECT_EQ(keys_in("{{}"), std::vector<Key>{Key::of('{')});
}

TEST(KeyWords, OfUnknownKeysAndTimesAreNoCommands) {
    for (const char* const word :
         {"{Nowhere}", "{Down", "{", "{}", "{Down }", "{Down x}", "{Down -1}", "{Down 1000001}"}) {
        EXPECT_THROW(keys_in(word), WrongLine) << word;
    }
    EXPECT_THROW(keys_in("{Down 600000}{Down 600000}"), WrongLine);
}

}  // namespace
}  // namespace brooklander::scenario
