#include <QAccessible>
#include <QScrollBar>

#include "desktop/drawn_grid.h"

namespace brooklander::desktop {
namespace {

TEST_F(DrawnGrid, AClickMakesTheCellCurrentAndTellsIt) {
    fill(500);
    click({3, 1});
    click({432, 2});
    click({432, 2});
    EXPECT_EQ(clicks_, (std::vector<GridCell>{{3, 1}, {432, 2}, {432, 2}}));
    EXPECT_EQ(widget_->text_on_screen({432, 2}), QStringLiteral("c432"));
    EXPECT_EQ(view_->difference(), "");
}

TEST_F(DrawnGrid, WhatIsBesideTheTableIsNoCell) {
    fill(2);
    QTest::mouseClick(widget_->viewport(), Qt::LeftButton, {}, QPoint(630, 60));
    QTest::mouseClick(widget_->viewport(), Qt::LeftButton, {}, QPoint(60, 470));
    EXPECT_TRUE(clicks_.empty());
}

TEST_F(DrawnGrid, HeadingsStandForTheirColumnWhereColumnsAreChosenAndNumbersForTheirRow) {
    fill(9);
    click_heading(1);
    click_number(4);
    EXPECT_TRUE(clicks_.empty());
    grid().set_selection(Selection::by_column);
    click_heading(1);
    click_number(4);
    EXPECT_EQ(clicks_, (std::vector<GridCell>{{0, 1}}));
    grid().set_selection(Selection::by_row);
    click_heading(2);
    click_number(4);
    EXPECT_EQ(clicks_, (std::vector<GridCell>{{0, 1}, {4, 0}}));
}

TEST_F(DrawnGrid, AFixedRowNamesTheColumnsAndIsNotClicked) {
    grid().add_row("id_code\tname\tkind");
    grid().set_fixed_rows(1);
    fill(3);
    EXPECT_EQ(widget_->heading_text(1), "name");
    EXPECT_EQ(widget_->shown_rows(), 3);
    QTest::mouseClick(widget_->viewport(), Qt::LeftButton, {},
                      widget_->cell_place({0, 1}).center());
    EXPECT_TRUE(clicks_.empty());
    EXPECT_TRUE(grid().focused());
    click({1, 1});
    EXPECT_EQ(clicks_, (std::vector<GridCell>{{1, 1}}));
}

TEST_F(DrawnGrid, ColumnsThatShareTheWidthFillItAndKeepAHiddenOneHidden) {
    grid().add_row("id_code\tname\tkind");
    grid().set_fixed_rows(1);
    fill(3);
    grid().set_column_width(2, 0);
    widget_->use_all_width();
    view_->follow();
    EXPECT_EQ(widget_->cell_place({1, 1}).right(), widget_->viewport()->width() - 1);
    EXPECT_TRUE(widget_->cell_place({1, 2}).isEmpty());
    EXPECT_FALSE(widget_->horizontalScrollBar()->isVisible());
}

// The grid says more than there is room for; the texts need less.
TEST_F(DrawnGrid, ColumnsThatShareTheWidthGiveWayDownToTheirTexts) {
    widget_->use_all_width();
    for (const int column : {0, 1, 2}) grid().set_column_width(column, 6000);
    fill(2);
    grid().set_cell(1, 1, "a text of some length, padded                                        ");
    view_->follow();
    EXPECT_EQ(widget_->horizontalScrollBar()->maximum(), 0);
    const int needed = widget_->fontMetrics().horizontalAdvance("a text of some length, padded");
    EXPECT_GT(widget_->cell_place({1, 1}).width(), needed);
    EXPECT_EQ(widget_->cell_place({1, 2}).right(), widget_->viewport()->width() - 1);
}

// Whatever row it stands in.
TEST_F(DrawnGrid, ColumnsThatShareTheWidthLookAtTheTextsOfAllRows) {
    widget_->use_all_width();
    fill(5000);
    const int before = widget_->cell_place({0, 0}).width();
    grid().set_cell(4999, 0, "the widest identifier of all");
    view_->follow();
    EXPECT_GT(widget_->cell_place({0, 0}).width(), before);
}

TEST_F(DrawnGrid, TextsTooLongToShareTheWidthAreScrolled) {
    widget_->use_all_width();
    fill(1);
    for (const int column : {0, 1, 2}) grid().set_cell(0, column, std::string(60, 'm'));
    view_->follow();
    EXPECT_GT(widget_->horizontalScrollBar()->maximum(), 0);
}

TEST_F(DrawnGrid, ABlankRowUnderAHeadingSaysThatNothingWasFoundAndIsClickedAllTheSame) {
    widget_->set_found_none_text(QStringLiteral("No gear."));
    grid().add_row("id_code\tname\tkind");
    grid().set_fixed_rows(1);
    grid().set_rows(2);
    view_->follow();
    EXPECT_EQ(widget_->accessibleDescription(), QStringLiteral("No gear."));
    click({1, 0});
    EXPECT_EQ(clicks_, (std::vector<GridCell>{{1, 0}}));
    grid().set_cell(1, 1, "tube");
    view_->follow();
    EXPECT_EQ(widget_->accessibleDescription(), QString());
}

TEST_F(DrawnGrid, ArrowsMoveAndEnterAndSpaceClick) {
    fill(500);
    widget_->setFocus();
    for (const Qt::Key key : {Qt::Key_Down, Qt::Key_Down, Qt::Key_Right, Qt::Key_Up}) {
        QTest::keyClick(widget_, key);
    }
    EXPECT_EQ(grid().current(), (GridCell{1, 1}));
    EXPECT_TRUE(clicks_.empty());
    QTest::keyClick(widget_, Qt::Key_Return);
    QTest::keyClick(widget_, Qt::Key_Space);
    EXPECT_EQ(clicks_, (std::vector<GridCell>{{1, 1}, {1, 1}}));
}

TEST_F(DrawnGrid, PageAndEndKeysMoveFarAndTheCurrentCellStaysInSight) {
    fill(500);
    widget_->setFocus();
    QTest::keyClick(widget_, Qt::Key_PageDown);
    EXPECT_EQ(grid().current().row, widget_->rows_in_view());
    QTest::keyClick(widget_, Qt::Key_End, Qt::ControlModifier);
    EXPECT_EQ(grid().current(), (GridCell{499, 2}));
    EXPECT_TRUE(widget_->text_on_screen({499, 2}).has_value());
    QTest::keyClick(widget_, Qt::Key_PageDown);
    EXPECT_EQ(grid().current().row, 499);
    QTest::keyClick(widget_, Qt::Key_Home, Qt::ControlModifier);
    EXPECT_EQ(grid().current(), (GridCell{0, 0}));
    EXPECT_TRUE(clicks_.empty());
}

TEST_F(DrawnGrid, AKeyThatMovesNothingLeavesACurrentCellInTheHeadings) {
    grid().add_row("id_code\tname\tkind");
    grid().set_fixed_rows(1);
    fill(3);
    widget_->setFocus();
    QTest::keyClick(widget_, Qt::Key_Escape);
    EXPECT_EQ(grid().current(), (GridCell{0, 0}));
    QTest::keyClick(widget_, Qt::Key_End);
    EXPECT_EQ(grid().current(), (GridCell{1, 2}));
    EXPECT_TRUE(grid().focused());
}

TEST_F(DrawnGrid, ACaptionInAHeadingMovesNoColumn) {
    std::string caption;
    widget_->set_column_marks([&caption](int column) {
        return column == 0 ? ColumnMark{QString::fromStdString(caption), 1} : ColumnMark{};
    });
    fill(3);
    const QRect before = widget_->cell_place({0, 1});
    caption = "Sample/Activity ID";
    view_->follow();
    EXPECT_EQ(widget_->cell_place({0, 1}), before);
    EXPECT_EQ(widget_->heading_text(0), "1  Sample/Activity ID");
}

// A grid looks at its marks once whenever it measures its texts.
TEST_F(DrawnGrid, ItMeasuresItsTextsOnceForAllNamesAndNotForTheSameOnes) {
    int looks = 0;
    widget_->set_column_marks([&looks](int column) {
        if (column == 0) ++looks;
        return ColumnMark{};
    });
    fill(3);
    looks = 0;
    widget_->name_columns(0, {"Date", "Time", "Result"});
    EXPECT_EQ(looks, 1);
    widget_->name_columns(0, {"Date", "Time", "Result"});
    widget_->name_column(1, QStringLiteral("Time"));
    widget_->name_row(1, QString());
    EXPECT_EQ(looks, 1);
    widget_->name_column(1, QString());
    EXPECT_EQ(looks, 2);
    EXPECT_EQ(widget_->heading_text(1), "2");
    EXPECT_EQ(widget_->heading_text(2), "Result");
}

TEST_F(DrawnGrid, AListWithoutRowsHasNoHeadingsOnceItsLastNameIsGone) {
    widget_->use_all_width();
    view_->follow();
    EXPECT_EQ(widget_->heading_text(1), "");
    widget_->name_column(0, QStringLiteral("Date"));
    EXPECT_EQ(widget_->heading_text(1), "2");
    widget_->name_column(0, QString());
    EXPECT_EQ(widget_->heading_text(1), "");
}

TEST_F(DrawnGrid, AGridThatIsTypedIntoGetsEveryKey) {
    fill(3);
    std::string typed_keys;
    grid().on_key = [&](Key key) {
        typed_keys += key.name == Key::Name::character ? std::string(1, key.character) : "<>";
        return true;
    };
    widget_->setFocus();
    QTest::keyClicks(widget_, "x ");
    for (const Qt::Key key : {Qt::Key_Down, Qt::Key_Delete, Qt::Key_Return, Qt::Key_Escape}) {
        QTest::keyClick(widget_, key);
    }
    EXPECT_EQ(typed_keys, "x <><><><>");
}

TEST_F(DrawnGrid, AGridThatIsTypedIntoIsClickedWithControl) {
    fill(3);
    int clicks = 0;
    grid().on_click = [&] { ++clicks; };
    grid().on_key = [](Key /*key*/) { return true; };
    widget_->setFocus();
    QTest::keyClick(widget_, Qt::Key_Return, Qt::ControlModifier);
    QTest::keyClick(widget_, Qt::Key_Space, Qt::ControlModifier);
    EXPECT_EQ(clicks, 2);
}

TEST_F(DrawnGrid, TabLeavesTheGrid) {
    fill(3);
    auto* const next = new QWidget(&window_);
    next->setFocusPolicy(Qt::StrongFocus);
    next->show();
    widget_->setFocus();
    QTest::keyClick(widget_, Qt::Key_Tab);
    EXPECT_EQ(window_.focusWidget(), next);
}

TEST_F(DrawnGrid, ARowOfNoHeightAndAColumnOfNoWidthAreNotShown) {
    fill(3);
    grid().set_row_height(1, 1);
    grid().set_column_width(1, 0);
    view_->follow();
    EXPECT_TRUE(widget_->cell_place({1, 0}).isEmpty());
    EXPECT_TRUE(widget_->cell_place({0, 1}).isEmpty());
    EXPECT_EQ(widget_->cell_place({2, 0}).top(), widget_->cell_place({0, 0}).bottom() + 1);
}

TEST_F(DrawnGrid, AStepThatScrollsIsFollowed) {
    fill(500);
    grid().set_top_row(100);
    view_->follow();
    EXPECT_EQ(widget_->text_on_screen({100, 0}), QStringLiteral("a100"));
    EXPECT_FALSE(widget_->text_on_screen({99, 0}).has_value());
}

TEST_F(DrawnGrid, FewerRowsThanBeforeAreShownAsFew) {
    fill(500);
    widget_->verticalScrollBar()->setValue(400);
    grid().set_rows(0);
    widget_->resize(600, 400);  // before the widget follows
    view_->follow();
    EXPECT_EQ(widget_->shown_rows(), 0);
    EXPECT_EQ(view_->difference(), "");
}

TEST_F(DrawnGrid, AColumnFitsItsHeadingAndTheFirstRows) {
    grid().add_row("a rather long name of a station\tb");
    view_->follow();
    const int need = widget_->fontMetrics().horizontalAdvance("a rather long name of a station");
    EXPECT_GE(widget_->cell_place({0, 0}).width(), need);
}

TEST_F(DrawnGrid, TheBorderOfAColumnCanBeDragged) {
    fill(3);
    const int before = widget_->cell_place({0, 0}).width();
    const QPoint border(widget_->cell_place({0, 0}).right() + 1, 10);
    QTest::mousePress(widget_->viewport(), Qt::LeftButton, {}, border);
    QMouseEvent move(QEvent::MouseMove, border + QPoint(40, 0), widget_->mapToGlobal(border),
                     Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(widget_->viewport(), &move);
    QTest::mouseRelease(widget_->viewport(), Qt::LeftButton, {}, border + QPoint(40, 0));
    EXPECT_EQ(widget_->cell_place({0, 0}).width(), before + 40);
    QTest::mouseDClick(widget_->viewport(), Qt::LeftButton, {}, border + QPoint(40, 0));
    EXPECT_EQ(widget_->cell_place({0, 0}).width(), before);
    EXPECT_TRUE(clicks_.empty());
}

TEST_F(DrawnGrid, AScreenReaderFindsEveryCell) {
    grid().add_row("id_code\tname\tkind");
    grid().set_fixed_rows(1);
    fill(3);
    QAccessibleInterface* const whole = QAccessible::queryAccessibleInterface(widget_);
    ASSERT_NE(whole->tableInterface(), nullptr);
    QAccessibleTableInterface& table = *whole->tableInterface();
    EXPECT_EQ(table.rowCount(), 3);
    EXPECT_EQ(table.columnCount(), 3);
    EXPECT_EQ(table.cellAt(2, 1)->text(QAccessible::Name), "b2");
    EXPECT_EQ(table.columnDescription(1), "name");
    EXPECT_EQ(table.rowDescription(0), "1");
    EXPECT_EQ(table.cellAt(3, 0), nullptr);
    click({2, 1});
    EXPECT_EQ(table.selectedCells().front()->text(QAccessible::Name), "b1");
    EXPECT_EQ(whole->indexOfChild(table.cellAt(2, 1)), 7);
    EXPECT_EQ(whole->child(7), table.cellAt(2, 1));
    table.cellAt(0, 2)->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_EQ(clicks_.back(), (GridCell{1, 2}));
    EXPECT_EQ(table.columnDescription(100000000), "");
    EXPECT_EQ(table.rowDescription(-1), "");
}

TEST_F(DrawnGrid, AScreenReaderSaysOfARowWhatItsHeadingSays) {
    grid().add_row("id_code\tname\tkind");
    grid().set_fixed_rows(1);
    fill(3);
    QAccessibleTableInterface& table =
        *QAccessible::queryAccessibleInterface(widget_)->tableInterface();
    widget_->name_row(1, QStringLiteral("Row ID:"));
    EXPECT_EQ(table.rowDescription(0), "Row ID:");
    EXPECT_EQ(table.rowDescription(1), "2");
    widget_->drop_row_numbers();
    EXPECT_EQ(table.rowDescription(0), "Row ID:");
    EXPECT_EQ(table.rowDescription(1), "");
}

}  // namespace
}  // namespace brooklander::desktop
