#include "guide/values.h"

#include <algorithm>

#include "characteristics/defaults_layout.h"
#include "platform/code_page.h"
#include "scenario/arguments.h"
#include "scenario/commands.h"
#include "scenario/scenario_error.h"
#include "scenario/user_words.h"
#include "scenario/words.h"
#include "shared/grid.h"
#include "shared/text.h"
#include "shared/text_reading.h"

namespace brooklander::guide {
namespace {

using scenario::Stage;
using scenario::Unmet;
using Words = std::vector<std::string>;

constexpr std::size_t place_of_activity_id = 6;  // from 0, among the fields of a line
constexpr std::size_t place_of_name = 19;        // of the characteristic

std::vector<std::string> lines_of(const Stage& stage, std::string_view path) {
    const FileText text = scenario::text_of(stage.host_path(path), to_utf8(path));
    std::vector<std::string> lines;
    for (LineReader reader(text.view()); !reader.at_end();) lines.emplace_back(reader.next());
    return lines;
}

std::vector<std::string> cut(std::string_view line, char delimiter) {
    std::vector<std::string> pieces;
    for (;;) {
        const std::size_t at = line.find(delimiter);
        pieces.emplace_back(line.substr(0, at));
        if (at == std::string_view::npos) return pieces;
        line.remove_prefix(at + 1);
    }
}

// Both count from 1.
const std::string& piece(const std::vector<std::string>& pieces, const std::string& number,
                         const std::string& of_what) {
    const auto wanted = static_cast<std::size_t>(scenario::number_in(number, of_what));
    if (wanted < 1 || wanted > pieces.size()) {
        throw Unmet("There are " + std::to_string(pieces.size()) + " " + of_what + "s, and no " +
                    of_what + " " + number + ".");
    }
    return pieces[wanted - 1];
}

// What is written behind a verb, as it stands.
std::string behind(std::string_view written, std::string_view verb) {
    const std::string_view rest = trim(trim(written).substr(verb.size()));
    if (auto text = from_utf8(rest)) return *std::move(text);
    throw Unmet("\"" + std::string(rest) + "\" holds a character that the code page lacks.");
}

const Field& seen_field(const Stage& stage, const std::string& path) {
    scenario::kind_of(path);  // complains of a name that no screen has
    if (!stage.running()) throw Unmet("The program does not run.");
    const Field& field = stage.field(path);
    if (!field.seen()) throw Unmet(path + " is told of, but is not on the screen.");
    return field;
}

Value caption(const Stage& stage, const std::string& path) {
    const Field& field = seen_field(stage, path);
    const std::string text(trim(scenario::told_text(field)));
    if (text.empty()) throw Unmet(path + " says nothing.");
    return {Value::Kind::caption, text};
}

// A heading is a caption like any other.
Value::Kind kind_in(const Grid& grid, int row) {
    return row < grid.fixed_rows() ? Value::Kind::caption : Value::Kind::text;
}

Value grid_cell(const Stage& stage, const Words& words) {
    const Field& field = seen_field(stage, words[0]);
    if (field.kind() != FieldKind::grid) throw Unmet(words[0] + " is no grid.");
    const auto& grid = static_cast<const Grid&>(field);
    const GridCell cell{scenario::number_in(words[1], "row"),
                        scenario::number_in(words[2], "column")};
    scenario::want_cell(grid, cell);
    return {kind_in(grid, cell.row), std::string(grid.cell(cell.row, cell.column))};
}

Value number(std::size_t count) { return {Value::Kind::number, std::to_string(count)}; }

// How much of a detail all who read a line of characteristics keep.
Value room(std::string_view heading) {
    for (const DefaultsField& field : defaults_fields) {
        if (field.heading != heading) continue;
        const auto kept = [&field](const Cut& cut) { return cut.start + cut.length - field.stop; };
        return number(std::min(kept(field.for_display), kept(field.for_conversion)));
    }
    throw Unmet("No detail has the heading " + std::string(heading) + ".");
}

Value load_file_field(const Stage& stage, const Words& words) {
    const auto fields = load_file_fields(stage, words[1], words[2]);
    if (fields.empty()) return {Value::Kind::no_line};
    return {Value::Kind::text, piece(fields, words[3], "field")};
}

}  // namespace

std::vector<std::string> load_file_fields(const Stage& stage, std::string_view path,
                                          std::string_view activity_id, std::string_view name) {
    for (const std::string& line : lines_of(stage, path)) {
        std::vector<std::string> fields = cut(line, '~');
        if (fields.size() <= place_of_name || fields[place_of_activity_id] != activity_id) continue;
        if (name.empty() || fields[place_of_name] == name) return fields;
    }
    return {};
}

Value value_of(std::string_view written, const Stage& stage) {
    const Words words = scenario::words_of(written, {});
    const auto is = [&words](std::string_view verb, std::size_t count) {
        return words.size() == count && words.front() == verb;
    };
    if (words.empty()) throw Unmet("There is no name between the braces.");
    if (words.front() == "room") return room(behind(written, "room"));
    if (words.front() == "text") return {Value::Kind::text, behind(written, "text")};
    if (is("cell", 4)) {
        const std::string line = piece(lines_of(stage, words[1]), words[2], "line");
        return {Value::Kind::text, piece(cut(line, '\t'), words[3], "cell")};
    }
    if (is("field", 4)) return load_file_field(stage, words);
    if (is("line", 3))
        return {Value::Kind::text, piece(lines_of(stage, words[1]), words[2], "line")};
    if (is("count", 3)) {
        const auto fields = cut(piece(lines_of(stage, words[1]), words[2], "line"), '~');
        return number(fields.size());
    }
    if (is("lines", 2)) {
        return number(lines_of(stage, words[1]).size());
    }
    if (words.size() == 1) return caption(stage, words[0]);
    if (words.size() == 3) return grid_cell(stage, words);
    throw Unmet("\"" + std::string(written) + "\" names no value.");
}

}  // namespace brooklander::guide
