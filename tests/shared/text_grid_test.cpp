#include "shared/text_grid.h"

#include <gtest/gtest.h>

#include <random>
#include <string>

#include "shared/delimiter_mask.h"

namespace brooklander {
namespace {

TEST(TextGrid, TabsCutALineIntoCells) {
    TextGrid grid(4);
    grid.load(FileText("a\tb\t\td\r\n\tx\r\n"));
    ASSERT_EQ(grid.rows(), 2);
    EXPECT_EQ(grid.cell(0, 0), "a");
    EXPECT_EQ(grid.cell(0, 1), "b");
    EXPECT_EQ(grid.cell(0, 2), "");
    EXPECT_EQ(grid.cell(0, 3), "d");
    EXPECT_EQ(grid.cell(1, 0), "");
    EXPECT_EQ(grid.cell(1, 1), "x");
    EXPECT_EQ(grid.cell(1, 3), "");
}

TEST(TextGrid, FieldsBeyondTheLastColumnAreDropped) {
    TextGrid grid(2);
    grid.load(FileText("a\tb\tc\td\r\ne\r\n"));
    EXPECT_EQ(grid.rows(), 2);
    EXPECT_EQ(grid.cell(0, 1), "b");
    EXPECT_EQ(grid.cell(0, 2), "");
    EXPECT_EQ(grid.cell(1, 0), "e");
}

TEST(TextGrid, OutsideTheGridCellsAreEmptyAndStaySo) {
    TextGrid grid(2);
    grid.load(FileText("a\tb"));
    grid.set_cell(1, 0, "x");
    grid.set_cell(0, 2, "x");
    grid.set_cell(-1, 0, "x");
    EXPECT_EQ(grid.cell(1, 0), "");
    EXPECT_EQ(grid.cell(0, 2), "");
    EXPECT_EQ(grid.cell(-1, -1), "");
    EXPECT_EQ(grid.rows(), 1);
}

TEST(TextGrid, ACellTakesAnyBytes) {
    TextGrid grid(3);
    grid.load(FileText("a\tb\tc\r\n"));
    grid.set_cell(0, 1, "tab\there\r\nand a line");
    EXPECT_EQ(grid.cell(0, 0), "a");
    EXPECT_EQ(grid.cell(0, 1), "tab\there\r\nand a line");
    EXPECT_EQ(grid.cell(0, 2), "c");
}

TEST(TextGrid, ACellCanBeEmptiedAndSetFromItself) {
    TextGrid grid(2);
    grid.load(FileText("a\tb\r\n"));
    grid.set_cell(0, 1, "");
    EXPECT_EQ(grid.cell(0, 1), "");
    grid.set_cell(0, 1, grid.cell(0, 0));
    EXPECT_EQ(grid.cell(0, 1), "a");
    grid.set_cell(0, 1, grid.cell(0, 1));
    EXPECT_EQ(grid.cell(0, 1), "a");
}

TEST(TextGrid, ClearingKeepsTheRows) {
    TextGrid grid(2);
    grid.load(FileText("a\r\nb\r\n"));
    grid.set_cell(1, 1, "x");
    grid.clear();
    EXPECT_EQ(grid.rows(), 2);
    EXPECT_EQ(grid.cell(0, 0), "");
    EXPECT_EQ(grid.cell(1, 1), "");
}

TEST(TextGrid, RowsThatGoAreGoneForGood) {
    TextGrid grid(2);
    grid.load(FileText("a\r\nb\r\n"));
    grid.set_cell(1, 1, "x");
    grid.set_rows(1);
    grid.set_rows(3);
    EXPECT_EQ(grid.rows(), 3);
    EXPECT_EQ(grid.cell(0, 0), "a");
    EXPECT_EQ(grid.cell(1, 0), "");
    EXPECT_EQ(grid.cell(1, 1), "");
    grid.set_rows(0);
    EXPECT_EQ(grid.rows(), 0);
}

TEST(TextGrid, AnAddedRowIsCutAtItsTabs) {
    TextGrid grid(3);
    grid.add_row("a\tb\tc\td");
    grid.add_row("");
    grid.add_row("\t\tz");
    EXPECT_EQ(grid.cell(0, 2), "c");
    EXPECT_EQ(grid.cell(1, 0), "");
    EXPECT_EQ(grid.cell(2, 2), "z");
    EXPECT_EQ(grid.rows(), 3);
}

TEST(TextGrid, ALoadReplacesWhatWasThere) {
    TextGrid grid(2);
    grid.load(FileText("a\r\nb\r\nc\r\n"));
    grid.set_cell(2, 0, "x");
    grid.load(FileText("d\r\n"));
    EXPECT_EQ(grid.rows(), 1);
    EXPECT_EQ(grid.cell(0, 0), "d");
    EXPECT_EQ(grid.cell(2, 0), "");
}

TEST(TextGrid, NoBytesAreNoRows) {
    TextGrid grid(2);
    grid.load(FileText(""));
    EXPECT_EQ(grid.rows(), 0);
    EXPECT_EQ(grid.cell(0, 0), "");
}

TEST(TextGrid, EveryByteButTabAndCarriageReturnIsText) {
    std::string text;
    for (int byte = 0; byte < 256; ++byte) {
        if (byte != '\t' && byte != '\r') text += static_cast<char>(byte);
    }
    TextGrid grid(2);
    grid.load(FileText(text + "\t" + text));
    EXPECT_EQ(grid.rows(), 1);
    EXPECT_EQ(grid.cell(0, 0), text);
    EXPECT_EQ(grid.cell(0, 1), text);
}

TEST(TextGrid, ALineOfTenMegabytesIsOneRow) {
    const std::string line(10'000'000, 'x');
    TextGrid grid(50);
    grid.load(FileText(line + "\ty\r\nz"));
    EXPECT_EQ(grid.rows(), 2);
    EXPECT_EQ(grid.cell(0, 0).size(), line.size());
    EXPECT_EQ(grid.cell(0, 1), "y");
    EXPECT_EQ(grid.cell(1, 0), "z");
}

// A row read and written back changes nothing but what was set in between, whatever was done to the
// grid before: held against a table of plain strings.
TEST(TextGrid, BehavesLikeATableOfStrings) {
    constexpr int columns = 5;
    using Row = std::vector<std::string>;
    std::mt19937 random(7);
    const auto below = [&random](unsigned bound) { return static_cast<int>(random() % bound); };
    const auto text = [&] {
        std::string made;
        for (int i = below(40); i > 0; --i) made += static_cast<char>("ab <>\t\r\n"[below(8)]);
        return made;
    };
    TextGrid grid(columns);
    std::vector<Row> model;
    for (int step = 0; step < 5000; ++step) {
        const int row = below(12);
        const int column = below(columns);
        switch (below(8)) {
            case 0: {
                const std::string loaded = "a\tbb\tccc\r\n\r\nx\ty\tz\t1\t2\t3\r\nlast";
                grid.load(FileText(loaded));
                model = {{"a", "bb", "ccc", "", ""},
                         Row(columns),
                         {"x", "y", "z", "1", "2"},
                         {"last", "", "", "", ""}};
                break;
            }
            case 1:
                grid.add_row("p\t\tq");
                model.push_back({"p", "", "q", "", ""});
                break;
            case 2:
                grid.set_rows(row);
                model.resize(static_cast<std::size_t>(row), Row(columns));
                break;
            default: {
                const std::string value = text();
                grid.set_cell(row, column, value);
                if (row < static_cast<int>(model.size())) {
                    model[static_cast<std::size_t>(row)][static_cast<std::size_t>(column)] = value;
                }
            }
        }
        ASSERT_EQ(grid.rows(), static_cast<int>(model.size()));
        for (int r = 0; r < grid.rows(); ++r) {
            RowCells cells;
            grid.read_row(r, cells);
            for (int c = 0; c < columns; ++c) {
                const auto& expected =
                    model[static_cast<std::size_t>(r)][static_cast<std::size_t>(c)];
                ASSERT_EQ(grid.cell(r, c), expected);
                ASSERT_EQ(cells[c], expected);
            }
        }
    }
}

TEST(DelimiterMask, BothFormsFindTabsAndCarriageReturnsAlone) {
    std::mt19937 random(11);
    for (int round = 0; round < 2000; ++round) {
        std::string bytes;
        std::uint64_t expected = 0;
        for (unsigned i = 0; i < mask_width; ++i) {
            const unsigned kind = random() % 8;
            bytes += kind == 0 ? '\t' : kind == 1 ? '\r' : static_cast<char>(random());
            if (bytes.back() == '\t' || bytes.back() == '\r') expected |= std::uint64_t{1} << i;
        }
        ASSERT_EQ(delimiter_mask(bytes.data()), expected);
        ASSERT_EQ(delimiter_mask_anywhere(bytes.data()), expected);
    }
}

}  // namespace
}  // namespace brooklander
