#include "conversion/result_pass.h"

#include <algorithm>
#include <array>

#include "conversion/conversion_driver.h"
#include "conversion/result_value.h"
#include "platform/fatal_failure.h"

namespace brooklander {
namespace {

constexpr int first_row_visited = 1;

static_assert(short_text <= readable_mark, "marks are copied as blocks, like cells");

}  // namespace

ResultPass::ResultPass(Grid& table, const Assignment& assignment, RowFields& fields,
                       const std::vector<CharacteristicPieces>& characteristics, LineWriter& writer,
                       bool may_restart)
    : table_(table),
      assignment_(assignment),
      fields_(fields),
      characteristics_(characteristics),
      writer_(writer),
      remembers_(may_restart && rewrites_what_rows_read()) {}

// Whether reading a row's fields a second time, after the pass has been over it, could give other
// fields than the first time.
bool ResultPass::rewrites_what_rows_read() const {
    const auto is_result = [this](int column) { return column >= assignment_.first_result; };
    const auto is_changed = [this](int column) {
        return column == fields_.repaired_column() || column == fields_.filled_column();
    };
    const auto optional_result = [&](const std::optional<int>& column) {
        return column && is_result(*column);
    };
    return is_result(assignment_.station) || is_result(assignment_.date) ||
           optional_result(assignment_.time) || optional_result(assignment_.sample) ||
           optional_result(assignment_.depth) || optional_result(assignment_.comments) ||
           optional_result(assignment_.person) || is_changed(assignment_.station) ||
           is_changed(assignment_.date) ||
           (assignment_.time && *assignment_.time == fields_.filled_column());
}

void ResultPass::run() {
    last_cell_ = {};
    for (int rowCursor = first_row_visited; rowCursor < table_.rows(); ++rowCursor)
        visit(rowCursor);
}

void ResultPass::visit(int rowCursor) {
    table_.read_row(rowCursor, cells_);
    changed_ = false;
    const BlockText& piece = row_piece(rowCursor);
    try {
        write_results(rowCursor, piece);
    } catch (const FatalFailure&) {
        put_back(rowCursor, piece);
        throw;
    }
    put_back(rowCursor, piece);
}

const BlockText& ResultPass::row_piece(int rowCursor) {
    if (const auto found = remembered_.find(rowCursor); found != remembered_.end())
        return found->second;
    if (rowCursor < assignment_.first_row) return fields_.none();
    return fields_.read(cells_, rowCursor - assignment_.first_row + 1, changed_);
}

void ResultPass::write_results(int rowCursor, const BlockText& piece) {
    int columnCursor = assignment_.first_result;
    for (const CharacteristicPieces& characteristic : characteristics_) {
        if (columnCursor >= table_.columns()) {
            throw FatalFailure("The configuration has " + std::to_string(characteristics_.size()) +
                               " characteristics, and the table has fewer columns than that from "
                               "the first column of results on.");
        }
        last_cell_ = {rowCursor, columnCursor};
        const std::string_view cell = cells_[columnCursor];
        const ResultValue value = result_value(cell);
        if (value.cell.data() != cell.data() && value.cell != cell) {
            cells_.set(columnCursor, value.cell);
            changed_ = true;
        }
        if (!value.written.empty()) {
            if (rowCursor >= conversion_row_limit) {
                throw FatalFailure("A table can be converted up to row " +
                                   std::to_string(conversion_row_limit) + " only.");
            }
            writer_.put_line(piece, characteristic.before, value.written, characteristic.behind);
        }
        ++columnCursor;
    }
}

void ResultPass::put_back(int rowCursor, const BlockText& piece) {
    if (!changed_) return;
    table_.write_row(rowCursor, cells_);
    if (remembers_) remembered_.try_emplace(rowCursor, piece);
}

std::size_t ResultPass::last_characteristic() const {
    return static_cast<std::size_t>(last_cell_.column - assignment_.first_result);
}

}  // namespace brooklander
