// The pass over the results of the import table, which writes the load file.
//
// A row's own fields are read just before its results: what a row reads and changes touches no
// other row, so that this is the same as reading all rows first, and takes no memory for them.
#pragma once

#include <unordered_map>
#include <vector>

#include "conversion/characteristics.h"
#include "conversion/row_fields.h"

namespace brooklander {

class ResultPass {
  public:
    // With `may_restart`, run() can be called once more after a failure; rows whose fields lie
    // in cells that the pass rewrites are then remembered. What is given must outlive the object.
    ResultPass(Grid& table, const Assignment& assignment, RowFields& fields,
               const std::vector<CharacteristicPieces>& characteristics, LineWriter& writer,
               bool may_restart);

    // Visits every row from row 1 on, also those above the first data row, and also where there is
    // no characteristic: reading a row can change its cells. A FatalFailure when a
    // column of results lies outside the table, when a row with a result lies beyond the limit of
    // rows, and when the file cannot be written; what was done till then stays.
    void run();

    // Where the pass was last: the result cell, and the index of its characteristic. A row of 0
    // tells that no result cell was visited.
    GridCell last_cell() const { return last_cell_; }
    std::size_t last_characteristic() const;

  private:
    bool rewrites_what_rows_read() const;
    void visit(int rowCursor);
    const BlockText& row_piece(int rowCursor);
    void write_results(int rowCursor, const BlockText& piece);
    void put_back(int rowCursor, const BlockText& piece);

    Grid& table_;
    const Assignment& assignment_;
    RowFields& fields_;
    const std::vector<CharacteristicPieces>& characteristics_;
    LineWriter& writer_;
    bool remembers_;

    RowCells cells_;
    bool changed_ = false;
    GridCell last_cell_;
    std::unordered_map<int, BlockText> remembered_;
};

}  // namespace brooklander
