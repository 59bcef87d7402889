// The import table against any bytes: rows and cells are those of a plain cutting of the text.

#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>
#include <vector>

#include "shared/text_grid.h"

namespace {

using brooklander::FileText;
using brooklander::RowCells;
using brooklander::TextGrid;

constexpr int columns = 50;

void want(bool holds) {
    if (!holds) std::abort();
}

std::vector<std::string> plain_lines(std::string_view text) {
    std::vector<std::string> lines;
    for (std::size_t at = 0; at < text.size();) {
        std::string line;
        while (at < text.size() && text[at] != '\r') line += text[at++];
        if (at < text.size()) ++at;
        if (at < text.size() && text[at] == '\n' && text[at - 1] == '\r') ++at;
        lines.push_back(line);
    }
    return lines;
}

std::vector<std::string> plain_cells(const std::string& line) {
    std::vector<std::string> cells(1);
    for (const char byte : line) {
        if (byte == '\t') {
            cells.emplace_back();
        } else {
            cells.back() += byte;
        }
    }
    cells.resize(columns);
    return cells;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    TextGrid grid(columns);
    grid.load(FileText(text));
    const std::vector<std::string> lines = plain_lines(text);
    want(grid.rows() == static_cast<int>(lines.size()));
    for (int row = 0; row < grid.rows(); ++row) {
        const auto cells = plain_cells(lines[static_cast<std::size_t>(row)]);
        RowCells found;
        grid.read_row(row, found);
        for (int column = 0; column < columns; ++column) {
            want(found[column] == cells[static_cast<std::size_t>(column)]);
        }
        want(grid.cell(row, row % columns) == cells[static_cast<std::size_t>(row % columns)]);
        grid.set_cell(row, row % columns, text);
        want(grid.cell(row, row % columns) == text);
    }
    return 0;
}
