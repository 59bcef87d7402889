#include "platform/desktop/grid_widget.h"

#include <QAccessible>
#include <QScrollBar>
#include <algorithm>
#include <cmath>

namespace brooklander::desktop {
namespace {

constexpr int cell_margin = GridWidget::cell_margin;

}  // namespace

GridWidget::GridWidget(Grid& grid, QWidget* parent) : QAbstractScrollArea(parent), grid_(grid) {
    setFrameShape(QFrame::NoFrame);
    setFocusPolicy(Qt::StrongFocus);
    viewport()->setMouseTracking(true);
    verticalScrollBar()->setSingleStep(1);
    horizontalScrollBar()->setSingleStep(24);
}

void GridWidget::set_column_marks(std::function<ColumnMark(int column)> marks) {
    marks_ = std::move(marks);
}

void GridWidget::follow() {
    const GridCell before = current_;
    rows_ = grid_.rows();
    columns_ = grid_.columns();
    fixed_rows_ = std::min(grid_.fixed_rows(), rows_);
    current_ = grid_.current();
    column_marks_.assign(static_cast<std::size_t>(columns_), {});
    if (marks_) {
        for (int column = 0; column < columns_; ++column) {
            column_marks_[std::size_t(column)] = marks_(column);
        }
    }
    measure();
    if (grid_.top_row() != top_row_of_field_) {
        top_row_of_field_ = grid_.top_row();
        verticalScrollBar()->setValue(top_row_of_field_ - fixed_rows_);
    }
    read_page();
    viewport()->update();
    setAccessibleDescription(sentence());
    if (!(current_ == before) && hasFocus() && QAccessible::isActive()) tell_current_cell();
}

void GridWidget::tell_current_cell() {
    QAccessibleEvent event(this, QAccessible::Focus);
    event.setChild((current_.row - fixed_rows_) * columns_ + current_.column);
    QAccessible::updateAccessibility(&event);
}

void GridWidget::measure() {
    row_height_ = std::max(24, fontMetrics().height() + 8);
    row_heading_ = width_of_row_headings();
    measure_columns();
    fit_scroll_bars();
}

int GridWidget::row_pixels(int row) const {
    const int twips = grid_.row_height(row);
    if (twips == Grid::standard_height) return row_height_;
    return static_cast<int>(std::lround(double(row_height_) * twips / Grid::standard_height));
}

// An answer without rows leaves one blank row below its headings.
int GridWidget::rows_in_view() const {
    return std::max(1, (viewport()->height() - heading_height()) / row_height_);
}

void GridWidget::fit_scroll_bars() {
    verticalScrollBar()->setRange(0, std::max(0, data_rows() - rows_in_view()));
    verticalScrollBar()->setPageStep(rows_in_view());
    const int room = viewport()->width() - row_heading_;
    horizontalScrollBar()->setRange(0, std::max(0, lefts_.back() - room));
    horizontalScrollBar()->setPageStep(std::max(1, room - kept_width()));
    x_ = horizontalScrollBar()->value();
}

void GridWidget::read_page() {
    page_.clear();
    read_page_columns();
    RowCells cells;
    int top = heading_height();
    // The place can change its size before the widget follows a grid that has lost rows.
    const int rows_there = std::min(rows_, grid_.rows());
    for (int row = fixed_rows_ + verticalScrollBar()->value();
         row < rows_there && top < viewport()->height(); ++row) {
        ShownRow& shown_row = page_.emplace_back();
        shown_row.row = row;
        shown_row.top = top;
        shown_row.height = row_pixels(row);
        grid_.read_row(row, cells);
        for (const int column : page_columns_) {
            const QString text = shown(cells[column]);
            shown_row.cut.push_back(
                fontMetrics().elidedText(shown(without_padding(cells[column])), Qt::ElideRight,
                                         column_width(column) - 2 * cell_margin));
            shown_row.texts.push_back(text);
        }
        top += shown_row.height;
    }
}

void GridWidget::resizeEvent(QResizeEvent* /*event*/) {
    place_columns();
    fit_scroll_bars();
    read_page();
}

void GridWidget::scrollContentsBy(int /*x*/, int /*y*/) {
    x_ = horizontalScrollBar()->value();
    read_page();
    viewport()->update();
}

void GridWidget::focusInEvent(QFocusEvent* event) {
    QAbstractScrollArea::focusInEvent(event);
    viewport()->update();
}

void GridWidget::focusOutEvent(QFocusEvent* event) {
    QAbstractScrollArea::focusOutEvent(event);
    viewport()->update();
}

void GridWidget::changeEvent(QEvent* event) {
    QAbstractScrollArea::changeEvent(event);
    if (event->type() != QEvent::FontChange) return;
    letters_measured_ = false;
    follow();
}

QRect GridWidget::cell_place(GridCell cell) const {
    if (!place_on_page(cell.column)) return {};
    const int from = is_kept(cell.column) ? row_heading_ : scrolled_left();
    const QRect room = viewport()->rect().adjusted(from, 0, 0, 0);
    const int left = column_left(cell.column);
    const int width = column_width(cell.column);
    if (cell.row < fixed_rows_) return QRect(left, 0, width, heading_height()).intersected(room);
    for (const ShownRow& row : page_) {
        if (row.row == cell.row) {
            return QRect(left, row.top, width, row.height)
                .intersected(room.adjusted(0, heading_height(), 0, 0));
        }
    }
    return {};
}

void GridWidget::bring_into_view(GridCell cell) {
    if (cell.row >= fixed_rows_) {
        const int row = cell.row - fixed_rows_;
        const int top = verticalScrollBar()->value();
        if (row < top) {
            verticalScrollBar()->setValue(row);
        } else if (row >= top + rows_in_view()) {
            verticalScrollBar()->setValue(row - rows_in_view() + 1);
        }
    }
    if (cell.column >= columns_ || is_kept(cell.column)) return;
    const int room = viewport()->width() - scrolled_left();
    const int left = lefts_[std::size_t(cell.column)] - kept_width();
    const int right = lefts_[std::size_t(cell.column) + 1] - kept_width();
    if (left < x_ || right - left > room) {
        horizontalScrollBar()->setValue(left);
    } else if (right > x_ + room) {
        horizontalScrollBar()->setValue(right - room);
    }
}

std::optional<QString> GridWidget::text_on_screen(GridCell cell) const {
    const auto at = place_on_page(cell.column);
    for (const ShownRow& row : page_) {
        if (at && row.row == cell.row) return row.texts[*at];
    }
    return std::nullopt;
}

QString GridWidget::difference() const {
    if (rows_ != grid_.rows() || columns_ != grid_.columns()) {
        return QStringLiteral("has %1 rows and %2 columns on the screen instead of %3 and %4")
            .arg(rows_)
            .arg(columns_)
            .arg(grid_.rows())
            .arg(grid_.columns());
    }
    if (!(current_ == grid_.current())) {
        return QStringLiteral("has another current cell on the screen");
    }
    for (const ShownRow& row : page_) {
        for (std::size_t at = 0; at < row.texts.size(); ++at) {
            const int column = page_columns_[at];
            if (row.texts[at] == shown(grid_.cell(row.row, column))) continue;
            return QStringLiteral("shows \"%1\" in cell %2 %3 on the screen")
                .arg(row.texts[at])
                .arg(row.row)
                .arg(column);
        }
    }
    return {};
}

namespace {

class GridView : public WidgetView<Grid, GridWidget> {
  public:
    GridView(Grid& grid, GridWidget* widget, Acts& acts) : WidgetView(grid, widget) {
        widget->on_click = [this, &acts](GridCell cell) {
            acts.act(*this, [this, cell] { field_.click_cell(cell); });
        };
        widget->on_key = [this, &acts](Key key) {
            acts.act(*this, [this, key] { field_.press_key(key); });
        };
        widget->on_move = [this, &acts](GridCell cell) {
            acts.act(*this, [this, cell] { field_.move_to(cell); });
        };
    }

  protected:
    void follow_content() override { widget()->follow(); }
    QString says() const override { return {}; }
    QString content_difference() const override { return widget()->difference(); }
};

}  // namespace

std::unique_ptr<FieldView> grid_view(Grid& grid, GridWidget* widget, Acts& acts) {
    return std::make_unique<GridView>(grid, widget, acts);
}

}  // namespace brooklander::desktop
