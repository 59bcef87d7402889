// The cells of a grid: rows of text, up to millions of them.
//
// A file that is loaded is kept as it came, once; a row is a place in it, and is cut into cells
// when it is asked for. Only cells that have been changed since hold a text of their own.
#pragma once

#include <cstdint>
#include <memory>
#include <span>
#include <string_view>
#include <vector>

#include "platform/files.h"

namespace brooklander {

// The cells of one row, taken apart. The texts are those of the grid and live until it changes, or
// whatever was put in their place.
class RowCells {
  public:
    // The text of a column, counted from 0; empty beyond the last.
    std::string_view operator[](int column) const {
        const auto index = static_cast<std::size_t>(column);
        return index < cells_.size() ? cells_[index] : std::string_view{};
    }

    // Puts another text into a column that the row has. The text must outlive the use of the row.
    void set(int column, std::string_view text);

  private:
    friend class TextGrid;

    std::vector<std::string_view> cells_;
    std::vector<std::uint32_t> own_;  // the columns whose text is not that of the loaded file
};

class TextGrid {
  public:
    // Behind every cell of a row read from the grid stand this many bytes that may be read, too; an
    // empty cell may have no place at all.
    static constexpr std::size_t slack = 16;

    explicit TextGrid(int columns) : columns_(columns) {}

    int rows() const { return static_cast<int>(rows_.size()); }
    int columns() const { return columns_; }

    // Rows that are added are empty; rows beyond the new count are gone for good.
    void set_rows(int rows);

    // For grids without rows. What cells of columns beyond the new count hold when such columns
    // come back is open.
    void set_columns(int columns) { columns_ = columns; }

    // The text of a cell, both counted from 0; empty outside the grid. It lives until the grid
    // changes.
    std::string_view cell(int row, int column) const;

    // Assigns a cell; any bytes are text. Outside the grid nothing happens.
    void set_cell(int row, int column, std::string_view text);

    // Adds a row at the end from a text that its tabs cut into cells; pieces beyond the last column
    // are dropped.
    void add_row(std::string_view tabbed);

    // Empties all cells; the rows and columns stay.
    void clear();

    // Replaces all rows with the lines of a text (see LineReader), each cut into cells as add_row()
    // cuts. Lines beyond what an int can count are left out.
    void load(FileText text);

    // Takes a row that is there apart.
    void read_row(int row, RowCells& cells) const;

    // Puts a row back, as read and changed.
    void write_row(int row, const RowCells& cells);

  private:
    // Where a row is: a place in base_ from 0 on, or the complement of a place in own_, or nowhere.
    using Place = std::int64_t;
    static constexpr Place nowhere = INT64_MIN;

    static bool is_own(Place place) { return place < 0 && place != nowhere; }
    const char* own_row(Place place) const { return own_[static_cast<std::size_t>(~place)].get(); }
    Place base_of(Place place) const;
    bool has(int row, int column) const {
        return row >= 0 && row < rows() && column >= 0 && column < columns_;
    }

    int columns_;
    std::vector<Place> rows_;
    FileText base_;
    std::vector<std::unique_ptr<char[]>> own_;  // changed rows: see OwnHead in the source
};

}  // namespace brooklander
