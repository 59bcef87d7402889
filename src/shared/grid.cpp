#include "shared/grid.h"

#include <algorithm>
#include <utility>

#include "platform/fatal_failure.h"

namespace brooklander {
namespace {

template <typename Value>
Value value_at(const std::map<int, Value>& values, int index, Value standard) {
    const auto found = values.find(index);
    return found == values.end() ? standard : found->second;
}

}  // namespace

void Grid::set_rows(int rows) {
    cells_.set_rows(rows);
    heights_.erase(heights_.lower_bound(cells_.rows()), heights_.end());
    colours_.erase(colours_.lower_bound({cells_.rows(), 0}), colours_.end());
    keep_current_inside();
    changed();
}

void Grid::set_columns(int columns) {
    cells_.set_columns(columns);
    keep_current_inside();
    changed();
}

void Grid::set_cell(int row, int column, std::string_view text) {
    cells_.set_cell(row, column, text);
    changed();
}

void Grid::add_row(std::string_view tabbed) {
    cells_.add_row(tabbed);
    changed();
}

void Grid::clear() {
    cells_.clear();
    changed();
}

void Grid::load(FileText text) {
    heights_.clear();
    colours_.clear();
    cells_.load(std::move(text));
    keep_current_inside();
    changed();
}

void Grid::make_current(GridCell cell) {
    const bool inside =
        cell.row >= 0 && cell.row < rows() && cell.column >= 0 && cell.column < columns();
    if (!inside) {
        throw FatalFailure("The table has no cell in row " + std::to_string(cell.row + 1) +
                           ", column " + std::to_string(cell.column + 1) + ".");
    }
    if (current_ == cell) return;
    if (on_leave) on_leave(current_);
    current_ = cell;
    changed();
    if (on_enter) on_enter(current_);
}

void Grid::keep_current_inside() {
    current_.row = std::max(0, std::min(current_.row, rows() - 1));
    current_.column = std::max(0, std::min(current_.column, columns() - 1));
}

void Grid::set_fixed_rows(int rows) {
    fixed_rows_ = rows;
    if (current_.row < rows && rows < this->rows()) current_.row = rows;
    changed();
}

int Grid::column_width(int column) const { return value_at(widths_, column, standard_width); }

void Grid::set_column_width(int column, int twips) {
    widths_[column] = twips;
    changed();
}

void Grid::set_column_widths(std::initializer_list<int> twips) {
    int column = 0;
    for (const int width : twips) set_column_width(column++, width);
}

int Grid::row_height(int row) const { return value_at(heights_, row, standard_height); }

void Grid::set_row_height(int row, int twips) {
    if (row < 0 || row >= rows()) return;
    heights_[row] = twips;
    changed();
}

Alignment Grid::column_alignment(int column) const {
    return value_at(alignments_, column, Alignment::standard);
}

void Grid::set_column_alignment(int column, Alignment alignment) {
    alignments_[column] = alignment;
    changed();
}

void Grid::set_top(int twips) {
    top_ = twips;
    changed();
}

void Grid::set_top_row(int row) {
    top_row_ = row;
    changed();
}

std::optional<int> Grid::cell_colour(GridCell cell) const {
    const auto found = colours_.find(cell);
    if (found == colours_.end()) return std::nullopt;
    return found->second;
}

void Grid::set_cell_colour(GridCell cell, std::optional<int> colour) {
    if (colour) {
        colours_.insert_or_assign(cell, *colour);
    } else {
        colours_.erase(cell);
    }
    changed();
}

void Grid::set_selection(Selection selection) {
    selection_ = selection;
    changed();
}

void Grid::set_highlight(Highlight highlight) {
    highlight_ = highlight;
    changed();
}

void Grid::click_cell(GridCell cell) {
    const ByUser by_user(*this, CellClicked{cell});
    set_focus();
    if (cell.row < fixed_rows_) return;
    make_current(cell);
    run(on_click);
}

void Grid::press_key(Key key) {
    const ByUser by_user(*this, KeyPressed{key});
    set_focus();
    if (on_key && on_key(key)) return;
    const auto step = [this](int rows_down, int columns_right) {
        const GridCell next = step_from(current_, rows_down, columns_right);
        if (next != current_) make_current(next);  // an empty grid has no current cell to take
    };
    switch (key.name) {
        case Key::Name::up: step(-1, 0); break;
        case Key::Name::down: step(1, 0); break;
        case Key::Name::left: step(0, -1); break;
        case Key::Name::right: step(0, 1); break;
        case Key::Name::character:
            if (key.character != ' ') break;
            [[fallthrough]];
        case Key::Name::enter:
            if (current_.row < rows()) click_cell(current_);
            break;
        case Key::Name::erase:
        case Key::Name::backspace:
        case Key::Name::tab:
        case Key::Name::escape: break;
    }
}

void Grid::move_to(GridCell cell) {
    const ByUser by_user(*this, MovedTo{cell});
    set_focus();
    make_current(cell);
}

GridCell Grid::step_from(GridCell cell, int rows_down, int columns_right) const {
    GridCell target{cell.row + rows_down, cell.column + columns_right};
    if (rows_down >= 0) target.row = std::max(target.row, fixed_rows_);
    if (columns_right >= 0) target.column = std::max(target.column, fixed_columns_);
    const bool inside = target.row >= fixed_rows_ && target.row < rows() &&
                        target.column >= fixed_columns_ && target.column < columns();
    return inside ? target : cell;
}

}  // namespace brooklander
