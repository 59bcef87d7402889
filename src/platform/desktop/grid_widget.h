// A grid on the screen: a view of the part of it that fits, so that the number of its rows does not
// matter.
#pragma once

#include <QAbstractScrollArea>
#include <QColor>
#include <algorithm>
#include <array>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <vector>

#include "platform/desktop/colours.h"
#include "platform/desktop/field_view.h"
#include "platform/desktop/heading_names.h"
#include "shared/grid.h"

namespace brooklander::desktop {

// What a column's heading says besides its number, and the tint that goes with it.
struct ColumnMark {
    QString caption;
    std::optional<int> tint;
};

// Rows and columns are those of the grid, from 0. Columns count from 1 in the headings, or are
// named there by the grid's fixed row or by labels; rows count from 1 below that.
class GridWidget : public QAbstractScrollArea {
  public:
    static constexpr int cell_margin = 8;  // left and right of a cell's text

    GridWidget(Grid& grid, QWidget* parent);

    // Called with what a user has done.
    std::function<void(GridCell)> on_click;
    std::function<void(Key)> on_key;
    std::function<void(GridCell)> on_move;  // to a cell that is there

    // What stands in place of the rows while there are none, or only the blank one of an answer
    // without rows.
    void set_empty_text(const QString& text) { empty_text_ = text; }

    // What stands in place of the blank row of a query that has found none; the row can be clicked
    // all the same.
    void set_found_none_text(const QString& text) { found_none_text_ = text; }

    // Makes the columns share the width that there is: each gets what its texts need, then what its
    // heading needs and the grid says, and the last one gets the rest.
    void use_all_width() { shares_width_ = true; }

    // Tells the columns apart; asked whenever the widget follows its grid.
    void set_column_marks(std::function<ColumnMark(int column)> marks);

    // Names a column or a row in its heading, before what stands there otherwise; an empty name
    // gives that its place back.
    void name_column(int column, const QString& name) { name_columns(column, {name}); }
    void name_row(int row, const QString& name);
    QString column_name(int column) const { return column_names_.at(column); }
    QString row_name(int row) const { return row_names_.at(row); }

    // The same for columns side by side. Each naming that changes anything has the widget measure
    // its texts anew, however many names there are in it.
    void name_columns(int first, const QStringList& names);

    // Leaves the headings of rows without a name empty, for a grid that counts its rows itself.
    void drop_row_numbers();

    // Keeps the first column in sight while the others are scrolled below it, as long as it leaves
    // them half of the room.
    void keep_first_column() { keeps_first_column_ = true; }

    // Shows the grid as it is now.
    void follow();

    // As QWidget says; the whole grid seldom fits. One among several lists takes what room there
    // is.
    QSize sizeHint() const override { return shares_width_ ? minimumSizeHint() : QSize(480, 240); }
    QSize minimumSizeHint() const override { return {200, shares_width_ ? 96 : 120}; }

    // Where a cell is in the viewport; a fixed row lies in the headings. Empty when it is not
    // shown.
    QRect cell_place(GridCell cell) const;

    // Scrolls until the cell is in the viewport.
    void bring_into_view(GridCell cell);

    // What stands in a cell on the screen, whole; nothing when it is not shown.
    std::optional<QString> text_on_screen(GridCell cell) const;

    // What the screen shows otherwise than the grid holds; see FieldView.
    QString difference() const;

    const Grid& grid() const { return grid_; }
    int headings() const { return fixed_rows_; }                 // rows that stand in the headings
    int shown_rows() const { return std::max(0, data_rows()); }  // in sight or not
    int shown_columns() const { return columns_; }
    QString heading_text(int column) const { return heading_of(column); }
    QString row_heading_text(int row) const {  // of a row below the headings, from 0
        return row_heading_of(row + fixed_rows_);
    }
    int rows_in_view() const;  // the whole rows that fit

  protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void scrollContentsBy(int x, int y) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    bool viewportEvent(QEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void changeEvent(QEvent* event) override;

  private:
    // A row as it stands on the screen.
    struct ShownRow {
        int row = 0;
        int top = 0;
        int height = 0;
        std::vector<QString> texts;  // whole, of the columns of the page
        std::vector<QString> cut;    // as far as they fit
    };

    int data_rows() const { return rows_ - fixed_rows_; }
    int row_pixels(int row) const;
    // A caption has a line of its own below the number.
    int heading_height() const { return row_height_ + 4 + (marks_ ? fontMetrics().height() : 0); }
    int column_left(int column) const {
        return row_heading_ + lefts_[std::size_t(column)] - (is_kept(column) ? 0 : x_);
    }
    int column_width(int column) const {
        return lefts_[std::size_t(column) + 1] - lefts_[std::size_t(column)];
    }
    int kept_width() const;  // of the first column while it stays; 0 otherwise
    int widest_kept() const { return (viewport()->width() - row_heading_) / 2; }
    bool is_kept(int column) const { return column == 0 && kept_width() > 0; }
    // Where the columns begin that are scrolled.
    int scrolled_left() const { return row_heading_ + kept_width(); }
    void read_page_columns();
    std::optional<std::size_t> place_on_page(int column) const;
    int column_at(int x) const;  // -1 in the row numbers and beyond the last
    std::optional<GridCell> cell_at(QPoint point) const;
    std::optional<int> border_at(QPoint point) const;
    bool is_marked(GridCell cell) const;

    void tell_current_cell();
    void show_current_cell();
    void measure();
    void measure_columns();
    void place_columns();
    std::vector<int> needs_of_texts();
    void measure_letters();
    int width_of_letters(std::string_view text) const;
    void fill_width(std::vector<int>& widths) const;
    bool has_found_none() const;
    QString sentence() const;
    void fit_scroll_bars();
    void read_page();
    bool knows_columns() const;
    QString heading_of(int column) const;
    QString row_heading_of(int row) const;
    int width_of_row_headings() const;
    int least_width() const;
    QFont caption_font() const;
    QColor behind_column(const Colours& colours, int column) const;
    QColor right_of_column(const Colours& colours, int column) const;
    void paint_headings(QPainter& painter, const Colours& colours) const;
    void paint_row(QPainter& painter, const Colours& colours, const ShownRow& row) const;

    Grid& grid_;
    std::function<ColumnMark(int)> marks_;
    std::vector<ColumnMark> column_marks_;
    QString empty_text_;
    QString found_none_text_;
    bool shares_width_ = false;
    bool numbers_rows_ = true;
    bool keeps_first_column_ = false;
    HeadingNames column_names_;
    HeadingNames row_names_;

    // The grid as it was when the widget last followed it.
    int rows_ = 0;
    int columns_ = 0;
    int fixed_rows_ = 0;
    int top_row_of_field_ = 0;
    GridCell current_;

    int row_height_ = 24;
    int row_heading_ = 0;  // how wide the headings of the rows are
    int x_ = 0;            // how far it is scrolled to the right
    std::vector<int> lefts_{0};
    std::vector<int> needs_;   // what the texts of each column need; 0 for a hidden one
    std::vector<int> wishes_;  // with the headings, and what the grid says
    std::array<int, 256> letters_{};
    bool letters_measured_ = false;
    std::map<int, int> widths_by_hand_;
    std::vector<ShownRow> page_;
    int first_column_ = 0;           // in sight, of those that are scrolled
    std::vector<int> page_columns_;  // in the order of painting: one that stays comes last

    std::optional<GridCell> pressed_;
    std::optional<int> dragged_column_;
};

std::unique_ptr<FieldView> grid_view(Grid& grid, GridWidget* widget, Acts& acts);

// For a label that names a column or a row of a grid: it is drawn in the headings, has no widget of
// its own, and comes and goes with the grid. While it is hidden itself, `otherwise` stands there.
std::unique_ptr<FieldView> column_name_view(Label& label, GridWidget* grid, int column,
                                            const QString& otherwise);
std::unique_ptr<FieldView> row_name_view(Label& label, GridWidget* grid, int row);

}  // namespace brooklander::desktop
