#include <gtest/gtest.h>

#include "desktop/drawn_program.h"
#include "soak/soak.h"

namespace brooklander::test {
namespace {

TEST(Soak, FilesInOneRunWithWindows) {
    constexpr int files = 100;
    constexpr long most_growth = 4096;
    DrawnProgram program;
    Soak road(program, [&](const std::function<void()>& step) { program.act(step); });
    soak(road, files, most_growth);
    EXPECT_EQ(program.failure, "");
}

}  // namespace
}  // namespace brooklander::test
