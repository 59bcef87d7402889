#include "scenario/user_words.h"

#include <algorithm>
#include <array>
#include <utility>

#include "platform/code_page.h"
#include "scenario/scenario_error.h"
#include "scenario/words.h"

namespace brooklander::scenario {
namespace {

constexpr std::array<std::pair<std::string_view, Key>, 11> named_keys{{
    {"Enter", {Key::Name::enter}},
    {"Delete", {Key::Name::erase}},
    {"Backspace", {Key::Name::backspace}},
    {"Up", {Key::Name::up}},
    {"Down", {Key::Name::down}},
    {"Left", {Key::Name::left}},
    {"Right", {Key::Name::right}},
    {"Tab", {Key::Name::tab}},
    {"Escape", {Key::Name::escape}},
    {"Space", Key::of(' ')},
    {"{", Key::of('{')},
}};

constexpr std::size_t most_keys = 1'000'000;  // a line's; no table has as many rows

// Takes `{Name}` or `{Name TIMES}` off the front.
void take_named_key(std::string_view& text, std::vector<Key>& keys) {
    const std::size_t end = text.find('}');
    const std::string_view word = text.substr(0, end == std::string_view::npos ? end : end + 1);
    const std::string_view inside = word.substr(1, word.size() - (word.ends_with('}') ? 2 : 1));
    const std::size_t blank = inside.find(' ');
    const std::string_view name = inside.substr(0, blank);
    const auto found = std::find_if(named_keys.begin(), named_keys.end(),
                                    [name](const auto& named) { return named.first == name; });
    if (!word.ends_with('}') || found == named_keys.end()) {
        throw WrongLine("There is no key " + in_quotes(word) + ".");
    }
    int times = 1;
    if (blank != std::string_view::npos) {
        times = number_in(inside.substr(blank + 1), "number of times");
    }
    if (keys.size() + static_cast<std::size_t>(times) > most_keys) {
        throw WrongLine("So many keys are pressed by nobody: " + in_quotes(word) + ".");
    }
    keys.insert(keys.end(), static_cast<std::size_t>(times), found->second);
    text.remove_prefix(word.size());
}

}  // namespace

std::size_t entry_index(const EntryList& list, std::string_view entry, int which) {
    const auto first = list.find(entry);
    if (!first) throw Unmet(list.path() + " has no entry " + in_quotes(entry) + ".");
    const auto begin = list.entries().begin();
    const auto end = list.entries().end();
    auto at = begin + static_cast<std::ptrdiff_t>(*first);
    for (int passed = 1; passed < which && at != end; ++passed) {
        at = std::find(at + 1, end, entry);
    }
    if (at != end) return static_cast<std::size_t>(at - begin);
    throw Unmet(list.path() + " has the entry " + in_quotes(entry) + " no " +
                std::to_string(which) + " times.");
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
            take_named_key(text, keys);
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

std::string key_word(Key key, std::size_t times) {
    const auto found = std::find_if(named_keys.begin(), named_keys.end(),
                                    [key](const auto& named) { return named.second == key; });
    // A blank is typed as it stands.
    if (found == named_keys.end() || key == Key::of(' ')) return std::string(times, key.character);
    return "{" + std::string(found->first) + (times > 1 ? " " + std::to_string(times) : "") + "}";
}

}  // namespace brooklander::scenario
