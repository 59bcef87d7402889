#include "shared/text_grid.h"

#include <algorithm>
#include <bit>
#include <cstring>
#include <limits>
#include <string>

#include "platform/fatal_failure.h"
#include "shared/delimiter_mask.h"

namespace brooklander {
namespace {

static_assert(FileText::slack >= mask_width);

// Cuts the line that begins at `at` into cells, as many as there is room for. Reads whole blocks,
// up to FileText::slack bytes behind the end.
void cut_line(const char* at, const char* end, std::span<std::string_view> cells) {
    std::size_t count = 0;
    const char* cell = at;
    const auto finish_cell = [&](const char* stop) {
        cells[count++] = {cell, static_cast<std::size_t>(stop - cell)};
        cell = stop + 1;
    };
    for (; at < end; at += mask_width) {
        for (std::uint64_t found = delimiter_mask(at); found != 0; found &= found - 1) {
            const char* const stop = at + std::countr_zero(found);
            finish_cell(stop);
            if (count == cells.size() || *stop == '\r') return;
        }
    }
    finish_cell(end);
}

// A changed row, as it lies in memory: the row's place in the loaded text, how many cells of it are
// its own, of each of these the column and where its text ends, and the texts one behind the other
// with the grid's slack at the end.
using Number = std::uint32_t;

struct OwnHead {
    std::int64_t base;
    Number count;
};
constexpr std::size_t head_size = sizeof(std::int64_t) + sizeof(Number);

struct OwnCell {
    Number column;
    Number end;
};
static_assert(sizeof(OwnCell) == 2 * sizeof(Number));

OwnHead head_of(const char* own) {
    OwnHead head{};
    std::memcpy(&head.base, own, sizeof head.base);
    std::memcpy(&head.count, own + sizeof head.base, sizeof head.count);
    return head;
}

// Calls back with the column and the text of each cell of a changed row.
template <typename Visit>
void for_each_own_cell(const char* own, const Visit& visit) {
    const Number count = head_of(own).count;
    const char* const list = own + head_size;
    const char* const texts = list + count * sizeof(OwnCell);
    Number start = 0;
    for (Number i = 0; i < count; ++i) {
        OwnCell cell{};
        std::memcpy(&cell, list + i * sizeof cell, sizeof cell);
        visit(cell.column, std::string_view(texts + start, cell.end - start));
        start = cell.end;
    }
}

std::unique_ptr<char[]> own_row_of(std::int64_t base, std::span<const std::string_view> cells,
                                   std::span<const Number> own) {
    std::size_t length = 0;
    for (const Number column : own) length += cells[column].size();
    if (length > std::numeric_limits<Number>::max()) {
        throw FatalFailure("A row of a table is too long to be changed.");
    }
    const std::size_t texts_at = head_size + own.size() * sizeof(OwnCell);
    auto row = std::make_unique_for_overwrite<char[]>(texts_at + length + TextGrid::slack);
    const OwnHead head{base, static_cast<Number>(own.size())};
    std::memcpy(row.get(), &head.base, sizeof head.base);
    std::memcpy(row.get() + sizeof head.base, &head.count, sizeof head.count);
    char* list = row.get() + head_size;
    char* const texts = row.get() + texts_at;
    char* text = texts;
    for (const Number column : own) {
        text = std::copy(cells[column].begin(), cells[column].end(), text);
        const OwnCell cell{column, static_cast<Number>(text - texts)};
        std::memcpy(list, &cell, sizeof cell);
        list += sizeof cell;
    }
    std::fill_n(text, TextGrid::slack, '\0');
    return row;
}

}  // namespace

void RowCells::set(int column, std::string_view text) {
    const auto index = static_cast<std::size_t>(column);
    cells_.at(index) = text;
    const auto own_column = static_cast<Number>(index);
    if (std::find(own_.begin(), own_.end(), own_column) == own_.end()) own_.push_back(own_column);
}

void TextGrid::set_rows(int rows) {
    const auto count = static_cast<std::size_t>(std::max(rows, 0));
    for (std::size_t row = count; row < rows_.size(); ++row) {
        if (is_own(rows_[row])) own_[static_cast<std::size_t>(~rows_[row])].reset();
    }
    rows_.resize(count, nowhere);
    if (count == 0) clear();
}

TextGrid::Place TextGrid::base_of(Place place) const {
    return is_own(place) ? head_of(own_row(place)).base : place;
}

std::string_view TextGrid::cell(int row, int column) const {
    if (!has(row, column)) return {};
    const Place place = rows_[static_cast<std::size_t>(row)];
    const auto index = static_cast<std::size_t>(column);
    std::vector<std::string_view> cells(index + 1);
    if (const Place base = base_of(place); base != nowhere) {
        const std::string_view text = base_.view();
        cut_line(text.data() + base, text.data() + text.size(), cells);
    }
    if (is_own(place)) {
        for_each_own_cell(own_row(place), [&](Number own_column, std::string_view text) {
            if (own_column == index) cells.back() = text;
        });
    }
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
        if (!piece.empty()) cells.own_.push_back(static_cast<Number>(cells.cells_.size()));
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
    cells.own_.clear();
    const Place place = rows_.at(static_cast<std::size_t>(row));
    if (const Place base = base_of(place); base != nowhere) {
        const std::string_view text = base_.view();
        cut_line(text.data() + base, text.data() + text.size(), cells.cells_);
    }
    if (!is_own(place)) return;
    for_each_own_cell(own_row(place), [&](Number column, std::string_view text) {
        if (column >= cells.cells_.size()) return;
        cells.cells_[column] = text;
        cells.own_.push_back(column);
    });
}

void TextGrid::write_row(int row, const RowCells& cells) {
    Place& place = rows_.at(static_cast<std::size_t>(row));
    auto own = own_row_of(base_of(place), cells.cells_, cells.own_);
    if (is_own(place)) {
        own_[static_cast<std::size_t>(~place)] = std::move(own);
    } else {
        place = ~static_cast<Place>(own_.size());
        own_.push_back(std::move(own));
    }
}

}  // namespace brooklander
