// What mouse and keyboard do in a grid.
#include <QHelpEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QScrollArea>
#include <QScrollBar>
#include <QToolTip>
#include <algorithm>
#include <array>
#include <utility>

#include "platform/desktop/grid_widget.h"

namespace brooklander::desktop {
namespace {

constexpr int border_reach = 3;
constexpr int narrowest = 16;

constexpr std::array<std::pair<int, Key>, 10> named_keys{{
    {Qt::Key_Return, {Key::Name::enter}},
    {Qt::Key_Enter, {Key::Name::enter}},
    {Qt::Key_Delete, {Key::Name::erase}},
    {Qt::Key_Backspace, {Key::Name::backspace}},
    {Qt::Key_Up, {Key::Name::up}},
    {Qt::Key_Down, {Key::Name::down}},
    {Qt::Key_Left, {Key::Name::left}},
    {Qt::Key_Right, {Key::Name::right}},
    {Qt::Key_Escape, {Key::Name::escape}},
    {Qt::Key_Space, Key::of(' ')},
}};

std::optional<Key> key_of(const QKeyEvent& event) {
    for (const auto& [code, key] : named_keys) {
        if (code == event.key()) return key;
    }
    const bool types = (event.modifiers() & (Qt::ControlModifier | Qt::AltModifier)) == 0 ||
                       (event.modifiers() & Qt::GroupSwitchModifier) != 0;
    if (!types || event.text().isEmpty() || !can_be_typed(event.text())) return std::nullopt;
    return Key::of(typed(event.text()).front());
}

}  // namespace

int GridWidget::column_at(int x) const {
    if (x < row_heading_) return -1;
    if (x < scrolled_left()) return 0;
    for (int column = first_column_; column < columns_; ++column) {
        if (x < column_left(column) + column_width(column)) {
            return x >= column_left(column) ? column : -1;
        }
    }
    return -1;
}

// A heading without a fixed row stands for its column where columns are chosen, a row number for
// its row where rows are; both are clicked in the first cell in sight.
std::optional<GridCell> GridWidget::cell_at(QPoint point) const {
    int column = column_at(point.x());
    if (point.y() < heading_height()) {
        if (column < 0) return std::nullopt;
        if (fixed_rows_ > 0) return GridCell{0, column};
        if (grid_.selection() != Selection::by_column || page_.empty()) return std::nullopt;
        return GridCell{page_.front().row, column};
    }
    if (point.x() < row_heading_ && grid_.selection() == Selection::by_row) {
        column = kept_width() > 0 ? 0 : first_column_;
    }
    if (column < 0 || column >= columns_) return std::nullopt;
    for (const ShownRow& row : page_) {
        if (point.y() < row.top + row.height) return GridCell{row.row, column};
    }
    return std::nullopt;
}

// The column whose right border in the headings can be dragged at a point.
std::optional<int> GridWidget::border_at(QPoint point) const {
    if (point.y() >= heading_height() || point.x() < row_heading_) return std::nullopt;
    if (kept_width() > 0 && std::abs(point.x() - scrolled_left()) <= border_reach) return 0;
    for (int column = first_column_; column < columns_; ++column) {
        const int border = column_left(column) + column_width(column);
        if (border > scrolled_left() && column_width(column) > 0 &&
            std::abs(point.x() - border) <= border_reach)
            return column;
    }
    return std::nullopt;
}

void GridWidget::mousePressEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton) return;
    dragged_column_ = border_at(event->pos());
    pressed_ = dragged_column_ ? std::nullopt : cell_at(event->pos());
}

void GridWidget::mouseMoveEvent(QMouseEvent* event) {
    if (dragged_column_) {
        int width = event->pos().x() - column_left(*dragged_column_);
        // Any wider, it would be kept no more, and be off with its border while the others are
        // scrolled.
        if (is_kept(*dragged_column_)) width = std::min(width, widest_kept());
        widths_by_hand_[*dragged_column_] = std::max(narrowest, width);
        measure();
        read_page();
        viewport()->update();
        return;
    }
    viewport()->setCursor(border_at(event->pos()) ? Qt::SplitHCursor : Qt::ArrowCursor);
}

