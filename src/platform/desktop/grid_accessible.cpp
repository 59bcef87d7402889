#include "platform/desktop/grid_accessible.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QPointer>
#include <map>

#include "platform/desktop/grid_widget.h"

namespace brooklander::desktop {
namespace {

// Cells are made when they are asked for, and all let go when there are this many.
constexpr std::size_t most_cells = 2000;

// A cell, counted as the widget shows it: row 0 is the first below the headings.
class AccessibleCell : public QAccessibleInterface,
                       public QAccessibleTableCellInterface,
                       public QAccessibleActionInterface {
  public:
    AccessibleCell(GridWidget* grid, GridCell cell) : grid_(grid), cell_(cell) {}

    bool isValid() const override {
        return !grid_.isNull() && cell_.row < grid_->shown_rows() &&
               cell_.column < grid_->shown_columns();
    }
    QObject* object() const override { return nullptr; }
    QAccessibleInterface* childAt(int /*x*/, int /*y*/) const override { return nullptr; }
    QAccessibleInterface* parent() const override { return table(); }
    QAccessibleInterface* child(int /*index*/) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface* /*child*/) const override { return -1; }

    QString text(QAccessible::Text which) const override {
        if (!isValid() || (which != QAccessible::Name && which != QAccessible::Value)) return {};
        return shown(grid_->grid().cell(in_grid().row, in_grid().column));
    }
    void setText(QAccessible::Text /*which*/, const QString& /*text*/) override {}

    QRect rect() const override {
        if (!isValid()) return {};
        const QRect place = grid_->cell_place(in_grid());
        return {grid_->viewport()->mapToGlobal(place.topLeft()), place.size()};
    }
    QAccessible::Role role() const override { return QAccessible::Cell; }
    QAccessible::State state() const override {
        QAccessible::State state;
        state.focusable = true;
        state.selectable = true;
        state.selected = isSelected();
        state.focused = isSelected() && grid_->hasFocus();
        state.invisible = !isValid() || grid_->cell_place(in_grid()).isEmpty();
        return state;
    }

    bool isSelected() const override { return isValid() && grid_->grid().current() == in_grid(); }
    QList<QAccessibleInterface*> columnHeaderCells() const override { return {}; }
    QList<QAccessibleInterface*> rowHeaderCells() const override { return {}; }
    int columnIndex() const override { return cell_.column; }
    int rowIndex() const override { return cell_.row; }
    int columnExtent() const override { return 1; }
    int rowExtent() const override { return 1; }
    QAccessibleInterface* table() const override {
        return grid_.isNull() ? nullptr : QAccessible::queryAccessibleInterface(grid_);
    }

    // A screen reader presses a cell as the mouse clicks it.
    QStringList actionNames() const override { return {pressAction()}; }
    void doAction(const QString& action) override {
        if (action == pressAction() && isValid() && grid_->on_click) grid_->on_click(in_grid());
    }
    QStringList keyBindingsForAction(const QString& /*action*/) const override { return {}; }

    void* interface_cast(QAccessible::InterfaceType type) override {
        switch (type) {
            case QAccessible::TableCellInterface:
                return static_cast<QAccessibleTableCellInterface*>(this);
            case QAccessible::ActionInterface:
                return static_cast<QAccessibleActionInterface*>(this);
            default: return nullptr;
        }
    }

  private:
    GridCell in_grid() const { return {cell_.row + grid_->headings(), cell_.column}; }

    QPointer<GridWidget> grid_;
    GridCell cell_;
};

class AccessibleGrid : public QAccessibleWidget, public QAccessibleTableInterface {
  public:
    explicit AccessibleGrid(GridWidget* grid)
        : QAccessibleWidget(grid, QAccessible::Table), grid_(*grid) {}
    AccessibleGrid(const AccessibleGrid&) = delete;
    AccessibleGrid& operator=(const AccessibleGrid&) = delete;
    ~AccessibleGrid() override { let_go(); }

