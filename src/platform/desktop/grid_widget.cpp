#include "platform/desktop/grid_widget.h"

#include <QAccessible>
#include <QPainter>
#include <QScrollBar>
#include <algorithm>
#include <cmath>
#include "platform/desktop/colours.h"

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
    const QString widest = QString::number(std::max(1, rows_));
    row_heading_ = fontMetrics().horizontalAdvance(widest) + 2 * cell_margin;
    measure_columns();
    fit_scroll_bars();
}

// A little smaller than the cells', so that more of a caption fits.
QFont GridWidget::caption_font() const {
    QFont smaller = font();
    if (smaller.pointSizeF() > 2) smaller.setPointSizeF(smaller.pointSizeF() - 1);
    return smaller;
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
    horizontalScrollBar()->setPageStep(std::max(1, room));
    x_ = horizontalScrollBar()->value();
}

void GridWidget::read_page() {
    page_.clear();
    first_column_ = 0;
    while (first_column_ < columns_ &&
           column_left(first_column_) + column_width(first_column_) <= row_heading_) {
        ++first_column_;
    }
    const int behind = columns_shown_to();
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
        for (int column = first_column_; column < behind; ++column) {
            const QString text = shown(cells[column]);
            shown_row.cut.push_back(
                fontMetrics().elidedText(shown(without_padding(cells[column])), Qt::ElideRight,
                                         column_width(column) - 2 * cell_margin));
            shown_row.texts.push_back(text);
        }
        top += shown_row.height;
    }
}

int GridWidget::columns_shown_to() const {
    int behind = first_column_;
    while (behind < columns_ && column_left(behind) < viewport()->width()) ++behind;
    return behind;
}

QString GridWidget::heading_of(int column) const {
    if (fixed_rows_ > 0) return shown(grid_.cell(0, column));
    if (shares_width_ && rows_ == 0) return {};  // it will be named when there are rows
    const QString& caption = column_marks_[std::size_t(column)].caption;
    const QString number = QString::number(column + 1);
    return caption.isEmpty() ? number : number + QStringLiteral("  ") + caption;
}

bool GridWidget::is_marked(GridCell cell) const {
    switch (grid_.highlight()) {
        case Highlight::never: return false;
        case Highlight::with_focus:
            if (!hasFocus()) return false;
            break;
        case Highlight::always: break;
    }
    switch (grid_.selection()) {
        case Selection::by_row: return cell.row == current_.row;
        case Selection::by_column: return cell.column == current_.column;
        case Selection::free: break;
    }
    return cell == current_;
}

void GridWidget::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(viewport());
    const Colours colours = own_colours();
    painter.fillRect(viewport()->rect(), colours.card);
    const QString says = sentence();
    if (!says.isEmpty()) {
        painter.setPen(colours.quiet);
        painter.drawText(viewport()->rect().adjusted(16, 16 + heading_height(), -16, -16),
                         Qt::AlignHCenter | Qt::AlignTop | Qt::TextWordWrap, says);
    }
    painter.save();
    painter.setClipRect(row_heading_, heading_height(), viewport()->width(), viewport()->height());
    for (const ShownRow& row : page_) {
        if (says.isEmpty()) paint_row(painter, colours, row);
    }
    painter.restore();
    paint_headings(painter, colours);
    if (hasFocus()) {
        painter.setPen(QPen(colours.accent, 2));
        painter.drawRect(viewport()->rect().adjusted(1, 1, -1, -1));
    } else {
        painter.setPen(colours.line);
        painter.drawRect(viewport()->rect().adjusted(0, 0, -1, -1));
    }
}

bool GridWidget::has_found_none() const {
    if (found_none_text_.isEmpty() || fixed_rows_ == 0 || data_rows() != 1) return false;
    RowCells cells;
    grid_.read_row(fixed_rows_, cells);
    for (int column = 0; column < columns_; ++column) {
        if (!cells[column].empty()) return false;
    }
    return true;
}

// What the grid says in place of rows.
QString GridWidget::sentence() const {
    if (data_rows() <= 0) return empty_text_;
    return has_found_none() ? found_none_text_ : QString();
}

QColor GridWidget::behind_column(const Colours& colours, int column) const {
    const auto& number = column_marks_[std::size_t(column)].tint;
    return number ? tint(colours, *number) : colours.card;
}

