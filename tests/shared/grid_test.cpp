#include "shared/grid.h"

#include <gtest/gtest.h>

#include "platform/fatal_failure.h"
#include "support/test_screen.h"

namespace brooklander {
namespace {

class GridRules : public testing::Test {
  protected:
    GridRules() {
        grid_.add_row("a\tb\tc");
        grid_.add_row("d\te\tf");
    }

    test::TestScreen test_;
    Grid& grid_ = test_.screen.MSFlexTest;
    int runs_ = 0;
};

TEST_F(GridRules, AClickMakesTheCellCurrentAndRunsTheHandler) {
    grid_.on_click = [this] {
        ++runs_;
        EXPECT_EQ(grid_.current_text(), "f");
    };
    grid_.click_cell({1, 2});
    EXPECT_EQ(grid_.current(), (GridCell{1, 2}));
    EXPECT_EQ(runs_, 1);
    EXPECT_TRUE(grid_.focused());
}

TEST_F(GridRules, AClickInAFixedRowDoesNothing) {
    grid_.set_fixed_rows(1);
    grid_.make_current({1, 1});
    grid_.on_click = [this] { ++runs_; };
    grid_.click_cell({0, 2});
    EXPECT_EQ(grid_.current(), (GridCell{1, 1}));
    EXPECT_EQ(runs_, 0);
}

TEST_F(GridRules, ACellOutsideReadsEmptyAndCannotBecomeCurrent) {
    EXPECT_EQ(grid_.cell(5, 0), "");
    EXPECT_THROW(grid_.make_current({2, 0}), FatalFailure);
    EXPECT_THROW(grid_.make_current({0, 3}), FatalFailure);
    EXPECT_EQ(grid_.current(), (GridCell{0, 0}));
}

TEST_F(GridRules, ClearingKeepsRowsColumnsAndTheCurrentCell) {
    grid_.make_current({1, 1});
    grid_.clear();
    EXPECT_EQ(grid_.rows(), 2);
    EXPECT_EQ(grid_.columns(), 3);
    EXPECT_EQ(grid_.current(), (GridCell{1, 1}));
    EXPECT_EQ(grid_.current_text(), "");
}

TEST_F(GridRules, AHeightGoesWithItsRow) {
    grid_.set_row_height(0, 1);
    EXPECT_EQ(grid_.row_height(0), 1);
    EXPECT_EQ(grid_.row_height(1), Grid::standard_height);
    grid_.set_rows(0);
    grid_.set_rows(2);
    EXPECT_EQ(grid_.row_height(0), Grid::standard_height);
    grid_.set_row_height(7, 1);
    grid_.set_rows(9);
    EXPECT_EQ(grid_.row_height(7), Grid::standard_height);
}

TEST_F(GridRules, AWidthStaysWithItsColumn) {
    grid_.set_column_widths({1800, 500});
    grid_.set_rows(0);
    EXPECT_EQ(grid_.column_width(0), 1800);
    EXPECT_EQ(grid_.column_width(1), 500);
    EXPECT_EQ(grid_.column_width(2), Grid::standard_width);
}

TEST_F(GridRules, TheCurrentCellStaysInsideAGridThatShrinks) {
    grid_.make_current({1, 2});
    grid_.set_rows(1);
    EXPECT_EQ(grid_.current(), (GridCell{0, 2}));
    grid_.set_columns(2);
    EXPECT_EQ(grid_.current(), (GridCell{0, 1}));
    grid_.set_rows(0);
    EXPECT_EQ(grid_.current(), (GridCell{0, 1}));
}

TEST_F(GridRules, ArrowsMoveAmongTheCellsThatAreNotFixedAndRunNothing) {
    grid_.set_fixed_rows(1);
    grid_.make_current({1, 1});
    grid_.on_click = [this] { ++runs_; };
    grid_.press_key({Key::Name::up});
    EXPECT_EQ(grid_.current(), (GridCell{1, 1}));
    grid_.press_key({Key::Name::left});
    grid_.press_key({Key::Name::left});
    EXPECT_EQ(grid_.current(), (GridCell{1, 0}));
    grid_.press_key({Key::Name::down});
    EXPECT_EQ(grid_.current(), (GridCell{1, 0}));
    grid_.press_key({Key::Name::right});
    EXPECT_EQ(grid_.current(), (GridCell{1, 1}));
    EXPECT_EQ(runs_, 0);
}

TEST_F(GridRules, EnterAndTheSpaceBarClickTheCurrentCell) {
    grid_.on_click = [this] { ++runs_; };
    grid_.press_key({Key::Name::enter});
    grid_.press_key(Key::of(' '));
    grid_.press_key(Key::of('x'));
    grid_.press_key({Key::Name::erase});
    EXPECT_EQ(runs_, 2);
    EXPECT_EQ(grid_.cell(0, 0), "a");
    grid_.set_rows(0);
    grid_.press_key({Key::Name::enter});
    EXPECT_EQ(runs_, 2);
}

TEST_F(GridRules, AGridThatIsTypedIntoGetsAllKeysAndLeavesSomeToTheGrid) {
    std::string typed;
    grid_.on_click = [this] { ++runs_; };
    grid_.on_key = [&](Key key) {
        typed += key.name == Key::Name::character ? key.character : '^';
        return key.name != Key::Name::right;
    };
    grid_.press_key(Key::of(' '));
    grid_.press_key({Key::Name::enter});
    grid_.press_key({Key::Name::down});
    EXPECT_EQ(grid_.current(), (GridCell{0, 0}));
    grid_.press_key({Key::Name::right});
    EXPECT_EQ(typed, " ^^^");
    EXPECT_EQ(grid_.current(), (GridCell{0, 1}));
    EXPECT_EQ(runs_, 0);
}

TEST_F(GridRules, TheCurrentCellLeavesRowsThatBecomeFixed) {
    grid_.set_rows(1);
    grid_.set_fixed_rows(1);
    EXPECT_EQ(grid_.current(), (GridCell{0, 0}));
    grid_.set_rows(3);
    grid_.set_fixed_rows(1);
    EXPECT_EQ(grid_.current(), (GridCell{1, 0}));
    grid_.make_current({2, 1});
    grid_.set_fixed_rows(1);
    EXPECT_EQ(grid_.current(), (GridCell{2, 1}));
}

TEST_F(GridRules, ArrowsStayOutOfFixedColumns) {
    test::FrmTest other(test_.desk, "frmOther");
    Grid grid(other, "MSFlexFixed", {.columns = 3, .fixed_rows = 0, .fixed_columns = 1});
    grid.add_row("a\tb\tc");
    grid.make_current({0, 1});
    grid.press_key({Key::Name::left});
    EXPECT_EQ(grid.current(), (GridCell{0, 1}));
    EXPECT_EQ(grid.fixed_columns(), 1);
}

TEST_F(GridRules, EveryArrowForwardLeadsOutOfFixedRowsAndColumns) {
    test::FrmTest other(test_.desk, "frmOther");
    Grid grid(other, "MSFlexFixed", {.columns = 4, .fixed_rows = 1, .fixed_columns = 2});
    for (int row = 0; row < 3; ++row) grid.add_row("a\tb\tc\td");
    const auto arrow_from = [&grid](GridCell start, Key::Name name) {
        grid.make_current(start);
        grid.press_key({name});
        return grid.current();
    };
    EXPECT_EQ(arrow_from({0, 0}, Key::Name::down), (GridCell{1, 2}));
    EXPECT_EQ(arrow_from({0, 0}, Key::Name::right), (GridCell{1, 2}));
    EXPECT_EQ(arrow_from({1, 0}, Key::Name::down), (GridCell{2, 2}));
    EXPECT_EQ(arrow_from({0, 3}, Key::Name::down), (GridCell{1, 3}));
    EXPECT_EQ(arrow_from({2, 0}, Key::Name::left), (GridCell{2, 0}));
    EXPECT_EQ(arrow_from({0, 3}, Key::Name::up), (GridCell{0, 3}));
}

TEST_F(GridRules, KnowsHowItIsShown) {
    EXPECT_EQ(grid_.selection(), Selection::free);
    EXPECT_EQ(grid_.highlight(), Highlight::always);
    EXPECT_EQ(grid_.column_alignment(1), Alignment::standard);
    EXPECT_EQ(grid_.cell_colour({1, 1}), std::nullopt);
    grid_.set_selection(Selection::by_column);
    grid_.set_highlight(Highlight::with_focus);
    grid_.set_column_alignment(1, Alignment::left);
    grid_.set_cell_colour({1, 1}, 0xC0FF08);
    grid_.set_top(240);
    grid_.set_top_row(1);
    EXPECT_EQ(grid_.selection(), Selection::by_column);
    EXPECT_EQ(grid_.highlight(), Highlight::with_focus);
    EXPECT_EQ(grid_.column_alignment(1), Alignment::left);
    EXPECT_EQ(grid_.column_alignment(0), Alignment::standard);
    EXPECT_EQ(grid_.cell_colour({1, 1}), 0xC0FF08);
    EXPECT_EQ(grid_.top(), 240);
    EXPECT_EQ(grid_.top_row(), 1);
    grid_.set_cell_colour({1, 1}, std::nullopt);
    EXPECT_EQ(grid_.cell_colour({1, 1}), std::nullopt);
    grid_.set_cell_colour({1, 1}, 0xC0FF08);
    grid_.set_rows(1);
    EXPECT_EQ(grid_.cell_colour({1, 1}), std::nullopt);
}

TEST_F(GridRules, AnEmptyGridTakesKeysWithoutHarm) {
    grid_.set_rows(0);
    for (const auto name : {Key::Name::up, Key::Name::down, Key::Name::left, Key::Name::right}) {
        grid_.press_key({name});
    }
    EXPECT_EQ(grid_.current(), (GridCell{0, 0}));
}

}  // namespace
}  // namespace brooklander
