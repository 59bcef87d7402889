// Where nothing stands as yet, a sentence says what to do.

#include <gtest/gtest.h>

#include "desktop/window_states.h"

namespace brooklander::desktop {
namespace {

using test::DrawnProgram;

struct Drawn : DrawnProgram {
    explicit Drawn(const std::string& road) {
        act([this] { program.start(); });
        test::roads().at(road)(*this);
        rest();
    }
};

TEST(EmptyPlaces, TheStartScreenSaysWhereToBegin) {
    const char* const sentence =
        "Open the Files menu to convert files or to set up configurations.";
    EXPECT_FALSE(Drawn("start 1 logon").says(sentence));
    EXPECT_TRUE(Drawn("start 4 logged on").says(sentence));
    EXPECT_FALSE(Drawn("start 5 exit and about").says(sentence));
    EXPECT_FALSE(Drawn("start 6 files").says(sentence));
}

TEST(EmptyPlaces, TheSearchForANameSaysThatANameIsToBeSelected) {
    const char* const sentence = "Select a name in the list to search for it.";
    EXPECT_TRUE(Drawn("taxon 2 names").says(sentence));
    EXPECT_FALSE(Drawn("taxon 4 accept").says(sentence));
}

}  // namespace
}  // namespace brooklander::desktop