void GridWidget::paint_row(QPainter& painter, const Colours& colours, const ShownRow& row) const {
    if (row.height <= 0) return;
    for (std::size_t at = 0; at < row.texts.size(); ++at) {
        const int column = first_column_ + static_cast<int>(at);
        const GridCell cell{row.row, column};
        const QRect place(column_left(column), row.top, column_width(column), row.height);
        QColor text = colours.text;
        if (const auto own = grid_.cell_colour(cell)) {
            const QColor colour(*own & 0xff, (*own >> 8) & 0xff, (*own >> 16) & 0xff);
            painter.fillRect(place, colour);
            text = colour.lightness() > 127 ? Qt::black : Qt::white;
        } else if (is_marked(cell)) {
            painter.fillRect(place, mixed(behind_column(colours, column), colours.accent, 0.2));
        } else if (column_marks_[std::size_t(column)].tint) {
            painter.fillRect(place, behind_column(colours, column));
        }
        painter.setPen(colours.line);
        painter.drawLine(place.bottomLeft(), place.bottomRight());
        painter.drawLine(place.topRight(), place.bottomRight());
        painter.setPen(isEnabled() ? text : colours.edge);
        painter.drawText(place.adjusted(cell_margin, 0, -cell_margin, 0),
                         Qt::AlignVCenter | Qt::AlignLeft | Qt::TextSingleLine, row.cut[at]);
        if (hasFocus() && cell == current_) {
            painter.setPen(QPen(colours.text, 1, Qt::DotLine));
            painter.drawRect(place.adjusted(1, 1, -2, -2));
        }
    }
}

void GridWidget::paint_headings(QPainter& painter, const Colours& colours) const {
    painter.fillRect(0, 0, viewport()->width(), heading_height(), colours.page);
    painter.setPen(colours.line);
    painter.drawLine(0, heading_height() - 1, viewport()->width(), heading_height() - 1);
    if (shares_width_ && rows_ == 0) return;  // nothing is known of the columns yet
    painter.fillRect(0, 0, row_heading_, viewport()->height(), colours.page);
    painter.drawLine(row_heading_ - 1, 0, row_heading_ - 1, viewport()->height());
    const bool found_none = has_found_none();
    for (const ShownRow& row : page_) {
        if (row.height <= 0 || found_none) continue;
        painter.setPen(colours.line);
        painter.drawLine(0, row.top + row.height - 1, row_heading_, row.top + row.height - 1);
        painter.setPen(colours.quiet);
        painter.drawText(QRect(0, row.top, row_heading_ - cell_margin, row.height),
                         Qt::AlignVCenter | Qt::AlignRight,
                         QString::number(row.row - fixed_rows_ + 1));
    }
    painter.setClipRect(row_heading_, 0, viewport()->width(), heading_height());
    const int behind = columns_shown_to();
    for (int column = first_column_; column < behind; ++column) {
        const ColumnMark& mark = column_marks_[std::size_t(column)];
        const QRect place(column_left(column), 0, column_width(column), heading_height() - 1);
        if (mark.tint) painter.fillRect(place, tint(colours, *mark.tint));
        painter.setPen(colours.line);
        painter.drawLine(place.topRight(), place.bottomRight());
        const QRect room = place.adjusted(cell_margin, 2, -cell_margin / 2, -2);
        const auto fitting = [&](const QString& text) {
            return painter.fontMetrics().elidedText(text, Qt::ElideRight, room.width());
        };
        painter.setPen(colours.quiet);
        if (!marks_) {
            painter.drawText(room, Qt::AlignVCenter | Qt::TextSingleLine,
                             fitting(heading_of(column)));
            continue;
        }
        painter.drawText(room, Qt::AlignTop | Qt::TextSingleLine, QString::number(column + 1));
        painter.setPen(colours.text);
        painter.setFont(caption_font());
        painter.drawText(room, Qt::AlignBottom | Qt::TextSingleLine, fitting(mark.caption));
        painter.setFont(font());
    }
    painter.setClipping(false);
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
    if (cell.column < first_column_ || cell.column >= columns_shown_to()) return {};
    const QRect room = viewport()->rect().adjusted(row_heading_, 0, 0, 0);
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
    if (cell.column >= columns_) return;
    const int room = viewport()->width() - row_heading_;
    const int left = lefts_[std::size_t(cell.column)];
    const int right = lefts_[std::size_t(cell.column) + 1];
    if (left < x_ || right - left > room) {
        horizontalScrollBar()->setValue(left);
    } else if (right > x_ + room) {
        horizontalScrollBar()->setValue(right - room);
    }
}

std::optional<QString> GridWidget::text_on_screen(GridCell cell) const {
    const int at = cell.column - first_column_;
    for (const ShownRow& row : page_) {
        if (row.row != cell.row) continue;
        if (at < 0 || at >= static_cast<int>(row.texts.size())) break;
        return row.texts[std::size_t(at)];
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
            const int column = first_column_ + static_cast<int>(at);
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
