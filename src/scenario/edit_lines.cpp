#include "scenario/edit_lines.h"

#include <algorithm>

namespace brooklander::scenario {
namespace {

// What one change took away, and what came in its place.
struct Difference {
    std::size_t place;  // in front of both
    std::size_t removed;
    std::string added;
};

Difference difference_of(const Edit& edit) {
    const auto& [before, after] = edit;
    const std::size_t shorter = std::min(before.size(), after.size());
    std::size_t same_front = 0;
    while (same_front < shorter && before[same_front] == after[same_front]) ++same_front;
    std::size_t same_back = 0;
    while (same_back < shorter - same_front &&
           before[before.size() - 1 - same_back] == after[after.size() - 1 - same_back]) {
        ++same_back;
    }
    return {same_front, before.size() - same_front - same_back,
            after.substr(same_front, after.size() - same_front - same_back)};
}

bool replaces_all(const Edit& edit) {
    return edit.after.empty() || difference_of(edit).removed == edit.before.size();
}

bool appends_one(const Edit& edit) {
    return edit.after.size() == edit.before.size() + 1 && edit.after.starts_with(edit.before);
}

void press(PressedKeys& keys, Key key, std::size_t times) { keys.insert(keys.end(), times, key); }

// The keys that make a change, from a caret on, which they move.
void add_keys(PressedKeys& keys, const Edit& edit, std::size_t& caret) {
    const Difference difference = difference_of(edit);
    const std::size_t behind_removed = difference.place + difference.removed;
    if (caret > behind_removed) press(keys, {Key::Name::left}, caret - behind_removed);
    if (caret < behind_removed) press(keys, {Key::Name::right}, behind_removed - caret);
    press(keys, {Key::Name::backspace}, difference.removed);
    for (const char character : difference.added) keys.push_back(Key::of(character));
    caret = difference.place + difference.added.size();
}

}  // namespace

std::vector<RecordedLine> lines_for(TextBox& box, const std::vector<Edit>& edits) {
    std::vector<RecordedLine> lines;
    for (auto edit = edits.begin(); edit != edits.end();) {
        if (replaces_all(*edit)) {
            std::string text = edit->after;
            const bool can_grow = !text.empty();
            for (++edit; can_grow && edit != edits.end() && appends_one(*edit); ++edit) {
                text = edit->after;
            }
            lines.push_back({"type", &box, TypedText{text}});
            continue;
        }
        PressedKeys keys;
        std::size_t caret = edit->before.size();
        for (; edit != edits.end() && !replaces_all(*edit); ++edit) add_keys(keys, *edit, caret);
        lines.push_back({"keys", &box, keys});
    }
    return lines;
}

}  // namespace brooklander::scenario
