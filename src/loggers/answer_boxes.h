// Two tick boxes of which one answers a question.
#pragma once

#include "shared/fields.h"

namespace brooklander {

// For a box that has gone on or off: on, it takes the other back and lets the user go on.
inline void take_answer(const TickBox& box, TickBox& other, Button& go_on) {
    if (!box.ticked()) return;
    other.set_ticked(false);
    go_on.enable();
}

}  // namespace brooklander
