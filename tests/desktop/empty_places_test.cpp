// Where nothing stands as yet, a sentence says what to do.

#include <gtest/gtest.h>

#include <QLabel>
#include <algorithm>

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

    bool says(QLatin1String beginning) {
        const QList<QLabel*> labels = windows.foremost()->findChildren<QLabel*>();
        return std::any_of(labels.begin(), labels.end(), [beginning](const QLabel* label) {
            return label->isVisible() && label->text().startsWith(beginning);
        });
    }
};

TEST(EmptyPlaces, TheStartScreenSaysWhereToBegin) {
    const QLatin1String sentence("Open the Files menu");
    EXPECT_FALSE(Drawn("start 1 logon").says(sentence));
    EXPECT_TRUE(Drawn("start 4 logged on").says(sentence));
    EXPECT_FALSE(Drawn("start 5 exit and about").says(sentence));
    EXPECT_FALSE(Drawn("start 6 files").says(sentence));
}

TEST(EmptyPlaces, TheSearchForANameSaysThatANameIsToBeSelected) {
    const QLatin1String sentence("Select a name in the list");
    EXPECT_TRUE(Drawn("taxon 2 names").says(sentence));
    EXPECT_FALSE(Drawn("taxon 4 accept").says(sentence));
}

}  // namespace
}  // namespace brooklander::desktop
