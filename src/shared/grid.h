// Grids: tables of text with a current cell, on a screen.
#pragma once

#include <functional>
#include <initializer_list>
#include <map>
#include <optional>
#include <string_view>
#include <vector>

#include "shared/fields.h"
#include "shared/grid_cell.h"
#include "shared/text_grid.h"

namespace brooklander {

// What a click marks.
enum class Selection { free, by_row, by_column };

// When the marked cells are shown as marked.
enum class Highlight { never, always, with_focus };

enum class Alignment { standard, left };

// How a grid starts: without rows, unless told otherwise.
struct GridShape {
    int columns = 2;
    int fixed_rows = 0;
    int fixed_columns = 0;
};

// Rows, columns and cells are counted from 0. Widths and heights are in twips.
class Grid : public PlacedField {
  public:
    static constexpr int standard_width = 960;
    static constexpr int standard_height = 240;

    Grid(Field& container, std::string_view name, GridShape shape = {}, Start start = shown)
        : PlacedField(FieldKind::grid, container, name, {}, start),
          cells_(shape.columns),
          fixed_rows_(shape.fixed_rows),
          fixed_columns_(shape.fixed_columns) {}

    std::function<void()> on_click;  // the clicked cell is the current one
    // In grids that are typed into: what a key does there. False for a key that does what it does
    // in other grids.
    std::function<bool(Key)> on_key;
    // When another cell becomes the current one, by a user or by a step: for the one that was, and
    // then, the other being current, for the one that is. A table that shrinks runs neither.
    std::function<void(GridCell)> on_leave;
    std::function<void(GridCell)> on_enter;

    // Reading. A cell outside the grid reads empty; texts live until the grid changes.
    int rows() const { return cells_.rows(); }
    int columns() const { return cells_.columns(); }
    std::string_view cell(int row, int column) const { return cells_.cell(row, column); }
    void read_row(int row, RowCells& cells) const { cells_.read_row(row, cells); }

    // Changing. Clearing empties the cells and keeps the rows; set_rows() alone removes rows, and
    // with them their heights.
    void set_rows(int rows);
    void set_columns(int columns);
    void set_cell(int row, int column, std::string_view text);
    void add_row(std::string_view tabbed);
    void clear();
    void load(FileText text);

    // Puts a row back without telling observers, for steps that change many rows; one of the
    // others, or refreshed(), follows when they are done.
    void write_row(int row, const RowCells& cells) { cells_.write_row(row, cells); }
    void refreshed() { changed(); }

    // The current cell. Outside the grid there is none to make current: a FatalFailure.
    GridCell current() const { return current_; }
    void make_current(GridCell cell);
    std::string_view current_text() const { return cell(current_.row, current_.column); }

    int fixed_rows() const { return fixed_rows_; }
    int fixed_columns() const { return fixed_columns_; }

    // The current cell leaves the rows that are fixed, as far as there are others.
    void set_fixed_rows(int rows);

    int column_width(int column) const;
    void set_column_width(int column, int twips);
    void set_column_widths(std::initializer_list<int> twips);  // from column 0 on
    int row_height(int row) const;
    void set_row_height(int row, int twips);
    Alignment column_alignment(int column) const;
    void set_column_alignment(int column, Alignment alignment);
    int top() const { return top_; }  // how far down in its panel it stands, in twips
    void set_top(int twips);

    // The first row shown below the fixed ones, where a step has scrolled.
    int top_row() const { return top_row_; }
    void set_top_row(int row);

    // A cell's background as 0xBBGGRR; nothing where it is the window's own.
    std::optional<int> cell_colour(GridCell cell) const;
    void set_cell_colour(GridCell cell, std::optional<int> colour);

    Selection selection() const { return selection_; }
    void set_selection(Selection selection);
    Highlight highlight() const { return highlight_; }
    void set_highlight(Highlight highlight);

    // A user's click on a cell that is there. In a fixed row it does nothing.
    void click_cell(GridCell cell);

    // A user's key at the current cell. Unless on_key takes it, arrows move the current cell by a
    // step, and Enter or the space bar clicks it.
    void press_key(Key key);

    // A user's way to another cell, where more than an arrow key leads there: by pages, or to an
    // end of the grid. The cell is one of the grid's.
    void move_to(GridCell cell);

    // Where a user's step by one row or one column leads from a cell: among the rows and columns
    // that are not fixed, and from a fixed cell, where a step of the program may have left the
    // current one, out to them. The cell itself where there is no such way.
    GridCell step_from(GridCell cell, int rows_down, int columns_right) const;

  private:
    void keep_current_inside();

    TextGrid cells_;
    int fixed_rows_;
    int fixed_columns_;
    GridCell current_;
    std::map<int, int> widths_;
    std::map<int, int> heights_;
    std::map<int, Alignment> alignments_;
    std::map<GridCell, int> colours_;
    int top_ = 0;
    int top_row_ = 0;
    Selection selection_ = Selection::free;
    Highlight highlight_ = Highlight::always;
};

}  // namespace brooklander
