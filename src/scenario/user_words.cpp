#include "scenario/user_words.h"

#include <array>
#include <utility>

#include "platform/code_page.h"
#include "scenario/scenario_error.h"
#include "scenario/words.h"

namespace brooklander::scenario {
namespace {

constexpr std::array<std::pair<std::string_view, Key>, 10> named_keys{{
    {"{Enter}", {Key::Name::enter}},
    {"{Delete}", {Key::Name::erase}},
    {"{Backspace}", {Key::Name::backspace}},
    {"{Up}", {Key::Name::up}},
    {"{Down}", {Key::Name::down}},
    {"{Left}", {Key::Name::left}},
    {"{Right}", {Key::Name::right}},
    {"{Tab}", {Key::Name::tab}},
    {"{Escape}", {Key::Name::escape}},
    {"{Space}", Key::of(' ')},
}};

Key take_named_key(std::string_view& text) {
    for (const auto& [name, key] : named_keys) {
        if (!text.starts_with(name)) continue;
        text.remove_prefix(name.size());
        return key;
    }
    const std::size_t end = text.find('}');
    const std::string_view name = end == std::string_view::npos ? text : text.substr(0, end + 1);
    throw WrongLine("There is no key " + in_quotes(name) + ".");
}

}  // namespace

std::size_t entry_index(const EntryList& list, std::string_view entry) {
    const auto index = list.find(entry);
    if (!index) throw Unmet(list.path() + " has no entry " + in_quotes(entry) + ".");
    return *index;
}

void want_cell(const Grid& grid, GridCell cell) {
    if (cell.row < grid.rows() && cell.column < grid.columns()) return;
    throw Unmet(grid.path() + " has no cell " + std::to_string(cell.row) + " " +
                std::to_string(cell.column) + "; it has " + std::to_string(grid.rows()) +
                " rows and " + std::to_string(grid.columns()) + " columns.");
}

std::vector<Key> keys_in(std::string_view text) {
    std::vector<Key> keys;
    while (!text.empty()) {
        if (text.front() == '{') {
            keys.push_back(take_named_key(text));
            continue;
        }
        if (!can_be_typed(text.front())) {
            throw WrongLine("A character that no key types stands among the keys.");
        }
        keys.push_back(Key::of(text.front()));
        text.remove_prefix(1);
    }
    return keys;
}

}  // namespace brooklander::scenario