    QAccessibleInterface* caption() const override { return nullptr; }
    QAccessibleInterface* summary() const override { return nullptr; }

    QAccessibleInterface* cellAt(int row, int column) const override {
        if (row < 0 || row >= rowCount() || column < 0 || column >= columnCount()) return nullptr;
        const auto known = cells_.find({row, column});
        if (known != cells_.end()) return QAccessible::accessibleInterface(known->second);
        if (cells_.size() >= most_cells) let_go();
        // The toolkit keeps what is registered until it is told to delete it.
        auto* const cell = new AccessibleCell(&grid_, {row, column});
        cells_[{row, column}] = QAccessible::registerAccessibleInterface(cell);
        return cell;
    }

    int selectedCellCount() const override { return rowCount() > 0 ? 1 : 0; }
    QList<QAccessibleInterface*> selectedCells() const override {
        QAccessibleInterface* const current = current_cell();
        return current == nullptr ? QList<QAccessibleInterface*>() : QList{current};
    }
    // The numbers come from another program. What is said is what stands in the headings.
    QString columnDescription(int column) const override {
        return column < 0 || column >= columnCount() ? QString() : grid_.heading_text(column);
    }
    QString rowDescription(int row) const override {
        return row < 0 || row >= rowCount() ? QString() : grid_.row_heading_text(row);
    }
    int selectedColumnCount() const override { return 0; }
    int selectedRowCount() const override { return 0; }
    int columnCount() const override { return grid_.shown_columns(); }
    int rowCount() const override { return grid_.shown_rows(); }
    QList<int> selectedColumns() const override { return {}; }
    QList<int> selectedRows() const override { return {}; }
    bool isColumnSelected(int /*column*/) const override { return false; }
    bool isRowSelected(int /*row*/) const override { return false; }
    bool selectRow(int /*row*/) override { return false; }
    bool selectColumn(int /*column*/) override { return false; }
    bool unselectRow(int /*row*/) override { return false; }
    bool unselectColumn(int /*column*/) override { return false; }
    void modelChange(QAccessibleTableModelChangeEvent* /*event*/) override {}

    QAccessibleInterface* child(int index) const override {
        return columnCount() == 0 ? nullptr : cellAt(index / columnCount(), index % columnCount());
    }
    int childCount() const override {
        const qint64 cells = qint64{rowCount()} * columnCount();
        return static_cast<int>(std::min<qint64>(cells, std::numeric_limits<int>::max()));
    }
    int indexOfChild(const QAccessibleInterface* child) const override {
        const auto* const cell = dynamic_cast<const AccessibleCell*>(child);
        return cell == nullptr ? -1 : cell->rowIndex() * columnCount() + cell->columnIndex();
    }
    QAccessibleInterface* focusChild() const override {
        return grid_.hasFocus() ? current_cell() : nullptr;
    }

    void* interface_cast(QAccessible::InterfaceType type) override {
        return type == QAccessible::TableInterface ? static_cast<QAccessibleTableInterface*>(this)
                                                   : QAccessibleWidget::interface_cast(type);
    }

  private:
    QAccessibleInterface* current_cell() const {
        const GridCell current = grid_.grid().current();
        return cellAt(current.row - grid_.headings(), current.column);
    }

    void let_go() const {
        for (const auto& [cell, id] : cells_) QAccessible::deleteAccessibleInterface(id);
        cells_.clear();
    }

    GridWidget& grid_;
    mutable std::map<std::pair<int, int>, QAccessible::Id> cells_;
};

QAccessibleInterface* accessible_of(const QString& /*class_name*/, QObject* object) {
    auto* const grid = dynamic_cast<GridWidget*>(object);
    return grid == nullptr ? nullptr : new AccessibleGrid(grid);  // the toolkit owns it
}

}  // namespace

void make_grids_accessible() { QAccessible::installFactory(accessible_of); }

}  // namespace brooklander::desktop
