// The column of a grid that stays in sight while the others are scrolled.
#include <QAccessible>
#include <QScrollBar>

#include "desktop/drawn_grid.h"
#include "platform/desktop/colours.h"

namespace brooklander::desktop {
namespace {

class DrawnGridThatKeepsAColumn : public DrawnGrid {
  protected:
    static constexpr int columns = 20;

    DrawnGridThatKeepsAColumn() {
        widget_->keep_first_column();
        grid().set_columns(columns);
        for (int row = 0; row < 5; ++row) {
            std::string cells = "name " + std::to_string(row);
            for (int column = 1; column < columns; ++column) {
                cells += "\tcell " + std::to_string(row) + " " + std::to_string(column);
            }
            grid().add_row(cells);
        }
        view_->follow();
    }

    // Takes the border in the headings at this point so far to the right.
    void drag(QPoint border, int by) {
        const QPoint end = border + QPoint(by, 0);
        QTest::mousePress(widget_->viewport(), Qt::LeftButton, {}, border);
        QMouseEvent move(QEvent::MouseMove, end, widget_->mapToGlobal(end), Qt::LeftButton,
                         Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(widget_->viewport(), &move);
        QTest::mouseRelease(widget_->viewport(), Qt::LeftButton, {}, end);
    }

    // At a point of the widget, whatever the scale of the display.
    QColor colour_at(QPoint point) {
        const QImage picture = widget_->viewport()->grab().toImage();
        return picture.pixelColor(point * picture.devicePixelRatio());
    }
};

TEST_F(DrawnGridThatKeepsAColumn, ItStaysWhereItIsWhileTheOthersScroll) {
    const QRect before = widget_->cell_place({2, 0});
    click({2, columns - 1});
    EXPECT_GT(widget_->horizontalScrollBar()->value(), 0);
    EXPECT_EQ(widget_->cell_place({2, 0}), before);
    EXPECT_EQ(widget_->text_on_screen({2, 0}), QStringLiteral("name 2"));
    EXPECT_EQ(widget_->text_on_screen({2, 1}), std::nullopt);
    EXPECT_EQ(widget_->text_on_screen({2, columns - 1}), QStringLiteral("cell 2 19"));
    QTest::mouseClick(widget_->viewport(), Qt::LeftButton, {}, before.center());
    EXPECT_EQ(clicks_, (std::vector<GridCell>{{2, columns - 1}, {2, 0}}));
    EXPECT_EQ(view_->difference(), "");
    EXPECT_GT(widget_->horizontalScrollBar()->value(), 0) << "a cell in sight scrolls nothing";
}

TEST_F(DrawnGridThatKeepsAColumn, ACellBelowItIsBroughtOut) {
    const int right_of_it = widget_->cell_place({0, 0}).right() + 1;
    widget_->bring_into_view({1, columns - 1});
    widget_->bring_into_view({1, 4});
    const QRect place = widget_->cell_place({1, 4});
    EXPECT_EQ(place.left(), right_of_it);
    EXPECT_FALSE(place.isEmpty());
    widget_->horizontalScrollBar()->setValue(widget_->horizontalScrollBar()->value() + 10);
    EXPECT_EQ(widget_->cell_place({1, 4}).left(), right_of_it) << "its left end is covered";
    EXPECT_EQ(widget_->cell_place({1, 4}).width(), place.width() - 10);
}

TEST_F(DrawnGridThatKeepsAColumn, WhatScrollsIsPaintedBelowIt) {
    grid().set_cell_colour({1, 4}, 0x0000ff);
    view_->follow();
    widget_->bring_into_view({1, columns - 1});
    widget_->bring_into_view({1, 4});
    widget_->horizontalScrollBar()->setValue(widget_->horizontalScrollBar()->value() + 10);
    const QRect seen = widget_->cell_place({1, 4});
    EXPECT_EQ(colour_at({seen.left() + 1, seen.top() + 3}), QColor(255, 0, 0));
    EXPECT_EQ(colour_at({seen.left() - 4, seen.top() + 3}), own_colours().card);
}

TEST_F(DrawnGridThatKeepsAColumn, ItsBorderIsDraggedAndNoneBelowIt) {
    widget_->bring_into_view({0, columns - 1});
    const QRect before = widget_->cell_place({0, 0});
    drag({before.right() + 1, 10}, 40);
    EXPECT_EQ(widget_->cell_place({0, 0}).width(), before.width() + 40);
    EXPECT_EQ(widget_->cell_place({0, 0}).left(), before.left());
}

TEST_F(DrawnGridThatKeepsAColumn, ItIsDraggedAsFarAsItCanBeKeptAndBack) {
    widget_->bring_into_view({0, columns - 1});
    const QRect before = widget_->cell_place({0, 0});
    drag({before.right() + 1, 10}, 400);
    const QRect widest = widget_->cell_place({0, 0});
    EXPECT_EQ(widest.left(), before.left());
    EXPECT_NEAR(widest.width(), (widget_->viewport()->width() - before.left()) / 2, 1);
    widget_->bring_into_view({0, columns - 1});
    EXPECT_EQ(widget_->cell_place({0, 0}), widest);
    drag({widest.right() + 1, 10}, before.right() - widest.right());
    EXPECT_EQ(widget_->cell_place({0, 0}), before);
}

TEST_F(DrawnGridThatKeepsAColumn, ItScrollsLikeTheOthersWhereItWouldLeaveThemNoRoom) {
    widget_->resize(120, 480);
    widget_->bring_into_view({0, columns - 1});
    EXPECT_TRUE(widget_->cell_place({0, 0}).isEmpty());
    EXPECT_FALSE(widget_->cell_place({0, columns - 1}).isEmpty());
}

TEST_F(DrawnGridThatKeepsAColumn, AScreenReaderFindsItWhereItIsSeen) {
    QAccessibleTableInterface& table =
        *QAccessible::queryAccessibleInterface(widget_)->tableInterface();
    const QRect before = table.cellAt(3, 0)->rect();
    widget_->bring_into_view({0, columns - 1});
    EXPECT_EQ(table.cellAt(3, 0)->rect(), before);
    EXPECT_FALSE(table.cellAt(3, 0)->state().invisible);
    EXPECT_TRUE(table.cellAt(3, 2)->state().invisible);
}

}  // namespace
}  // namespace brooklander::desktop