void GridWidget::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton) return;
    dragged_column_.reset();
    const auto pressed = std::exchange(pressed_, std::nullopt);
    if (pressed && cell_at(event->pos()) == pressed && on_click) on_click(*pressed);
}

void GridWidget::keyPressEvent(QKeyEvent* event) {
    const bool with_control = (event->modifiers() & Qt::ControlModifier) != 0;
    // Where Enter and the space bar are typed, they click the cell together with Ctrl.
    const bool is_click = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter ||
                          event->key() == Qt::Key_Space;
    if (grid_.on_key && with_control && is_click && data_rows() > 0 && on_click) {
        on_click(current_);
        return;
    }
    GridCell target = current_;
    if (data_rows() > 0) {
        switch (event->key()) {
            case Qt::Key_PageUp: target.row -= rows_in_view(); break;
            case Qt::Key_PageDown: target.row += rows_in_view(); break;
            case Qt::Key_Home:
                target.column = 0;
                if (with_control) target.row = 0;
                break;
            case Qt::Key_End:
                target.column = columns_ - 1;
                if (with_control) target.row = rows_ - 1;
                break;
            default: break;
        }
        const bool leads_on = event->key() == Qt::Key_PageUp || event->key() == Qt::Key_PageDown ||
                              event->key() == Qt::Key_Home || event->key() == Qt::Key_End;
        if (leads_on && on_move) {
            target.row = std::clamp(target.row, fixed_rows_, rows_ - 1);
            target.column = std::max(target.column, grid_.fixed_columns());
            on_move(target);
            show_current_cell();
            return;
        }
    }
    if (const auto key = key_of(*event); key && on_key) {
        on_key(*key);
        show_current_cell();
        return;
    }
    event->ignore();
}

// A border that is clicked twice goes back to where the widget would have it.
void GridWidget::mouseDoubleClickEvent(QMouseEvent* event) {
    const auto column = border_at(event->pos());
    if (!column) {
        mousePressEvent(event);
        return;
    }
    widths_by_hand_.erase(*column);
    measure();
    read_page();
    viewport()->update();
}

// With Shift the wheel scrolls sideways.
void GridWidget::wheelEvent(QWheelEvent* event) {
    if ((event->modifiers() & Qt::ShiftModifier) == 0) {
        QAbstractScrollArea::wheelEvent(event);
        return;
    }
    const int notches = event->angleDelta().y() / QWheelEvent::DefaultDeltasPerStep;
    QScrollBar* const bar = horizontalScrollBar();
    bar->setValue(bar->value() - notches * 3 * bar->singleStep());
    event->accept();
}

// In the viewport, and on the page, where the window is too small to show the whole grid.
void GridWidget::show_current_cell() {
    const GridCell current = grid_.current();
    bring_into_view(current);
    for (QWidget* at = parentWidget(); at != nullptr; at = at->parentWidget()) {
        auto* const area = qobject_cast<QScrollArea*>(at);
        if (area == nullptr) continue;
        const QPoint centre = cell_place(current).center();
        const QPoint on_page = viewport()->mapTo(area->widget(), centre);
        area->ensureVisible(on_page.x(), on_page.y(), row_height_, row_height_);
        return;
    }
}

bool GridWidget::viewportEvent(QEvent* event) {
    if (event->type() != QEvent::ToolTip) return QAbstractScrollArea::viewportEvent(event);
    const auto* const help = static_cast<QHelpEvent*>(event);
    const int column = column_at(help->pos().x());
    const auto cell = cell_at(help->pos());
    QString text;
    if (help->pos().y() < heading_height()) {
        if (column >= 0) text = heading_of(column);
    } else if (cell) {
        text = text_on_screen(*cell).value_or(QString());
    }
    const bool is_cut =
        column >= 0 && fontMetrics().horizontalAdvance(text) > column_width(column) - 16;
    QToolTip::showText(help->globalPos(), is_cut ? tip(text) : QString(), viewport());
    return true;
}

}  // namespace brooklander::desktop
