// What stands above the columns of a grid and beside its rows.
#include <QPainter>
#include <algorithm>
#include <utility>

#include "platform/desktop/grid_widget.h"

namespace brooklander::desktop {

bool HeadingNames::set(int place, const QString& name) {
    if (at(place) == name) return false;
    if (name.isEmpty()) {
        names_.erase(place);
    } else {
        names_[place] = name;
    }
    return true;
}

QString HeadingNames::at(int place) const {
    const auto found = names_.find(place);
    return found == names_.end() ? QString() : found->second;
}

void GridWidget::name_columns(int first, const QStringList& names) {
    bool changed = false;
    for (const QString& name : names) changed = column_names_.set(first++, name) || changed;
    if (changed) follow();
}

void GridWidget::name_row(int row, const QString& name) {
    if (row_names_.set(row, name)) follow();
}

void GridWidget::drop_row_numbers() { numbers_rows_ = false; }

// A little smaller than the cells', so that more of a caption fits.
QFont GridWidget::caption_font() const {
    QFont smaller = font();
    if (smaller.pointSizeF() > 2) smaller.setPointSizeF(smaller.pointSizeF() - 1);
    return smaller;
}

// A list that is answered by a query has its columns from there, unless they are named.
bool GridWidget::knows_columns() const {
    return !shares_width_ || rows_ > 0 || !column_names_.empty();
}

QString GridWidget::heading_of(int column) const {
    if (QString name = column_name(column); !name.isEmpty()) return name;
    if (fixed_rows_ > 0) return shown(grid_.cell(0, column));
    if (!knows_columns()) return {};
    const QString& caption = column_marks_[std::size_t(column)].caption;
    const QString number = QString::number(column + 1);
    return caption.isEmpty() ? number : number + QStringLiteral("  ") + caption;
}

QString GridWidget::row_heading_of(int row) const {
    const QString name = row_name(row);
    return name.isEmpty() && numbers_rows_ ? QString::number(row - fixed_rows_ + 1) : name;
}

int GridWidget::width_of_row_headings() const {
    int width =
        numbers_rows_ ? fontMetrics().horizontalAdvance(QString::number(std::max(1, rows_))) : 0;
    for (const auto& [row, name] : row_names_.all()) {
        width = std::max(width, fontMetrics().horizontalAdvance(name));
    }
    return width == 0 ? 0 : width + 2 * cell_margin;
}

void GridWidget::paint_headings(QPainter& painter, const Colours& colours) const {
    painter.fillRect(0, 0, viewport()->width(), heading_height(), colours.page);
    painter.setPen(colours.line);
    painter.drawLine(0, heading_height() - 1, viewport()->width(), heading_height() - 1);
    if (!knows_columns()) return;
    if (row_heading_ > 0) {
        painter.fillRect(0, 0, row_heading_, viewport()->height(), colours.page);
        painter.drawLine(row_heading_ - 1, 0, row_heading_ - 1, viewport()->height());
    }
    const bool found_none = has_found_none();
    for (const ShownRow& row : page_) {
        if (row.height <= 0 || found_none) continue;
        painter.setPen(colours.line);
        painter.drawLine(0, row.top + row.height - 1, row_heading_, row.top + row.height - 1);
        painter.setPen(colours.quiet);
        painter.drawText(QRect(0, row.top, row_heading_ - cell_margin, row.height),
                         Qt::AlignVCenter | Qt::AlignRight, row_heading_of(row.row));
    }
    painter.setClipRect(row_heading_, 0, viewport()->width(), heading_height());
    for (const int column : page_columns_) {
        const ColumnMark& mark = column_marks_[std::size_t(column)];
        const QRect place(column_left(column), 0, column_width(column), heading_height() - 1);
        if (is_kept(column)) painter.fillRect(place, colours.page);
        if (mark.tint) painter.fillRect(place, tint(colours, *mark.tint));
        painter.setPen(right_of_column(colours, column));
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

namespace {

// Columns or rows, whichever a label names.
struct Headings {
    void (GridWidget::*put)(int place, const QString& name);
    QString (GridWidget::*name)(int place) const;
};
constexpr Headings columns{&GridWidget::name_column, &GridWidget::column_name};
constexpr Headings rows{&GridWidget::name_row, &GridWidget::row_name};

// A label that is drawn in the headings of a grid, and has no widget of its own.
class HeadingView final : public FieldView {
  public:
    HeadingView(Label& label, GridWidget* grid, const Headings& headings, int place,
                QString otherwise)
        : label_(label),
          grid_(grid),
          headings_(headings),
          place_(place),
          otherwise_(std::move(otherwise)) {}

    Field& field() const override { return label_; }
    QWidget* widget() const override { return nullptr; }
    void follow() override { (grid_->*headings_.put)(place_, wanted()); }
    QString difference() const override {
        const QString stands = (grid_->*headings_.name)(place_);
        if (stands == wanted()) return {};
        return QStringLiteral("says \"%1\" in the headings").arg(stands);
    }

  private:
    QString wanted() const { return label_.visible() ? shown(label_.text()) : otherwise_; }

    Label& label_;
    GridWidget* grid_;
    Headings headings_;
    int place_;  // of the column or row, from 0
    QString otherwise_;
};

}  // namespace

std::unique_ptr<FieldView> column_name_view(Label& label, GridWidget* grid, int column,
                                            const QString& otherwise) {
    return std::make_unique<HeadingView>(label, grid, columns, column, otherwise);
}

std::unique_ptr<FieldView> row_name_view(Label& label, GridWidget* grid, int row) {
    return std::make_unique<HeadingView>(label, grid, rows, row, QString());
}

}  // namespace brooklander::desktop
