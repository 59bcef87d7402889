// How the cells of a grid look, and what it says in place of rows.
#include <QPainter>

#include "platform/desktop/grid_widget.h"

namespace brooklander::desktop {

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
        painter.drawText(
            viewport()->rect().adjusted(16 + row_heading_, 16 + heading_height(), -16, -16),
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

// What is scrolled vanishes behind a stronger line.
QColor GridWidget::right_of_column(const Colours& colours, int column) const {
    return is_kept(column) && x_ > 0 ? colours.edge : colours.line;
}

void GridWidget::paint_row(QPainter& painter, const Colours& colours, const ShownRow& row) const {
    if (row.height <= 0) return;
    for (std::size_t at = 0; at < row.texts.size(); ++at) {
        const int column = page_columns_[at];
        const GridCell cell{row.row, column};
        const QRect place(column_left(column), row.top, column_width(column), row.height);
        if (is_kept(column)) painter.fillRect(place, colours.card);
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
        painter.setPen(right_of_column(colours, column));
        painter.drawLine(place.topRight(), place.bottomRight());
        painter.setPen(isEnabled() ? text : colours.faint);
        painter.drawText(place.adjusted(cell_margin, 0, -cell_margin, 0),
                         Qt::AlignVCenter | Qt::AlignLeft | Qt::TextSingleLine, row.cut[at]);
        if (hasFocus() && cell == current_) {
            painter.setPen(QPen(colours.text, 1, Qt::DotLine));
            painter.drawRect(place.adjusted(1, 1, -2, -2));
        }
    }
}

}  // namespace brooklander::desktop
