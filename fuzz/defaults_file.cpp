// A characteristic defaults file of any bytes: every line is a row of the screens, whatever stands
// in it, and what the screens have read is written as one line a row again, unless a value has
// grown wider than its column: a procedure can, by what its source leaks into it.

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>

#include "characteristics/defaults_file.h"
#include "characteristics/defaults_layout.h"
#include "platform/files/host_files.h"

namespace {

using namespace brooklander;

void want(bool holds) {
    if (!holds) std::abort();
}

struct FrmTwoGrids : Screen {
    explicit FrmTwoGrids(Desk& desk) : Screen(desk, "frmTwoGrids", {}) {
        first.set_rows(1);
        second.set_rows(1);
    }

    Grid first{*this, "first", {.columns = 13}};
    Grid second{*this, "second", {.columns = 13}};
};

int count_lines(std::string_view text) {
    int lines = 0;
    for (LineReader reader(text); !reader.at_end(); reader.next()) ++lines;
    return lines;
}

bool fits(const Grid& grid) {
    for (int row = 1; row < grid.rows(); ++row) {
        for (std::size_t field = 0; field + 1 < defaults_fields.size(); ++field) {
            const std::size_t width = defaults_fields[field + 1].stop - defaults_fields[field].stop;
            const std::string_view cell = grid.cell(row, static_cast<int>(field));
            if (trim(cell).size() > width || cell.find('\r') != std::string_view::npos) {
                return false;
            }
        }
    }
    return true;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    HostFiles files("/nonexistent");
    Desk desk(files);
    FrmTwoGrids screen(desk);

    add_defaults_rows(screen.first, text);
    const int lines = count_lines(text);
    want(screen.first.rows() == lines + 1);
    add_defaults_rows(screen.second, text, 3);
    want(screen.second.rows() == std::min(lines, 3) + 1);
    if (lines > most_characteristics) return 0;

    const std::string written = defaults_text(screen.first);
    want(count_lines(written) >= lines);
    if (fits(screen.first)) want(count_lines(written) == lines);
    return 0;
}
