#include "conversion/characteristics.h"

#include <string>

#include "characteristics/defaults_layout.h"
#include "platform/fatal_failure.h"
#include "shared/text_reading.h"

namespace brooklander {
namespace {

CharacteristicPieces pieces_of(std::string_view name, std::string_view line) {
    std::string before(trim(name));
    for (auto field = defaults_field::procedure_source; field <= defaults_field::duration;
         ++field) {
        before += '~';
        before += conversion_value(line, field);
    }
    before += '~';
    std::string behind;
    for (auto field = defaults_field::lab; field <= defaults_field::detection_limit_unit; ++field) {
        behind += '~';
        behind += conversion_value(line, field);
    }
    behind += "\r\n";
    return {BlockText(std::move(before)), BlockText(std::move(behind))};
}

}  // namespace

void take_characteristics_from_headings(FrmImportFileDisplay& display, int first_column) {
    Grid& table = display.MSFlexKeldarIN;
    std::vector<std::string> names;
    for (int column = first_column; column < table.columns(); ++column) {
        names.emplace_back(trim(table.cell(0, column)));
        if (table.rows() > 0) table.make_current({0, column});
    }
    display.lstRows.set_entries(std::move(names));
    display.lstChar.clear();
}

void take_characteristics_from_file(FrmImportFileDisplay& display, const Files& files,
                                    std::string_view path) {
    std::vector<std::string> names;
    std::vector<std::string> lines;
    try {
        const FileText text = files.read(path, ReadErrors::end_text);
        for (LineReader reader(text.view()); !reader.at_end();) {
            const std::string_view line = reader.next();
            names.emplace_back(conversion_value(line, defaults_field::name));
            lines.emplace_back(line);
        }
    } catch (const FatalFailure&) {
        names.clear();
        lines.clear();
    }
    display.lstRows.set_entries(std::move(names));
    display.lstChar.set_entries(std::move(lines));
}

std::vector<CharacteristicPieces> characteristic_pieces(const FrmImportFileDisplay& display) {
    std::vector<CharacteristicPieces> pieces;
    pieces.reserve(display.lstRows.count());
    for (std::size_t i = 0; i < display.lstRows.count(); ++i) {
        pieces.push_back(pieces_of(display.lstRows.entry(i), display.lstChar.entry(i)));
    }
    return pieces;
}

}  // namespace brooklander
