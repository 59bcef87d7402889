#include "shared/text_grid.h"

#include <algorithm>
#include <bit>
#include <cstring>
#include <limits>
#include <string>

#include "platform/fatal_failure.h"

namespace brooklander {
namespace {

// Finds tabs and carriage returns in eight bytes at once. The two differ in one bit alone, so that
// a byte is one of them exactly when it equals a tab without that bit.
constexpr std::uint64_t every_byte = 0x0101010101010101U;
constexpr std::uint64_t differing_bit = '\t' ^ '\r';
static_assert(std::has_single_bit(differing_bit));

// The top bit of each byte that is a tab or a carriage return.
std::uint64_t delimiters_in(std::uint64_t eight) {
    const std::uint64_t folded = (eight & ~(every_byte * differing_bit)) ^ (every_byte * '\t');
    constexpr std::uint64_t low_bits = every_byte * 0x7FU;
    return ~(((folded & low_bits) + low_bits) | folded | low_bits);
}

std::uint64_t load_eight(const char* bytes) {
    std::uint64_t eight = 0;
    if constexpr (std::endian::native == std::endian::little) {
        std::memcpy(&eight, bytes, sizeof eight);
    } else {
        for (unsigned i = 0; i < sizeof eight; ++i) {
            eight |= std::uint64_t{static_cast<unsigned char>(bytes[i])} << (8 * i);
        }
    }
    return eight;
}

// Cuts the line that begins at `at` into cells, as many as there is room for; returns how many
// there are. Reads whole blocks, up to FileText::slack bytes behind the end.
std::size_t cut_line(const char* at, const char* end, std::span<std::string_view> cells) {
    std::size_t count = 0;
    const char* cell = at;
    const auto finish_cell = [&](const char* stop) {
        cells[count++] = {cell, static_cast<std::size_t>(stop - cell)};
        cell = stop + 1;
    };
    for (; at < end && count < cells.size(); at += sizeof(std::uint64_t)) {
        for (std::uint64_t found = delimiters_in(load_eight(at)); found != 0;
             found &= found - 1) {
            const char* const stop = at + std::countr_zero(found) / 8;
            if (stop >= end || count == cells.size()) break;
            finish_cell(stop);
            if (*stop == '\r') return count;
        }
    }
    if (count < cells.size() && cell <= end) finish_cell(end);
    return count;
}

// A changed row: how many cells it has, where each of them ends, and their bytes one behind the
// other with the grid's slack at the end.
using Bound = std::uint32_t;

Bound bound_at(const char* packed, std::size_t index) {
    Bound bound = 0;
    std::memcpy(&bound, packed + index * sizeof bound, sizeof bound);
    return bound;
}

std::unique_ptr<char[]> pack(std::span<const std::string_view> cells) {
    while (!cells.empty() && cells.back().empty()) cells = cells.first(cells.size() - 1);
    std::size_t length = 0;
    for (const auto& cell : cells) length += cell.size();
    if (length > std::numeric_limits<Bound>::max()) {
        throw FatalFailure("A row of a table is too long to be changed.");
    }
    const std::size_t head = (cells.size() + 1) * sizeof(Bound);
    auto packed = std::make_unique_for_overwrite<char[]>(head + length + TextGrid::slack);
    char* bounds = packed.get();
    char* const bytes = packed.get() + head;
    const auto put_bound = [&bounds](std::size_t value) {
        const auto bound = static_cast<Bound>(value);
        std::memcpy(bounds, &bound, sizeof bound);
        bounds += sizeof bound;
    };
    put_bound(cells.size());
    char* out = bytes;
    for (const auto& cell : cells) {
        out = std::copy(cell.begin(), cell.end(), out);
        put_bound(static_cast<std::size_t>(out - bytes));
    }
    std::fill_n(out, TextGrid::slack, '\0');
    return packed;
}

std::string_view packed_cell(const char* packed, std::size_t index) {
    const std::size_t count = bound_at(packed, 0);
    if (index >= count) return {};
    const char* const bytes = packed + (count + 1) * sizeof(Bound);
    const std::size_t start = index == 0 ? 0 : bound_at(packed, index);
    return {bytes + start, bound_at(packed, index + 1) - start};
}

}  // namespace

void TextGrid::set_rows(int rows) {
    const auto count = static_cast<std::size_t>(std::max(rows, 0));
    for (std::size_t row = count; row < rows_.size(); ++row) {
        if (rows_[row] < 0 && rows_[row] != nowhere) {
            own_[static_cast<std::size_t>(~rows_[row])].reset();
        }
    }
    rows_.resize(count, nowhere);
    if (count == 0) clear();
}

std::string_view TextGrid::cell(int row, int column) const {
    if (!has(row, column)) return {};
    const Place place = rows_[static_cast<std::size_t>(row)];
    if (place == nowhere) return {};
    const auto index = static_cast<std::size_t>(column);
    if (place < 0) return packed_cell(own_row(place), index);
    std::vector<std::string_view> cells(index + 1);
    const std::string_view text = base_.view();
    cut_line(text.data() + place, text.data() + text.size(), cells);
    return cells.back();
}

void TextGrid::set_cell(int row, int column, std::string_view text) {
    if (!has(row, column)) return;
    const std::string kept(text);  // the text may be one of the row's own
    RowCells cells;
    read_row(row, cells);
    cells.set(column, kept);
    write_row(row, cells);
}

void TextGrid::add_row(std::string_view tabbed) {
    RowCells cells;
    while (cells.cells_.size() < static_cast<std::size_t>(columns_)) {
        const std::string_view piece = tabbed.substr(0, tabbed.find('\t'));
        cells.cells_.push_back(piece);
        if (piece.size() == tabbed.size()) break;
        tabbed.remove_prefix(piece.size() + 1);
    }
    rows_.push_back(nowhere);
    write_row(rows() - 1, cells);
}

void TextGrid::clear() {
    std::fill(rows_.begin(), rows_.end(), nowhere);
    own_.clear();
    own_.shrink_to_fit();
    base_ = {};
}

void TextGrid::load(FileText text) {
    rows_.clear();
    clear();
    base_ = std::move(text);
    const std::string_view all = base_.view();
    constexpr auto most = static_cast<std::size_t>(std::numeric_limits<int>::max());
    for (std::size_t at = 0; at < all.size() && rows_.size() < most;) {
        rows_.push_back(static_cast<Place>(at));
        const std::size_t end = all.find('\r', at);
        if (end == std::string_view::npos) break;
        at = end + 1;
        if (at < all.size() && all[at] == '\n') ++at;
    }
}

void TextGrid::read_row(int row, RowCells& cells) const {
    cells.cells_.assign(static_cast<std::size_t>(columns_), {});
    const Place place = rows_.at(static_cast<std::size_t>(row));
    if (place == nowhere) return;
    if (place < 0) {
        const char* const packed = own_row(place);
        for (std::size_t i = 0; i < cells.cells_.size(); ++i) {
            cells.cells_[i] = packed_cell(packed, i);
        }
        return;
    }
    const std::string_view text = base_.view();
    cut_line(text.data() + place, text.data() + text.size(), cells.cells_);
}

void TextGrid::write_row(int row, const RowCells& cells) {
    auto packed = pack(cells.cells_);
    Place& place = rows_.at(static_cast<std::size_t>(row));
    if (place >= 0 || place == nowhere) {
        place = place_of_own(own_.size());
        own_.push_back(std::move(packed));
    } else {
        own_[static_cast<std::size_t>(~place)] = std::move(packed);
    }
}

}  // namespace brooklander
