#include <gtest/gtest.h>

#include "soak/soak.h"

namespace brooklander::test {
namespace {

TEST(Soak, TwoHundredFilesInOneRun) {
    constexpr int files = 200;
    constexpr long most_growth = 2048;  // KiB; tables that stayed would be about 6000 by then
    TestProgram program;
    Soak road(program, [](const std::function<void()>& step) { step(); });
    soak(road, files, most_growth);
}

}  // namespace
}  // namespace brooklander::test
