#include "characteristics/defaults_file.h"

#include "characteristics/defaults_layout.h"
#include "platform/fatal_failure.h"
#include "shared/tab_stops.h"
#include "shared/workspace.h"

namespace brooklander {

void set_defaults_headings(Grid& grid) {
    grid.set_fixed_rows(1);
    for (std::size_t field = 0; field < defaults_fields.size(); ++field) {
        const int column = static_cast<int>(field);
        grid.set_cell(0, column, defaults_fields[field].heading);
        grid.set_column_alignment(column, Alignment::left);
    }
}

void add_defaults_rows(Grid& grid, std::string_view file_text, int most) {
    std::string row;
    LineReader lines(file_text);
    for (int count = 0; !lines.at_end() && count != most; ++count) {
        const std::string_view line = lines.next();
        row.clear();
        for (std::size_t field = 0; field < defaults_fields.size(); ++field) {
            if (field > 0) row += '\t';
            row += display_value(line, field);
        }
        grid.add_row(row);
    }
}

std::string defaults_text(const Grid& details) {
    if (details.rows() - 1 > most_characteristics) {
        throw FatalFailure("A configuration can hold " + std::to_string(most_characteristics) +
                           " characteristics; the " + std::to_string(details.rows() - 1) +
                           " of this one are not saved.");
    }
    TabStopWriter writer;
    for (int row = 1; row < details.rows(); ++row) {
        for (std::size_t field = 0; field < defaults_fields.size(); ++field) {
            writer.tab_to(defaults_fields[field].stop);
            writer.put(trim(details.cell(row, static_cast<int>(field))));
        }
        writer.end_line();
    }
    return writer.text();
}

void write_defaults_file(Grid& details, Files& files, std::string_view path) {
    const std::string text = defaults_text(details);
    if (details.rows() > 1) details.make_current({details.rows() - 1, details.columns() - 1});
    try {
        files.make_folder(workspace::characteristics);
        const auto file = files.create(path);
        file->write(text);
        file->close();
    } catch (const FatalFailure&) {
        // Not even the folder may be there; the screens are reset all the same.
    }
}

}  // namespace brooklander
