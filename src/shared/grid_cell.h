// A place in a grid.
#pragma once

namespace brooklander {

// Rows and columns are counted from 0.
struct GridCell {
    int row = 0;
    int column = 0;

    bool operator==(const GridCell&) const = default;

    // Row by row.
    bool operator<(const GridCell& other) const {
        return row != other.row ? row < other.row : column < other.column;
    }
};

}  // namespace brooklander
