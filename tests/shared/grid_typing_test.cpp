#include "shared/grid_typing.h"

#include <gtest/gtest.h>

#include <vector>

#include "support/test_screen.h"

namespace brooklander {
namespace {

class GridTyping : public testing::Test {
  protected:
    GridTyping() { grid_.add_row("a\tb\tc"); }

    test::TestScreen test_;
    Grid& grid_ = test_.screen.MSFlexTest;
};

TEST_F(GridTyping, CharactersGoToTheEndAndBackspaceTakesThemOff) {
    grid_.make_current({0, 1});
    EXPECT_TRUE(type_into_current_cell(grid_, Key::of('\xE4')));
    EXPECT_TRUE(type_into_current_cell(grid_, Key::of(' ')));
    EXPECT_EQ(grid_.cell(0, 1), "b\xE4 ");
    EXPECT_TRUE(type_into_current_cell(grid_, {Key::Name::backspace}));
    EXPECT_EQ(grid_.cell(0, 1), "b\xE4");
    EXPECT_TRUE(type_into_current_cell(grid_, {Key::Name::erase}));
    EXPECT_EQ(grid_.cell(0, 1), "");
    EXPECT_TRUE(type_into_current_cell(grid_, {Key::Name::backspace}));
    EXPECT_EQ(grid_.cell(0, 1), "");
    EXPECT_EQ(grid_.cell(0, 0), "a");
}

TEST_F(GridTyping, OtherKeysTypeNothing) {
    for (const Key::Name name : {Key::Name::enter, Key::Name::up, Key::Name::down, Key::Name::left,
                                 Key::Name::right, Key::Name::tab, Key::Name::escape}) {
        EXPECT_FALSE(type_into_current_cell(grid_, {name}));
    }
    EXPECT_EQ(grid_.cell(0, 0), "a");
}

TEST_F(GridTyping, AGridWithoutRowsTakesNothing) {
    grid_.set_rows(0);
    EXPECT_TRUE(type_into_current_cell(grid_, Key::of('x')));
    EXPECT_EQ(grid_.cell(0, 0), "");
}

TEST_F(GridTyping, AnotherCurrentCellIsLeftAndEntered) {
    std::vector<GridCell> cells;
    grid_.on_leave = [&](GridCell cell) {
        EXPECT_EQ(grid_.current(), cell);
        cells.push_back(cell);
    };
    grid_.on_enter = [&](GridCell cell) {
        EXPECT_EQ(grid_.current(), cell);
        cells.push_back(cell);
    };
    grid_.make_current({0, 0});
    EXPECT_TRUE(cells.empty());
    grid_.click_cell({0, 2});
    grid_.press_key({Key::Name::left});
    EXPECT_EQ(cells, (std::vector<GridCell>{{0, 0}, {0, 2}, {0, 2}, {0, 1}}));
}

}  // namespace
}  // namespace brooklander
