// A grid of a small screen, drawn in a window of its own.
#pragma once

#include <gtest/gtest.h>

#include <QTest>

#include "platform/desktop/grid_widget.h"
#include "support/test_screen.h"

namespace brooklander::desktop {

class StepsAsTheyCome : public Acts {
  public:
    void act(FieldView& origin, const std::function<void()>& step) override {
        step();
        origin.follow();
    }
};

class DrawnGrid : public testing::Test {
  protected:
    DrawnGrid() : widget_(new GridWidget(grid(), &window_)) {
        window_.resize(640, 480);
        widget_->setGeometry(0, 0, 640, 480);
        view_ = grid_view(grid(), widget_, acts_);
        window_.show();
        grid().on_click = [this] { clicks_.push_back(grid().current()); };
    }

    Grid& grid() { return test_.screen.MSFlexTest; }

    void fill(int rows) {
        for (int row = 0; row < rows; ++row) {
            const std::string number = std::to_string(row);
            grid().add_row("a" + number + "\tb" + number + "\tc" + number);
        }
        view_->follow();
    }

    void click(GridCell cell) {
        widget_->bring_into_view(cell);
        QTest::mouseClick(widget_->viewport(), Qt::LeftButton, {},
                          widget_->cell_place(cell).center());
    }

    // A click on the heading of a column, or on the number of a row.
    void click_heading(int column) {
        const QRect below = widget_->cell_place({grid().fixed_rows(), column});
        QTest::mouseClick(widget_->viewport(), Qt::LeftButton, {},
                          QPoint(below.center().x(), below.top() - 8));
    }
    void click_number(int row) {
        QTest::mouseClick(widget_->viewport(), Qt::LeftButton, {},
                          QPoint(4, widget_->cell_place({row, 0}).center().y()));
    }

    test::TestScreen test_;
    QWidget window_;
    StepsAsTheyCome acts_;
    GridWidget* widget_;
    std::unique_ptr<FieldView> view_;
    std::vector<GridCell> clicks_;
};

}  // namespace brooklander::desktop
