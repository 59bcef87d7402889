// Keys, as a user presses them.
#pragma once

namespace brooklander {

struct Key {
    enum class Name {
        character,
        enter,
        erase,  // Delete
        backspace,
        up,
        down,
        left,
        right,
        tab,
        escape,
    };

    Name name;
    char character = '\0';  // of a character key, in the code page; the space bar is one

    static constexpr Key of(char character) { return {Name::character, character}; }

    bool operator==(const Key&) const = default;
};

}  // namespace brooklander
