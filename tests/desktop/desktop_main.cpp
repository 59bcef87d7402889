// Tests of windows run without a display, in an application of their own.

#include <gtest/gtest.h>

#include "platform/desktop/application.h"
#include "platform/desktop/warnings.h"

int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    qputenv("QT_QPA_PLATFORM", "offscreen");
    brooklander::desktop::collect_warnings();
    const auto application = brooklander::desktop::make_application(argc, argv);
    return RUN_ALL_TESTS();
}
