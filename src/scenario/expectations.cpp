#include <map>

#include "scenario/arguments.h"
#include "scenario/scenario_error.h"
#include "scenario/stage.h"
#include "scenario/user_words.h"
#include "shared/data_source.h"
#include "shared/place_lists.h"

namespace brooklander::scenario {
namespace {

using enum FieldKind;

// Throws Unmet when it does not hold.
using Check = std::function<void(const Field&)>;

struct Expectation {
    std::string field;
    Check check;
};

void want(bool holds, const Field& field, const std::string& expected, const std::string& found) {
    if (holds) return;
    throw Unmet(field.path() + ": expected " + expected + ", found " + found + ".");
}

void want_text(const Field& field, const std::string& of_what, std::string_view expected,
               std::string_view found) {
    want(expected == found, field, of_what + in_quotes(expected), in_quotes(found));
}

void want_number(const Field& field, const std::string& of_what, int expected, int found) {
    want(expected == found, field, of_what + std::to_string(expected), std::to_string(found));
}

// A condition of which the other word is what is found when it does not hold.
Check flag(bool (Field::*ask)() const, bool wanted, const std::string& word,
           const std::string& other) {
    return [=](const Field& field) { want((field.*ask)() == wanted, field, word, other); };
}

constexpr std::initializer_list<FieldKind> with_text{
    screen, panel,     label,      text_box,    button,    tick_box,
    option, pick_list, drive_list, folder_list, file_list, menu_entry};
constexpr std::initializer_list<FieldKind> lists{list, pick_list, drive_list, folder_list,
                                                 file_list};
constexpr std::initializer_list<FieldKind> any_or_screen{
    screen,    panel,      label,       text_box,  button,     tick_box, option,     list,
    pick_list, drive_list, folder_list, file_list, menu_entry, grid,     data_source};

std::string shown_text(const Field& field) { return in_quotes(told_text(field)); }

const Grid& as_grid(const Field& field) { return static_cast<const Grid&>(field); }

int value_of(const Field& field) {
    return field.kind() == tick_box ? static_cast<const TickBox&>(field).value()
                                    : static_cast<const Option&>(field).value();
}

// The conditions of one word: `expect FIELD visible`.
std::optional<Check> condition(const std::string& word) {
    static const std::map<std::string, Check> conditions{
        {"visible", flag(&Field::visible, true, "visible", "hidden")},
        {"hidden", flag(&Field::visible, false, "hidden", "visible")},
        {"seen", flag(&Field::seen, true, "seen", "unseen")},
        {"unseen", flag(&Field::seen, false, "unseen", "seen")},
        {"enabled", flag(&Field::enabled, true, "enabled", "disabled")},
        {"disabled", flag(&Field::enabled, false, "disabled", "enabled")},
        {"focused", flag(&Field::focused, true, "the focus", "no focus")},
    };
    const auto found = conditions.find(word);
    if (found == conditions.end()) return std::nullopt;
    return found->second;
}

Expectation condition_expectation(const Arguments& arguments, const Check& check) {
    arguments.want(2);
    const std::string& word = arguments.text(1);
    const bool screens_too =
        word == "visible" || word == "hidden" || word == "seen" || word == "unseen";
    return {screens_too ? arguments.field(0, any_or_screen) : arguments.field(0), check};
}

Expectation text_expectation(const Arguments& arguments) {
    arguments.want(3);
    return {arguments.field(0, with_text), [text = arguments.text(2)](const Field& field) {
                want(text == field.text(), field, in_quotes(text), shown_text(field));
            }};
}

Expectation value_expectation(const Arguments& arguments) {
    arguments.want(3);
    const int value = arguments.number(2, "value");
    if (value > 1) throw WrongLine("A value is 0 or 1.");
    return {arguments.field(0, {tick_box, option}), [value](const Field& field) {
                want_number(field, "the value ", value, value_of(field));
            }};
}

Expectation count_expectation(const Arguments& arguments) {
    arguments.want(3);
    const int count = arguments.number(2, "count");
    return {arguments.field(0, lists), [count](const Field& field) {
                const auto found = static_cast<const EntryList&>(field).count();
                want_number(field, "a count of ", count, static_cast<int>(found));
            }};
}

Expectation entry_expectation(const Arguments& arguments) {
    arguments.want(4);
    const int index = arguments.number(2, "entry");
    return {arguments.field(0, lists), [index, text = arguments.text(3)](const Field& field) {
                const auto& entries = static_cast<const EntryList&>(field);
                const auto place = static_cast<std::size_t>(index);
                const std::string which = "the entry " + std::to_string(index) + " ";
                want(place < entries.count(), field, which + in_quotes(text),
                     std::to_string(entries.count()) + " entries");
                want_text(field, which, text, entries.entry(place));
            }};
}

Expectation grid_count(const Arguments& arguments, const std::string& of_what,
                       int (Grid::*ask)() const) {
    arguments.want(3);
    const int number = arguments.number(2, "count");
    return {arguments.field(0, {grid}), [=](const Field& field) {
                want_number(field, of_what + " ", number, (as_grid(field).*ask)());
            }};
}

Expectation cell_expectation(const Arguments& arguments) {
    arguments.want(5);
    const GridCell cell{arguments.number(2, "row"), arguments.number(3, "column")};
    return {arguments.field(0, {grid}), [cell, text = arguments.text(4)](const Field& field) {
                want_cell(as_grid(field), cell);
                want_text(
                    field,
                    "in cell " + std::to_string(cell.row) + " " + std::to_string(cell.column) + " ",
                    text, as_grid(field).cell(cell.row, cell.column));
            }};
}

std::string shown_cell(GridCell cell) {
    return std::to_string(cell.row) + " " + std::to_string(cell.column);
}

Expectation current_expectation(const Arguments& arguments) {
    arguments.want(4);
    const GridCell cell{arguments.number(2, "row"), arguments.number(3, "column")};
    return {arguments.field(0, {grid}), [cell](const Field& field) {
                const GridCell current = as_grid(field).current();
                want(current == cell, field, "the current cell " + shown_cell(cell),
                     shown_cell(current));
            }};
}

Expectation width_expectation(const Arguments& arguments) {
    arguments.want(4);
    const int column = arguments.number(2, "column");
    const int width = arguments.number(3, "width");
    return {arguments.field(0, {grid}), [column, width](const Field& field) {
                want_number(field, "column " + std::to_string(column) + " as wide as ", width,
                            as_grid(field).column_width(column));
            }};
}

// `expect FIELD WHAT WORD`, where the word is one of a few.
template <typename Value>
Expectation word_expectation(const Arguments& arguments, std::initializer_list<FieldKind> kinds,
                             const std::map<std::string, Value>& values,
                             std::function<Value(const Field&)> ask) {
    arguments.want(3);
    const auto wanted = values.find(arguments.text(2));
    if (wanted == values.end()) {
        throw WrongLine(in_quotes(arguments.text(2)) + " is no " + arguments.text(1) + ".");
    }
    return {arguments.field(0, kinds),
            [word = wanted->first, value = wanted->second, values, ask](const Field& field) {
                std::string found;
                for (const auto& [name, named] : values) {
                    if (named == ask(field)) found = name;
                }
                want(ask(field) == value, field, word, found);
            }};
}

Expectation selection_expectation(const Arguments& arguments) {
    return word_expectation<Selection>(
        arguments, {grid},
        {{"free", Selection::free}, {"row", Selection::by_row}, {"column", Selection::by_column}},
        [](const Field& field) { return as_grid(field).selection(); });
}

Expectation highlight_expectation(const Arguments& arguments) {
    return word_expectation<Highlight>(
        arguments, {grid},
        {{"never", Highlight::never},
         {"always", Highlight::always},
         {"focus", Highlight::with_focus}},
        [](const Field& field) { return as_grid(field).highlight(); });
}

Expectation pointer_expectation(const Arguments& arguments) {
    return word_expectation<Pointer>(
        arguments, {screen}, {{"busy", Pointer::busy}, {"normal", Pointer::normal}},
        [](const Field& field) { return static_cast<const Screen&>(field).pointer(); });
}

Expectation source_expectation(const Arguments& arguments) {
    arguments.want(3);
    return {arguments.field(0, {data_source}), [text = arguments.text(2)](const Field& field) {
                want_text(field, "the source ", text, field.text());
            }};
}

// How an expectation of a word is written.
std::string usage_of(const std::string& what) {
    static const std::map<std::string, std::string> behind{{"text", " TEXT"},
                                                           {"value", " N"},
                                                           {"count", " N"},
                                                           {"entry", " I TEXT"},
                                                           {"rows", " N"},
                                                           {"columns", " N"},
                                                           {"fixed", " N"},
                                                           {"cell", " ROW COLUMN TEXT"},
                                                           {"current", " ROW COLUMN"},
                                                           {"width", " COLUMN N"},
                                                           {"selection", " free, row or column"},
                                                           {"highlight", " never, always or focus"},
                                                           {"pointer", " busy or normal"},
                                                           {"source", " TEXT"}};
    const auto found = behind.find(what);
    return "expect FIELD " + what + (found == behind.end() ? "" : found->second);
}

Expectation expectation_of(const Arguments& words) {
    if (words.count() < 2) words.fail();
    const std::string& what = words.text(1);
    const Arguments arguments = words.with_usage(usage_of(what));
    if (const auto check = condition(what)) return condition_expectation(arguments, *check);
    if (what == "text") return text_expectation(arguments);
    if (what == "value") return value_expectation(arguments);
    if (what == "count") return count_expectation(arguments);
    if (what == "entry") return entry_expectation(arguments);
    if (what == "rows") return grid_count(arguments, what, &Grid::rows);
    if (what == "columns") return grid_count(arguments, what, &Grid::columns);
    if (what == "fixed") return grid_count(arguments, "fixed rows", &Grid::fixed_rows);
    if (what == "cell") return cell_expectation(arguments);
    if (what == "current") return current_expectation(arguments);
    if (what == "width") return width_expectation(arguments);
    if (what == "selection") return selection_expectation(arguments);
    if (what == "highlight") return highlight_expectation(arguments);
    if (what == "pointer") return pointer_expectation(arguments);
    if (what == "source") return source_expectation(arguments);
    throw WrongLine("Nothing can be expected by the word " + in_quotes(what) + ".");
}

}  // namespace

Step expect_step(const Arguments& arguments) {
    return {
        {}, Works::while_running, false, [expectation = expectation_of(arguments)](Stage& stage) {
            expectation.check(stage.field(expectation.field));
        }};
}

}  // namespace brooklander::scenario
